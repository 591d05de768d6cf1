// The list of periods and the question whose period runs.
#include "timing/DashaWalk.h"

#include "core/numeric.h"
#include "tests/analysis/AnalysisCharts.h"
#include "tests/timing/DashaCharts.h"
#include "timing/DashaQuery.h"
#include "timing/KalaChakra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace kestrav::timing
{
namespace
{

TEST(DashaWalk, ParentsComeBeforeTheirChildren)
{
    const Dasha dasha = dashaFor(chartE(), kVimshottari);
    DashaSpan span;
    span.levels = 3;
    span.budget = 13;
    const std::vector<DashaPeriod> list = periodsOf(dasha, span);
    ASSERT_EQ(list.size(), 13U);
    // At birth Rahu runs, whose first sub-periods are still under way.
    const std::array<int, kDashaLevels> rahu = {8, 0, 0, 0, 0};
    const std::array<int, kDashaLevels> rahuRahu = {8, 8, 0, 0, 0};
    EXPECT_EQ(list[0].lords, rahu);
    EXPECT_EQ(list[1].lords, rahuRahu);
    EXPECT_EQ(list[2].level, 3);
    EXPECT_LT(list[0].startAge, 0.0);
    EXPECT_GT(list[2].endAge(), 0.0);
    for (std::size_t i = 1; i < list.size(); ++i) {
        EXPECT_GE(list[i].startAge, list[i - 1].startAge);
        EXPECT_LE(list[i].level, list[i - 1].level + 1);
    }
}

TEST(DashaWalk, ListsWhatOverlapsItsSpan)
{
    const Dasha dasha = dashaFor(chartE(), kVimshottari);
    const std::vector<DashaPeriod> all = periodsOf(dasha, {4, -20.0, 130.0, 100000});
    for (const auto& [from, to] : {std::pair{0.0, 20.0}, {33.3, 33.4}, {17.604, 17.605}}) {
        const std::vector<DashaPeriod> part = periodsOf(dasha, {4, from, to, 100000});
        std::size_t next = 0;
        for (const DashaPeriod& period : all) {
            if (period.endAge() > from && period.startAge <= to) {
                ASSERT_LT(next, part.size());
                EXPECT_EQ(part[next].startAge, period.startAge);
                EXPECT_EQ(part[next].lords, period.lords);
                ++next;
            }
        }
        EXPECT_EQ(next, part.size());
    }
    // What ends with the start age is not listed, what begins with the end age is.
    const std::vector<DashaPeriod> three = mahadashas(dasha, 3);
    const DashaSpan exactly{1, three[1].startAge, three[2].startAge, 100};
    const std::vector<DashaPeriod> two = periodsOf(dasha, exactly);
    ASSERT_EQ(two.size(), 2U);
    EXPECT_EQ(two[0].startAge, three[1].startAge);
}

TEST(DashaWalk, EndsWithItsBudgetOrTheLastAge)
{
    const Dasha dasha = dashaFor(chartE(), kVimshottari);
    EXPECT_EQ(periodsOf(dasha, {5, 0.0, kLastAge, 100000}).size(), 100000U);
    EXPECT_TRUE(periodsOf(dasha, {5, 0.0, kLastAge, 0}).empty());
    EXPECT_TRUE(periodsOf(dasha, {5, core::kNotANumber, kLastAge, 10}).empty());
    EXPECT_TRUE(periodsOf(dasha, {5, 0.0, core::kNotANumber, 10}).empty());
    EXPECT_TRUE(periodsOf(dasha, {5, 10001.0, 10001.0, 10}).empty());
    EXPECT_EQ(periodsOf(dasha, {1, 0.0, 1e9, 1000000}).back().startAge < kLastAge, true);
    // Levels outside 1 to 5 are brought inside.
    EXPECT_EQ(periodsOf(dasha, {9, 0.0, kLastAge, 20})[4].level, 5);
    EXPECT_EQ(periodsOf(dasha, {0, 0.0, kLastAge, 20})[4].level, 1);
}

// The largest difference in years between periods and the sum of their sub-periods, from a period
// down to the fifth level.
double largestGap(const DashaPlan& plan, const DashaNode& parent, int level)
{
    if (level == kDashaLevels) {
        return 0.0;
    }
    double gap = 0.0;
    double sum = 0.0;
    double start = parent.start;
    for (int number = 0; number < plan.childCount(); ++number) {
        const DashaNode child = childOf(plan, parent, number, start);
        gap = std::max(gap, largestGap(plan, child, level + 1));
        start = child.end();
        sum += child.length;
    }
    return std::max({gap, std::fabs(sum - parent.length), std::fabs(start - parent.end())});
}

// In every system, at every level and in both kinds of cycle.
TEST(DashaWalk, SubPeriodsFillTheirParent)
{
    for (const int totalLength : {0, 4}) {
        for (const int system : kAllSystems) {
            DashaOptions options = optionsOf(system);
            options.totalLength = totalLength;
            const DashaPlan plan = dashaFor(chartE(), options).plan;
            MahadashaWalk walk(plan);
            for (int i = 0; i < 24; ++i, walk.next()) {
                ASSERT_GT(walk.node().length, 0.0);
                ASSERT_LT(largestGap(plan, walk.node(), 1), 1e-9) << system;
            }
        }
    }
}

TEST(DashaWalk, SubPeriodsBeginWithTheirParentsLord)
{
    for (const int system : kAllSystems) {
        DashaOptions options = optionsOf(system);
        options.charaOwnSignLast = false;
        const Dasha dasha = dashaFor(chartE(), options);
        std::array<int, kDashaLevels> lords = {};
        int previous = 0;
        for (const DashaPeriod& period : DashaList(dasha, {4, 0.5, kLastAge, 5000})) {
            // The first records may be the later children of what began before the start age.
            if (previous != 0 && period.level == previous + 1 && period.startAge > 0.5) {
                EXPECT_EQ(period.lord(), lords[std::size_t(previous - 1)]) << system;
            }
            lords = period.lords;
            previous = period.level;
        }
    }
}

TEST(DashaWalk, DivisionsOfTheSystems)
{
    // Vimshottari divides by years, a sign dasha into twelfths, Kala Chakra by its row.
    const auto lengths = [](int system) {
        std::vector<double> result;
        const Dasha dasha = dashaFor(chartE(), system);
        for (const DashaPeriod& period : DashaList(dasha, {2, -90.0, kLastAge, 5})) {
            result.push_back(period.length);
        }
        return result;
    };
    const std::vector<double> vimshottari = lengths(kVimshottari);
    EXPECT_NEAR(vimshottari[1], 18.0 * 18.0 / 120.0, 1e-12);
    EXPECT_NEAR(vimshottari[2], 18.0 * 16.0 / 120.0, 1e-12);
    const std::vector<double> narayana = lengths(kNarayana);
    EXPECT_EQ(narayana[1], 9.0 / 12.0);
    EXPECT_EQ(narayana[4], 9.0 / 12.0);
    // E: Swati's first pada is row 12 of group 4, which is savya again: row 0 + 8 = 8, Aries 7.
    const Dasha kala = dashaFor(chartE(), kKalaChakra);
    const KalaChakraRow& row = kalaChakraRow(kala.plan.kalaChakraRow);
    const std::vector<double> kalaLengths = lengths(kKalaChakra);
    const double first = core::at(kKalaChakraYears, row.signs[0]);
    EXPECT_EQ(kalaLengths[0], first);
    EXPECT_NEAR(kalaLengths[2], first * core::at(kKalaChakraYears, row.signs[1]) / row.span, 1e-12);
}

TEST(DashaWalk, TotalLengthScalesEverything)
{
    for (const int system : kAllSystems) {
        DashaOptions options = optionsOf(system);
        const Dasha standard = dashaFor(chartE(), options);
        for (int choice = 1; choice <= 4; ++choice) {
            options.totalLength = choice;
            const Dasha scaled = dashaFor(chartE(), options);
            const double wanted = chosenCycleYears(choice);
            EXPECT_NEAR(scaled.plan.totals[0], wanted, 1e-12) << system;
            const double factor = wanted / standard.plan.totals[0];
            const std::vector<DashaPeriod> before = mahadashas(standard, 20);
            const std::vector<DashaPeriod> after = mahadashas(scaled, 20);
            for (std::size_t i = 0; i < before.size(); ++i) {
                EXPECT_EQ(after[i].lord(), before[i].lord()) << system;
                EXPECT_NEAR(after[i].startAge, before[i].startAge * factor, 1e-9) << system;
                EXPECT_NEAR(after[i].length, before[i].length * factor, 1e-9) << system;
            }
        }
    }
    EXPECT_EQ(chosenCycleYears(4), 1.0 / 12.0);
    EXPECT_EQ(chosenCycleYears(5), 0.0);
}

TEST(DashaWalk, DatesOfACalendar)
{
    // 2000 April 28, 5:50: Mars ends after 2 years 2 months 29 days of 30.5 to a month.
    const core::Chart chart = chartOfBirth({2000, 4, 28, clock(5, 50), -4.0, 42.5, -71.2});
    const Dasha dasha = dashaFor(chart, kVimshottari);
    const DashaPeriod rahu = mahadashas(dasha, 2)[1];
    EXPECT_NEAR(rahu.startJulianDay,
                chart.time.dayCount + core::kEpoch1900 + rahu.startAge * 365.256364, 1e-6);
    const core::DateTimeRecord date = dasha.calendar.dateOf(rahu.startJulianDay);
    EXPECT_EQ(date.year, 2002);
    EXPECT_EQ(date.month, 7);
    // The moment of birth itself comes back as the clock showed it.
    const core::DateTimeRecord birth =
        dasha.calendar.dateOf(chart.time.dayCount + core::kEpoch1900);
    EXPECT_EQ(birth.day, 28);
    EXPECT_NEAR(birth.localTime, clock(5, 50), 1e-4);
}

TEST(DashaWalk, WithoutAMomentThereAreAgesOnly)
{
    core::Chart chart = analysis::chartOf({10.0, 20.0, 350.0});
    chart.hasMoment = false;
    const Dasha dasha = dashaFor(chart, kVimshottari);
    const DashaPeriod period = mahadashas(dasha, 1)[0];
    EXPECT_TRUE(std::isnan(period.startJulianDay));
    EXPECT_NEAR(period.startAge, -17.0 * 0.25, 1e-10);
    EXPECT_EQ(lordAtMoment(dasha, 2451545.0, 1), kNoLord);
    EXPECT_EQ(lordAtMoment(core::Chart{}, {}, {}, tests::seriesForTests(), 2451545.0, 1), kNoLord);
    EXPECT_EQ(lordAtAge(dasha, 1.0, 1), core::kMercury);
}

// The query and the list must name the same lord at every moment.
TEST(DashaQuery, AgreesWithTheList)
{
    std::mt19937 random(4011);
    for (const int system : kAllSystems) {
        const Dasha dasha = dashaFor(chartE(), system);
        const double first = -dasha.plan.elapsed;
        std::uniform_real_distribution<double> age(first - 2.0, 150.0);
        for (int i = 0; i < 250; ++i) {
            const double moment = age(random);
            for (int level = 1; level <= kQueryLevels; ++level) {
                const int lord = lordAtAge(dasha, moment, level);
                if (moment < first) {
                    ASSERT_EQ(lord, kNoLord);
                    continue;
                }
                int listed = kNoLord;
                for (const DashaPeriod& period : DashaList(dasha, {level, moment, moment, 1000})) {
                    if (period.level == level) {
                        listed = period.lord();
                    }
                }
                ASSERT_EQ(lord, listed) << "system " << system << " age " << moment;
            }
        }
    }
}

TEST(DashaQuery, PeriodsBeginWithTheirFirstMoment)
{
    for (const int system : kAllSystems) {
        const Dasha dasha = dashaFor(chartE(), system);
        const std::vector<DashaPeriod> list = periodsOf(dasha, {4, 0.0, 90.0, 3000});
        for (std::size_t i = 1; i < list.size(); ++i) {
            const DashaPeriod& period = list[i];
            if (period.startAge < 0.0 || period.length < 1e-3) {
                continue;
            }
            // The birth moment and the age round to about a ten-thousandth of a second.
            ASSERT_EQ(lordAtAge(dasha, period.startAge, period.level), period.lord());
            ASSERT_EQ(lordAtMoment(dasha, period.startJulianDay + 1e-6, period.level),
                      period.lord());
            if (period.level == 1) {
                ASSERT_NE(periodAtAge(dasha, period.startAge - 1e-6, 1)->startAge, period.startAge);
            }
        }
    }
}

TEST(DashaQuery, OffsetsGoRoundTheListOfTheLevel)
{
    const Dasha vimshottari = dashaFor(chartE(), kVimshottari);
    EXPECT_EQ(lordAtAge(vimshottari, 0.0, 1), core::kRahu);
    EXPECT_EQ(lordAtAge(vimshottari, 0.0, 1, 1), core::kJupiter);
    EXPECT_EQ(lordAtAge(vimshottari, 0.0, 1, -1), core::kMars);
    EXPECT_EQ(lordAtAge(vimshottari, 0.0, 1, 9), core::kRahu);
    EXPECT_EQ(lordAtAge(vimshottari, 0.0, 1, -10), core::kMars);
    // The last sub-period of Rahu is that of Mars; the one after it is Rahu's again, not the first
    // one of Jupiter.
    const double end = mahadashas(vimshottari, 1)[0].endAge();
    EXPECT_EQ(lordAtAge(vimshottari, end - 1e-3, 2), core::kMars);
    EXPECT_EQ(lordAtAge(vimshottari, end - 1e-3, 2, 1), core::kRahu);

    const Dasha narayana = dashaFor(chartE(), kNarayana);
    EXPECT_EQ(lordAtAge(narayana, 0.5, 1, 1), 3);
    EXPECT_EQ(lordAtAge(narayana, 0.5, 1, -1), 5);
    EXPECT_EQ(lordAtAge(narayana, 0.5, 2), 4);
    EXPECT_EQ(lordAtAge(narayana, 0.5, 2, 13), 3);
    const Dasha kala = dashaFor(chartE(), kKalaChakra);
    EXPECT_EQ(lordAtAge(kala, 0.0, 1, 9), lordAtAge(kala, 0.0, 1));
}

TEST(DashaQuery, LevelsBeyondTheFourth)
{
    const Dasha dasha = dashaFor(chartE(), kVimshottari);
    EXPECT_EQ(lordAtAge(dasha, 40.0, 5), lordAtAge(dasha, 40.0, 4));
    EXPECT_EQ(lordAtAge(dasha, 40.0, 99), lordAtAge(dasha, 40.0, 4));
    EXPECT_EQ(lordAtAge(dasha, 40.0, 0), kNoLord);
    EXPECT_EQ(lordAtAge(dasha, core::kNotANumber, 1), kNoLord);
    EXPECT_EQ(lordAtAge(dasha, 10001.0, 1), kNoLord);
    EXPECT_EQ(periodAtAge(dasha, 40.0, 5)->level, 5);
}

} // namespace
} // namespace kestrav::timing
