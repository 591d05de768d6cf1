// Aligned columns of text.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::present
{

/// Rows of cells under a heading, printed in columns as wide as their widest cell. One character is
/// one column wide.
class TextTable
{
public:
    enum class Align
    {
        Left,
        Right,
        Wrapped, ///< broken between words; for the last column only
    };

    struct Column
    {
        std::wstring heading;
        Align align = Align::Left;
    };

    /// `gap` is the count of blanks between two columns.
    explicit TextTable(std::vector<Column> columns, std::size_t gap = 2)
        : columns_(std::move(columns)), gap_(gap)
    {}

    /// Adds a row with one cell for each column.
    void add(std::vector<std::wstring> cells);

    /// The table with its heading, if a column has one, every line ended and without blanks at its
    /// end.
    [[nodiscard]] std::wstring text() const;

private:
    std::vector<Column> columns_;
    std::size_t gap_;
    std::vector<std::vector<std::wstring>> rows_;
};

/// Lines "label  value" with the values in one column.
class LabelledLines
{
public:
    void add(std::wstring label, std::wstring value);
    [[nodiscard]] std::wstring text() const;

private:
    std::vector<std::pair<std::wstring, std::wstring>> lines_;
};

} // namespace kestrav::present
