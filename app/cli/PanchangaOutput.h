// The panchanga of days as text and as JSON.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"
#include "timing/Panchanga.h"

#include <string>
#include <vector>

namespace kestrav::cli
{

/// Place, coordinates and zone of the days, with the dates on which the clock changes.
[[nodiscard]] std::wstring panchangaPlaceText(const ComputedChart& computed,
                                              const std::vector<timing::PanchangaDay>& days);

/// The report of one day: its lines, and the parts of day and night in tables.
[[nodiscard]] std::wstring panchangaDayText(const timing::PanchangaDay& day, bool twelveHour);

/// A table with a line or more for every day.
[[nodiscard]] std::wstring panchangaTableText(const std::vector<timing::PanchangaDay>& days,
                                              bool twelveHour);

[[nodiscard]] Json panchangaDayJson(const timing::PanchangaDay& day);

} // namespace kestrav::cli
