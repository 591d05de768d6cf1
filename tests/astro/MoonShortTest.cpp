#include "astro/Moon.h"
#include "core/Angles.h"
#include "core/numeric.h"
#include "tests/astro/SkyForTests.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::astro
{
namespace
{

double sine(double degrees)
{
    return std::sin(degrees * core::kRadiansPerDegree);
}

// The thirteen terms written out, in degrees.
double moonByHand(double T)
{
    const double t = T - 0.5;
    const double L = 64.3755 + 481267.882 * t - 0.0011 * t * t;
    const double m = 215.532 + 477198.8583 * t + 0.0092 * t * t;
    const double node = 12.1128 - 1934.1399 * t + 0.0021 * t * t;
    const double sun = 358.001 + 35999.0496 * t - 0.0002 * t * t;
    const double D2 = 2.0 * (L - (280.697 + 36000.7692 * t + 0.0003 * t * t));
    const double F2 = 2.0 * (L - node);
    return L + 6.2889 * sine(m) + 1.275 * sine(D2 - m) + 0.6583 * sine(D2) +
           0.2136 * sine(2.0 * m) - 0.1872 * sine(sun) - 0.1144 * sine(F2) +
           0.0589 * sine(D2 - 2.0 * m) + 0.0575 * sine(D2 - sun - m) + 0.0533 * sine(D2 + m) +
           0.0461 * sine(D2 - sun) + 0.0411 * sine(m - sun) - 0.0339 * sine(D2 / 2.0) -
           0.0303 * sine(sun + m);
}

TEST(MoonShort, IsTheSumOfItsThirteenTerms)
{
    for (double T = -60.0; T <= 31.0; T += 0.317) {
        const ShortMoon moon = shortMoon(core::timeArguments(T));
        // The arguments reach 3e7 degrees, where the last bit is 4e-9.
        EXPECT_NEAR(std::remainder(moon.longitude - moonByHand(T), 360.0), 0.0, 1e-7) << T;
        // The mean argument of latitude, L - node.
        const double t = T - 0.5;
        const double F = 52.2627 + 483202.0219 * t - 0.0032 * t * t;
        EXPECT_NEAR(moon.latitude, 5.128 * sine(F) * core::kRadiansPerDegree, 1e-9) << T;
    }
}

TEST(MoonShort, SpeedsAreTheDerivatives)
{
    const double day = 1.0 / core::kDaysPerCentury;
    for (double T = -5.0; T <= 3.0; T += 0.0713) {
        const ShortMoon moon = shortMoon(core::timeArguments(T));
        const double before = moonByHand(T - 0.01 * day);
        const double after = moonByHand(T + 0.01 * day);
        EXPECT_NEAR(moon.speed, (after - before) / 0.02, 2e-5) << T;
        EXPECT_GT(moon.speed, 11.6);
        EXPECT_LT(moon.speed, 15.5);
        const double nodeMoved = shortMoon(core::timeArguments(T + day)).node - moon.node;
        EXPECT_NEAR(moon.nodeSpeed, nodeMoved, 1e-6) << T;
    }
}

// The bounds are the known errors of the short theory, so a wrong term shows.
TEST(MoonShort, AgreesWithTheLunarEphemeris)
{
    tests::Largest minutesNear;
    tests::Largest minutesFar;
    tests::Largest latitude;
    tests::Largest speed;
    tests::Largest node;
    for (const tests::SkyRow& row : tests::skyRows()) {
        const ShortMoon moon = shortMoon(row.time);
        if (row.body == "Moon") {
            const double away = tests::arcSeconds(moon.longitude, row.longitude) / 60.0;
            if (row.isWithin(1800.0, 2200.0)) {
                minutesNear.add(away, row.year());
                latitude.add(moon.latitude * core::kDegreesPerRadian - row.latitude, row.year());
                speed.add(moon.speed - row.speed, row.year());
            } else if (row.isWithin(-500.0, 2500.0)) {
                minutesFar.add(away, row.year());
            }
        } else if (row.body == "MeanNode" && row.isWithin(1900.0, 2100.0)) {
            node.add(tests::arcSeconds(moon.node, row.longitude), row.year());
        }
    }
    EXPECT_EQ(minutesNear.count, 39);
    EXPECT_EQ(minutesFar.count, 21);
    EXPECT_EQ(node.count, 26);
    EXPECT_LT(minutesNear.value, 8.6) << minutesNear.year;
    EXPECT_LT(minutesFar.value, 28.0) << minutesFar.year;
    // Only the first term of the latitude; the next three add up to 0.73 degrees.
    EXPECT_LT(latitude.value, 0.9) << latitude.year;
    EXPECT_LT(speed.value, 0.05) << speed.year;
    EXPECT_LT(node.value, 10.0) << node.year;
}

TEST(MoonShort, WritesSiderealLongitudesIntoTheChart)
{
    for (const double ayanamsa : {23.85, -0.004, 359.0}) {
        for (double T = 0.0; T < 1.5; T += 0.11) {
            core::Chart chart;
            chart.ayanamsa = ayanamsa;
            const core::TimeArguments time = core::timeArguments(T);
            MoonShort(time, chart);
            const ShortMoon moon = shortMoon(time);
            const auto tropical = [&](int point) {
                EXPECT_GE(core::at(chart.longitude, point), 0.0);
                EXPECT_LT(core::at(chart.longitude, point), 360.0);
                return core::at(chart.longitude, point) + ayanamsa;
            };
            EXPECT_NEAR(tests::arcSeconds(tropical(core::kMoon), moon.longitude), 0.0, 1e-5);
            EXPECT_NEAR(tests::arcSeconds(tropical(core::kRahu), moon.node), 0.0, 1e-5);
            EXPECT_NEAR(tests::arcSeconds(tropical(core::kKetu), moon.node + 180.0), 0.0, 1e-5);
            EXPECT_EQ(chart.speed[core::kMoon], moon.speed);
            EXPECT_EQ(chart.latitude[core::kMoon], moon.latitude);
            EXPECT_EQ(chart.speed[core::kKetu], moon.nodeSpeed);
        }
    }
}

} // namespace
} // namespace kestrav::astro
