#include "app/present/Glyphs.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrav::present
{

namespace
{

struct GlyphRow
{
    int code;
    wchar_t character;
};

// Source of the characters: the names in the Unicode block Miscellaneous Symbols.
// clang-format off
constexpr std::array<GlyphRow, 33> kGlyphs = {{
    {208, 0x2609}, // Sun
    {209, 0x263D}, // first quarter moon
    {210, 0x2642}, // male sign, Mars
    {211, 0x263F}, // Mercury
    {212, 0x2643}, // Jupiter
    {213, 0x2640}, // female sign, Venus
    {214, 0x2644}, // Saturn
    {215, 0x260A}, // ascending node, Rahu
    {216, 0x260B}, // descending node, Ketu
    {217, 0x2645}, // Uranus
    {218, 0x2646}, // Neptune
    {219, 0x2647}, // Pluto
    {220, 0x2648}, // Aries
    {221, 0x2649}, // Taurus
    {222, 0x264A}, // Gemini
    {223, 0x264B}, // Cancer
    {224, 0x264C}, // Leo
    {225, 0x264D}, // Virgo
    {226, 0x264E}, // Libra
    {227, 0x264F}, // Scorpio
    {228, 0x2650}, // Sagittarius
    {229, 0x2651}, // Capricorn
    {230, 0x2652}, // Aquarius
    {231, 0x2653}, // Pisces
    {238, 0x2609}, // Sun
    {239, 0x263D}, // first quarter moon
    {240, 0x2642}, // Mars
    {241, 0x263F}, // Mercury
    {242, 0x2643}, // Jupiter
    {243, 0x2640}, // Venus
    {244, 0x2644}, // Saturn
    {245, 0x260A}, // Rahu
    {246, 0x260B}, // Ketu
}};
// clang-format on

constexpr bool codesAscend()
{
    for (std::size_t i = 1; i < kGlyphs.size(); ++i) {
        if (kGlyphs[i].code <= kGlyphs[i - 1].code) {
            return false;
        }
    }
    return true;
}
static_assert(codesAscend());

} // namespace

wchar_t glyphCharacter(int code)
{
    const auto* const row = std::find_if(kGlyphs.begin(), kGlyphs.end(),
                                         [code](const GlyphRow& r) { return r.code == code; });
    return row == kGlyphs.end() ? L'\0' : row->character;
}

std::wstring glyphText(std::wstring_view name)
{
    if (name.size() == 1) {
        if (const wchar_t character = glyphCharacter(int(name.front())); character != L'\0') {
            return std::wstring(1, character);
        }
    }
    return std::wstring(name.substr(0, name.find_last_not_of(L' ') + 1));
}

bool isGlyph(wchar_t character)
{
    return character >= 0x2609 && character <= 0x2653 &&
           std::any_of(kGlyphs.begin(), kGlyphs.end(),
                       [character](const GlyphRow& row) { return row.character == character; });
}

} // namespace kestrav::present
