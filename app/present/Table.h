// The model of a table: what the window shows, a report prints and the command line writes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrav::present
{

enum class Align : std::uint8_t
{
    Left,
    Right,
    Wrapped, ///< left, broken between words where room is short; for the last column only
};

struct Column
{
    std::wstring heading;
    Align align = Align::Left;
};

/// What a cell is about, so that a click on it can lead there.
enum class Subject : std::uint8_t
{
    None,
    Point,     ///< index is a point index
    Sign,      ///< 1 to 12
    House,     ///< 1 to 12
    Varga,     ///< 0 to 20
    Nakshatra, ///< 0 to 26
    Moment,    ///< `moment` is a Julian day in Universal Time
};

struct Link
{
    Subject subject = Subject::None;
    int index = 0;
    int varga = 0; ///< the divisional chart in which a point, sign or house is meant
    double moment = 0.0;

    bool operator==(const Link&) const = default;
};

struct Cell
{
    Cell() = default;
    // A cell is written as its text wherever nothing else is to be said of it.
    Cell(std::wstring cellText) : text(std::move(cellText)) // NOLINT: meant to convert
    {}
    Cell(std::wstring_view cellText) : text(cellText) // NOLINT: meant to convert
    {}
    Cell(const wchar_t* cellText) : text(cellText) // NOLINT: meant to convert
    {}
    Cell(std::wstring cellText, double key, Link about = {})
        : text(std::move(cellText)), sortKey(key), link(about)
    {}
    Cell(std::wstring cellText, Link about) : text(std::move(cellText)), link(about)
    {}

    std::wstring text;
    std::optional<double> sortKey; ///< sorts by this where it exists, by the text where not
    Link link;
    /// How good or bad the cell is, from -3 to 4, for a colour behind it on the screen. Files do
    /// not have it.
    std::optional<int> shade;
};

using Row = std::vector<Cell>;

struct Table
{
    std::string id;     ///< its name for files and commands, lower case with hyphens
    std::wstring title; ///< may be empty
    std::vector<Column> columns;
    std::vector<Row> rows{};
    std::vector<std::wstring> notes{}; ///< sentences that stand below the table
    std::size_t gap = 2;               ///< blanks between two columns of plain text

    /// Adds a row with one cell for each column.
    void add(Row row);

    /// Whether no column has a heading, as in a list of labels with their values.
    [[nodiscard]] bool withoutHeadings() const;

    /// Whether there are notes, but no rows: then headings over nothing would only disturb.
    [[nodiscard]] bool explainsItsEmptiness() const
    {
        return rows.empty() && !notes.empty();
    }
};

/// A table of two columns without headings.
[[nodiscard]] Table labelledTable(std::string id, std::wstring title);

/// The order of two cells of a column: numbers by value before texts, texts by their characters.
/// Below 0, 0 or above 0.
[[nodiscard]] int compareCells(const Cell& one, const Cell& other);

/// A cell that leads to a point, with its long name as text and the point index as sort key.
[[nodiscard]] Cell pointCell(int point, int varga = 0);

/// A cell that leads to a sign, with its long name and the sign as sort key; "--" for 0.
[[nodiscard]] Cell signCell(int sign, int varga = 0);

/// A cell that leads to a house 1 to 12, "--" for 0.
[[nodiscard]] Cell houseCell(int house, int varga = 0);

/// A cell that leads to a nakshatra, "Rohini 2" with its quarter, sorted by the position 0 to under
/// 27.
[[nodiscard]] Cell quarterCell(double position);

/// A cell with a number of fixed decimals, "--" for what is not there.
[[nodiscard]] Cell numberCell(const std::optional<double>& value, int decimals);
[[nodiscard]] Cell integerCell(int value);

/// A cell with a number from 1 on, "--" for 0.
[[nodiscard]] Cell countCell(int count);

} // namespace kestrav::present
