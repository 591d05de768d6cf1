#include "analysis/CheshtaBala.h"

#include "core/Angles.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

constexpr double kJ2000 = 2451545.0;

struct MeanMotion
{
    double atJ2000; // degrees
    double daily;   // degrees a day
};

// Mean longitudes of the equinox of date. Entry 0 and the Moon are unused.
// clang-format off
constexpr PlanetArray<MeanMotion> kMeanMotions = {{
    {  0.0,     0.0       },
    {280.46645, 0.98564736}, // Sun
    {  0.0,     0.0       },
    {355.43300, 0.5240711 }, // Mars
    {252.25091, 4.0923771 }, // Mercury
    { 34.35152, 0.0831294 }, // Jupiter
    {181.97980, 1.6021687 }, // Venus
    { 50.07744, 0.0334979 }, // Saturn
}};
// clang-format on

bool isInner(int planet)
{
    return planet == core::kMercury || planet == core::kVenus;
}

} // namespace

double meanLongitude(int planet, double julianDay)
{
    const MeanMotion& motion = at(kMeanMotions, planet);
    return core::Normalize360(motion.atJ2000 + motion.daily * (julianDay - kJ2000));
}

std::optional<CheshtaReckoning> cheshtaReckoning(const core::Chart& chart,
                                                 const StrengthInputs& inputs, int planet)
{
    if (!inputs.julianDay || !inputs.ayanamsa) {
        return std::nullopt;
    }
    const double own = meanLongitude(planet, *inputs.julianDay) - *inputs.ayanamsa;
    const double sun = meanLongitude(core::kSun, *inputs.julianDay) - *inputs.ayanamsa;
    const double mean = isInner(planet) ? sun : own;
    const double apex = isInner(planet) ? own : sun;
    const double equation = core::Wrap180(core::Normalize360(at(chart.longitude, planet) - mean));
    return CheshtaReckoning{mean, apex, mean + equation / 2.0};
}

Strength cheshtaBala(const core::Chart& chart, const StrengthInputs& inputs, int planet)
{
    if (!chart.computed(planet)) {
        return std::nullopt;
    }
    if (planet == core::kSun || planet == core::kMoon) {
        return 0.0;
    }
    const std::optional<CheshtaReckoning> reckoning = cheshtaReckoning(chart, inputs, planet);
    return reckoning ? Strength(arcBetween(reckoning->apex, reckoning->corrected) / 3.0)
                     : std::nullopt;
}

} // namespace kestrav::analysis
