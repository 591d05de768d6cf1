#include "analysis/FunctionalNature.h"

#include "analysis/DignityTables.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

constexpr std::uint8_t kN = 0;
constexpr std::uint8_t kY = 1; // yogakaraka
constexpr std::uint8_t kB = 2; // benefic
constexpr std::uint8_t kM = 4; // malefic
constexpr std::uint8_t kK = 8; // maraka

// Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn by ascendant.
// clang-format off
constexpr std::array<std::array<std::uint8_t, 7>, 12> kNatures = {{
    {{kB          , kN          , kB          , kM          , kB          , kM | kK     , kM | kK     }}, // Aries
    {{kB          , kK          , kM | kK     , kB          , kM | kK     , kM | kK     , kY | kB     }}, // Taurus
    {{kM          , kK          , kM          , kN          , kM          , kB          , kN          }}, // Gemini
    {{kK          , kB          , kY | kB     , kM          , kB          , kM          , kK          }}, // Cancer
    {{kB          , kN          , kB          , kM          , kB          , kM          , kM | kK     }}, // Leo
    {{kN          , kM          , kM          , kY | kB     , kM          , kY | kB | kK, kN          }}, // Virgo
    {{kM | kK     , kY          , kM | kK     , kY | kB     , kM | kK     , kN          , kB          }}, // Libra
    {{kY          , kY | kB     , kN          , kM | kK     , kB          , kM | kK     , kM | kK     }}, // Scorpio
    {{kY | kB     , kN          , kB          , kY          , kN          , kM | kK     , kK          }}, // Sagittarius
    {{kN          , kM          , kM          , kB          , kM          , kY | kB     , kK          }}, // Capricorn
    {{kK          , kM          , kM | kK     , kN          , kM | kK     , kY | kB     , kB          }}, // Aquarius
    {{kM          , kB          , kY | kB | kK, kM | kK     , kY          , kM          , kM | kK     }}, // Pisces
}};
// clang-format on

constexpr int fieldCount()
{
    int count = 0;
    for (const auto& row : kNatures) {
        for (const std::uint8_t fields : row) {
            for (int bit = 1; bit <= kK; bit *= 2) {
                count += (fields & bit) != 0 ? 1 : 0;
            }
        }
    }
    return count;
}
static_assert(fieldCount() == 101);

Nature natureOf(std::uint8_t fields)
{
    return {(fields & kY) != 0, (fields & kB) != 0, (fields & kM) != 0, (fields & kK) != 0};
}

bool isKendra(int house)
{
    return house == 1 || house == 4 || house == 7 || house == 10;
}

bool isTrikona(int house)
{
    return house == 1 || house == 5 || house == 9;
}

// What the house alone gives. The first house counts as kendra and as trikona.
Nature natureOfHouse(int house)
{
    Nature nature;
    nature.benefic = isTrikona(house);
    nature.malefic = house == 3 || house == 6 || house == 8 || house == 11 || house == 12;
    nature.maraka = house == 2 || house == 7;
    return nature;
}

int rashiOf(const core::Chart& chart, int point)
{
    return signInVarga(chart, core::kRashi, point);
}

bool lordStandsIn(const core::Chart& chart, int house, int sign)
{
    const int lord = signLord(core::norm12(chart.rashi[core::kAscendant] + house - 1));
    return rashiOf(chart, lord) == sign;
}

Nature natureOfNode(const core::Chart& chart, const NatureTable& table, int node)
{
    const int sign = rashiOf(chart, node);
    if (sign == 0) {
        return {};
    }
    const int house = core::norm12(sign - chart.rashi[core::kAscendant] + 1);
    Nature nature = natureOfHouse(house);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (rashiOf(chart, planet) == sign) {
            const Nature& joined = at(table, planet);
            nature.benefic = nature.benefic || joined.benefic;
            nature.malefic = nature.malefic || joined.malefic;
            nature.maraka = nature.maraka || joined.maraka;
        }
    }
    const bool withTrikonaLord = lordStandsIn(chart, 5, sign) || lordStandsIn(chart, 9, sign);
    const bool withKendraLord = lordStandsIn(chart, 1, sign) || lordStandsIn(chart, 4, sign) ||
                                lordStandsIn(chart, 7, sign) || lordStandsIn(chart, 10, sign);
    if ((isKendra(house) && withTrikonaLord) || (isTrikona(house) && withKendraLord)) {
        nature.yogakaraka = true;
        nature.benefic = true;
        nature.malefic = false;
    }
    return nature;
}

} // namespace

NatureTable initialNatures(int ascendant)
{
    NatureTable table{};
    if (ascendant < 1 || ascendant > 12) {
        return table;
    }
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        at(table, planet) = natureOf(at(at(kNatures, ascendant - 1), planet - 1));
    }
    return table;
}

NatureTable chartNatures(const core::Chart& chart)
{
    if (!chart.computed(core::kAscendant)) {
        return {};
    }
    NatureTable table = initialNatures(chart.rashi[core::kAscendant]);
    const Nature rahu = natureOfNode(chart, table, core::kRahu);
    const Nature ketu = natureOfNode(chart, table, core::kKetu);
    table[core::kRahu] = rahu;
    table[core::kKetu] = ketu;
    return table;
}

std::wstring_view natureLabel(const Nature& nature)
{
    if (nature.yogakaraka) {
        return L"YogK";
    }
    if (nature.benefic) {
        return L"Benef";
    }
    // The maraka comes before the malefic: a planet that is both shows "Marak".
    if (nature.maraka) {
        return L"Marak";
    }
    return nature.malefic ? L"Papa" : L"Neut";
}

std::wstring_view functionalLabel(int ascendant, int planet)
{
    if (planet < core::kSun || planet > core::kKetu) {
        return L" ";
    }
    return natureLabel(at(initialNatures(ascendant), planet));
}

std::wstring_view natureReportLabel(const Nature& nature)
{
    if (nature.malefic && nature.maraka) {
        return L"Most Malefic";
    }
    const bool good = nature.benefic || nature.yogakaraka;
    if (nature.malefic && !good) {
        // The blank in front belongs to the text.
        return L" Functional Malefic";
    }
    return good && !nature.malefic ? L"Functional Benefic" : L"";
}

} // namespace kestrav::analysis
