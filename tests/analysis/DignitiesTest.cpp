#include "analysis/Dignities.h"

#include "AnalysisCharts.h"
#include "analysis/DignityTables.h"
#include "core/Angles.h"
#include "core/DisplayFlags.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::analysis
{
namespace
{

using core::at;

core::Settings scheme(int nodeScheme)
{
    core::Settings settings;
    settings.nodeDignityScheme = nodeScheme;
    return settings;
}

// The English word of a point in the rashi.
std::wstring wordAt(int point, double longitude, const core::Settings& settings = {})
{
    core::Chart chart;
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        place(chart, other, 0.0);
    }
    place(chart, point, longitude);
    computeCompoundRelationships(chart, settings);
    return std::wstring(dignityWord(
        displayDignity(chart, point, at(chart.rashi, point), core::kRashi, settings), false));
}

TEST(Dignities, BandsOfTheRashiIncludeTheirLimits)
{
    struct Case
    {
        int point;
        double longitude;
        std::wstring_view word;
    };
    const std::wstring_view own = L"Own";
    const std::wstring_view root = L"Mulatrikona";
    const std::wstring_view high = L"Exalted";
    const std::wstring_view low = L"Debilitated";
    const std::wstring_view none = L"Neutral";
    using namespace core;
    // clang-format off
    for (const Case& c : {
             Case{kMoon, 33.0, high}, {kMoon, 33.01, root}, {kMoon, 59.99, root}, {kMoon, 95.0, own},
             {kMercury, 165.0, high}, {kMercury, 165.01, root}, {kMercury, 170.0, root},
             {kMercury, 170.5, own}, {kMercury, 75.0, own},
             {kSun, 29.99, high}, {kSun, 140.0, root}, {kSun, 140.01, own},
             {kMars, 12.0, root}, {kMars, 12.01, own}, {kMars, 215.0, own}, {kMars, 299.0, high},
             {kJupiter, 250.0, root}, {kJupiter, 250.01, own}, {kJupiter, 335.0, own},
             {kVenus, 195.0, root}, {kVenus, 195.01, own},
             {kSaturn, 320.0, root}, {kSaturn, 320.01, own}, {kSaturn, 275.0, own}, {kSaturn, 5.0, low},
             {kDhuma, 125.0, high}, {kDhuma, 305.0, low}, {kParivesha, 5.0, none},
             {kIndrachapa, 245.0, none}, {kUpaketu, 305.0, none}}) {
        // clang-format on
        EXPECT_EQ(wordAt(c.point, c.longitude), c.word) << c.point << " at " << c.longitude;
    }
}

TEST(Dignities, NodesFollowTheirScheme)
{
    // Display indexes in Aries to Pisces; a row per scheme for Rahu and for Ketu.
    const std::array<std::array<std::string, 2>, 3> expected = {{
        {"287226402463", "303223487446"},
        {"206226482463", "303223486446"},
        {"248226420473", "340223478446"},
    }};
    for (int s = 0; s < 3; ++s) {
        for (const int node : {int(core::kRahu), int(core::kKetu)}) {
            std::string found;
            for (int sign = 1; sign <= 12; ++sign) {
                core::Chart chart;
                place(chart, node, sign * 30.0 - 1.0);
                found += std::to_string(displayDignity(chart, node, sign, core::kRashi, scheme(s)));
            }
            EXPECT_EQ(found, at(at(expected, s), node - core::kRahu)) << s << " " << node;
        }
    }
    // Asked directly, the relationship knows exaltation and debilitation too.
    const core::Chart chart;
    EXPECT_EQ(relationship(chart, core::kRahu, core::kVenus, core::kRashi, 2, scheme(0)), 4);
    EXPECT_EQ(relationship(chart, core::kKetu, core::kRahu, core::kRashi, 3, scheme(2)), -3);
}

// The old rule of natural friendship: the lords of the 2nd, 4th, 5th, 8th, 9th and 12th sign from
// the moolatrikona and of the exaltation sign are friends. Who owns only such signs is a friend,
// who owns none an enemy, the others are neutral.
TEST(Dignities, NaturalFriendshipFollowsFromTheMoolatrikona)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        std::set<int> friendly = {exaltationSign(planet, 0)};
        for (const int house : {2, 4, 5, 8, 9, 12}) {
            friendly.insert(core::norm12(moolatrikonaSign(planet, 0) + house - 1));
        }
        for (int other = core::kSun; other <= core::kSaturn; ++other) {
            if (other == planet) {
                continue;
            }
            int good = 0;
            int bad = 0;
            for (int sign = 1; sign <= 12; ++sign) {
                if (signLord(sign) == other) {
                    ++(friendly.count(sign) != 0 ? good : bad);
                }
            }
            const int expected = bad == 0 ? 1 : good == 0 ? -1 : 0;
            EXPECT_EQ(naturalRelationship(planet, other), expected) << planet << " " << other;
        }
    }
}

