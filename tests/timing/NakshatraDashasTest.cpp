// The dashas that start from a nakshatra: first lord, part passed, start points, bands.
#include "timing/NakshatraStart.h"

#include "tests/analysis/AnalysisCharts.h"
#include "tests/timing/DashaCharts.h"
#include "timing/Balance.h"
#include "timing/KalaChakra.h"

#include <gtest/gtest.h>

namespace kestrav::timing
{
namespace
{

// The first lord and the years passed of a position whose part is taken by longitude.
LordAndYears startOf(int system, double position)
{
    const NakshatraStart start =
        nakshatraStart(system, position, passedByLongitude(system, position));
    return {core::at(dashaRow(system).lords, start.first), start.elapsed};
}

int lordOf(int system, double position)
{
    return startOf(system, position).lord;
}

TEST(NakshatraDashas, FirstLords)
{
    EXPECT_EQ(lordOf(kVimshottari, 0.5), core::kKetu);
    EXPECT_EQ(lordOf(kVimshottari, 2.5), core::kSun);
    EXPECT_EQ(lordOf(kVimshottari, 26.5), core::kMercury);
    // Yogini begins with the Moon at Ardra; from Shatabhisha on a reduction by 27 would tell
    // another lord.
    EXPECT_EQ(lordOf(kYogini, 5.5), core::kMoon);
    EXPECT_EQ(lordOf(kYogini, 24.5), core::kMars);
    EXPECT_EQ(lordOf(kShodsottari, 7.5), core::kSun);
    EXPECT_EQ(lordOf(kShodsottari, 6.5), core::kJupiter); // 26 nakshatras from Pushya
    EXPECT_EQ(lordOf(kPanchottari, 2.5), core::kJupiter); // 13 from Anuradha
    EXPECT_EQ(lordOf(kShatTrimshatSama, 21.5), core::kMoon);
    // Dwadashottari counts backwards, to Revati.
    EXPECT_EQ(lordOf(kDwadashottari, 26.5), core::kSun);
    EXPECT_EQ(lordOf(kDwadashottari, 25.5), core::kJupiter);
    EXPECT_EQ(lordOf(kDwadashottari, 0.5), core::kKetu);
    EXPECT_EQ(lordOf(kAstottari, 5.5), core::kSun);
    EXPECT_EQ(lordOf(kAstottari, 4.5), core::kVenus);
    EXPECT_EQ(lordOf(kShastihayani, 0.5), core::kJupiter);
    EXPECT_EQ(lordOf(kShastihayani, 26.5), core::kRahu);
}

TEST(NakshatraDashas, PassedYearsOfManyNakshatras)
{
    // Ardra to Ashlesha are the Sun's four, of 6 years; half of Pushya ends 2.5 of them.
    EXPECT_NEAR(startOf(kAstottari, 7.5).years, 6.0 * 2.5 / 4.0, 1e-12);
    // Purva Ashadha is the first of Saturn's counted three; with Uttarashadha his bands begin.
    EXPECT_NEAR(startOf(kAstottari, 19.999999999).years, 10.0 / 3.0, 1e-8);
    // Dhanishtha, Shatabhisha and Purva Bhadrapada are Jupiter's.
    EXPECT_NEAR(startOf(kAstottari, 23.25).years, 19.0 * 1.25 / 3.0, 1e-12);
    EXPECT_NEAR(startOf(kShastihayani, 3.5).years, 10.0 * 0.5 / 4.0, 1e-12);
}

TEST(NakshatraDashas, BandsOfAbhijit)
{
    struct Case
    {
        double position;
        LordAndYears astottari;
        LordAndYears shastihayani;
    };
    const double firstOfShravana = 21.0 + 1.0 / 15.0;
    const std::vector<Case> cases = {
        {20.0, {7, 2.5}, {6, 4.5}},
        {20.375, {7, 3.75}, {6, 5.25}},
        {20.75, {7, 5.0}, {7, 0.0}},
        {20.75 + 19.0 / 120.0, {7, 6.25}, {7, 1.0}},
        {firstOfShravana, {7, 7.5}, {7, 2.0}},
        {firstOfShravana + 14.0 / 30.0, {7, 8.75}, {7, 3.0}},
        {22.0, {5, 0.0}, {7, 4.0}},
        {22.5, {5, 19.0 / 6.0}, {7, 5.0}},
    };
    for (const Case& entry : cases) {
        const LordAndYears astottari = startOf(kAstottari, entry.position);
        EXPECT_EQ(astottari.lord, entry.astottari.lord) << entry.position;
        EXPECT_NEAR(astottari.years, entry.astottari.years, 1e-12) << entry.position;
        const LordAndYears shastihayani = startOf(kShastihayani, entry.position);
        EXPECT_EQ(shastihayani.lord, entry.shastihayani.lord) << entry.position;
        EXPECT_NEAR(shastihayani.years, entry.shastihayani.years, 1e-12) << entry.position;
    }
}

// Wherever the Moon stands the passed years stay inside the first lord's period.
TEST(NakshatraDashas, PassedYearsStayInsideThePeriod)
{
    for (int system = kVimshottari; system <= kYogini; ++system) {
        if (!startsFromNakshatra(system)) {
            continue;
        }
        for (int i = 0; i < 27 * 120; ++i) {
            const double position = (i + 0.5) / 120.0;
            const NakshatraStart start =
                nakshatraStart(system, position, passedByLongitude(system, position));
            ASSERT_LT(start.first, dashaRow(system).count);
            ASSERT_GE(start.elapsed, 0.0);
            ASSERT_LT(start.elapsed, core::at(dashaRow(system).years, start.first))
                << system << " at " << position;
        }
    }
}

TEST(NakshatraDashas, DerivedStartPoints)
{
    // Born 2000 April 28, 5:50; remaining years as years, months and days of 30.5 to a month.
    const core::Chart chart = chartOfBirth({2000, 4, 28, clock(5, 50), -4.0, 42.5, -71.2});
    const auto remaining = [&](int startPoint) {
        DashaOptions options;
        options.startPoint = startPoint;
        const DashaPeriod period = mahadashas(dashaFor(chart, options), 1)[0];
        return LordAndYears{period.lord(), period.endAge()};
    };
    const auto years = [](int y, int m, int d) {
        return y + (m + d / 30.5) / 12.0;
    };
    const double day = 1.0 / 30.5 / 12.0;
    const LordAndYears moon = remaining(core::kMoon);
    EXPECT_EQ(moon.lord, core::kMars);
    EXPECT_NEAR(moon.years, years(2, 2, 29), 2 * day);
    const LordAndYears kshema = remaining(kKshemaStart);
    EXPECT_EQ(kshema.lord, core::kSaturn);
    EXPECT_NEAR(kshema.years, years(6, 1, 5), 4 * day);
    const LordAndYears utpanna = remaining(kUtpannaStart);
    EXPECT_EQ(utpanna.lord, core::kMercury);
    EXPECT_NEAR(utpanna.years, years(5, 5, 14), 4 * day);
    const LordAndYears adhana = remaining(kAdhanaStart);
    EXPECT_EQ(adhana.lord, core::kSun);
    EXPECT_NEAR(adhana.years, years(1, 11, 3), 2 * day);
}

TEST(NakshatraDashas, StartPositions)
{
    core::Chart chart = analysis::chartOf({10.0, 20.0, 350.0});
    EXPECT_EQ(startPosition(chart, core::kSun), chart.nakshatraPosition[core::kSun]);
    EXPECT_NEAR(*startPosition(chart, kKshemaStart), 26.25 + 3.0 - 27.0, 1e-12);
    EXPECT_NEAR(*startPosition(chart, kSadhaStart), 26.25 + 5.0 - 27.0, 1e-12);
    EXPECT_FALSE(startPosition(chart, core::kMars));

    DashaOptions options;
    options.startPoint = core::kMars;
    const auto dasha = dashaPlan(chart, {}, options, tests::seriesForTests());
    ASSERT_FALSE(dasha.ok());
    EXPECT_EQ(dasha.error().text(), "no dasha without the position of Mars");
    for (const int unknown : {-1, 14}) {
        options.startPoint = unknown;
        EXPECT_FALSE(dashaPlan(chart, {}, options, tests::seriesForTests()).ok());
    }
    EXPECT_FALSE(dashaPlan(chart, {}, optionsOf(kMoola), tests::seriesForTests()).ok());
    EXPECT_FALSE(dashaPlan(chart, {}, optionsOf(25), tests::seriesForTests()).ok());
}

TEST(NakshatraDashas, PartByTime)
{
    const SunAndMoonAt sky(tests::seriesForTests(), {}, 5.5);
    const auto passed = [&](int system, const core::Chart& chart) {
        const double position = chart.nakshatraPosition[core::kMoon];
        return passedByTime(sky, chart.time.dayCount + core::kEpoch1900,
                            stretchAt(system, position))
            .value();
    };
    EXPECT_NEAR(passed(kVimshottari, chartE()), 0.02232, 2e-5);
    EXPECT_NEAR(passedByLongitude(kVimshottari, chartE().nakshatraPosition[core::kMoon]), 0.02197,
                3e-5);
    const core::Chart other = chartOfBirth({1972, 6, 1, clock(4, 16), 5.5, 28.0, 77.0});
    EXPECT_NEAR(passed(kVimshottari, other), 0.21084, 2e-5);
    // Astottari takes the part of the first three padas: nearly a third more.
    EXPECT_NEAR(passed(kAstottari, other), 0.21084 * 4.0 / 3.0, 2e-3);
}

TEST(NakshatraDashas, PartByTimeIsForTheMoonOnly)
{
    const auto elapsed = [&](int startPoint, bool byTime) {
        DashaOptions options;
        options.startPoint = startPoint;
        options.fractionByTime = byTime;
        return dashaFor(chartE(), options).plan.elapsed;
    };
    EXPECT_NEAR(elapsed(core::kMoon, true) / 18.0, 0.02232, 2e-5);
    EXPECT_NEAR(elapsed(core::kMoon, false) / 18.0, 0.02197, 3e-5);
    EXPECT_EQ(elapsed(kKshemaStart, true), elapsed(kKshemaStart, false));
    EXPECT_EQ(elapsed(core::kSun, true), elapsed(core::kSun, false));
    // At a new moon the Sun stands in the Moon's nakshatra, but the time is not his.
    const core::Chart newMoon = chartOfBirth({1997, 3, 9, clock(6, 40), 5.5, 28.6, 77.2});
    DashaOptions fromSun;
    fromSun.startPoint = core::kSun;
    const double byLongitude = dashaFor(newMoon, fromSun).plan.elapsed;
    fromSun.fractionByTime = true;
    EXPECT_EQ(dashaFor(newMoon, fromSun).plan.elapsed, byLongitude);
    // Positions without a moment have no time that could pass.
    core::Chart bare = analysis::chartOf({10.0, 20.0, 350.0});
    bare.hasMoment = false;
    DashaOptions options;
    options.fractionByTime = true;
    EXPECT_NEAR(dashaFor(bare, options).plan.elapsed, 17.0 * 0.25, 1e-10);
}

TEST(KalaChakra, RowsAndPassedYears)
{
    // Three nakshatras of four padas make twelve rows; every second three take the other twelve.
    EXPECT_EQ(kalaChakraStart(0, 0.0).row, 0);
    EXPECT_EQ(kalaChakraStart(2, 0.99).row, 11);
    EXPECT_EQ(kalaChakraStart(3, 0.0).row, 12);
    EXPECT_EQ(kalaChakraStart(5, 0.99).row, 23);
    EXPECT_EQ(kalaChakraStart(6, 0.25).row, 1);
    EXPECT_EQ(kalaChakraStart(26, 0.99).row, 11);
    EXPECT_NEAR(kalaChakraStart(0, 0.125).elapsed, 50.0, 1e-12);
    // Moon at 5Aq50: Dhanishtha's last pada, of which 3/4 have passed.
    const double position = 305.0 * 0.075 + 50.0 / 60.0 * 0.075;
    const KalaChakraStart start = kalaChakraStart(22, position - 22.0);
    EXPECT_EQ(start.row, 19);
    EXPECT_EQ(kalaChakraRow(start.row).signs[0], 9);
    EXPECT_NEAR(start.elapsed, 75.0, 1e-9);
}

TEST(KalaChakra, PeriodsBeforeBirthArePassedOver)
{
    // 75 of 100 years have passed: of 10, 7, 16, 9, 5, 21, 9, 16, 7 years the seventh runs.
    core::Chart chart = analysis::chartOf({0.0, 0.0, 305.0 + 50.0 / 60.0});
    const Dasha dasha = dashaFor(chart, kKalaChakra);
    EXPECT_EQ(mahadashas(dasha, 1)[0].lord(), 9);
    const DashaSpan span{1, 0.0, 60.0, 100};
    const std::vector<DashaPeriod> periods = periodsOf(dasha, span);
    ASSERT_GE(periods.size(), 4U);
    EXPECT_EQ(periods[0].lord(), 3);
    EXPECT_NEAR(periods[0].startAge, -7.0, 1e-9);
    EXPECT_EQ(periods[2].lord(), 1);
    // After the ninth sign the next row begins.
    EXPECT_EQ(periods[2].kalaChakraRow, 19);
    EXPECT_EQ(periods[3].kalaChakraRow, 20);
    EXPECT_EQ(periods[3].lord(), 12);
}

TEST(KalaChakra, RowsFollowEachOtherRound)
{
    DashaPlan plan;
    plan.division = Division::KalaChakra;
    plan.count = 12;
    plan.kalaChakraRow = 23;
    MahadashaWalk walk(plan);
    for (int i = 0; i < 9; ++i) {
        walk.next();
    }
    EXPECT_EQ(walk.node().kalaChakraRow, 0);
    EXPECT_EQ(walk.node().lord, 1);
    EXPECT_EQ(walk.node().start, 100.0);
}

TEST(KalaChakra, Labels)
{
    EXPECT_EQ(kalaChakraLabel(0), L"Deh:Aries/Jiv:Sagittarius");
    EXPECT_EQ(kalaChakraLabel(10), L"Deh:Taurus/Jiv:Gemini");
    EXPECT_EQ(kalaChakraLabel(11), L"Jiv:Cancer/Deh:Pisces");
    EXPECT_EQ(kalaChakraLabel(23), L"Jiv:Sagittarius/Deh:Aries");
}

TEST(Balance, AtTheEndsOfTheZodiac)
{
    const auto line = [](double position) {
        return balanceLine(balanceOf(position));
    };
    EXPECT_EQ(line(0.0), L"Balance of Ketu Dasha 7Y 0M 0D");
    EXPECT_EQ(line(26.9999999), L"Balance of Mercury Dasha 0Y 0M 0D");
    EXPECT_EQ(line(1.5), L"Balance of Venus Dasha 10Y 0M 0D");
    for (int i = 0; i < 27000; ++i) {
        const DashaBalance balance = balanceOf(i / 1000.0);
        ASSERT_LE(balance.days, 30);
        ASSERT_LT(balance.months, 12);
    }
}

TEST(Balance, OfAChart)
{
    EXPECT_FALSE(balanceAtBirth(core::Chart{}));
    // 2000 April 28, as printed with the same months of 30.5 days.
    const core::Chart chart = chartOfBirth({2000, 4, 28, clock(5, 50), -4.0, 42.5, -71.2});
    const DashaBalance balance = balanceAtBirth(chart).value();
    EXPECT_EQ(balance.lord, core::kMars);
    EXPECT_EQ(balance.years, 2);
    EXPECT_EQ(balance.months, 2);
    EXPECT_NEAR(balance.days, 29, 1);
}

} // namespace
} // namespace kestrav::timing
