// The table of the times in which the ascendants of the divisional charts hold.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "timing/VargaWindows.h"

#include <optional>

namespace kestrav::present
{

/// From when to when the ascendant of each divisional chart, or of one, has its sign. Clock times
/// are those of the chart; '-' and '+' stand behind those of the days before and after.
[[nodiscard]] Table vargaWindowTable(const ComputedChart& computed,
                                     const timing::VargaWindows& windows,
                                     std::optional<int> varga = {});

} // namespace kestrav::present
