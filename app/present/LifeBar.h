// The dasha periods of a life as a strip, with the events of the chart.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Strip.h"
#include "core/Result.h"
#include "timing/Dasha.h"

namespace kestrav::present
{

/// How many years from birth a life bar shows.
inline constexpr double kLifeYears = 100.0;

/// Lanes of the mahadashas, of their sub-periods and, where the chart has any, of the usable
/// events, over `years` years from birth. The ticks count the age. Fails for a chart without a
/// moment, which has ages, but no dates. `cursor` is a Julian day of Universal Time.
[[nodiscard]] core::Result<StripModel> lifeBar(const ComputedChart& computed,
                                               const timing::Dasha& dasha,
                                               std::optional<double> cursor = {},
                                               double years = kLifeYears);

/// The moment of an event on the clock of the chart's zone, without saving time, as a Julian day of
/// Universal Time; nothing for an event that is not usable or whose date does not exist.
[[nodiscard]] std::optional<double> momentOfEvent(const core::Chart& chart,
                                                  const core::LifeEvent& event);

} // namespace kestrav::present
