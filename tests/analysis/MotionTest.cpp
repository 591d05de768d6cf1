#include "analysis/Motion.h"
#include "analysis/ComputeChart.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrav::analysis
{
namespace
{

core::Chart momentOf(double julianDay)
{
    core::Chart chart;
    chart.time.dayCount = julianDay - core::kEpoch1900;
    core::JulianDayToDate(chart);
    astro::EphemerisContext context(tests::seriesForTests());
    ComputeChart(chart, core::Settings(), context);
    return chart;
}

TEST(Motion, LetterFollowsSpeedAndTrend)
{
    const auto letter = [](int point, double speed, bool grows = false) {
        return core::motionLetter(motionOf(point, speed, [grows] { return grows; }));
    };
    EXPECT_EQ(letter(core::kMars, 0.60), L'F');
    EXPECT_EQ(letter(core::kMars, 0.50), L'S');
    EXPECT_EQ(letter(core::kMars, 0.05, true), L'D');
    EXPECT_EQ(letter(core::kMars, 0.05, false), L'T');
    EXPECT_EQ(letter(core::kMars, -0.05), L'M');
    EXPECT_EQ(letter(core::kMars, -0.06), L'R');
    EXPECT_EQ(letter(core::kMoon, 13.2), L'F');
    EXPECT_EQ(letter(core::kMoon, 13.1), L'S');
    EXPECT_EQ(letter(core::kRahu, -0.05295), L'R');
    EXPECT_EQ(letter(core::kKetu, -0.001), L'R');
}

// Times of stations retrograde on a clock 5.5 hours ahead of Universal Time.
TEST(Motion, TurnsAtTheKnownStations)
{
    const struct
    {
        int point;
        double julianDay;
        double hours; // how well the station is known
    } rows[] = {
        {core::kMercury, 2450441.5 + (1.0 + 8.0 / 60.0 - 5.5) / 24.0, 0.35},
        {core::kMars, 2450485.5 + (5.0 + 57.0 / 60.0 - 5.5) / 24.0, 0.35},
        {core::kVenus, 2450809.5 + (2.0 + 47.0 / 60.0 - 5.5) / 24.0, 0.35},
        {core::kJupiter, 2450609.5, 24.0}, // on 1997 June 10
        {core::kSaturn, 2450661.5, 24.0},  // on 1997 August 1
    };
    for (const auto& [point, julianDay, hours] : rows) {
        const core::Chart before = momentOf(julianDay - hours / 24.0);
        const core::Chart after = momentOf(julianDay + hours / 24.0);
        EXPECT_EQ(core::at(before.motion, point), core::Motion::Turning) << point;
        EXPECT_FALSE(core::at(before.retrograde, point)) << point;
        EXPECT_EQ(core::at(after.motion, point), core::Motion::Station) << point;
        EXPECT_TRUE(core::at(after.retrograde, point)) << point;
    }
}

TEST(Motion, RunsThroughItsLettersInALoop)
{
    const struct
    {
        int point;
        double first; // Julian day
        double days;
        double step;
    } rows[] = {{core::kMercury, 2450420.5, 60.0, 0.25},
                {core::kMars, 2450300.5, 400.0, 1.0},
                {core::kJupiter, 2450480.5, 380.0, 1.0},
                {core::kNeptune, 2450450.5, 360.0, 1.0}};
    for (const auto& [point, first, days, step] : rows) {
        std::wstring letters;
        for (double day = 0.0; day < days; day += step) {
            const wchar_t letter =
                core::motionLetter(core::at(momentOf(first + day).motion, point));
            if (letters.empty() || letters.back() != letter) {
                letters += letter;
            }
        }
        EXPECT_NE(letters.find(L"FSTMRMDSF"), std::wstring::npos)
            << point << " " << std::string(letters.begin(), letters.end());
    }
}

} // namespace
} // namespace kestrav::analysis
