#include "astro/Houses.h"

#include "core/Angles.h"
#include "core/SignData.h"
#include "core/numeric.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::astro
{

namespace
{

using core::kDegreesPerRadian;
using core::kPi;
using core::kRadiansPerDegree;
using core::Normalize360;

void storeCusp(core::Chart& chart, int house, double longitude)
{
    const int point = core::cuspPoint(house);
    const bool exists = std::isfinite(longitude);
    core::at(chart.longitude, point) = exists ? Normalize360(longitude) : 0.0;
    core::at(chart.degreeInSign, point) = exists ? 0.0 : core::kNotComputed;
    core::at(chart.rashi, point) = 0;
    core::at(chart.navamshaSign, point) = 0;
    core::at(chart.nakshatraPosition, point) = 0.0;
    chart.cuspsComplete = chart.cuspsComplete && exists;
}

// Cusps are the middles of the signs, whatever the ascendant's degree.
void byRashi(core::Chart& chart)
{
    const int sign = core::signOfLongitude(chart.longitude[core::kAscendant]);
    for (int house = 1; house <= 12; ++house) {
        const int point = core::cuspPoint(house);
        storeCusp(chart, house, (house - 1) * 30.0 + (sign * 30.0 - 15.0));
        const double longitude = core::at(chart.longitude, point);
        core::at(chart.rashi, point) = core::norm12(sign + house - 1);
        core::at(chart.degreeInSign, point) = 15.0;
        core::at(chart.navamshaSign, point) = core::navamshaSignOf(longitude);
        core::at(chart.nakshatraPosition, point) = core::nakshatraPositionOf(longitude);
    }
}

void equalHouse(core::Chart& chart)
{
    const double ascendant = chart.longitude[core::kAscendant];
    for (int house = 1; house <= 12; ++house) {
        storeCusp(chart, house, ascendant + (house - 1) * 30.0);
    }
}

void sriPati(core::Chart& chart)
{
    const double ascendant = chart.longitude[core::kAscendant];
    double q2 = Normalize360(ascendant - chart.midheaven);
    if (q2 == 0.0) {
        q2 = 90.0;
    }
    // Beyond the polar circles q2 can exceed 180 degrees; the cusps then run backwards. This is
    // kept, the ascendant is not turned round.
    double q1 = 180.0 - q2;
    if (q1 == 0.0) {
        q1 = 90.0;
    }
    const std::array<double, 6> offsets = {0.0, q1 / 3.0,      2.0 * q1 / 3.0,
                                           q1,  q1 + q2 / 3.0, q1 + 2.0 * q2 / 3.0};
    for (int house = 1; house <= 6; ++house) {
        const double cusp = ascendant + offsets[std::size_t(house - 1)];
        storeCusp(chart, house, cusp);
        storeCusp(chart, house + 6, cusp + 180.0);
    }
    chart.quadrantArcs = {q1, q2};
    chart.quadrantFactors = {90.0 / q1, 90.0 / q2};
}

void placidus(core::Chart& chart)
{
    const double ascendant = chart.longitude[core::kAscendant];
    const auto points = placidusPoints(chart);
    const auto pointAt = [&](int angle) {
        const auto place = std::find(kPlacidusAngles.begin(), kPlacidusAngles.end(), angle);
        return points[std::size_t(place - kPlacidusAngles.begin())];
    };
    const auto cuspAndOpposite = [&](int house, double longitude) {
        storeCusp(chart, house, longitude);
        storeCusp(chart, house > 6 ? house - 6 : house + 6, longitude + 180.0);
    };
    cuspAndOpposite(1, ascendant);
    cuspAndOpposite(10, chart.midheaven);
    cuspAndOpposite(11, pointAt(30));
    cuspAndOpposite(12, pointAt(60));
    cuspAndOpposite(2, pointAt(120));
    cuspAndOpposite(3, pointAt(150));

    // Sandhi i stands at 75 + (i - 1) x 30 degrees from the upper meridian, halfway between two
    // cusps in the division of the semi-arcs.
    chart.hasSandhis = true;
    for (int i = 0; i < 12; ++i) {
        const int fromMeridian = (75 + i * 30) % 360;
        const double point = pointAt(fromMeridian % 180) + (fromMeridian >= 180 ? 180.0 : 0.0);
        chart.sandhis[std::size_t(i)] =
            std::isfinite(point) ? Normalize360(point) : core::kNotComputed;
    }
}

} // namespace

double Ascendant(core::Chart& chart, double siderealTime, int mode)
{
    const double theta = (mode < 0 ? siderealTime : siderealTime * 15.0) * kRadiansPerDegree;
    const double latitude = chart.geoLatitude * kRadiansPerDegree;
    const double sinTheta = std::sin(theta);
    const double cosTheta = std::cos(theta);
    // At latitude 0 and sidereal time 0 this divides by zero; the infinite quotient gives the right
    // 90 degrees, so there is no guard.
    double a = std::atan(-cosTheta /
                         (sinTheta * chart.cosObliquity + std::tan(latitude) * chart.sinObliquity));
    if (a < 0.0) {
        a += kPi;
    }
    if (cosTheta < 0.0) {
        a += kPi;
    }
    if (mode != 0) {
        double m = std::atan(sinTheta / cosTheta / chart.cosObliquity);
        if (m < 0.0) {
            m += kPi;
        }
        if (sinTheta < 0.0) {
            m += kPi;
        }
        chart.midheaven = Normalize360(m * kDegreesPerRadian - chart.ayanamsa);
        // The midheaven in this factor is the tropical one.
        chart.ascendantRate = 15.0 * std::cos(latitude) /
                              std::cos(latitude - std::asin(std::sin(m) * chart.sinObliquity));
    }
    return Normalize360(a * kDegreesPerRadian - chart.ayanamsa);
}

void HouseCusps(core::Chart& chart, int system)
{
    if (system < int(HouseSystem::ByRashi) || system > int(HouseSystem::PlacidusKp)) {
        return;
    }
    // Nothing of an earlier computation stays behind.
    chart.houseSystem = system;
    chart.hasSandhis = false;
    chart.sandhis = {};
    chart.quadrantArcs = {};
    chart.quadrantFactors = {};
    chart.cuspsComplete = true;
    switch (HouseSystem(system)) {
    case HouseSystem::ByRashi:
        byRashi(chart);
        break;
    case HouseSystem::EqualHouse:
        equalHouse(chart);
        break;
    case HouseSystem::SriPati:
        sriPati(chart);
        break;
    case HouseSystem::PlacidusVedic:
    case HouseSystem::PlacidusKp:
        placidus(chart);
        break;
    }
}

} // namespace kestrav::astro
