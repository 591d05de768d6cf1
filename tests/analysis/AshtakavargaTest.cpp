#include "analysis/Ashtakavarga.h"

#include "AnalysisCharts.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <string_view>

namespace kestrav::analysis
{
namespace
{

using core::at;

int sum(const SignRow12& row)
{
    return std::accumulate(row.begin(), row.end(), 0);
}

TEST(Ashtakavarga, TotalsAreThoseOfEveryChart)
{
    std::mt19937 random(337);
    for (int round = 0; round < 50; ++round) {
        core::Chart chart = randomChart(random);
        analyse(chart, {});
        const int varga = round % core::kVargaCount;
        const Ashtakavarga result = computeAshtakavarga(chart, varga, round % 2 != 0);
        constexpr std::array<int, 8> kTotals = {49, 48, 49, 39, 54, 56, 52, 39};
        for (int receiver = 0; receiver < 8; ++receiver) {
            EXPECT_EQ(sum(at(result.bindus, receiver)), at(kTotals, receiver));
            EXPECT_EQ(binduTotal(receiver), at(kTotals, receiver));
        }
        EXPECT_EQ(sum(result.sarva), 337);
        EXPECT_EQ(sum(result.sarvaWithLagna), 386);
        EXPECT_EQ(sum(result.occupants), 7);
        EXPECT_EQ(result.reduced, round % 2 != 0);

        // Only the signs in the varga count, so a rashi chart of these signs gives the same.
        std::vector<int> signs;
        for (int point = 0; point < 8; ++point) {
            signs.push_back(signInVarga(chart, varga, point));
        }
        EXPECT_EQ(computeAshtakavarga(chartOfSigns(signs), core::kRashi, false).bindus,
                  result.bindus);
    }
}

TEST(Ashtakavarga, ContributorsInOneSignGiveByTheirFirstHouses)
{
    const Ashtakavarga together =
        computeAshtakavarga(chartOfSigns({3, 3, 3, 3, 3, 3, 3, 3}), core::kRashi, false);
    // Ascendant, then Sun to Saturn; counted by hand from the classical verses.
    EXPECT_EQ(together.bindus[0][2], 5);
    EXPECT_EQ(together.bindus[core::kSun][2], 3);
    EXPECT_EQ(together.bindus[core::kMoon][2], 3);
    EXPECT_EQ(together.bindus[core::kJupiter][2], 5);
    EXPECT_EQ(together.occupants[2], 7);
    // The row of the ascendant when all stand in Aries is the count of each house in its sets,
    // which no worked example reaches.
    const Ashtakavarga aries =
        computeAshtakavarga(chartOfSigns({1, 1, 1, 1, 1, 1, 1, 1}), core::kRashi, false);
    const SignRow12 lagna = {5, 3, 6, 5, 2, 7, 1, 2, 2, 7, 7, 2};
    EXPECT_EQ(aries.bindus[0], lagna);
}

TEST(Ashtakavarga, WorkedReductions)
{
    const SignRow12 row = {7, 4, 7, 4, 4, 3, 4, 4, 4, 3, 6, 4};
    const SignRow12 afterTrikona = {3, 1, 3, 0, 0, 0, 0, 0, 0, 0, 2, 0};
    EXPECT_EQ(trikonaReduction(row), afterTrikona);

    // Planets in Gemini, Aries, Leo and Pisces; none of the pairs loses anything, for one of the
    // two is 0 in each.
    const core::Chart chart = chartOfSigns({1, 3, 12, 3, 3, 5, 1, 5});
    EXPECT_EQ(ekadhipatyaReduction(afterTrikona, countOccupants(chart, core::kRashi)),
              afterTrikona);

    const Ashtakavarga printed = computeAshtakavarga(printedHoroscope(), core::kRashi, true);
    EXPECT_EQ(printed.bindus[core::kSun], (SignRow12{5, 3, 5, 4, 5, 3, 3, 6, 4, 1, 5, 4}));
    EXPECT_EQ(printed.trikona[core::kSun], (SignRow12{1, 2, 2, 0, 1, 2, 0, 2, 0, 0, 2, 0}));
    EXPECT_EQ(printed.ekadhipatya[core::kSun], (SignRow12{0, 2, 2, 0, 1, 2, 0, 2, 0, 0, 2, 0}));
    EXPECT_EQ(printed.pinda[core::kSun].rashi, 94);
    EXPECT_EQ(printed.pinda[core::kSun].graha, 65);
    EXPECT_EQ(printed.pinda[core::kSun].total(), 159);
    EXPECT_EQ(printed.ekadhipatya[core::kJupiter], (SignRow12{0, 0, 3, 3, 2, 0, 2, 1, 2, 3, 0, 0}));
    EXPECT_EQ(printed.pinda[core::kJupiter].rashi, 111);
    EXPECT_EQ(printed.pinda[core::kJupiter].graha, 68);

    const core::Chart second = chartOfSigns({8, 10, 1, 9, 9, 7, 11, 1});
    const Ashtakavarga totals = computeAshtakavarga(second, core::kRashi, true);
    constexpr std::array<int, 7> kPindas = {225, 132, 95, 128, 124, 208, 209};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        EXPECT_EQ(at(totals.pinda, planet).total(), at(kPindas, planet - 1)) << planet;
    }
    // The print counts the ascendant and the nodes as occupants too.
    SignRow12 withAll = totals.occupants;
    for (const int sign : {8, 1, 7}) {
        ++at(withAll, sign - 1);
    }
    const SignRow12 saturn = ekadhipatyaReduction(totals.trikona[core::kSaturn], withAll);
    constexpr SignRow12 kSignWeights = {7, 10, 8, 4, 10, 5, 7, 8, 9, 5, 11, 12};
    constexpr std::array<int, 8> kPlanetWeights = {0, 5, 5, 8, 5, 10, 7, 5};
    int pinda = std::inner_product(saturn.begin(), saturn.end(), kSignWeights.begin(), 0);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        pinda += at(kPlanetWeights, planet) * at(saturn, at(second.rashi, planet) - 1);
    }
    EXPECT_EQ(pinda, 225);
}

