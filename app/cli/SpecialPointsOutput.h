// Chara karakas, sphutas and sahams as JSON.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"

namespace kestrav::cli
{

[[nodiscard]] Json karakasJson(const ComputedChart& computed);
[[nodiscard]] Json sphutasJson(const ComputedChart& computed);
[[nodiscard]] Json sahamsJson(const ComputedChart& computed);

} // namespace kestrav::cli
