// Any bytes as a chart in command lines.
#include "data/import/CommandChart.h"
#include "data/import/ImportText.h"
#include "fuzz/chart_checks.h"

#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::span bytes(data, size);
    data::ImportReport report;
    data::readCommandChart(data::textLines(bytes, data::ByteEncoding::Windows1252), report);
    fuzz::checkImport(report);
    return 0;
}
