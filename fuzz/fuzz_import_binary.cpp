// Any bytes as a binary chart list.
#include "data/import/BinaryChartList.h"
#include "fuzz/chart_checks.h"

#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::span bytes(data, size);
    data::ImportReport report;
    data::readBinaryChartList(bytes, report);
    fuzz::checkImport(report);
    return 0;
}
