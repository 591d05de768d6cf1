// New moon, full moon and the quarters.
#pragma once

#include "timing/EventSearch.h"
#include "timing/SiderealSky.h"

#include <string_view>
#include <vector>

namespace kestrav::timing
{

enum class MoonPhase
{
    New,
    FirstQuarter,
    Full,
    LastQuarter,
};

/// "New moon", "First quarter", "Full moon", "Last quarter".
[[nodiscard]] std::wstring_view moonPhaseName(MoonPhase phase);

struct PhaseMoment
{
    MoonPhase phase = MoonPhase::New;
    double julianDay = 0.0;     ///< Universal Time
    double sunLongitude = 0.0;  ///< in the zodiac of the sky, degrees
    double moonLongitude = 0.0; ///< degrees
};

/// The moments of a span at which the Moon is 0, 90, 180 or 270 degrees ahead of the Sun in
/// longitude, in order, to a tenth of a second.
[[nodiscard]] std::vector<PhaseMoment> moonPhasesIn(SiderealSky& sky, Span span);

} // namespace kestrav::timing
