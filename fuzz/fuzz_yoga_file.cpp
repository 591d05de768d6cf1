// Any bytes as a yoga file or a plain list of yogas: what is accepted can be written and read again
// and does not change any more.
#include "fuzz/chart_checks.h"
#include "yoga/CustomYogaList.h"
#include "yoga/YogaFile.h"
#include "yoga/YogaFileFields.h"

#include <string>
#include <vector>

namespace
{

using namespace kestrav;

void checkSame(const yoga::YogaFile& a, const yoga::YogaFile& b)
{
    for (const auto& field : yoga::kCollectionFields) {
        fuzz::require(a.*field.text == b.*field.text);
    }
    fuzz::require(a.yogas.size() == b.yogas.size());
    for (std::size_t i = 0; i < a.yogas.size(); ++i) {
        for (const auto& field : yoga::kYogaFields) {
            fuzz::require(a.yogas[i].*field.text == b.yogas[i].*field.text);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::span bytes(data, size);
    if (const auto list = yoga::parseCustomYogas(bytes)) {
        const std::string text = yoga::formatCustomYogas(list.value());
        const auto again = yoga::parseCustomYogas(
            {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
        fuzz::require(again.ok() && yoga::formatCustomYogas(again.value()) == text);
    }
    const auto file = yoga::parseYogaFile(bytes);
    if (!file) {
        return 0;
    }
    const auto written = yoga::formatYogaFile(file.value());
    fuzz::require(written.ok());
    auto again = yoga::parseYogaFile(written.value());
    fuzz::require(again.ok());
    checkSame(file.value(), again.value());
    // Removed, repeated and changed yogas, some of them from the other file.
    yoga::YogaFile mixed = again.value();
    if (!mixed.yogas.empty()) {
        mixed.yogas.erase(mixed.yogas.begin());
    }
    mixed.yogas.insert(mixed.yogas.end(), file.value().yogas.begin(), file.value().yogas.end());
    for (yoga::Yoga& yoga : mixed.yogas) {
        yoga.title = "x";
        yoga.rule.clear();
    }
    mixed.closing = "end";
    const auto changed = yoga::formatYogaFile(mixed);
    fuzz::require(changed.ok());
    again = yoga::parseYogaFile(changed.value());
    fuzz::require(again.ok());
    checkSame(mixed, again.value());
    return 0;
}
