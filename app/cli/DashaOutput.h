// The dasha of a chart as text and as JSON.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"
#include "app/present/DashaTables.h"

#include <string>

namespace kestrav::cli
{

using present::DashaResult;

/// The systems with what their lords are, the years of their cycles and what they start from.
[[nodiscard]] std::wstring dashaSystemsText();
[[nodiscard]] Json dashaSystemsJson();

/// The periods, or those running at the moment when one was asked for.
[[nodiscard]] std::wstring dashaText(const ComputedChart& computed, const DashaResult& result);

/// Adds system, balance, periods, running, label, conditional and references.
void addDashaJson(Json& object, const ComputedChart& computed, const DashaResult& result);

} // namespace kestrav::cli
