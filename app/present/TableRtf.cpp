#include "app/present/Markup.h"
#include "app/present/TableWriters.h"

#include <algorithm>
#include <numeric>

namespace kestrav::present
{

namespace
{

// Average advance of a character of the 8-point text of tables, and the room beside a text.
constexpr int kCharacterTwips = 88;
constexpr int kCellMarginTwips = 120;
constexpr int kLongestCell = 60;

std::vector<int> naturalWidths(const Table& table)
{
    std::vector<int> widths;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        std::size_t longest = std::max<std::size_t>(table.columns[i].heading.size(), 1);
        for (const Row& row : table.rows) {
            longest = std::max(longest, row[i].text.size());
        }
        widths.push_back(std::min(int(longest), kLongestCell) * kCharacterTwips + kCellMarginTwips);
    }
    return widths;
}

// Where each column ends. A table that is too wide is drawn together; its cells then break.
std::vector<int> columnEnds(const Table& table, int width)
{
    std::vector<int> widths = naturalWidths(table);
    const int natural = std::accumulate(widths.begin(), widths.end(), 0);
    int end = 0;
    for (int& column : widths) {
        column = natural > width ? int(std::int64_t(column) * width / natural) : column;
        end += column;
        column = end;
    }
    return widths;
}

std::string rowStart(const std::vector<int>& ends, bool heading)
{
    std::string rtf = "\\trowd\\trgaph60\\trkeep";
    if (heading) {
        rtf += "\\trhdr";
    }
    for (const int end : ends) {
        rtf += "\\clbrdrb\\brdrs\\brdrw5\\cellx" + std::to_string(end);
    }
    return rtf + "\n";
}

std::string cellRtf(const Column& column, const std::wstring& text, bool bold)
{
    return std::string("\\pard\\intbl\\fs16") + (column.align == Align::Right ? "\\qr" : "\\ql") +
           (bold ? "{\\b " : "{ ") + rtfText(text) + "}\\cell\n";
}

} // namespace

std::string tableRtf(const Table& table, int width)
{
    std::string rtf;
    if (!table.title.empty()) {
        rtf += "\\pard\\keepn\\sb120\\sa40\\fs20{\\b " + rtfText(table.title) + "}\\par\n";
    }
    const std::vector<int> ends = columnEnds(table, width);
    const bool labels = table.withoutHeadings();
    if (!labels && !table.explainsItsEmptiness()) {
        rtf += rowStart(ends, true);
        for (const Column& column : table.columns) {
            rtf += cellRtf(column, column.heading, true);
        }
        rtf += "\\row\n";
    }
    for (const Row& row : table.rows) {
        rtf += rowStart(ends, false);
        for (std::size_t i = 0; i < row.size(); ++i) {
            rtf += cellRtf(table.columns[i], row[i].text, labels && i == 0);
        }
        rtf += "\\row\n";
    }
    rtf += "\\pard\\sb60\\fs16\\ql\n";
    for (const std::wstring& note : table.notes) {
        rtf += "{" + rtfText(note) + "}\\par\n";
    }
    return rtf;
}

} // namespace kestrav::present
