#include "timing/Ephemeris.h"
#include "analysis/ComputeChart.h"
#include "core/Angles.h"
#include "core/Chart.h"
#include "core/SignData.h"
#include "tests/astro/SeriesForTests.h"
#include "timing/EphemerisEvents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace kestrav::timing
{
namespace
{

constexpr double kIndia = 5.5;

core::DateTimeRecord dateOf(int year, int month, int day, double localTime = 0.0)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    record.localTime = localTime;
    return record;
}

EphemerisPlan planOf(const core::DateTimeRecord& first, const core::DateTimeRecord& last,
                     TableStep step)
{
    return {first, last, step, kIndia, {core::kSun, core::kMoon}};
}

class EphemerisTable : public testing::Test
{
protected:
    std::vector<EphemerisRow> rowsOf(const EphemerisPlan& plan)
    {
        EXPECT_EQ(checkPlan(plan), PlanProblem::None);
        EphemerisRows rows(sky, plan);
        std::vector<EphemerisRow> all;
        while (std::optional<EphemerisRow> row = rows.next()) {
            all.push_back(*row);
        }
        EXPECT_FALSE(rows.next());
        EXPECT_LE(std::int64_t(all.size()), rows.rowsAtMost());
        return all;
    }

    static std::string datesOf(const std::vector<EphemerisRow>& rows)
    {
        std::string text;
        for (const EphemerisRow& row : rows) {
            text += std::to_string(row.date.year) + "-" + std::to_string(row.date.month) + "-" +
                    std::to_string(row.date.day) + " ";
        }
        return text;
    }

    SiderealSky sky{tests::seriesForTests(), core::Settings{}, kIndia};
};

TEST_F(EphemerisTable, rowsAreChartsOfTheirMoments)
{
    EphemerisPlan plan =
        planOf(dateOf(1996, 12, 7, 10.0 + 34.0 / 60.0), dateOf(1996, 12, 27), {10, StepUnit::Day});
    plan.bodies.assign(core::kBodies.begin(), core::kBodies.end());
    const std::vector<EphemerisRow> rows = rowsOf(plan);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].weekday, 7); // a Saturday
    for (const EphemerisRow& row : rows) {
        core::Chart chart;
        chart.time = row.date;
        chart.zone = kIndia;
        astro::EphemerisContext context(tests::seriesForTests());
        analysis::computePositions(chart, core::Settings{}, context);
        EXPECT_NEAR(row.julianDay - core::kEpoch1900, chart.time.dayCount, 1e-9);
        ASSERT_EQ(row.bodies.size(), plan.bodies.size());
        for (const EphemerisPosition& body : row.bodies) {
            EXPECT_NEAR(core::Wrap180(body.sky.longitude - core::at(chart.longitude, body.point)),
                        0.0, 3e-6)
                << body.point;
            EXPECT_NEAR(body.sky.speed, core::at(chart.speed, body.point), 0.02) << body.point;
        }
    }
    // Printed positions of the first row: Sun 21 Scorpio 33, Moon 6 Libra 57.
    EXPECT_NEAR(rows[0].bodies[0].sky.longitude, 231.0 + 33.5 / 60.0, 0.5 / 60.0);
    EXPECT_NEAR(rows[0].bodies[1].sky.longitude, 186.0 + 57.5 / 60.0, 0.5 / 60.0);
}

