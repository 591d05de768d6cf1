// Special points, chara karakas, sphutas and sahams as text and JSON.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"

#include <string>

namespace kestrav::cli
{

[[nodiscard]] Json karakasJson(const ComputedChart& computed);
[[nodiscard]] Json sphutasJson(const ComputedChart& computed);
[[nodiscard]] Json sahamsJson(const ComputedChart& computed);

/// Upagrahas, special lagnas, arudhas and the other points that are derived.
[[nodiscard]] std::wstring specialPointsText(const ComputedChart& computed);

/// The scheme of seven or eight that the settings choose.
[[nodiscard]] std::wstring karakasText(const ComputedChart& computed);

/// Yogi and Avayogi with their planets.
[[nodiscard]] std::wstring yogiText(const ComputedChart& computed);

[[nodiscard]] std::wstring sphutasText(const ComputedChart& computed);
[[nodiscard]] std::wstring sahamsText(const ComputedChart& computed);

} // namespace kestrav::cli
