// Charts as rows of comma-separated values and as JSON.
#pragma once

#include "core/Chart.h"

#include <string>

namespace kestrav::data
{

/// The names of the columns, with line end.
[[nodiscard]] std::string csvHead();

/// One chart with line end. Dates are year-month-day, line breaks of notes are kept inside quotes,
/// events stand in one column.
[[nodiscard]] std::string csvRow(const core::Chart& chart);

/// One chart as a JSON object, every field of its record under the record's own names.
[[nodiscard]] std::string jsonObject(const core::Chart& chart);

/// The head of the contact export, with line end.
[[nodiscard]] std::string contactHead();

/// The contact information of a chart with line end; empty when it has none. Where the contact has
/// no name of its own the chart's name stands.
[[nodiscard]] std::string contactRow(const core::Chart& chart);

} // namespace kestrav::data
