#include "app/present/TerminalDrawing.h"

#include "app/present/TextWidths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace kestrav::present
{

namespace
{

// Where a level or upright line leaves a cell.
constexpr std::uint8_t kUp = 1;
constexpr std::uint8_t kDown = 2;
constexpr std::uint8_t kLeft = 4;
constexpr std::uint8_t kRight = 8;

// Indexed by the sum of the directions.
constexpr std::wstring_view kBoxCharacters = L" \u2502\u2502\u2502\u2500\u2518\u2510\u2524"
                                             L"\u2500\u2514\u250C\u251C\u2500\u2534\u252C\u253C";
static_assert(kBoxCharacters.size() == 16);

// Lines of which the ends differ by less are level or upright.
constexpr double kStraight = 1e-6;

// The second column of a character that takes two.
constexpr wchar_t kContinued = L'\0';

class Canvas
{
public:
    Canvas(int columns, int rows)
        : columns_(columns), rows_(rows), cells_(std::size_t(columns) * std::size_t(rows), L' '),
          joints_(cells_.size(), 0)
    {}

    // A line between two cells' centres.
    void draw(Spot from, Spot to)
    {
        const int x0 = int(std::lround(from.x));
        const int x1 = int(std::lround(to.x));
        const int y0 = int(std::lround(from.y / 2.0));
        const int y1 = int(std::lround(to.y / 2.0));
        if (std::fabs(from.y - to.y) < kStraight) {
            level(y0, std::min(x0, x1), std::max(x0, x1));
        } else if (std::fabs(from.x - to.x) < kStraight) {
            upright(x0, std::min(y0, y1), std::max(y0, y1));
        } else if (std::fabs(std::fabs(to.x - from.x) - std::fabs(to.y - from.y)) < kStraight) {
            diagonal(y0 < y1 ? from : to, y0 < y1 ? to : from);
        } else {
            dots(from, to);
        }
    }

    void write(const Text& text)
    {
        int column = int(std::lround(text.box.left + 0.5));
        const int row = int(std::lround((text.box.top + text.box.bottom) / 4.0));
        std::size_t last = 0;
        for (const wchar_t character : text.text) {
            const int width = columnsOf(character);
            if (width == 0) {
                // A mark belongs to the character before it.
                if (last != 0) {
                    marks_.push_back({last, character});
                }
                continue;
            }
            if (!inside(column, row) || !inside(column + width - 1, row)) {
                return;
            }
            last = index(column, row);
            cells_[last] = character;
            joints_[last] = 0;
            if (width == 2) {
                cells_[last + 1] = kContinued;
                joints_[last + 1] = 0;
            }
            column += width;
        }
    }

    [[nodiscard]] std::wstring text() const
    {
        std::wstring result;
        for (int row = 0; row < rows_; ++row) {
            std::wstring line;
            for (int column = 0; column < columns_; ++column) {
                const std::size_t cell = index(column, row);
                if (cells_[cell] == kContinued) {
                    continue;
                }
                line += cells_[cell] == L' ' ? kBoxCharacters[joints_[cell]] : cells_[cell];
                for (const auto& [place, mark] : marks_) {
                    if (place == cell) {
                        line += mark;
                    }
                }
            }
            result += line.substr(0, line.find_last_not_of(L' ') + 1) + L"\n";
        }
        return result;
    }

private:
    [[nodiscard]] bool inside(int column, int row) const
    {
        return column >= 0 && column < columns_ && row >= 0 && row < rows_;
    }

    [[nodiscard]] std::size_t index(int column, int row) const
    {
        return std::size_t(row) * std::size_t(columns_) + std::size_t(column);
    }

    void join(int column, int row, std::uint8_t directions)
    {
        if (inside(column, row)) {
            std::uint8_t& joint = joints_[index(column, row)];
            joint = std::uint8_t(joint | directions);
        }
    }

    void level(int row, int from, int to)
    {
        for (int column = from; column <= to; ++column) {
            join(column, row,
                 std::uint8_t((column > from ? kLeft : 0) | (column < to ? kRight : 0)));
        }
    }

    void upright(int column, int from, int to)
    {
        for (int row = from; row <= to; ++row) {
            join(column, row, std::uint8_t((row > from ? kUp : 0) | (row < to ? kDown : 0)));
        }
    }

    void put(int column, int row, wchar_t character)
    {
        if (inside(column, row) && joints_[index(column, row)] == 0) {
            cells_[index(column, row)] = character;
        }
    }

    // Two columns to a row.
    void diagonal(Spot from, Spot to)
    {
        const bool falling = to.x > from.x;
        const int rows = int(std::lround((to.y - from.y) / 2.0));
        for (int i = 1; i < rows; ++i) {
            const double x = falling ? from.x + 2.0 * i : from.x - 2.0 * i;
            const int row = int(std::lround(from.y / 2.0 + i));
            const int column = int(std::lround(x)) - (falling ? 1 : 0);
            put(column, row, falling ? L'`' : L'.');
            put(column + 1, row, falling ? L'.' : L'\'');
        }
    }

    void dots(Spot from, Spot to)
    {
        const double length = std::max(std::fabs(to.x - from.x), std::fabs(to.y - from.y));
        const int steps = std::max(1, int(std::ceil(length)));
        for (int i = 0; i <= steps; ++i) {
            const double share = double(i) / steps;
            const double x = from.x + share * (to.x - from.x);
            const double y = from.y + share * (to.y - from.y);
            put(int(std::lround(x)), int(std::lround(y / 2.0)), L'\u00B7');
        }
    }

    int columns_;
    int rows_;
    std::vector<wchar_t> cells_;
    std::vector<std::uint8_t> joints_;
    std::vector<std::pair<std::size_t, wchar_t>> marks_;
};

} // namespace

std::wstring drawWithCharacters(const DisplayList& list)
{
    Canvas canvas(int(std::lround(list.width)) + 1, int(std::lround(list.height / 2.0)) + 1);
    for (const Shape& shape : list.shapes) {
        for (std::size_t i = 0; shape.stroke && i < shape.points.size(); ++i) {
            canvas.draw(shape.points[i], shape.points[(i + 1) % shape.points.size()]);
        }
    }
    for (const Line& line : list.lines) {
        if (line.role != ColourRole::Aspect) {
            canvas.draw(line.from, line.to);
        }
    }
    for (const Text& text : list.texts) {
        canvas.write(text);
    }
    return canvas.text();
}

std::wstring terminalDiagram(const DiagramSubject& subject, DiagramStyle style,
                             const DiagramOptions& options)
{
    DiagramOptions grid = options;
    grid.characterGrid = true;
    const DisplayList list = layoutDiagram(subject, style, grid, kTerminalSize);
    std::wstring text = list.title + L"\n" + drawWithCharacters(list);
    for (const Region& region : list.regions) {
        if (region.kind == RegionKind::More) {
            text += L"+" + std::to_wstring(region.index);
            text +=
                region.house == 0 ? L": " : L" in house " + std::to_wstring(region.house) + L": ";
            text += region.spoken + L"\n";
        }
    }
    return text + list.description;
}

} // namespace kestrav::present
