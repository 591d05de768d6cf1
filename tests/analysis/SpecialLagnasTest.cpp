#include "analysis/SpecialLagnas.h"

#include "analysis/YogiPoint.h"
#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::tests
{

namespace
{

using namespace analysis;

TEST(SpecialLagnas, CountedFromSunrise)
{
    const double firstSun = 294.0 + 17.0 / 60.0;
    const double firstHours = 12.0 + 46.0 / 60.0;
    EXPECT_NEAR(lagnaFromSunrise(firstSun, firstHours, kHoraLagnaRate), 317.28, 0.005);
    EXPECT_NEAR(lagnaFromSunrise(firstSun, firstHours, kGhatiLagnaRate), 171.78, 0.005);
    EXPECT_NEAR(lagnaFromSunrise(firstSun, firstHours, kBhavaLagnaRate), 125.78, 0.005);

    const double secondSun = 42.0 + 11.0 / 60.0;
    const double secondHours = 20.0 + 52.0 / 60.0 + 30.0 / 3600.0;
    EXPECT_NEAR(lagnaFromSunrise(secondSun, secondHours, kHoraLagnaRate), 308.43, 0.005);
    EXPECT_NEAR(lagnaFromSunrise(secondSun, secondHours, kGhatiLagnaRate), 167.81, 0.005);
}

TEST(SpecialLagnas, StartFromTheSunAtTheLastSunrise)
{
    // After midnight the last sunrise is that of the date before.
    const core::Chart chart = chartAt(kNewDelhi, 2022, 1, 25, 4.0);
    const double sunrise = *chartAt(kNewDelhi, 2022, 1, 24, 12.0).sunrise;
    const core::Chart atSunrise = chartAt(kNewDelhi, 2022, 1, 24, sunrise + 1e-9);
    const double sun = atSunrise.longitude[core::kSun];
    for (const int point : {core::kBhavaLagna, core::kHoraLagna, core::kGhatiLagna}) {
        EXPECT_NEAR(core::at(atSunrise.longitude, point), sun, 1e-6);
    }
    const double hours = 28.0 - sunrise;
    const auto distance = [&](int point, double rate) {
        return std::remainder(core::at(chart.longitude, point) - (sun + hours * rate), 360.0);
    };
    // The ayanamsa is that of the chart's own moment, 3e-5 degrees greater.
    EXPECT_NEAR(distance(core::kBhavaLagna, 15.0), 0.0, 1e-4);
    EXPECT_NEAR(distance(core::kHoraLagna, 30.0), 0.0, 1e-4);
    EXPECT_NEAR(distance(core::kGhatiLagna, 75.0), 0.0, 1e-4);
}

TEST(SpecialLagnas, ShriInduAndDivya)
{
    EXPECT_NEAR(shriLagna(175.0 + 5.0 / 60.0, 193.1), 348.78, 0.005);
    EXPECT_NEAR(shriLagna(224.0 + 19.0 / 60.0, 135.0 + 29.0 / 60.0), 282.37, 0.005);
    EXPECT_EQ(induSign(10, 7), 10);
    EXPECT_EQ(induSign(10, 11), 6);
    // Jupiter's 10 and the Moon's 16 from Aries, 30 + 30 from Sagittarius: a full 12 counts.
    EXPECT_EQ(induSign(9, 9), 8);
    EXPECT_NEAR(divyaLagna(298.45), 166.05, 1e-9);
}

TEST(SpecialLagnas, Varnada)
{
    EXPECT_EQ(varnadaSign(10, 12), 9);
    // The second house from it: Aquarius and Aries, 11 + 1.
    EXPECT_EQ(varnadaSign(10, 12, 2), 12);
    // Signs of different kind take the difference, which may be nothing.
    EXPECT_EQ(varnadaSign(1, 12), 12);
    EXPECT_EQ(varnadaSign(12, 1), 1);
    EXPECT_EQ(varnadaSign(3, 6), 4);
}

TEST(YogiPoint, PointsAndPlanets)
{
    const Yogi yogi = yogiOf(231.566, 186.959);
    EXPECT_NEAR(yogi.point, 151.858, 0.001);
    EXPECT_NEAR(yogi.avayogi, 338.525, 0.001);
    // Uttara Phalguni in Virgo, and Uttara Bhadrapada.
    EXPECT_EQ(yogi.planet, core::kSun);
    EXPECT_EQ(yogi.duplicate, core::kMercury);
    EXPECT_EQ(yogi.avayogiPlanet, core::kSaturn);
    EXPECT_NEAR(yogiOf(180.8986, 311.2886).point, 225.5206, 0.0001);
}

TEST(YogiPoint, PartOfFortuneByDayAndNight)
{
    EXPECT_NEAR(partOfFortune(298.45, 180.8986, 311.2886, false), 68.84, 0.005);
    EXPECT_NEAR(partOfFortune(298.45, 180.8986, 311.2886, true), 168.06, 0.005);
    core::Chart day = printedDayChart();
    computeYogiAndFortune(day);
    EXPECT_NEAR(day.longitude[core::kPartOfFortune], 68.84, 0.005);
    core::Chart night = printedNightChart();
    computeYogiAndFortune(night);
    EXPECT_NEAR(night.longitude[core::kPartOfFortune], 86.43 + 146.38 - 309.50 + 360.0, 1e-9);
}

} // namespace

} // namespace kestrav::tests
