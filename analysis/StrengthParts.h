// The small pieces that all strengths share: a strength that may be missing, sums, arcs.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

#include <array>
#include <initializer_list>
#include <optional>

namespace kestrav::analysis
{

/// A strength, in virupas where nothing else is said (60 virupas are one rupa). Empty when the
/// chart does not have what the strength is computed from.
using Strength = std::optional<double>;

/// One entry for each of the planets Sun to Saturn; entry 0 is unused.
template <typename Value>
using PlanetArray = std::array<Value, 8>;

/// The sum of the parts; empty when one of them is.
[[nodiscard]] Strength sumOf(std::initializer_list<Strength> parts);

/// The shorter distance between two longitudes, 0 to 180 degrees.
[[nodiscard]] double arcBetween(double first, double second);

/// Whether all of the planets Sun to Saturn have a position.
[[nodiscard]] bool allPlanetsComputed(const core::Chart& chart);

/// Display index 0 to 8 of points 1 to 9 in the rashi. Empty when the point has no position, or
/// when its relationship to the lord of its sign is asked and that lord has none. Needs the
/// compound relationships.
[[nodiscard]] std::optional<int> rashiDisplay(const core::Chart& chart, int point,
                                              const core::Settings& settings);

} // namespace kestrav::analysis
