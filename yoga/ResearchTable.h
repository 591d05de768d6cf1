// Tables and graphs over the research lines of a database.
#pragma once

#include "data/ChartDatabase.h"
#include "data/LineList.h"
#include "yoga/ResearchColumns.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrav::yoga
{

/// The charts of a group: those with equal values in one column.
struct TableGroup
{
    std::wstring label;          ///< the value in words; empty for charts without one
    std::optional<double> value; ///< nothing for texts
    std::size_t count = 0;
    std::vector<std::optional<double>> averages; ///< one for each column that is averaged
};

/// One bar of a graph: the charts whose value is at least `low` and below `high`.
struct GraphBar
{
    std::wstring label;
    double low = 0.0;
    double high = 0.0;
    std::size_t count = 0;
};

/// The lines must outlive the table. Columns are indexes into researchColumns().
class ResearchTable
{
public:
    /// The charts of the whole database: its lines that are not empty.
    explicit ResearchTable(const data::LineList& research);

    /// Those with this tag.
    ResearchTable(const data::LineList& research, const data::ChartDatabase& database, wchar_t tag);

    /// Those of the given lines that are not empty, such as the lines that a search found.
    ResearchTable(const data::LineList& research, const std::vector<std::size_t>& lines);

    /// The lines of the table, in order.
    [[nodiscard]] const std::vector<std::size_t>& lines() const
    {
        return lines_;
    }

    /// The cell of a row, 0 to lines().size() - 1.
    [[nodiscard]] std::optional<double> number(std::size_t row, std::size_t column) const;
    [[nodiscard]] std::wstring text(std::size_t row, std::size_t column) const;

    /// Rows sorted by a column: numbers by value, texts without regard to case and accents, those
    /// without a value last.
    [[nodiscard]] std::vector<std::size_t> sortedRows(std::size_t column) const;

    /// Groups by a column, with their counts and the averages of other columns, ordered as the
    /// values are; charts without a value are the last group. Angles and clock times have the
    /// average of directions, which does not exist when they cancel each other. Signs, nakshatras
    /// and texts have none.
    [[nodiscard]] std::vector<TableGroup> groups(std::size_t column,
                                                 std::span<const std::size_t> averaged) const;

    /// The average of a column over the whole table, as in a group.
    [[nodiscard]] std::optional<double> average(std::size_t column) const;

    /// The numbers of a graph: a bar for each of the 12 signs or houses, 27 nakshatras or different
    /// texts; for numbers `bars` of equal width, from 0 over the circle for angles and clock times,
    /// from the lowest to the highest value otherwise.
    [[nodiscard]] std::vector<GraphBar> graph(std::size_t column, std::size_t bars) const;

private:
    [[nodiscard]] std::vector<GraphBar> categoryBars(std::size_t column, int count) const;
    [[nodiscard]] std::vector<GraphBar> rangeBars(std::size_t column, std::size_t bars) const;

    const data::LineList& research_;
    std::vector<std::size_t> lines_;
};

} // namespace kestrav::yoga
