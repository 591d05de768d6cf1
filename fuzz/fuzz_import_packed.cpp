// Any bytes as a chart of packed numbers.
#include "data/import/ImportText.h"
#include "data/import/PackedList.h"
#include "fuzz/chart_checks.h"

#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::span bytes(data, size);
    data::ImportReport report;
    data::readPackedList(data::textLines(bytes, data::ByteEncoding::Windows1252), "name", report);
    fuzz::checkImport(report);
    return 0;
}
