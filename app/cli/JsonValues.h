// What all JSON objects of the program share. What does not exist or is not computed is null; no
// key is ever left out.
#pragma once

#include "core/DateTime.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace kestrav::cli
{

using Json = nlohmann::ordered_json;

/// The beginning of every object: program and command.
[[nodiscard]] Json commandObject(std::string_view command);

/// The object as text that ends with a line end.
[[nodiscard]] std::string jsonText(const Json& object);

/// A number, null for what is not finite.
[[nodiscard]] Json numberJson(double value);
[[nodiscard]] Json numberJson(const std::optional<double>& value);

/// A text; the second form is null for an empty one.
[[nodiscard]] Json textJson(std::wstring_view text);
[[nodiscard]] Json textOrNull(std::wstring_view text);

/// A date "YYYY-MM-DD" in historical years; -0044-03-15 is in 44 BC.
[[nodiscard]] Json dateJson(const core::DateTimeRecord& record);

} // namespace kestrav::cli
