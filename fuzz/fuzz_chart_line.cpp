// Any bytes as a chart line and as a whole database.
#include "core/FileText.h"
#include "data/Chooser.h"
#include "data/FieldReader.h"
#include "data/LineList.h"
#include "fuzz/chart_checks.h"

#include <span>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::span bytes(data, size);
    const core::Result<data::LineList> list = data::LineList::fromBytes(bytes);
    if (!list) {
        return 0;
    }
    const std::vector<std::uint8_t> back = list.value().bytes();
    fuzz::require(std::equal(back.begin(), back.end(), bytes.begin(), bytes.end()));

    data::DateOrder parsed = data::DateOrder::DayFirst;
    data::DateOrder listed = parsed;
    core::Chart chart;
    // A few lines at a time reach everything, and more runs fit into the time.
    const std::size_t count = std::min<std::size_t>(list.value().size(), 4);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view line = list.value().line(i);
        data::ParseChartLine(line, chart, parsed);
        const data::ChooserRow row = data::chooserRow(line, listed);
        fuzz::require(parsed == listed);
        fuzz::require(data::wideField(row.name) == chart.name);
        fuzz::require(row.date.year == chart.time.year && row.date.day == chart.time.day);
        fuzz::checkRecord(chart);
    }
    return 0;
}
