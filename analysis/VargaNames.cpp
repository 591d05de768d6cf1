#include "analysis/VargaNames.h"

#include "core/NumberText.h"
#include "core/Varga.h"

#include <algorithm>
#include <cassert>
#include <string>

namespace kestrav::analysis
{

namespace
{

struct VargaInfo
{
    int division;
    std::wstring_view name;
    std::wstring_view shortName;
    std::wstring_view meaning;
};

// clang-format off
constexpr core::VargaArray<VargaInfo> kVargas = {{
    {  1, L"Rashi",             L"Rasi", L"General"},
    {  2, L"Hora",              L"Hora", L"Wealth"},
    {  3, L"Drekkana",          L"Drek", L"Siblings"},
    {  4, L"Chaturtamsha",      L"Chat", L"Fortunes"},
    {  7, L"Saptamsha",         L"Sapt", L"Progeny"},
    {  9, L"Navamsha",          L"Nava", L"Dharma/Spouse"},
    { 10, L"Dashamamsha",       L"Dasa", L"Power & Status"},
    { 12, L"Dwadashamsha",      L"Dwad", L"Parents"},
    { 16, L"Shodashamsha",      L"Shod", L"Conveyances"},
    { 20, L"Vimshamsha",        L"Vims", L"Worship"},
    { 24, L"Siddhamsha",        L"Sidh", L"Learning"},
    { 27, L"Bhamsha",           L"Bham", L"Strength"},
    { 30, L"Trimshamsa",        L"Tris", L"Good & evil"},
    { 40, L"Chatvarimshamsha",  L"ChaV", L"Auspicious"},
    { 45, L"AkshaVedamsha",     L"Aksh", L"General"},
    { 60, L"Shashtiamsha",      L"Sast", L"General"},
    {  5, L"Tajik Panchamsha",  L"Panc", L"5th House"},
    {  6, L"Tajik Shashtamsha", L"Shat", L"Health"},
    {  8, L"Tajik Ashtamamsha", L"Asht", L"Challenges"},
    { 11, L"Rudramsha/Tajik",   L"Ekad", L"Gains"},
    {108, L"NavaDwadasha.",     L"NvDw", L"Nature/Varna"},
}};
// clang-format on

constexpr int totalOfDivisions()
{
    int total = 0;
    for (const VargaInfo& varga : kVargas) {
        total += varga.division;
    }
    return total;
}
static_assert(totalOfDivisions() == 448);

const VargaInfo& info(int varga)
{
    assert(varga >= 0 && varga < core::kVargaCount);
    return core::at(kVargas, varga);
}

// The C library's conversion depends on the locale: a Turkish one does not pair I with i.
template <typename Letter>
constexpr int lowerCase(Letter letter)
{
    return letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter;
}

// The names are plain letters, so a byte stands for a character.
bool same(std::wstring_view name, std::string_view text)
{
    return std::equal(name.begin(), name.end(), text.begin(), text.end(),
                      [](wchar_t a, char b) { return lowerCase(a) == lowerCase(b); });
}

} // namespace

int vargaDivision(int varga)
{
    return info(varga).division;
}

double partSpan(int varga)
{
    return 30.0 / vargaDivision(varga);
}

std::wstring_view vargaName(int varga)
{
    return info(varga).name;
}

std::wstring_view vargaShortName(int varga)
{
    return info(varga).shortName;
}

std::wstring_view vargaMeaning(int varga)
{
    return info(varga).meaning;
}

std::optional<int> findVarga(std::string_view text)
{
    if (const std::optional<int> index = core::parseInteger(text)) {
        return *index >= 0 && *index < core::kVargaCount ? index : std::nullopt;
    }
    std::string_view number = text;
    std::optional<int> division;
    if (!number.empty() && (number.front() == 'D' || number.front() == 'd')) {
        number.remove_prefix(number.size() > 1 && number[1] == '-' ? 2 : 1);
        division = core::parseInteger(number);
    }
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        if (same(vargaName(varga), text) || same(vargaShortName(varga), text) ||
            division == vargaDivision(varga)) {
            return varga;
        }
    }
    return std::nullopt;
}

} // namespace kestrav::analysis
