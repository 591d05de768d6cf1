// The tables of a computed chart as text.
#pragma once

#include "app/cli/ComputedChart.h"
#include "app/present/Table.h"

#include <string>
#include <vector>

namespace kestrav::cli
{

/// Name, date, time and place, or the file of positions.
[[nodiscard]] std::wstring inputText(const ComputedChart& computed);

/// The tables one below the other with an empty line between them; those without rows and notes
/// are left out.
[[nodiscard]] std::wstring tablesText(const std::vector<present::Table>& tables);

} // namespace kestrav::cli
