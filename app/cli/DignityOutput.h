// Dignities, relationships and functional nature as text and JSON.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"

#include <string>

namespace kestrav::cli
{

/// Sun to Ketu in the sixteen vargas that have dignities. In the rashi the display and its word
/// tell a cancelled debilitation.
[[nodiscard]] Json dignitiesJson(const ComputedChart& computed);

/// Natural and compound relationships of the planets Sun to Saturn in the rashi.
[[nodiscard]] Json relationshipsJson(const ComputedChart& computed);

/// Functional nature of Sun to Ketu for the ascendant.
[[nodiscard]] Json functionalJson(const ComputedChart& computed);

/// Dignity, combustion and functional nature of Sun to Ketu in the rashi.
[[nodiscard]] std::wstring planetsText(const ComputedChart& computed);

/// Dignities in the sixteen vargas, in short words.
[[nodiscard]] std::wstring vargaDignitiesText(const ComputedChart& computed);

[[nodiscard]] std::wstring relationshipsText(const ComputedChart& computed);

} // namespace kestrav::cli