TEST(Ashtakavarga, EkadhipatyaGoesByOccupation)
{
    // Capricorn and Aquarius; Cancer and Leo stay whatever happens.
    const auto reduced = [](int capricorn, int aquarius, bool first, bool second) {
        const SignRow12 row = {0, 0, 0, 5, 6, 0, 0, 0, 0, capricorn, aquarius, 0};
        const SignRow12 occupants = {0, 0, 0, 0, 0, 0, 0, 0, 0, first ? 2 : 0, second ? 1 : 0, 0};
        const SignRow12 result = ekadhipatyaReduction(row, occupants);
        EXPECT_EQ(result[3] * 10 + result[4], 56);
        return result[9] * 10 + result[10];
    };
    EXPECT_EQ(reduced(3, 3, false, false), 0);
    EXPECT_EQ(reduced(3, 5, false, false), 33);
    EXPECT_EQ(reduced(5, 2, false, false), 22);
    EXPECT_EQ(reduced(0, 5, false, false), 5);
    EXPECT_EQ(reduced(5, 2, true, true), 52);
    EXPECT_EQ(reduced(2, 5, true, false), 23);
    EXPECT_EQ(reduced(5, 2, true, false), 50);
    EXPECT_EQ(reduced(4, 4, false, true), 4);
    EXPECT_EQ(reduced(5, 2, false, true), 32);
    EXPECT_EQ(reduced(4, 0, false, true), 40);
}

TEST(Ashtakavarga, KakshyasAreEighthsOfASign)
{
    EXPECT_EQ(kakshyaOf(11.2886).part, 3);
    EXPECT_EQ(kakshyaOf(11.2886).lord, core::kSun);
    EXPECT_EQ(kakshyaOf(4.3781).part, 1);
    EXPECT_EQ(kakshyaOf(4.3781).lord, core::kJupiter);
    constexpr std::array<int, 8> kLords = {7, 5, 3, 1, 6, 4, 2, 0};
    for (int part = 0; part < 8; ++part) {
        for (const double into : {0.0, 3.7499999}) {
            EXPECT_EQ(kakshyaOf(part * 3.75 + into).part, part);
            EXPECT_EQ(kakshyaOf(part * 3.75 + into).lord, at(kLords, part));
        }
    }
    // Saturn in transit through Aries finds the bindus that its own table shows for Aries.
    const core::Chart chart = printedHoroscope();
    const Ashtakavarga tables = computeAshtakavarga(chart, core::kRashi, false);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        for (int sign = 0; sign < 12; ++sign) {
            int found = 0;
            for (int part = 0; part < 8; ++part) {
                found += kakshyaBindu(chart, planet, sign * 30.0 + part * 3.75 + 1.0) ? 1 : 0;
            }
            EXPECT_EQ(found, at(at(tables.bindus, planet), sign));
        }
    }
}

} // namespace
} // namespace kestrav::analysis
