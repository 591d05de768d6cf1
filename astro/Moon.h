// The short lunar series and the mean node.
#pragma once

#include "core/Chart.h"
#include "core/DateTime.h"

namespace kestrav::astro
{

/// The Moon of the short series (13 terms) and the mean node, tropical.
struct ShortMoon
{
    double longitude; ///< degrees, not reduced
    double speed;     ///< degrees per day, the derivative of the same series
    double latitude;  ///< radians, the first term only: 5.128 degrees times sin F
    double node;      ///< longitude of the mean node, degrees, not reduced
    double nodeSpeed; ///< degrees per day
};

/// The short series at the moment. Its mean longitude of the Sun lies 0.6 degrees beside the true
/// one, which makes the Moon wrong by up to 8.6 arc minutes; this is meant, and the precise Moon is
/// there for more.
[[nodiscard]] ShortMoon shortMoon(const core::TimeArguments& time);

/// Writes the Moon and the nodes of the short series into the chart: sidereal longitudes with the
/// chart's ayanamsa, speeds and latitudes. Ketu is Rahu + 180 degrees.
void MoonShort(const core::TimeArguments& time, core::Chart& chart);

/// Writes only the mean nodes, which belong to both lunar theories.
void storeMeanNodes(const core::TimeArguments& time, core::Chart& chart);

} // namespace kestrav::astro
