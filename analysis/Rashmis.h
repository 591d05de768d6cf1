// Rashmis: the rays of the planets.
#pragma once

#include "analysis/StrengthParts.h"
#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

/// Rays, a number without unit.
struct Rashmis
{
    PlanetArray<Strength> planets;
    Strength total; ///< of all seven planets
};

/// The rays of planet 1 to 7 at its deepest exaltation.
[[nodiscard]] double mostRays(int planet);

/// By what a display index 0 to 8 multiplies the rays.
[[nodiscard]] double rayFactor(int display);

/// The rays of the planets: most at the deepest exaltation, none opposite to it, then multiplied by
/// their dignity in the rashi. Needs the compound relationships.
[[nodiscard]] Rashmis computeRashmis(const core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::analysis
