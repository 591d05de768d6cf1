// The pieces of the JSON objects that describe a chart. Angles are in degrees, clock times in
// hours. What a chart of bare positions does not have is null inside its piece.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"

namespace kestrav::cli
{

[[nodiscard]] Json inputJson(const ComputedChart& computed);
[[nodiscard]] Json timeJson(const ComputedChart& computed);
[[nodiscard]] Json ayanamsaJson(const ComputedChart& computed);
[[nodiscard]] Json housesJson(const ComputedChart& computed);
[[nodiscard]] Json sunJson(const ComputedChart& computed);

/// All 63 points in their order.
[[nodiscard]] Json pointsJson(const ComputedChart& computed);

} // namespace kestrav::cli
