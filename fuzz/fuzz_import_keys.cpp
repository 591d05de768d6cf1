// Any bytes as birth data by keys.
#include "data/import/BirthKeys.h"
#include "data/import/ImportText.h"
#include "fuzz/chart_checks.h"

#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::span bytes(data, size);
    data::ImportReport report;
    data::readBirthKeys(data::textLines(bytes, data::ByteEncoding::Windows1252), report);
    fuzz::checkImport(report);
    return 0;
}
