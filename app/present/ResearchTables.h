// The research table of a database: charts with chosen columns, counted groups, graphs.
#pragma once

#include "app/present/BarChart.h"
#include "app/present/Table.h"
#include "yoga/ResearchTable.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace kestrav::present
{

/// One row for each chart, the number of its line first; texts sort without regard to case and
/// accents. Columns are indexes into yoga::researchColumns().
[[nodiscard]] Table researchRows(const yoga::ResearchTable& research,
                                 std::span<const std::size_t> columns);

/// One row for each value of a column, with count, share and the averages of other columns.
[[nodiscard]] Table researchGroups(const yoga::ResearchTable& research, std::size_t column,
                                   std::span<const std::size_t> averaged);

/// The bars of a graph of a column; `bars` of them for numbers.
[[nodiscard]] BarChartModel researchGraph(const yoga::ResearchTable& research, std::size_t column,
                                          std::size_t bars);

/// The bars of a graph as a table: value, count, share.
[[nodiscard]] Table barTable(const BarChartModel& model);

/// The line of the database in a row of researchRows, from 0.
[[nodiscard]] std::optional<std::size_t> lineOfRow(const Row& row);

} // namespace kestrav::present
