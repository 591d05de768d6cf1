// The points of the Placidus division of the semi-arcs.
#pragma once

#include "core/Chart.h"

#include <array>
#include <cstddef>

namespace kestrav::astro
{

/// The sidereal longitude of the point `A` whole degrees from the upper meridian (0 < A < 180);
/// `below` is true for A above 90. Always ten rounds, which is not converged at high latitude (off
/// by 0.01 degrees at 55, 4 degrees at 66 degrees). Not-a-number where the point does not exist.
/// Needs the chart's local sidereal time, obliquity and ayanamsa.
[[nodiscard]] double PlacidusPoint(const core::Chart& chart, int A, bool below);

/// The ten points of the upper meridian's eastern half that the cusps and the boundaries of the
/// houses need: 15, 30, 45, 60, 75, 105, 120, 135, 150 and 165 degrees from it.
inline constexpr std::array<int, 10> kPlacidusAngles = {15,  30,  45,  60,  75,
                                                        105, 120, 135, 150, 165};

/// PlacidusPoint for all of these angles at once, with the same bits.
[[nodiscard]] std::array<double, kPlacidusAngles.size()> placidusPoints(const core::Chart& chart);

} // namespace kestrav::astro
