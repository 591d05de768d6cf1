// Aligned columns of text.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kestrav::cli
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
    };

    struct Column
    {
        std::wstring heading;
        Align align = Align::Left;
    };

    explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns))
    {}

    /// Adds a row with one cell for each column.
    void add(std::vector<std::wstring> cells);

    /// The table with its heading, every line ended and without blanks at its end.
    [[nodiscard]] std::wstring text() const;

private:
    std::vector<Column> columns_;
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

} // namespace kestrav::cli