TEST(Dignities, TemporaryFriendshipJoinsTheNatural)
{
    // The Sun in Aries is the natural friend of Jupiter, the enemy of Venus and neutral to Mercury.
    const std::set<int> friendHouses = {2, 3, 4, 10, 11, 12};
    core::Settings natural;
    natural.naturalRelationshipsOnly = true;
    core::Settings rashiOnly;
    rashiOnly.vargaCompoundRelationships = false;
    for (int sign = 1; sign <= 12; ++sign) {
        core::Chart chart = chartOfSigns({0, 1, 1, 1, sign, sign, sign, 1});
        analyse(chart, {});
        const int temporary = friendHouses.count(sign) != 0 ? 1 : -1;
        EXPECT_EQ(chart.compound[core::kSun][core::kJupiter], 1 + temporary);
        EXPECT_EQ(chart.compound[core::kSun][core::kVenus], -1 + temporary);
        EXPECT_EQ(chart.compound[core::kMercury][core::kSun], 1 + temporary);
        EXPECT_EQ(chart.compound[core::kSun][core::kSun], kOwn);

        // The same signs in a varga, while all stand together in the rashi.
        core::Chart divided = chartOfSigns({0, 1, 1, 1, 1, 1, 1, 1});
        analyse(divided, {});
        divided.vargas[core::kNavamsha][core::kMercury].sign = sign;
        const auto towardsMercury = [&](const core::Settings& settings) {
            return vargaDignity(divided, core::kSun, 3, core::kNavamsha, settings);
        };
        const int navamshaOfSun = divided.vargas[core::kNavamsha][core::kSun].sign;
        const int house = core::norm12(sign - navamshaOfSun + 1);
        EXPECT_EQ(towardsMercury({}), friendHouses.count(house) != 0 ? 1 : -1);
        EXPECT_EQ(towardsMercury(rashiOnly), -1);
        EXPECT_EQ(towardsMercury(natural), 0);
    }
    core::Chart chart = chartOfSigns({0, 1, 1, 1, 1, 1, 1, 1});
    computeCompoundRelationships(chart, natural);
    EXPECT_EQ(chart.compound[core::kSun][core::kVenus], -1);
}

TEST(Dignities, CodesOutsideTheTables)
{
    core::Chart chart = chartOfSigns({1, 1, 1, 1, 1, 1, 1, 1, 1, 7});
    analyse(chart, {});
    EXPECT_EQ(vargaDignity(chart, core::kSun, 0, core::kNavamsha, {}), kExalted); // 0 is Aries
    EXPECT_EQ(vargaDignity(chart, core::kAscendant, 1, core::kRashi, {}), kNeutral);
    EXPECT_EQ(vargaDignity(chart, core::kUranus, 1, core::kRashi, {}), kNeutral);
    EXPECT_EQ(displayDignity(chart, core::kSun, 5, core::kNavamsha, {}), 6); // no band in vargas
    EXPECT_EQ(displayDignity(chart, core::kSun, 1, core::kNavamsha, {}), 7);
    // The tables of divisional charts do not call an exalted planet moolatrikona.
    chart.vargas[core::kNavamsha][core::kSun].sign = 1;
    EXPECT_EQ(shownDignity(chart, core::kSun, core::kNavamsha, {}), kDisplayExalted);
}

TEST(Dignities, CombustionIsStrictAndEndsAtZeroAries)
{
    core::Settings directOnly;
    directOnly.directCombustionOrbsOnly = true;
    const auto combust = [](int planet, double planetAt, double sunAt, bool retrograde,
                            const core::Settings& settings = {}) {
        core::Chart chart;
        core::Chart sunChart;
        place(chart, core::kSun, 180.0); // another chart's Sun counts, not this one
        place(chart, planet, planetAt);
        at(chart.retrograde, planet) = retrograde;
        place(sunChart, core::kSun, sunAt);
        return isCombust(chart, sunChart, planet, settings);
    };
    struct Orb
    {
        int planet;
        double direct;
        double retrograde;
    };
    for (const Orb& orb : {Orb{core::kMoon, 12, 12},
                           {core::kMars, 17, 17},
                           {core::kMercury, 14, 12},
                           {core::kJupiter, 11, 11},
                           {core::kVenus, 10, 8},
                           {core::kSaturn, 15, 15}}) {
        for (const double side : {-1.0, 1.0}) {
            EXPECT_FALSE(combust(orb.planet, 64 + side * orb.direct, 64, false)) << orb.planet;
            EXPECT_TRUE(combust(orb.planet, 64 + side * (orb.direct - 1e-9), 64, false));
            EXPECT_FALSE(combust(orb.planet, 64 + side * orb.retrograde, 64, true));
            EXPECT_TRUE(combust(orb.planet, 64 + side * (orb.retrograde - 1e-9), 64, true));
            EXPECT_TRUE(combust(orb.planet, 64 + side * (orb.direct - 1e-9), 64, true, directOnly));
        }
    }
    EXPECT_FALSE(combust(core::kVenus, 1.0, 359.0, false));
    EXPECT_FALSE(combust(core::kMoon, 359.9, 0.1, false));
    EXPECT_FALSE(combust(core::kRahu, 64.0, 64.0, false));
    EXPECT_FALSE(combust(core::kUranus, 64.0, 64.0, false));
    EXPECT_FALSE(combust(core::kSun, 64.0, 64.0, false));
}

