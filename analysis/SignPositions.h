// The sign data of the points of a chart.
#pragma once

#include "core/Chart.h"

namespace kestrav::analysis
{

/// Fills rashi, degree in sign, navamsha sign and nakshatra position of a point from its longitude.
void computeSignData(core::Chart& chart, int point);

} // namespace kestrav::analysis