TEST_F(EphemerisTable, steps)
{
    // The last date belongs to the table up to its end, and not the day after.
    EXPECT_EQ(rowsOf(planOf(dateOf(2024, 2, 28), dateOf(2024, 3, 1), {1, StepUnit::Day})).size(),
              3U);
    EXPECT_EQ(
        rowsOf(planOf(dateOf(2024, 1, 1, 23.5), dateOf(2024, 1, 1), {1, StepUnit::Day})).size(),
        1U);
    EXPECT_EQ(rowsOf(planOf(dateOf(2024, 1, 1), dateOf(2024, 1, 1), {6, StepUnit::Hour})).size(),
              4U);
    const auto minutes =
        rowsOf(planOf(dateOf(2023, 12, 31, 23.0), dateOf(2024, 1, 1), {7, StepUnit::Minute}));
    EXPECT_EQ(minutes.size(), 215U); // 25 hours hold 214.3 steps
    for (std::size_t i = 0; i < minutes.size(); ++i) {
        const double hour = 23.0 + double(i) * 7.0 / 60.0;
        EXPECT_EQ(minutes[i].date.day, hour < 24.0 ? 31 : 1);
        EXPECT_NEAR(minutes[i].date.localTime, hour < 24.0 ? hour : hour - 24.0, 1e-9);
        EXPECT_NEAR((minutes[i].julianDay - minutes[0].julianDay) * 24.0, hour - 23.0, 1e-7);
    }
    // No row slides over midnight: 24 steps of an hour from 0:20 on.
    for (const EphemerisRow& row : rowsOf(
             planOf(dateOf(2024, 1, 1, 20.0 / 60.0), dateOf(2024, 3, 1), {20, StepUnit::Minute}))) {
        EXPECT_LT(row.date.localTime, 23.9);
    }
    // Months keep their day where they have it.
    EXPECT_EQ(
        datesOf(rowsOf(planOf(dateOf(2023, 10, 31), dateOf(2024, 3, 31), {1, StepUnit::Month}))),
        "2023-10-31 2023-11-30 2023-12-31 2024-1-31 2024-2-29 2024-3-31 ");
    EXPECT_EQ(
        datesOf(rowsOf(planOf(dateOf(2023, 10, 31), dateOf(2024, 3, 30), {5, StepUnit::Month}))),
        "2023-10-31 ");
    EXPECT_EQ(datesOf(rowsOf(planOf(dateOf(-2, 11, 5), dateOf(2, 2, 5), {13, StepUnit::Month}))),
              "-2-11-5 -1-12-5 2-1-5 ");
}

TEST_F(EphemerisTable, theChangeOfCalendar)
{
    const auto days = rowsOf(planOf(dateOf(1582, 10, 3), dateOf(1582, 10, 17), {1, StepUnit::Day}));
    EXPECT_EQ(days.size(), 5U); // 3, 4, 15, 16, 17
    EXPECT_EQ(days.back().date.day, 17);
    for (std::size_t i = 1; i < days.size(); ++i) {
        EXPECT_DOUBLE_EQ(days[i].julianDay, days[i - 1].julianDay + 1.0);
        EXPECT_EQ(days[i].weekday, days[i - 1].weekday % 7 + 1);
    }
    EXPECT_EQ(
        datesOf(rowsOf(planOf(dateOf(1582, 9, 10), dateOf(1582, 11, 10), {1, StepUnit::Month}))),
        "1582-9-10 1582-10-4 1582-11-10 ");
}

TEST_F(EphemerisTable, plansThatCannotBe)
{
    const auto problem = [](const core::DateTimeRecord& first, const core::DateTimeRecord& last,
                            TableStep step) {
        return checkPlan(planOf(first, last, step));
    };
    const core::DateTimeRecord day = dateOf(2024, 1, 1);
    EXPECT_EQ(problem(day, day, {0, StepUnit::Day}), PlanProblem::StepNotPositive);
    EXPECT_EQ(problem(day, day, {-3, StepUnit::Month}), PlanProblem::StepNotPositive);
    EXPECT_EQ(problem(day, dateOf(2023, 12, 31), {1, StepUnit::Day}), PlanProblem::Reversed);
    EXPECT_EQ(problem(day, dateOf(2023, 12, 31), {1, StepUnit::Month}), PlanProblem::Reversed);
    EXPECT_EQ(problem(dateOf(-4001, 1, 1), day, {1, StepUnit::Day}), PlanProblem::FirstOutOfReach);
    EXPECT_EQ(problem(day, dateOf(8001, 1, 1), {1, StepUnit::Day}), PlanProblem::LastOutOfReach);
    EXPECT_EQ(problem(day, dateOf(3200, 1, 1), {1, StepUnit::Month}), PlanProblem::TooLong);
    EXPECT_EQ(problem(day, dateOf(3000, 1, 1), {1, StepUnit::Month}), PlanProblem::None);
    // 250,000 rows of two bodies: 173 days and 14 hours of minutes.
    EXPECT_EQ(problem(day, dateOf(2024, 6, 21), {1, StepUnit::Minute}), PlanProblem::None);
    EXPECT_EQ(problem(day, dateOf(2024, 6, 22), {1, StepUnit::Minute}),
              PlanProblem::TooManyPositions);
}

