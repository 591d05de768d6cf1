// The pieces of the JSON objects that describe a chart. Angles are in degrees, clock times in
// hours. What does not exist or is not computed is null; no key is ever left out.
#pragma once

#include "app/cli/ComputedChart.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace kestrav::cli
{

using Json = nlohmann::ordered_json;

/// The beginning of every object: program and command.
[[nodiscard]] Json commandObject(std::string_view command);

/// The object as text that ends with a line end.
[[nodiscard]] std::string jsonText(const Json& object);

[[nodiscard]] Json inputJson(const ComputedChart& computed);
[[nodiscard]] Json timeJson(const ComputedChart& computed);
[[nodiscard]] Json ayanamsaJson(const ComputedChart& computed);
[[nodiscard]] Json housesJson(const ComputedChart& computed);
[[nodiscard]] Json sunJson(const ComputedChart& computed);

/// All 63 points in their order.
[[nodiscard]] Json pointsJson(const ComputedChart& computed);

} // namespace kestrav::cli
