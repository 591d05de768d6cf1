#include "astro/SiderealTime.h"
#include "core/Angles.h"
#include "core/Settings.h"
#include "core/numeric.h"
#include "tests/astro/SkyForTests.h"

#include <gtest/gtest.h>

#include <erfa.h>

#include <array>
#include <cmath>
#include <random>

namespace kestrav::astro
{
namespace
{

core::Chart chartAt(double obliquityDegrees, double ayanamsa)
{
    core::Chart chart;
    const double obliquity = obliquityDegrees * core::kRadiansPerDegree;
    chart.latitude[core::kAscendant] = obliquity;
    chart.cosObliquity = std::cos(obliquity);
    chart.sinObliquity = std::sin(obliquity);
    chart.ayanamsa = ayanamsa;
    return chart;
}

TEST(Obliquity, IsTheLinearFormulaAndNearTheFullOne)
{
    EXPECT_NEAR(obliquityDegrees(1.0), 23.4392815, 1e-12);
    for (double T = 0.0; T <= 2.0; T += 0.1) {
        const double full = eraObl80(core::kEpoch1900, T * core::kDaysPerCentury);
        EXPECT_NEAR(tests::arcSeconds(obliquityDegrees(T), full * core::kDegreesPerRadian), 0.0,
                    0.07)
            << T;
    }
    core::Chart chart;
    chart.T = -3.0;
    Obliquity(chart);
    const double radians = (23.452294 + 0.0390375) * core::kRadiansPerDegree;
    EXPECT_NEAR(chart.obliquity(), radians, 1e-15);
    EXPECT_NEAR(chart.cosObliquity, std::cos(radians), 1e-15);
    EXPECT_NEAR(chart.sinObliquity, std::sin(radians), 1e-15);
}

TEST(LocalSiderealTime, IsTheMeanSiderealTimeOf1982)
{
    std::mt19937 random(1982);
    std::uniform_real_distribution<double> day(-18262.0, 91313.0); // 1850 to 2150
    std::uniform_real_distribution<double> hour(-14.0, 36.0);
    std::uniform_real_distribution<double> place(-180.0, 180.0);
    for (int i = 0; i < 2000; ++i) {
        // Universal Time counts from 0h of the local date, so it may lie outside 0 to 24.
        const double dayAt0h = std::floor(day(random)) + 0.5;
        const double utHours = hour(random);
        const double longitude = place(random);
        const double greenwich = eraGmst82(core::kEpoch1900 + dayAt0h, utHours / 24.0);
        const double hours = siderealTimeHours(dayAt0h + utHours / 24.0, utHours, longitude);
        ASSERT_GE(hours, 0.0);
        ASSERT_LT(hours, 24.0);
        // The same formula but for the day's length, which is taken as fixed: 0.05 milliseconds.
        const double wanted = greenwich * 12.0 / core::kPi + longitude / 15.0;
        ASSERT_NEAR(std::remainder(hours - wanted, 24.0) * 3600.0, 0.0, 1e-4)
            << dayAt0h << " " << utHours;
    }
}

TEST(LocalSiderealTime, TakesTheChartsTimesAndPlace)
{
    core::Chart chart;
    chart.time.year = 2021;
    chart.time.month = 8;
    chart.time.day = 3;
    chart.time.localTime = 9.0;
    chart.zone = 5.5;
    chart.daylightSaving = 1;
    chart.geoLongitude = 77.2;
    core::TimeArguments time;
    core::LocalToUniversal(chart, core::Settings(), time);
    const double here = LocalSiderealTime(chart);
    EXPECT_NEAR(here, siderealTimeHours(chart.time.dayCount, 2.5, 77.2), 1e-12);
    // Six hours of clock time are six hours and 59.14 seconds of sidereal time.
    chart.otherLocalTime = 15.0;
    EXPECT_NEAR(LocalSiderealTime(chart, true) - here, 6.0 + 59.1388 / 3600.0, 1e-7);
    // The stored day count stays: with the other time more than half a day away, on the far side
    // of 0h, the day is one off, 236.6 seconds.
    chart.otherLocalTime = 22.5;
    EXPECT_NEAR(std::remainder(LocalSiderealTime(chart, true) - here - 13.5 * 1.00273790935, 24.0) *
                    3600.0,
                -236.6, 0.1);
}

// Ecliptic of date to equator of date by a rotation matrix.
std::array<double, 2> equatorial(double longitude, double latitude, double obliquity)
{
    double vector[3];
    double rotation[3][3];
    double turned[3];
    eraS2c(longitude, latitude, vector);
    eraIr(rotation);
    eraRx(-obliquity, rotation);
    eraRxp(rotation, vector, turned);
    std::array<double, 2> result = {};
    eraC2s(turned, &result[0], &result[1]);
    return result;
}

TEST(Declination, IsThatOfTheRotatedDirection)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> circle(0.0, 360.0);
    std::uniform_real_distribution<double> latitude(-0.3, 0.3);
    core::Chart chart = chartAt(23.44, 23.9);
    for (int i = 0; i < 200; ++i) {
        for (const int point : core::kBodies) {
            core::at(chart.longitude, point) = circle(random);
            core::at(chart.latitude, point) = latitude(random);
            Declination(chart, point);
            const double tropical = core::at(chart.longitude, point) + 23.9;
            const auto wanted = equatorial(tropical * core::kRadiansPerDegree,
                                           core::at(chart.latitude, point), chart.obliquity());
            ASSERT_NEAR(chart.declination[std::size_t(point < 10 ? point : point - 22)], wanted[1],
                        1e-12);
        }
    }
}

TEST(Declination, OnlyBodiesHaveASlot)
{
    core::Chart chart = chartAt(23.44, 0.0);
    chart.declination.fill(7.0);
    for (const int point : {0, 10, 12, 31, 35, 46, 62}) {
        EXPECT_EQ(declinationSlot(point), -1) << point;
        Declination(chart, point);
    }
    for (const double declination : chart.declination) {
        EXPECT_EQ(declination, 7.0);
    }
}

TEST(RightAscensionHours, IsThatOfTheEclipticAndKeepsItsOddValue)
{
    const core::Chart chart = chartAt(23.44, 0.0);
    for (double longitude = 0.25; longitude < 360.0; longitude += 0.5) {
        const auto wanted = equatorial(longitude * core::kRadiansPerDegree, 0.0, chart.obliquity());
        const double hours = RightAscensionHours(chart, longitude);
        EXPECT_GE(hours, 0.0);
        EXPECT_LT(hours, 24.0);
        EXPECT_NEAR(std::remainder(hours - wanted[0] * 12.0 / core::kPi, 24.0), 0.0, 1e-11);
    }
    EXPECT_EQ(RightAscensionHours(chart, 0.0), 0.0);
    EXPECT_NEAR(RightAscensionHours(chart, 90.0), 6.0, 1e-12);
    EXPECT_NEAR(RightAscensionHours(chart, 270.0), 18.0, 1e-12);
    // The tangent of pi is slightly negative.
    EXPECT_NEAR(RightAscensionHours(chart, 180.0), 24.0, 1e-12);
    EXPECT_NEAR(RightAscensionHours(chart, std::nextafter(180.0, 0.0)), 12.0, 1e-12);
    EXPECT_NEAR(RightAscensionHours(chart, std::nextafter(180.0, 360.0)), 12.0, 1e-12);
    // The longitude is sidereal.
    const core::Chart sidereal = chartAt(23.44, 24.0);
    for (const double longitude : {1.0, 155.5, 350.0}) {
        EXPECT_NEAR(RightAscensionHours(sidereal, longitude),
                    RightAscensionHours(chart, core::Normalize360(longitude + 24.0)), 1e-12);
    }
}

} // namespace
} // namespace kestrav::astro
