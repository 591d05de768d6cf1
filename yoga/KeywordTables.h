// The tables of the words that conditions use.
#pragma once

#include "yoga/Keywords.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kestrav::yoga
{

/// A word for several planets, houses or signs; bit n stands for number n.
struct MaskWord
{
    std::string_view word;
    std::uint32_t mask;
    std::wstring_view meaning;
};

/// The bits of numbers.
[[nodiscard]] constexpr std::uint32_t bitsOf(std::initializer_list<unsigned> numbers)
{
    std::uint32_t mask = 0;
    for (const unsigned number : numbers) {
        mask |= 1U << number;
    }
    return mask;
}

struct BaseWord
{
    std::string_view word;
    std::wstring_view meaning;
};

struct StepWord
{
    std::string_view word;
    int step;
    std::wstring_view before; ///< what stands before the point in a sentence
    std::wstring_view after;  ///< and what behind it
};

// clang-format off
/// Points of expressions from kKarakaBase on.
inline constexpr std::array<BaseWord, 10> kBaseWords = {{
    {"AK",   L"the Atma karaka"},
    {"AmK",  L"the Amatya karaka"},
    {"BK",   L"the Bhratri karaka"},
    {"MK",   L"the Matri karaka"},
    {"PiK",  L"the Pitri karaka"},
    {"PK",   L"the Putra karaka"},
    {"GK",   L"the Jnati karaka"},
    {"DK",   L"the Dara karaka"},
    {"DayL", L"the lord of the weekday"},
    {"HorL", L"the lord of the hora"},
}};

/// Steps that are one letter.
inline constexpr std::array<StepWord, 8> kStepWords = {{
    {"D", kDispositor,     L"the dispositor of ", L""},
    {"N", kNakshatraStep,  L"the nakshatra lord of ", L""},
    {"V", kNavamshaLord,   L"the navamsha lord of ", L""},
    {"X", kExaltationLord, L"the lord of the exaltation sign of ", L""},
    {"E", kExaltedHere,    L"the planet exalted in the sign of ", L""},
    {"T", kSecondChart,    L"", L" in the second chart"},
    {"R", kInRashi,        L"", L" as found in the rashi"},
    {"A", kArudhaStep,     L"the arudha of ", L""},
}};

/// Planets of a name or a fixed group.
inline constexpr std::array<MaskWord, 5> kPlanetGroups = {{
    {"pla",  bitsOf({1, 2, 3, 4, 5, 6, 7}),       L"the planets Sun to Saturn"},
    {"gra",  bitsOf({1, 2, 3, 4, 5, 6, 7, 8, 9}), L"the planets Sun to Ketu"},
    {"tara", bitsOf({3, 4, 5, 6, 7}),             L"Mars to Saturn"},
    {"lum",  bitsOf({1, 2}),                      L"the Sun and the Moon"},
    {"nod",  bitsOf({8, 9}),                      L"Rahu and Ketu"},
}};

/// Sets that depend on the chart, from kBenefics on.
inline constexpr std::array<std::string_view, kPlanetSets - 1> kSetWords = {
    "ben", "mal", "fben", "fmal", "fyog", "fmar", "kenL", "triL", "dusL", "upaL",
    "panL", "apoL", "mrkL", "retP", "comP", "exaP", "ownP", "debP", "cluP",
};
inline constexpr std::array<std::wstring_view, kPlanetSets - 1> kSetMeanings = {
    L"natural benefics",
    L"natural malefics",
    L"functional benefics (benefic or yogakaraka and not malefic for the ascendant)",
    L"functional malefics (malefic and neither benefic nor yogakaraka)",
    L"yogakarakas",
    L"functional marakas",
    L"lords of kendras",
    L"lords of trikonas",
    L"lords of the 6th, 8th and 12th",
    L"lords of upachayas",
    L"lords of panapharas",
    L"lords of apoklimas",
    L"lords of the 2nd and 7th",
    L"retrograde planets, of Mars to Saturn",
    L"combust planets",
    L"exalted planets",
    L"planets in own signs or moolatrikona",
    L"debilitated planets",
    L"planets Sun to Saturn that stand four or more in one sign",
};

/// Groups of houses.
inline constexpr std::array<MaskWord, 10> kHouseWords = {{
    {"ken",    bitsOf({1, 4, 7, 10}),                             L"kendras: 1, 4, 7, 10"},
    {"tri",    bitsOf({1, 5, 9}),                                 L"trikonas: 1, 5, 9"},
    {"kentri", bitsOf({1, 4, 5, 7, 9, 10}),                       L"kendras and trikonas"},
    {"dus",    bitsOf({6, 8, 12}),                                L"dusthanas: 6, 8, 12"},
    {"upa",    bitsOf({3, 6, 10, 11}),                            L"upachayas: 3, 6, 10, 11"},
    {"pan",    bitsOf({2, 5, 8, 11}),                             L"panapharas: 2, 5, 8, 11"},
    {"apo",    bitsOf({3, 6, 9, 12}),                             L"apoklimas: 3, 6, 9, 12"},
    {"mrk",    bitsOf({2, 7}),                                    L"marakas: 2, 7"},
    {"visible", bitsOf({7, 8, 9, 10, 11, 12}),                    L"the visible half: 7 to 12"},
    {"every",  bitsOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}),   L"all twelve houses"},
}};

