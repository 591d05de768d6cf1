// Dignities, relationships and functional nature as JSON.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"

namespace kestrav::cli
{

/// Sun to Ketu in the sixteen vargas that have dignities. In the rashi the display and its word
/// tell a cancelled debilitation.
[[nodiscard]] Json dignitiesJson(const ComputedChart& computed);

/// Natural and compound relationships of the planets Sun to Saturn in the rashi.
[[nodiscard]] Json relationshipsJson(const ComputedChart& computed);

/// Functional nature of Sun to Ketu for the ascendant.
[[nodiscard]] Json functionalJson(const ComputedChart& computed);

} // namespace kestrav::cli
