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

/// The rays of the planets: most at the deepest exaltation, none opposite to it, then multiplied by
/// their dignity in the rashi. Needs the compound relationships.
[[nodiscard]] Rashmis computeRashmis(const core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::analysis
