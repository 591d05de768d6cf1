#include "analysis/Upagrahas.h"

#include "analysis/DayParts.h"
#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::tests
{

namespace
{

using namespace analysis;

double degrees(int whole, int minutes)
{
    return whole + minutes / 60.0;
}

void expectSunBased(double sun, const std::array<double, 5>& expected)
{
    const std::array<double, 5> found = sunBasedUpagrahas(sun);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(found[i], expected[i], 1e-9) << "upagraha " << i << " of the Sun at " << sun;
    }
}

TEST(Upagrahas, FromTheSun)
{
    // Worked examples as printed.
    expectSunBased(degrees(249, 36), {degrees(22, 56), degrees(337, 4), degrees(157, 4),
                                      degrees(202, 56), degrees(219, 36)});
    expectSunBased(degrees(43, 19), {degrees(176, 39), degrees(183, 21), degrees(3, 21),
                                     degrees(356, 39), degrees(13, 19)});
    // Dhuma on 0 Aries leaves Vyatipata there, not on 360.
    EXPECT_EQ(sunBasedUpagrahas(360.0 - (133.0 + 20.0 / 60.0))[1], 0.0);
}

TEST(Upagrahas, Pranapada)
{
    EXPECT_NEAR(pranapada(180.8986, 20.0), 60.8986, 1e-9);
    EXPECT_NEAR(pranapada(231.56, 10.5), 291.56, 1e-9);
    EXPECT_NEAR(pranapada(65.0, 0.0), 185.0, 1e-9);
}

// The ascendant of the chart of another hour of the same date.
double ascendantOfChart(int day, double hour)
{
    return chartAt(kNewDelhi, 2022, 1, day, hour).longitude[core::kAscendant];
}

// A point is stored when its sign data are there; the ayanamsa moves by 1e-5 degrees in half a day.
void expectPoint(const core::Chart& chart, int point, double longitude)
{
    EXPECT_TRUE(chart.computed(point));
    EXPECT_NEAR(std::remainder(core::at(chart.longitude, point) - longitude, 360.0), 0.0, 1e-4)
        << "point " << point;
}

TEST(Upagrahas, PartsOfADay)
{
    // A Monday: Moon, Mars, Mercury, Jupiter, Venus, Saturn, Sun.
    const core::Chart chart = chartAt(kNewDelhi, 2022, 1, 24, 12.0);
    const double sunrise = *chart.sunrise;
    const double eighth = (*chart.sunset - sunrise) / 8.0;
    expectPoint(chart, core::kMrityu, ascendantOfChart(24, sunrise + eighth));
    expectPoint(chart, core::kArdhaprahara, ascendantOfChart(24, sunrise + 2.0 * eighth));
    expectPoint(chart, core::kYamaghantaka, ascendantOfChart(24, sunrise + 3.0 * eighth));
    expectPoint(chart, core::kGulika, ascendantOfChart(24, sunrise + 5.0 * eighth));
    expectPoint(chart, core::kKaala, ascendantOfChart(24, sunrise + 6.0 * eighth));
    expectPoint(chart, core::kMandi, ascendantOfChart(24, sunrise + eighth * 8.0 * 22.0 / 30.0));
    EXPECT_NEAR(std::remainder(core::at(chart.longitude, core::kPranapada) -
                                   pranapada(chart.longitude[core::kSun], (12.0 - sunrise) * 2.5),
                               360.0),
                0.0, 1e-6);

    core::Chart middle = chart;
    computeUpagrahas(middle, true);
    expectPoint(middle, core::kGulika, ascendantOfChart(24, sunrise + 5.5 * eighth));
    expectPoint(middle, core::kMandi, chart.longitude[core::kMandi]);
}

TEST(Upagrahas, PartsOfANightBeforeSunrise)
{
    // Monday's night, which began on the evening of the 24th and is counted there.
    const core::Chart chart = chartAt(kNewDelhi, 2022, 1, 25, 4.0);
    EXPECT_EQ(chart.weekday, 2);
    const double sunset = *chartAt(kNewDelhi, 2022, 1, 24, 12.0).sunset;
    const double eighth = (24.0 + *chart.sunrise - sunset) / 8.0;
    expectPoint(chart, core::kGulika, ascendantOfChart(24, sunset + eighth));
    expectPoint(chart, core::kKaala, ascendantOfChart(24, sunset + 2.0 * eighth));
    expectPoint(chart, core::kMandi, ascendantOfChart(24, sunset + eighth * 8.0 * 6.0 / 30.0));
}

TEST(Upagrahas, MandiOfDaysAndNights)
{
    for (int weekday = 1; weekday <= 7; ++weekday) {
        // Mandi goes back four ghatis a day, and a night is like the fifth day from its own.
        EXPECT_EQ(mandiGhati(weekday, false), 30 - 4 * weekday);
        EXPECT_EQ(mandiGhati(weekday, true), mandiGhati((weekday + 3) % 7 + 1, false));
    }
}

} // namespace

} // namespace kestrav::tests
