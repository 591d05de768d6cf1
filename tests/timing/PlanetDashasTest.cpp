// Moola and Tithi Astottari, whose lords and years follow from the chart.
#include "timing/MoolaDasha.h"
#include "timing/TithiDasha.h"

#include "tests/analysis/AnalysisCharts.h"
#include "tests/timing/DashaCharts.h"

#include <gtest/gtest.h>

namespace kestrav::timing
{
namespace
{

using List = std::vector<LordAndYears>;

TEST(MoolaDasha, OrderAndYears)
{
    EXPECT_EQ(moolaBase(chartE(), {}), 7);
    EXPECT_EQ(lordsAndYears(dashaFor(chartE(), kMoola), 9),
              (List{{6, 20}, {2, 3}, {3, 4}, {1, 1}, {9, 7}, {7, 12}, {5, 16}, {4, 11}, {8, 18}}));
}

// What a planet does not give in the first cycle it gives in the second; a planet in its own sign,
// which has nothing left, gives its full years again.
TEST(MoolaDasha, SecondCycle)
{
    const List list = lordsAndYears(dashaFor(chartE(), kMoola), 19);
    EXPECT_EQ(
        List(list.begin() + 9, list.end()),
        (List{{6, 20}, {2, 7}, {3, 3}, {1, 5}, {9, 7}, {7, 7}, {5, 16}, {4, 6}, {8, 18}, {6, 20}}));
}

TEST(MoolaDasha, LengthsAreRepaired)
{
    // The Sun in Virgo is 7 signs from Aries: 6 - 7 is made positive. In Libra it is 6 signs away,
    // so that nothing is left and the full years count.
    const auto sunIn = [](int sign) {
        return moolaYears(analysis::chartOfSigns({1, sign, 1, 1, 1, 1, 1, 1, 1, 7}), {}, 1);
    };
    EXPECT_EQ(sunIn(6), 1.0);
    EXPECT_EQ(sunIn(7), 6.0);
    EXPECT_EQ(sunIn(5), 6.0);
}

TEST(MoolaDasha, NodesFollowTheirScheme)
{
    // Rahu in Cancer: his own Virgo is 2 signs on in every scheme; Ketu in Capricorn is 2 signs
    // from his own Pisces.
    const core::Chart chart = analysis::chartOfSigns({1, 1, 1, 1, 1, 1, 1, 1, 4, 10});
    core::Settings settings;
    for (settings.nodeDignityScheme = 0; settings.nodeDignityScheme < 3;
         ++settings.nodeDignityScheme) {
        EXPECT_EQ(moolaYears(chart, settings, 8), 16.0);
        EXPECT_EQ(moolaYears(chart, settings, 9), 5.0);
    }
    // Ketu in Libra: exalted in the next sign in the first scheme, in Sagittarius in the third
    // (where Scorpio is his moolatrikona, which counts as his own).
    const core::Chart other = analysis::chartOfSigns({1, 1, 1, 1, 1, 1, 1, 1, 1, 7});
    settings.nodeDignityScheme = 0;
    EXPECT_EQ(moolaYears(other, settings, 9), 6.0);
}

TEST(TithiDasha, LordsOfTithis)
{
    const std::vector<std::vector<int>> tithisOfLords = {{},
                                                         {1, 9, 16, 24},
                                                         {2, 10, 17, 25},
                                                         {3, 11, 18, 26},
                                                         {4, 12, 19, 27},
                                                         {5, 13, 20, 28},
                                                         {6, 14, 21, 29},
                                                         {7, 15, 22},
                                                         {8, 23, 30}};
    for (int lord = 1; lord <= 8; ++lord) {
        for (const int tithi : tithisOfLords[std::size_t(lord)]) {
            EXPECT_EQ(lordOfTithi(tithi), lord) << tithi;
        }
    }
}

TEST(TithiDasha, DatesOfTheMahadashas)
{
    const std::vector<DashaPeriod> list = mahadashas(dashaFor(chartE(), kTithiAstottari), 5);
    EXPECT_EQ(list[0].lord(), 4);
    core::DateTimeRecord date;
    date.year = 1992;
    date.month = 2;
    date.day = 14;
    EXPECT_NEAR(list[0].startJulianDay, core::DateToJulianDay(date), 3.0);
    const std::array<std::array<int, 2>, 3> later = {{{7, 2009}, {5, 2019}, {8, 2038}}};
    for (std::size_t i = 0; i < later.size(); ++i) {
        EXPECT_EQ(list[i + 1].lord(), later[i][0]);
        EXPECT_EQ(dateAt(list[i + 1].startJulianDay, 5.5).year, later[i][1]);
    }
}

} // namespace
} // namespace kestrav::timing
