#include "astro/Moon.h"

#include "core/Angles.h"
#include "core/numeric.h"

#include <array>
#include <cmath>

namespace kestrav::astro
{

namespace
{

using core::kRadiansPerDegree;

// A quadratic in centuries from 1950.0, in degrees.
struct Argument
{
    double constant;
    double rate;
    double square;

    [[nodiscard]] double value(double centuries, double squared) const
    {
        return constant + rate * centuries + square * squared;
    }
    [[nodiscard]] double rateAt(double centuries) const
    {
        return rate + 2.0 * square * centuries;
    }
};

// clang-format off
constexpr Argument kMoonLongitude = { 64.3755, 481267.882,  -0.0011};
constexpr Argument kMoonAnomaly   = {215.532,  477198.8583,  0.0092};
constexpr Argument kNode          = { 12.1128,  -1934.1399,  0.0021};
constexpr Argument kSunAnomaly    = {358.001,   35999.0496, -0.0002};
constexpr Argument kSunLongitude  = {280.697,   36000.7692,  0.0003};

// Coefficient in degrees, and the multiples of M', M, D and F.
struct Term
{
    double coefficient;
    int moonAnomaly;
    int sunAnomaly;
    int elongation;
    int latitude;
};

constexpr std::array<Term, 13> kTerms = {{
    { 6.2889,  1,  0,  0,  0},
    { 1.275,  -1,  0,  2,  0},
    { 0.6583,  0,  0,  2,  0},
    { 0.2136,  2,  0,  0,  0},
    {-0.1872,  0,  1,  0,  0},
    {-0.1144,  0,  0,  0,  2},
    { 0.0589, -2,  0,  2,  0},
    { 0.0575, -1, -1,  2,  0},
    { 0.0533,  1,  0,  2,  0},
    { 0.0461,  0, -1,  2,  0},
    { 0.0411,  1, -1,  0,  0},
    {-0.0339,  0,  0,  1,  0},
    {-0.0303,  1,  1,  0,  0},
}};
// clang-format on

constexpr double kEpoch1950 = 0.5;                                // centuries from 1900
constexpr double kNodeSpeed = kNode.rate / core::kDaysPerCentury; // degrees a day
constexpr double kInclination = 5.128; // degrees, the first term of the latitude

} // namespace

ShortMoon shortMoon(const core::TimeArguments& time)
{
    const double T = time.T - kEpoch1950;
    const double T2 = T * T;
    const double meanLongitude = kMoonLongitude.value(T, T2);
    const double node = kNode.value(T, T2);
    const double moonAnomaly = kMoonAnomaly.value(T, T2);
    const double sunAnomaly = kSunAnomaly.value(T, T2);
    const double elongation = meanLongitude - kSunLongitude.value(T, T2);
    const double latitude = meanLongitude - node;
    const double elongationRate = kMoonLongitude.rateAt(T) - kSunLongitude.rateAt(T);
    const double latitudeRate = kMoonLongitude.rateAt(T) - kNode.rateAt(T);

    double longitude = meanLongitude;
    double rate = kMoonLongitude.rateAt(T); // degrees a century
    for (const Term& term : kTerms) {
        const double argument = (term.moonAnomaly * moonAnomaly + term.sunAnomaly * sunAnomaly +
                                 term.elongation * elongation + term.latitude * latitude) *
                                kRadiansPerDegree;
        const double argumentRate =
            (term.moonAnomaly * kMoonAnomaly.rateAt(T) + term.sunAnomaly * kSunAnomaly.rateAt(T) +
             term.elongation * elongationRate + term.latitude * latitudeRate) *
            kRadiansPerDegree;
        longitude += term.coefficient * std::sin(argument);
        rate += term.coefficient * std::cos(argument) * argumentRate;
    }
    return {longitude, rate / core::kDaysPerCentury,
            kInclination * std::sin(latitude * kRadiansPerDegree) * kRadiansPerDegree, node,
            kNodeSpeed};
}

void MoonShort(const core::TimeArguments& time, core::Chart& chart)
{
    const ShortMoon moon = shortMoon(time);
    chart.longitude[core::kMoon] = core::Normalize360(moon.longitude - chart.ayanamsa);
    chart.speed[core::kMoon] = moon.speed;
    chart.latitude[core::kMoon] = moon.latitude;
    chart.distance[core::kMoon] = 0.0;
    storeMeanNodes(time, chart);
}

void storeMeanNodes(const core::TimeArguments& time, core::Chart& chart)
{
    const double T = time.T - kEpoch1950;
    chart.longitude[core::kRahu] = core::Normalize360(kNode.value(T, T * T) - chart.ayanamsa);
    chart.longitude[core::kKetu] = core::Normalize360(chart.longitude[core::kRahu] + 180.0);
    for (const int node : {core::kRahu, core::kKetu}) {
        core::at(chart.speed, node) = kNodeSpeed;
        core::at(chart.latitude, node) = 0.0;
        core::at(chart.distance, node) = 0.0;
    }
}

} // namespace kestrav::astro
