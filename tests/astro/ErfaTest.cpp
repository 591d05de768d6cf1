// The Sun and the Moon against the independent approximations of the ERFA library.
#include "astro/Engine.h"
#include "astro/Moon.h"
#include "astro/PreciseMoon.h"
#include "core/numeric.h"
#include "tests/astro/SeriesForTests.h"
#include "tests/astro/SkyForTests.h"

#include <gtest/gtest.h>

#include <erfa.h>

#include <cmath>

namespace kestrav::astro
{
namespace
{

// Longitude and latitude (degrees) of a direction of the celestial reference system, mean ecliptic
// and equinox of a date given as days from 1900 January 0.5.
void eclipticOfDate(double day, const double direction[3], double& longitude, double& latitude)
{
    double rotation[3][3];
    double turned[3];
    double c[3] = {direction[0], direction[1], direction[2]};
    eraEcm06(core::kEpoch1900, day, rotation);
    eraRxp(rotation, c, turned);
    eraC2s(turned, &longitude, &latitude);
    longitude *= core::kDegreesPerRadian;
    latitude *= core::kDegreesPerRadian;
}

TEST(Erfa, SunAgreesWithTheEarthsOrbit)
{
    tests::Largest away;
    EphemerisContext context(tests::seriesForTests());
    for (double day = 0.0; day < 2.0 * core::kDaysPerCentury; day += 17.3) {
        const double T = day / core::kDaysPerCentury;
        context.setTime(core::timeArguments(T));
        PlanetPosition(context, kCodeSun);
        // The Sun is seen from where the Earth was one light time ago.
        double earth[2][3];
        double barycentric[2][3];
        eraEpv00(core::kEpoch1900, day - context.result.lightTime, earth, barycentric);
        const double sun[3] = {-earth[0][0], -earth[0][1], -earth[0][2]};
        double longitude = 0.0;
        double latitude = 0.0;
        eclipticOfDate(day, sun, longitude, latitude);
        away.add(tests::arcSeconds(context.result.longitude, longitude), 1900.0 + 100.0 * T);
        ASSERT_NEAR(context.result.distance, eraPm(earth[0]), 1e-5) << T;
    }
    EXPECT_LT(away.value, 0.5) << away.year;
}

TEST(Erfa, MoonAgreesWithTheApproximateTheory)
{
    tests::Largest precise;
    tests::Largest preciseLatitude;
    tests::Largest shortMinutes;
    for (double day = 0.0; day < 2.0 * core::kDaysPerCentury; day += 7.13) {
        const double T = day / core::kDaysPerCentury;
        const double year = 1900.0 + 100.0 * T;
        double position[2][3];
        eraMoon98(core::kEpoch1900, day, position);
        double longitude = 0.0;
        double latitude = 0.0;
        eclipticOfDate(day, position[0], longitude, latitude);
        const MoonPosition moon = preciseMoon(T);
        precise.add(tests::arcSeconds(moon.longitude, longitude), year);
        preciseLatitude.add((moon.latitude * core::kDegreesPerRadian - latitude) * 3600.0, year);
        shortMinutes.add(
            tests::arcSeconds(shortMoon(core::timeArguments(T)).longitude, longitude) / 60.0, year);
    }
    // The approximation's worst error, as its authors found, is 18.3 arc seconds.
    EXPECT_LT(precise.value, 19.0) << precise.year;
    EXPECT_LT(preciseLatitude.value, 6.0) << preciseLatitude.year;
    EXPECT_LT(shortMinutes.value, 9.0) << shortMinutes.year;
}

} // namespace
} // namespace kestrav::astro
