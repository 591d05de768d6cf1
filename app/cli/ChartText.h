// The parts of the text output that describe a chart.
#pragma once

#include "app/cli/ComputedChart.h"

#include <string>

namespace kestrav::cli
{

/// Name, place, date, time and coordinates, or the file of the positions.
[[nodiscard]] std::wstring inputText(const ComputedChart& computed);

/// Universal Time, Delta T, Julian day, ayanamsa and, with a place, sidereal time.
[[nodiscard]] std::wstring timeText(const ComputedChart& computed);

/// What "--" means in a chart of bare positions, or where no day runs; else nothing.
[[nodiscard]] std::wstring notComputedNote(const ComputedChart& computed);

/// Sunrise and sunset of the civil date to the minute, with a sentence where there is none.
[[nodiscard]] std::wstring daylightText(const ComputedChart& computed);

/// Sunrise, noon and sunset to the second, and the day running at the moment.
[[nodiscard]] std::wstring sunText(const ComputedChart& computed);

/// The table of the ascendant, when there is a place, and the bodies.
[[nodiscard]] std::wstring pointsText(const ComputedChart& computed);

/// House system, cusps and, for Placidus, the sandhis, with a sentence where some do not exist.
[[nodiscard]] std::wstring housesText(const ComputedChart& computed);

} // namespace kestrav::cli
