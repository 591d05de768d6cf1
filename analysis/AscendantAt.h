// The ascendant of a chart's place at another moment near its own.
#pragma once

#include "core/Chart.h"

namespace kestrav::analysis
{

/// The sidereal ascendant in degrees, 0 to under 360, at a local clock hour counted from 0h of the
/// chart's civil date; hours below 0 and above 24 lie on the neighbouring dates. Ayanamsa and
/// obliquity stay those of the chart, nothing in the chart changes.
[[nodiscard]] double ascendantAt(core::Chart& chart, double localHour);

} // namespace kestrav::analysis