TEST(Dignities, WordsInBothLanguagesAndLengths)
{
    const core::DisplayFlagsOverride english(core::kEnglishNames);
    EXPECT_EQ(dignityWord(1, false), L"Great Enemy");
    EXPECT_EQ(dignityWord(1, true), L"G.En'y");
    EXPECT_EQ(dignityWord(kDisplayRetrograde, true), L"DebRx");
    EXPECT_EQ(dignityWord(-1, false), L"--");
    EXPECT_EQ(dignityWord(kDisplayCount, true), L"--");
    const core::DisplayFlagsOverride sanskrit(0);
    EXPECT_EQ(dignityWord(kDisplayExalted, false), L"Uuccha");
    EXPECT_EQ(dignityWord(3, true), L"Sama ");
    EXPECT_EQ(dignityWord(kDisplayCancelled, false), L"NeechAbhanga");
}

TEST(Dignities, DebilitationIsCancelledByEachOfSixConditions)
{
    // Saturn at 10 degrees Aries; Mars rules it, Venus rules Libra, the Sun is exalted in Aries.
    // From ascendant and Moon in Taurus the kendras are Taurus, Leo, Scorpio and Aquarius.
    const std::vector<int> plain = {2, 4, 2, 3, 10, 6, 4, 1};
    const auto condition = [](const std::vector<int>& signs, double saturn = 10.0) {
        core::Chart chart = chartOfSigns(signs);
        place(chart, core::kSaturn, saturn);
        analyse(chart, {});
        return debilitationCancelledBy(chart, core::kSaturn, {});
    };
    const auto moved = [&](int point, int sign) {
        std::vector<int> signs = plain;
        signs[std::size_t(point)] = sign;
        return signs;
    };
    EXPECT_EQ(condition(plain), 0);
    EXPECT_EQ(condition(moved(core::kMars, 5)), 1);
    EXPECT_EQ(condition(moved(core::kMoon, 12)), 1); // Mars in the 4th from the Moon
    EXPECT_EQ(condition(moved(core::kVenus, 8)), 2);
    EXPECT_EQ(condition(moved(core::kSun, 11)), 3);
    EXPECT_EQ(condition(moved(core::kMars, 1)), 4);
    EXPECT_EQ(condition(moved(core::kMars, 10)), 4); // its fourth is Aries
    EXPECT_EQ(condition(moved(core::kMars, 6)), 4);  // its eighth is Aries
    EXPECT_EQ(condition(plain, 21.0), 5);
    EXPECT_EQ(condition(moved(core::kSun, 7)), 6);
    EXPECT_EQ(condition({0, 4, 0, 3, 10, 6, 8, 1}), 0); // no kendra without a reference

    core::Chart chart = chartOfSigns(plain);
    analyse(chart, {});
    EXPECT_EQ(reportDignity(chart, core::kSaturn, {}), 0);
    chart.retrograde[core::kSaturn] = true;
    EXPECT_EQ(reportDignity(chart, core::kSaturn, {}), kDisplayRetrograde);
    place(chart, core::kVenus, 220.0);
    EXPECT_EQ(reportDignity(chart, core::kSaturn, {}), kDisplayCancelled);

    core::Chart printed = printedHoroscope();
    analyse(printed, {});
    EXPECT_EQ(debilitationCancelledBy(printed, core::kVenus, {}), 1);
    EXPECT_EQ(debilitationCancelledBy(printed, core::kSun, {}), 2);
    EXPECT_EQ(reportDignity(printed, core::kVenus, {}), kDisplayCancelled);
}

} // namespace
} // namespace kestrav::analysis