TEST(EphemerisStep, words)
{
    const auto parsed = [](std::string_view text) {
        const core::Result<TableStep> step = parseTableStep(text);
        return step ? std::to_string(step.value().count) + "/" +
                          std::to_string(int(step.value().unit))
                    : step.error().text();
    };
    EXPECT_EQ(parsed("10min"), "10/0");
    EXPECT_EQ(parsed("1 minute"), "1/0");
    EXPECT_EQ(parsed("6h"), "6/1");
    EXPECT_EQ(parsed("2 days"), "2/2");
    EXPECT_EQ(parsed("3mo"), "3/3");
    EXPECT_EQ(parsed("0d"), "0/2");
    EXPECT_EQ(parsed("-5months"), "-5/3");
    for (const std::string_view wrong :
         {"", "d", "10", "1.5d", "10 m", "1dd", "99999999999d", "--1d"}) {
        EXPECT_FALSE(parseTableStep(wrong)) << wrong;
    }
    EXPECT_NE(parsed("1.5d").find("'1.5d'"), std::string::npos);
}

// Printed stations and ingresses of the weeks around the example chart.
TEST_F(EphemerisTable, eventsOfAMonth)
{
    const Span month{julianDayOf(dateOf(1996, 12, 1), kIndia),
                     julianDayOf(dateOf(1997, 1, 1), kIndia)};
    const auto events = ephemerisEventsIn(
        sky, {core::kSun, core::kMoon, core::kMars, core::kMercury, core::kVenus}, month);
    std::vector<std::wstring> texts;
    double before = month.from;
    for (const EphemerisEvent& event : events) {
        EXPECT_GE(event.julianDay, before);
        before = event.julianDay;
        if (event.body != core::kMoon) {
            texts.push_back(ephemerisEventText(event));
        }
        if (event.kind == EphemerisEventKind::Ingress) {
            const double beyond = event.retrograde ? -1e-4 : 1e-4;
            EXPECT_EQ(core::signOfLongitude(core::Normalize360(event.longitude + beyond)),
                      event.sign);
            EXPECT_NEAR(core::Wrap180(sky.longitude(event.body, event.julianDay) - event.longitude),
                        0.0, 1e-4);
        }
    }
    const std::vector<std::wstring> wanted = {L"Venus enters Scorpio", L"Sun enters Sagittarius",
                                              L"Mars enters Virgo",
                                              L"Mercury turns retrograde in Sagittarius"};
    EXPECT_EQ(texts.size(), wanted.size());
    for (const std::wstring& text : wanted) {
        EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end())
            << std::string(text.begin(), text.end());
    }
    std::size_t ofTheMoon = 0;
    for (double day = month.from; day < month.to; day += 0.01) {
        ofTheMoon += core::signOfLongitude(sky.longitude(core::kMoon, day)) !=
                             core::signOfLongitude(sky.longitude(core::kMoon, day + 0.01))
                         ? 1U
                         : 0U;
    }
    EXPECT_EQ(events.size() - texts.size(), ofTheMoon);

    const Span year{month.from, month.from + 366.0};
    const auto nodes = ephemerisEventsIn(sky, {core::kRahu, core::kKetu}, year);
    ASSERT_EQ(nodes.size(), 2U);
    EXPECT_EQ(ephemerisEventText(nodes[0]), L"Rahu re-enters (R) Leo");
    EXPECT_EQ(nodes[1].sign, 11);
    EXPECT_NEAR(nodes[0].julianDay, nodes[1].julianDay, 1e-6);
    // Stopped after one body.
    const auto some = ephemerisEventsIn(sky, {core::kSun, core::kMars}, year,
                                        [](std::size_t done) { return done < 1; });
    EXPECT_EQ(some.size(), 12U);
}

} // namespace
} // namespace kestrav::timing
