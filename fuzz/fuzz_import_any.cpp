// Any bytes as any foreign file: recognised by content, in both encodings, and reported.
#include "data/import/ReadImport.h"
#include "fuzz/chart_checks.h"

#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    for (const data::ByteEncoding encoding :
         {data::ByteEncoding::Windows1252, data::ByteEncoding::CodePage850}) {
        const data::ImportReport report = data::readImportBytes(
            std::span(data, size), "name", {encoding, data::DateOrder::MonthFirst});
        fuzz::require(!report.charts.empty() || !report.refused.empty());
        fuzz::require(!data::reportText(report).empty());
        for (const core::Chart& chart : report.charts) {
            fuzz::checkRecord(chart);
        }
    }
    return 0;
}
