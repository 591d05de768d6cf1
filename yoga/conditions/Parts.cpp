#include "yoga/conditions/Parts.h"

#include "analysis/Aspects.h"

namespace kestrav::yoga
{

bool aspectsSign(int planet, int from, int to, const core::Settings& settings)
{
    return planet > 0 && analysis::fullGrahaAspect(planet, houseFrom(to, from), settings);
}

std::wstring listWords(std::uint64_t list)
{
    std::vector<std::wstring> items;
    for (unsigned number = 0; number < 64; ++number) {
        if (((list >> number) & 1U) != 0) {
            items.push_back(std::to_wstring(number));
        }
    }
    return orList(items);
}

std::wstring plainListWords(std::uint64_t list)
{
    std::vector<std::wstring> items;
    for (int word = 0; word < kPlainWords; ++word) {
        if (((list >> unsigned(word)) & 1U) != 0) {
            items.push_back(codeWords((int(WordClass::Plain) << 27) | word));
        }
    }
    return orList(items);
}

std::wstring contextWords(const Arguments& arguments)
{
    std::wstring lead = arguments.exchanged ? L"in the second chart: " : L"";
    const auto [first, second] = arguments.vargas;
    if (arguments.kind->rashiOnly || (first == core::kRashi && second == core::kRashi) ||
        arguments.kind->number == kVargottamaKind) {
        return lead;
    }
    lead += L"in the " + explaining::vargaText(first);
    if (second != first) {
        lead += L", seen from the " + explaining::vargaText(second);
    }
    return lead + L": ";
}

} // namespace kestrav::yoga
