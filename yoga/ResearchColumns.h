// The columns of a research table: what a research line tells about a chart.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kestrav::yoga
{

enum class ColumnType
{
    Text,
    Sign,      ///< 1 to 12
    House,     ///< 1 to 12, counted by signs from the ascendant
    Nakshatra, ///< 1 to 27
    Motion,    ///< a letter
    Number,
    Angle, ///< degrees, 0 to under 360
    Clock, ///< hours, 0 to under 24
};

struct ResearchColumn
{
    std::string key; ///< "moon.nakshatra", "sex"; the same in every language
    ColumnType type = ColumnType::Text;
    int field = 0;  ///< of the research line
    int point = -1; ///< of the point index; -1 for what belongs to no point
};

/// All columns in the order of the research line. Tables are asked for columns by their index here.
[[nodiscard]] std::span<const ResearchColumn> researchColumns();

/// The index of a column by its key; nothing when there is none.
[[nodiscard]] std::optional<std::size_t> findResearchColumn(std::string_view key);

/// The heading in the language of the display: "Moon nakshatra".
[[nodiscard]] std::wstring columnHeading(const ResearchColumn& column);

/// The value of a line; nothing when it has none, and for texts.
[[nodiscard]] std::optional<double> columnNumber(std::string_view line,
                                                 const ResearchColumn& column);

/// The value of a line in words: "Leo", "Ashwini", "8.25"; empty when it has none.
[[nodiscard]] std::wstring columnText(std::string_view line, const ResearchColumn& column);

/// A number of a column in words.
[[nodiscard]] std::wstring columnValueText(double value, const ResearchColumn& column);

} // namespace kestrav::yoga
