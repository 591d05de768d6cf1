// Storing a point that analysis adds to the point table.
#pragma once

#include "core/Chart.h"

namespace kestrav::analysis
{

/// Stores a sidereal longitude in degrees, 0 to under 360, with its sign data. A longitude that is
/// not finite leaves the point not computed.
void storePoint(core::Chart& chart, int point, double longitude);

/// Stores a point by its sign, 1 to 12, and its degree in that sign, 0 to under 30.
void storePointInSign(core::Chart& chart, int point, int sign, double degree);

} // namespace kestrav::analysis
