// The circle: signs and houses around the ascendant, points at their true longitudes.
#pragma once

#include "app/present/DiagramFrame.h"
#include "app/present/DisplayList.h"

#include <array>
#include <optional>

namespace kestrav::present
{

/// Where the houses of a circle begin, in degrees of the zodiac.
struct CircleHouses
{
    CircleBounds bounds = CircleBounds::Signs; ///< those that are used
    bool replaced = false; ///< the chart does not have those that were asked for
    std::array<double, 12> starts = {};
    std::array<int, 12> signs = {}; ///< by which the houses are named
};

/// The houses of a diagram in which house 1 is known. Cusps and sandhis belong to the rashi alone
/// and must follow each other around the circle; where that fails, every house is a sign.
[[nodiscard]] CircleHouses circleHouses(const DiagramFrame& frame);

/// The house 1 to 12 that holds a degree of the zodiac.
[[nodiscard]] int houseAt(const CircleHouses& houses, double longitude);

/// Adds everything of a circle but the paper.
void layoutCircle(const DiagramFrame& frame, DisplayList& list);

} // namespace kestrav::present