/// Signs and groups of them.
inline constexpr std::array<MaskWord, 21> kSignWords = {{
    {"Ari",   bitsOf({1}),                   L"Aries"},
    {"Tau",   bitsOf({2}),                   L"Taurus"},
    {"Gem",   bitsOf({3}),                   L"Gemini"},
    {"Can",   bitsOf({4}),                   L"Cancer"},
    {"Leo",   bitsOf({5}),                   L"Leo"},
    {"Vir",   bitsOf({6}),                   L"Virgo"},
    {"Lib",   bitsOf({7}),                   L"Libra"},
    {"Sco",   bitsOf({8}),                   L"Scorpio"},
    {"Sag",   bitsOf({9}),                   L"Sagittarius"},
    {"Cap",   bitsOf({10}),                  L"Capricorn"},
    {"Aqu",   bitsOf({11}),                  L"Aquarius"},
    {"Pis",   bitsOf({12}),                  L"Pisces"},
    {"mov",   bitsOf({1, 4, 7, 10}),         L"movable signs"},
    {"fix",   bitsOf({2, 5, 8, 11}),         L"fixed signs"},
    {"dua",   bitsOf({3, 6, 9, 12}),         L"dual signs"},
    {"odd",   bitsOf({1, 3, 5, 7, 9, 11}),   L"odd signs"},
    {"even",  bitsOf({2, 4, 6, 8, 10, 12}),  L"even signs"},
    {"fire",  bitsOf({1, 5, 9}),             L"fiery signs"},
    {"earth", bitsOf({2, 6, 10}),            L"earthy signs"},
    {"air",   bitsOf({3, 7, 11}),            L"airy signs"},
    {"water", bitsOf({4, 8, 12}),            L"watery signs"},
}};

/// Nakshatras 0 to 26, without the blanks of their names.
inline constexpr std::array<std::string_view, 27> kNakshatraWords = {
    "Ashwini", "Bharani", "Krittika", "Rohini", "Mrigashira", "Ardra", "Punarvasu", "Pushya",
    "Ashlesha", "Magha", "PurvaPhalguni", "UttaraPhalguni", "Hasta", "Chitra", "Swati",
    "Vishakha", "Anuradha", "Jyeshtha", "Mula", "PurvaAshadha", "UttaraAshadha", "Shravana",
    "Dhanishtha", "Shatabhisha", "PurvaBhadrapada", "UttaraBhadrapada", "Revati",
};

/// The plain words in the order of PlainWord, and what they mean in a sentence.
inline constexpr std::array<std::string_view, kPlainWords> kPlainTexts = {
    "graha", "share", "value", "sign",
    "deb", "gen", "ene", "neu", "fri", "gfr", "own", "mul", "exa",
    "maha", "khala", "dainya",
    "won", "lost",
    "yogak", "benef", "malef", "marak", "neutr",
    "shad", "req", "vims", "bind", "sarva", "degree", "ishta",
    "vim16", "vim10", "vim7", "vim6",
    "fast", "slow", "retro", "direct", "turn", "station",
    "day", "night", "wax", "wane", "male", "female",
    "nat", "comp",
};
inline constexpr std::array<std::wstring_view, kPlainWords> kPlainMeanings = {
    L"a full graha aspect", L"a share of the graha aspect in percent",
    L"the value of the aspect in virupas", L"a sign aspect",
    L"debilitated", L"in a great enemy's sign", L"in an enemy's sign", L"in a neutral's sign",
    L"in a friend's sign", L"in a great friend's sign", L"in its own sign", L"in its moolatrikona",
    L"exalted",
    L"maha", L"khala", L"dainya",
    L"the winner", L"the loser",
    L"a yogakaraka", L"a benefic", L"a malefic", L"a maraka", L"neutral",
    L"shadbala", L"shadbala against what is required", L"vimshopaka", L"bindus in its sign",
    L"sarvashtakavarga of its sign", L"degrees in its sign", L"ishta phala",
    L"of sixteen divisions", L"of ten divisions", L"of seven divisions", L"of six divisions",
    L"fast", L"slow", L"retrograde", L"just turned direct", L"about to turn retrograde",
    L"retrograde and hardly moving",
    L"day", L"night", L"waxing", L"waning", L"male", L"female",
    L"natural", L"compound",
};
// clang-format on

static_assert(kBaseWords.size() + kKarakaBase - 1 == kHoraLord);

} // namespace kestrav::yoga
