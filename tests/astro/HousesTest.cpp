#include "astro/Houses.h"
#include "core/Angles.h"
#include "core/SignData.h"
#include "core/numeric.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace kestrav::astro
{
namespace
{

constexpr double kObliquity = 23.4372; // degrees
constexpr double kAyanamsa = 23.71;
constexpr double kDegree = core::kRadiansPerDegree;

core::Chart chartAt(double siderealHours, double latitude)
{
    core::Chart chart;
    chart.geoLatitude = latitude;
    chart.localSiderealTime = siderealHours;
    chart.ayanamsa = kAyanamsa;
    chart.latitude[core::kAscendant] = kObliquity * kDegree;
    chart.cosObliquity = std::cos(kObliquity * kDegree);
    chart.sinObliquity = std::sin(kObliquity * kDegree);
    chart.longitude[core::kAscendant] = Ascendant(chart, siderealHours, 1);
    return chart;
}

core::Chart chartWithCusps(double siderealHours, double latitude, int system)
{
    core::Chart chart = chartAt(siderealHours, latitude);
    HouseCusps(chart, system);
    return chart;
}

double cusp(const core::Chart& chart, int house)
{
    return core::at(chart.longitude, core::cuspPoint(house));
}

double away(double degrees, double wanted)
{
    return std::remainder(degrees - wanted, 360.0);
}

// Right ascension and declination, in degrees, of a sidereal longitude on the ecliptic.
struct Equatorial
{
    double rightAscension;
    double declination;
};

Equatorial equatorial(double siderealLongitude)
{
    const double longitude = (siderealLongitude + kAyanamsa) * kDegree;
    return {std::atan2(std::sin(longitude) * std::cos(kObliquity * kDegree), std::cos(longitude)) /
                kDegree,
            std::asin(std::sin(longitude) * std::sin(kObliquity * kDegree)) / kDegree};
}

// Where a point stands on its daily arc: degrees from the upper meridian, 90 at the eastern horizon
// and 180 at the lower meridian, each semi-arc divided evenly.
double placeOnDailyArc(double siderealLongitude, double siderealHours, double latitude)
{
    const auto [rightAscension, declination] = equatorial(siderealLongitude);
    const double eastward = core::Normalize360(rightAscension - siderealHours * 15.0);
    const double dayArc =
        std::acos(-std::tan(latitude * kDegree) * std::tan(declination * kDegree)) / kDegree;
    return eastward <= dayArc ? eastward / dayArc * 90.0
                              : 180.0 - (180.0 - eastward) / (180.0 - dayArc) * 90.0;
}

// Any number of rounds of the iteration, with the arc cosine of the library.
double placidusByHand(double siderealHours, double latitude, int A, int rounds)
{
    const double ramc = siderealHours * 15.0;
    const double tangents = std::tan(latitude * kDegree) * std::tan(kObliquity * kDegree);
    double R = ramc + A;
    for (int round = 0; round < rounds; ++round) {
        // Near a pole some points stay above or below the horizon; only the one side is held.
        const double x = (A < 90 ? -1.0 : 1.0) * tangents * std::sin(R * kDegree);
        const double arc = std::acos(std::min(x, std::nextafter(1.0, 0.0))) / kDegree;
        R = A < 90 ? ramc + arc * A / 90.0 : ramc + 180.0 - arc * (180 - A) / 90.0;
    }
    return std::atan2(std::sin(R * kDegree),
                      std::cos(R * kDegree) * std::cos(kObliquity * kDegree)) /
               kDegree -
           kAyanamsa;
}

TEST(Ascendant, RisesInTheEastWhileTheMidheavenCulminates)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> hours(0.0, 24.0);
    std::uniform_real_distribution<double> latitudes(-66.0, 66.0);
    for (int i = 0; i < 3000; ++i) {
        const double theta = hours(random);
        const double latitude = latitudes(random);
        const core::Chart chart = chartAt(theta, latitude);
        const auto [rightAscension, declination] = equatorial(chart.longitude[core::kAscendant]);
        const double hourAngle = (theta * 15.0 - rightAscension) * kDegree;
        const double sineOfAltitude =
            std::sin(latitude * kDegree) * std::sin(declination * kDegree) +
            std::cos(latitude * kDegree) * std::cos(declination * kDegree) * std::cos(hourAngle);
        ASSERT_NEAR(sineOfAltitude, 0.0, 1e-12) << theta << " " << latitude;
        ASSERT_LT(std::sin(hourAngle), 0.0) << theta << " " << latitude;

        const auto [culminating, height] = equatorial(chart.midheaven);
        ASSERT_NEAR(away(culminating, theta * 15.0), 0.0, 1e-9) << theta;
        ASSERT_NEAR(chart.ascendantRate,
                    15.0 * std::cos(latitude * kDegree) / std::cos((latitude - height) * kDegree),
                    1e-9);
    }
}

TEST(Ascendant, KeepsItsModesAndItsDivisionByZero)
{
    EXPECT_NEAR(chartAt(0.0, 0.0).longitude[core::kAscendant], 90.0 - kAyanamsa, 1e-12);
    EXPECT_NEAR(away(chartAt(18.0, 0.0).longitude[core::kAscendant], -kAyanamsa), 0.0, 1e-12);
    core::Chart chart = chartAt(5.0, 40.0);
    const double ascendant = chart.longitude[core::kAscendant];
    const double midheaven = chart.midheaven;
    chart.midheaven = 777.0;
    EXPECT_EQ(Ascendant(chart, 5.0, 0), ascendant);
    EXPECT_EQ(chart.midheaven, 777.0);
    // A negative mode takes degrees.
    EXPECT_NEAR(Ascendant(chart, 75.0, -1), ascendant, 1e-12);
    EXPECT_NEAR(chart.midheaven, midheaven, 1e-12);
    // 14.5 degrees an hour at 20 degrees north and sidereal time 1 hour.
    EXPECT_NEAR(chartAt(1.0, 20.0).ascendantRate, 14.5, 0.05);
}

TEST(HouseCusps, ObeyTheLawsOfEverySystem)
{
    for (int system = 0; system <= 4; ++system) {
        for (double latitude = -66.0; latitude <= 66.0; latitude += 6.0) {
            for (double theta = 0.0; theta < 24.0; theta += 0.73) {
                const core::Chart chart = chartWithCusps(theta, latitude, system);
                EXPECT_TRUE(chart.cuspsComplete);
                EXPECT_EQ(chart.houseSystem, system);
                EXPECT_EQ(chart.hasSandhis, system >= 3);
                double turn = 0.0;
                for (int house = 1; house <= 12; ++house) {
                    const int next = house % 12 + 1;
                    ASSERT_NEAR(away(cusp(chart, house), cusp(chart, (house + 5) % 12 + 1) + 180.0),
                                0.0, 1e-12);
                    turn += core::Normalize360(cusp(chart, next) - cusp(chart, house));
                    if (chart.hasSandhis && std::fabs(latitude) <= 60.0) {
                        const double sandhi = chart.sandhis[std::size_t(next - 1)];
                        EXPECT_LT(core::Normalize360(sandhi - cusp(chart, house)),
                                  core::Normalize360(cusp(chart, next) - cusp(chart, house)))
                            << latitude << " " << theta << " house " << house;
                    }
                }
                // The cusps follow each other round the circle once.
                if (std::fabs(latitude) <= 60.0) {
                    EXPECT_NEAR(turn, 360.0, 1e-9) << system << " " << latitude << " " << theta;
                }
                if (system != 0) {
                    EXPECT_NEAR(away(cusp(chart, 1), chart.longitude[core::kAscendant]), 0.0,
                                1e-12);
                }
                if (system == 1) {
                    EXPECT_NEAR(away(cusp(chart, 6), cusp(chart, 1) + 150.0), 0.0, 1e-12);
                }
                if (system >= 2) {
                    EXPECT_NEAR(away(cusp(chart, 10), chart.midheaven), 0.0, 1e-12);
                }
            }
        }
    }
}

TEST(HouseCusps, AnUnknownSystemLeavesTheCusps)
{
    core::Chart chart = chartWithCusps(3.0, 10.0, 3);
    const core::Chart before = chart;
    HouseCusps(chart, 5);
    HouseCusps(chart, -1);
    EXPECT_EQ(chart.longitude, before.longitude);
    EXPECT_EQ(chart.houseSystem, 3);
}

TEST(HouseCusps, ByRashiAreTheMiddlesOfTheSigns)
{
    for (const double ascendant : {137.0, 120.0, std::nextafter(150.0, 0.0)}) {
        core::Chart chart;
        chart.longitude[core::kAscendant] = ascendant; // in Leo
        HouseCusps(chart, 0);
        for (int house = 1; house <= 12; ++house) {
            const int point = core::cuspPoint(house);
            const int sign = (4 + house - 1) % 12 + 1;
            EXPECT_EQ(cusp(chart, house), (sign - 1) * 30.0 + 15.0);
            EXPECT_EQ(core::at(chart.rashi, point), sign);
            EXPECT_EQ(core::at(chart.degreeInSign, point), 15.0);
            // The fifth navamsha of 3 1/3 degrees, counted on from Aries.
            EXPECT_EQ(core::at(chart.navamshaSign, point), ((sign - 1) * 9 + 4) % 12 + 1);
            EXPECT_NEAR(core::at(chart.nakshatraPosition, point), (sign - 0.5) * 2.25, 1e-12);
        }
    }
}

TEST(HouseCusps, SriPatiTrisectsTheQuadrants)
{
    const auto cuspsOf = [](double ascendant, double midheaven) {
        core::Chart chart;
        chart.longitude[core::kAscendant] = ascendant;
        chart.midheaven = midheaven;
        HouseCusps(chart, 2);
        return chart;
    };
    // 99 degrees from the midheaven to the ascendant, so 81 from there to the lower meridian.
    const core::Chart chart = cuspsOf(20.0, 281.0);
    const std::array<double, 12> wanted = {20, 47, 74, 101, 134, 167, 200, 227, 254, 281, 314, 347};
    for (int house = 1; house <= 12; ++house) {
        EXPECT_NEAR(cusp(chart, house), wanted[std::size_t(house - 1)], 1e-12) << house;
    }
    EXPECT_NEAR(chart.quadrantArcs[0], 81.0, 1e-12);
    EXPECT_NEAR(chart.quadrantArcs[1], 99.0, 1e-12);
    EXPECT_NEAR(chart.quadrantFactors[0], 90.0 / 81.0, 1e-12);
    EXPECT_NEAR(chart.quadrantFactors[1], 90.0 / 99.0, 1e-12);
    // An arc of exactly 0 becomes 90, and so does the other when both angles coincide.
    EXPECT_EQ(cuspsOf(50.0, 50.0).quadrantArcs, (std::array{90.0, 90.0}));
    EXPECT_EQ(cuspsOf(50.0, 230.0).quadrantArcs, (std::array{90.0, 180.0}));
    // Beyond the polar circles the cusps may run backwards.
    const core::Chart polar = cuspsOf(50.0, 200.0);
    EXPECT_NEAR(polar.quadrantArcs[0], -30.0, 1e-12);
    EXPECT_NEAR(cusp(polar, 2), 40.0, 1e-12);
}

TEST(Placidus, DividesTheSemiArcs)
{
    for (double latitude = -39.5; latitude < 40.0; latitude += 4.3) {
        for (double theta = 0.05; theta < 24.0; theta += 0.61) {
            const core::Chart chart = chartWithCusps(theta, latitude, 3);
            const auto place = [&](double longitude) {
                return placeOnDailyArc(longitude, theta, latitude);
            };
            for (const auto& [house, wanted] : {std::array{11, 30}, {12, 60}, {2, 120}, {3, 150}}) {
                ASSERT_NEAR(place(cusp(chart, house)), wanted, 1e-5) << latitude << " " << theta;
            }
            // The first sandhis stand from 75 degrees on, those above the western half opposite.
            for (int i = 0; i < 12; ++i) {
                const int degrees = (75 + 30 * i) % 360;
                const double opposite = degrees > 180 ? 180.0 : 0.0;
                ASSERT_NEAR(place(chart.sandhis[std::size_t(i)] - opposite), degrees - opposite,
                            1e-4)
                    << latitude << " " << theta << " sandhi " << i;
            }
        }
    }
}

TEST(Placidus, TakesExactlyTenRounds)
{
    int unlike = 0;
    int missing = 0;
    for (double theta = 0.1; theta < 24.0; theta += 0.5) {
        for (const double latitude : {64.0, 70.0, -80.0}) {
            const core::Chart chart = chartAt(theta, latitude);
            for (const int A : {15, 30, 45, 60, 75, 105, 120, 135, 150, 165}) {
                const double point = PlacidusPoint(chart, A, A > 90);
                const double wanted = placidusByHand(theta, latitude, A, 10);
                if (std::isnan(wanted)) {
                    ++missing;
                    EXPECT_TRUE(std::isnan(point)) << latitude << " " << theta << " " << A;
                    continue;
                }
                ASSERT_NEAR(away(point, wanted), 0.0, 1e-6) << latitude << " " << theta;
                if (latitude == 64.0) {
                    unlike += std::fabs(away(point, placidusByHand(theta, 64.0, A, 9))) > 1e-5;
                    unlike += std::fabs(away(point, placidusByHand(theta, 64.0, A, 11))) > 1e-5;
                }
            }
        }
    }
    EXPECT_GT(unlike, 300);
    EXPECT_GT(missing, 100);
}

TEST(Placidus, MarksWhatDoesNotExist)
{
    int missing = 0;
    for (const double latitude : {70.0, -75.0, 90.0}) {
        for (double theta = 0.0; theta < 24.0; theta += 0.4) {
            core::Chart chart = chartWithCusps(theta, latitude, 0);
            HouseCusps(chart, 4);
            int cusps = 0;
            for (int house = 1; house <= 12; ++house) {
                const int point = core::cuspPoint(house);
                ASSERT_TRUE(std::isfinite(cusp(chart, house)));
                ASSERT_TRUE(std::isfinite(chart.sandhis[std::size_t(house - 1)]));
                EXPECT_EQ(chart.computed(point),
                          chart.computed(core::cuspPoint((house + 5) % 12 + 1)));
                if (!chart.computed(point)) {
                    ++cusps;
                    // Nothing of the signs of an earlier system is left.
                    EXPECT_EQ(core::at(chart.rashi, point), 0);
                }
            }
            EXPECT_EQ(chart.cuspsComplete, cusps == 0);
            missing += cusps;
        }
    }
    EXPECT_GT(missing, 200);
}

} // namespace
} // namespace kestrav::astro
