// Any bytes as charts in XML.
#include "data/import/XmlCharts.h"
#include "fuzz/chart_checks.h"

#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::span bytes(data, size);
    data::ImportReport report;
    data::readXmlCharts(bytes, report);
    fuzz::checkImport(report);
    return 0;
}
