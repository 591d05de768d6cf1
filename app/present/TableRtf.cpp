#include "app/present/Markup.h"
#include "app/present/TableWriters.h"
#include "app/present/TextWidths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace kestrav::present
{

namespace
{

// Sizes of the text in half points, of which the first that lets the table fit is taken, and the
// room beside a text.
constexpr std::array<int, 3> kSizes = {16, 14, 12};
constexpr int kTwipsPerHalfPoint = 10;
constexpr int kCellMarginTwips = 150;

// What bold text needs more room than plain text, at most.
constexpr double kBoldWidening = 1.15;

// Room of each column for its widest text in one line.
std::vector<int> naturalWidths(const Table& table, int size)
{
    std::vector<int> widths;
    const bool labels = table.withoutHeadings();
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        double widest = kBoldWidening * textWidth(table.columns[i].heading);
        for (const Row& row : table.rows) {
            const double bold = labels && i == 0 ? kBoldWidening : 1.0;
            widest = std::max(widest, bold * textWidth(row[i].text));
        }
        widths.push_back(int(std::ceil(widest * size * kTwipsPerHalfPoint)) + kCellMarginTwips);
    }
    return widths;
}

// Makes the widest columns narrower, all of these alike, until the table fits. Their cells break.
void drawTogether(std::vector<int>& widths, int width)
{
    std::vector<int> sorted = widths;
    std::sort(sorted.begin(), sorted.end());
    int room = width;
    int left = int(sorted.size());
    for (const int column : sorted) {
        const int share = room / left;
        if (column > share) {
            std::for_each(widths.begin(), widths.end(),
                          [share](int& each) { each = std::min(each, share); });
            return;
        }
        room -= column;
        --left;
    }
}

struct Grid
{
    std::vector<int> ends; ///< where each column ends, in twips
    int size = 0;          ///< of the text in half points
    bool fits = false;     ///< without breaking a cell
};

// A table whose last column is meant to break keeps its size.
Grid gridOf(const Table& table, int width)
{
    const bool wrapped = !table.columns.empty() && table.columns.back().align == Align::Wrapped;
    Grid grid;
    for (const int size : kSizes) {
        grid = {naturalWidths(table, size), size, false};
        grid.fits = std::accumulate(grid.ends.begin(), grid.ends.end(), 0) <= width;
        if (grid.fits || wrapped) {
            break;
        }
    }
    drawTogether(grid.ends, width);
    std::partial_sum(grid.ends.begin(), grid.ends.end(), grid.ends.begin());
    return grid;
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

// Where cells need not break they do not, though some word processors widen blanks.
std::string cellRtf(const Column& column, std::wstring text, const Grid& grid, bool bold)
{
    if (grid.fits) {
        std::replace(text.begin(), text.end(), L' ', L'\u00A0');
    }
    return "\\pard\\intbl" + rtfSize(grid.size) + (column.align == Align::Right ? "\\qr" : "\\ql") +
           (bold ? "{\\b " : "{") + rtfText(text) + "}\\cell\n";
}

} // namespace

std::string tableRtf(const Table& table, int width)
{
    std::string rtf;
    if (!table.title.empty()) {
        rtf += "\\pard\\keepn\\sb120\\sa40" + rtfSize(20) + "{\\b " + rtfText(table.title) +
               "}\\par\n";
    }
    const Grid grid = gridOf(table, width);
    const bool labels = table.withoutHeadings();
    if (!labels && !table.explainsItsEmptiness()) {
        rtf += rowStart(grid.ends, true);
        for (const Column& column : table.columns) {
            rtf += cellRtf(column, column.heading, grid, true);
        }
        rtf += "\\row\n";
    }
    for (const Row& row : table.rows) {
        rtf += rowStart(grid.ends, false);
        for (std::size_t i = 0; i < row.size(); ++i) {
            rtf += cellRtf(table.columns[i], row[i].text, grid, labels && i == 0);
        }
        rtf += "\\row\n";
    }
    rtf += "\\pard\\sb60" + rtfSize(16) + "\\ql\n";
    for (const std::wstring& note : table.notes) {
        rtf += "{" + rtfText(note) + "}\\par\n";
    }
    return rtf;
}

} // namespace kestrav::present
