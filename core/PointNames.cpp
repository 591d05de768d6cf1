#include "core/PointNames.h"

#include "core/DisplayFlags.h"
#include "core/Points.h"

#include <array>
#include <cstddef>
#include <numeric>

namespace kestrav::core
{

namespace
{

// A row holds the English long, three-letter and two-letter names, then the Sanskrit ones.
using NameRow = std::array<std::wstring_view, 6>;

// These are settled display texts: "Sun " and the Sanskrit "F " end in a blank, and the Sanskrit
// three-letter column reads "SrL" for Varnada and "VaL" for Divya, so "DiL" never shows there.
// clang-format off
constexpr PointArray<NameRow> kPointNames = {{
    {{L"Ascendant",    L"Asc",  L"As",   L"Lagna",        L"Lag",  L"Lg"  }},
    {{L"Sun ",         L"Sun",  L"Su",   L"Surya",        L"Sur",  L"Sy"  }},
    {{L"Moon",         L"Moo",  L"Mo",   L"Chandra",      L"Cha",  L"Ch"  }},
    {{L"Mars",         L"Mar",  L"Ma",   L"Mangal",       L"Man",  L"Ma"  }},
    {{L"Mercury",      L"Mer",  L"Me",   L"Budha",        L"Bud",  L"Bu"  }},
    {{L"Jupiter",      L"Jup",  L"Jp",   L"Guru",         L"Gur",  L"Gu"  }},
    {{L"Venus",        L"Ven",  L"Ve",   L"Shukra",       L"Suk",  L"Sk"  }},
    {{L"Saturn",       L"Sat",  L"Sa",   L"Shani",        L"San",  L"Sa"  }},
    {{L"Rahu",         L"Rah",  L"Ra",   L"Rahu",         L"Rah",  L"Ra"  }},
    {{L"Ketu",         L"Ket",  L"Ke",   L"Ketu",         L"Ket",  L"Ke"  }},
    {{L"Dhuma",        L"Dhu",  L"dh",   L"Dhuma",        L"Dhu",  L"dh"  }},
    {{L"Vyatipata",    L"Vya",  L"vy",   L"Vyatipata",    L"Vya",  L"vy"  }},
    {{L"Parivesha",    L"Par",  L"pa",   L"Parivesha",    L"Par",  L"pa"  }},
    {{L"Indrachapa",   L"Ind",  L"in",   L"Indrachapa",   L"Ind",  L"in"  }},
    {{L"Upaketu",      L"Upa",  L"up",   L"Upaketu",      L"Upa",  L"up"  }},
    {{L"Kaala",        L"Kal",  L"ka",   L"Kaala",        L"Kal",  L"ka"  }},
    {{L"Mrityu",       L"Mri",  L"mr",   L"Mrityu",       L"Mri",  L"mr"  }},
    {{L"Ardhaprahara", L"ArP",  L"ar",   L"Ardhaprahara", L"ArP",  L"ar"  }},
    {{L"Yamaghantaka", L"Yam",  L"ya",   L"Yamaghantaka", L"Yam",  L"ya"  }},
    {{L"Gulika",       L"Gul",  L"gl",   L"Gulika",       L"Gul",  L"gl"  }},
    {{L"Pranapada",    L"PPd",  L"pp",   L"Pranapada",    L"PPd",  L"pp"  }},
    {{L"Mandi",        L"Mdi",  L"mn",   L"Mandi",        L"Mdi",  L"mn"  }},
    {{L"Muntha",       L"Mun",  L"MU",   L"Muntha",       L"Mun",  L"MU"  }},
    {{L"Janmalagna",   L"Jan",  L"JL",   L"Janmalagna",   L"Jan",  L"JL"  }},
    {{L"Bhava",        L"BhL",  L"BL",   L"Bhava",        L"BhL",  L"BL"  }},
    {{L"Hora",         L"HoL",  L"HL",   L"Hora",         L"HoL",  L"HL"  }},
    {{L"Ghati",        L"GaL",  L"GL",   L"Ghati",        L"GhL",  L"GL"  }},
    {{L"Indu",         L"InL",  L"IL",   L"Indu",         L"InL",  L"IL"  }},
    {{L"Shri",         L"SrL",  L"SL",   L"Shri",         L"SrL",  L"SL"  }},
    {{L"Varnada",      L"VaL",  L"VL",   L"Varnada",      L"SrL",  L"VL"  }},
    {{L"Divya",        L"DiL",  L"DL",   L"Divya",        L"VaL",  L"DL"  }},
    {{L"Arudha",       L"ArL",  L"AL",   L"Arudha",       L"ArL",  L"AL"  }},
    {{L"Uranus",       L"Ura",  L"Ur",   L"Uranus",       L"Ura",  L"Ur"  }},
    {{L"Neptune",      L"Nep",  L"Ne",   L"Neptune",      L"Nep",  L"Ne"  }},
    {{L"Pluto",        L"Plu",  L"Pl",   L"Pluto",        L"Plu",  L"Pl"  }},
    {{L"Hs1",          L"Hs1",  L"As",   L"Bv1",          L"Bv1",  L"Lg"  }},
    {{L"Hs2",          L"Hs2",  L"h2",   L"Bv2",          L"Bv2",  L"b2"  }},
    {{L"Hs3",          L"Hs3",  L"h3",   L"Bv3",          L"Bv3",  L"b3"  }},
    {{L"Hs4",          L"Hs4",  L"h4",   L"Bv4",          L"Bv4",  L"b4"  }},
    {{L"Hs5",          L"Hs5",  L"h5",   L"Bv5",          L"Bv5",  L"b5"  }},
    {{L"Hs6",          L"Hs6",  L"h6",   L"Bv6",          L"Bv6",  L"b6"  }},
    {{L"Hs7",          L"Hs7",  L"h7",   L"Bv7",          L"Bv7",  L"b7"  }},
    {{L"Hs8",          L"Hs8",  L"h8",   L"Bv8",          L"Bv8",  L"b8"  }},
    {{L"Hs9",          L"Hs9",  L"h9",   L"Bv9",          L"Bv9",  L"b9"  }},
    {{L"H10",          L"H10",  L"mc",   L"B10",          L"B10",  L"mc"  }},
    {{L"H11",          L"H11",  L"h11",  L"B11",          L"B11",  L"b11" }},
    {{L"H12",          L"H12",  L"h12",  L"B12",          L"B12",  L"b12" }},
    {{L"ArudhaLg",     L"ArL",  L"AL",   L"ArudhaLg",     L"ArL",  L"AL"  }},
    {{L"Arudha2",      L"a2",   L"a2",   L"Arudha2",      L"a2",   L"a2"  }},
    {{L"Arudha3",      L"a3",   L"a3",   L"Arudha3",      L"a3",   L"a3"  }},
    {{L"Arudha4",      L"a4",   L"a4",   L"Arudha4",      L"a4",   L"a4"  }},
    {{L"Arudha5",      L"a5",   L"a5",   L"Arudha5",      L"a5",   L"a5"  }},
    {{L"Arudha6",      L"a6",   L"a6",   L"Arudha6",      L"a6",   L"a6"  }},
    {{L"Arudha7",      L"a7",   L"a7",   L"Arudha7",      L"a7",   L"a7"  }},
    {{L"Arudha8",      L"a8",   L"a8",   L"Arudha8",      L"a8",   L"a8"  }},
    {{L"Arudha9",      L"a9",   L"a9",   L"Arudha9",      L"a9",   L"a9"  }},
    {{L"Arudha10",     L"a10",  L"a10",  L"Arudha10",     L"a10",  L"a10" }},
    {{L"Arudha11",     L"a11",  L"a11",  L"Arudha11",     L"a11",  L"a11" }},
    {{L"UpapadLg",     L"UpL",  L"UL",   L"UpapadLg",     L"UpL",  L"UL"  }},
    {{L"YogiPt",       L"YoP",  L"yp",   L"YogiPt",       L"YoP",  L"yp"  }},
    {{L"PFor",         L"PF",   L"F",    L"PFor",         L"PF",   L"F "  }},
    {{L"S2",           L"S2",   L"s2",   L"S2",           L"S2",   L"s2"  }},
    {{L"S3",           L"S3",   L"s3",   L"S3",           L"S3",   L"s3"  }},
}};

constexpr std::array<NameRow, 13> kSignNames = {{
    {{L"x",           L"x",    L"x",  L"x",          L"x",   L"x" }},
    {{L"Aries",       L"Ari",  L"Ar", L"Mesha",      L"Mes", L"Me"}},
    {{L"Taurus",      L"Tau",  L"Ta", L"Vrishabha",  L"Vrs", L"Vr"}},
    {{L"Gemini",      L"Gem",  L"Ge", L"Mithuna",    L"Mit", L"Mt"}},
    {{L"Cancer",      L"Can",  L"Ca", L"Karka",      L"Kar", L"Ka"}},
    {{L"Leo",         L"Leo",  L"Le", L"Simha",      L"Sim", L"Si"}},
    {{L"Virgo",       L"Virg", L"Vg", L"Kanya",      L"Kan", L"Kn"}},
    {{L"Libra",       L"Libr", L"Li", L"Tula",       L"Tul", L"Tu"}},
    {{L"Scorpio",     L"Sco",  L"Sc", L"Vrischika",  L"Vrk", L"Vk"}},
    {{L"Sagittarius", L"Sag",  L"Sg", L"Dhanus",     L"Dha", L"Dh"}},
    {{L"Capricorn",   L"Cap",  L"Cp", L"Makara",     L"Mak", L"Mk"}},
    {{L"Aquarius",    L"Aqu",  L"Aq", L"Kumbha",     L"Kum", L"Ku"}},
    {{L"Pisces",      L"Pis",  L"Pi", L"Mina",       L"Min", L"Mi"}},
}};
// clang-format on

constexpr std::size_t characterCount(const NameRow& row)
{
    return std::accumulate(
        row.begin(), row.end(), std::size_t{0},
        [](std::size_t count, std::wstring_view name) { return count + name.size(); });
}

template <std::size_t Rows>
constexpr std::size_t characterCount(const std::array<NameRow, Rows>& table)
{
    return std::accumulate(
        table.begin(), table.end(), std::size_t{0},
        [](std::size_t count, const NameRow& row) { return count + characterCount(row); });
}

constexpr int kBlocks = 3;
static_assert(kBlocks * kPointCount == kPointNameEntries);
static_assert(characterCount(kPointNames) == 1334);
static_assert(characterCount(kSignNames) == 276);

constexpr int kLastPointNameIndex = 129;
constexpr int kSanskritOffset = 3;

constexpr auto kCodePoints = [] {
    std::array<wchar_t, 256> codes{};
    for (std::size_t i = 0; i < codes.size(); ++i) {
        codes[i] = static_cast<wchar_t>(i);
    }
    return codes;
}();

constexpr std::wstring_view glyph(int code)
{
    return {&kCodePoints[static_cast<std::size_t>(code)], 1};
}

int languageOffset()
{
    return (DisplayFlags() & kEnglishNames) != 0 ? 0 : kSanskritOffset;
}

bool glyphMode()
{
    return (DisplayFlags() & kGlyphNames) != 0;
}

std::wstring_view pointGlyph(int index)
{
    if (index >= kSun && index <= kKetu) {
        return glyph(index + 207);
    }
    if (index >= kUranus && index <= kPluto) {
        return glyph(index + 185);
    }
    if (index >= 63 && index <= 71) {
        return glyph(index + 174);
    }
    if (index == 72) {
        return glyph(246);
    }
    return index == 73 ? kNoName : std::wstring_view{};
}

std::wstring_view signName(int sign, int block, bool glyphAllowed)
{
    if (sign < 0 || sign > 12) {
        return kNoName;
    }
    if (glyphAllowed && sign > 0 && glyphMode()) {
        return glyph(sign + 219);
    }
    return at(at(kSignNames, sign), block + languageOffset());
}

} // namespace

std::wstring_view PointName(int style, int index)
{
    if (index < 0 || index > kLastPointNameIndex) {
        return kNoName;
    }
    // A negative style counts as below 4 here although its letters are the long name.
    if (index != kAscendant && style < 4 && glyphMode()) {
        const std::wstring_view text = pointGlyph(index);
        if (!text.empty()) {
            return text;
        }
    }
    int entry = index;
    if (index < kPointCount && style == 3) {
        entry += kPointCount;
    } else if (index < kPointCount && style >= 0 && style <= 2) {
        entry += 2 * kPointCount;
    }
    return at(at(kPointNames, entry % kPointCount), entry / kPointCount + languageOffset());
}

std::wstring_view SignName3(int sign)
{
    return signName(sign, 1, true);
}

std::wstring_view SignName2(int sign)
{
    return signName(sign, 2, true);
}

std::wstring_view signNameLong(int sign)
{
    return signName(sign, 0, false);
}

} // namespace kestrav::core
