#include "app/present/DiagramPacking.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>

namespace kestrav::present
{

namespace
{

constexpr std::array<double, 7> kScales = {1.0, 0.95, 0.9, 0.85, 0.8, 0.75, kLeastScale};
constexpr int kMostColumns = 6;
constexpr double kReadable = 6.5; // the size of letters, where the unit is a pixel or a point
constexpr double kLineSpacing = 1.1;
constexpr double kTightSpacing = 1.0;     // in several columns
constexpr double kGapBetweenLabels = 0.5; // em

// The distance of candidate positions, in lines.
constexpr double kShiftStep = 0.25;

// Below this share of its size a text is no longer drawn.
constexpr double kVanishing = 1e-3;

class Packer
{
public:
    explicit Packer(const PackingTask& task) : task_(task)
    {}

    Packing pack()
    {
        if (task_.widths.empty()) {
            return {task_.size, {}, 0, {}};
        }
        // Several columns are better than letters that can hardly be read.
        for (const bool readable : {true, false}) {
            if (const std::optional<double> scale = placeAll(readable)) {
                return {*scale * task_.size, boxes_, 0, {}};
            }
        }
        return packSome();
    }

private:
    // Lays all labels, in letters that are readable or in the smaller ones, and tells their scale.
    std::optional<double> placeAll(bool readable)
    {
        const auto wanted = [&](double scale) {
            return (scale * task_.size >= kReadable) == readable;
        };
        for (const double scale : scales()) {
            if (wanted(scale) && place(task_.widths, 1, scale)) {
                return scale;
            }
        }
        for (const double scale : scales()) {
            for (int columns = 2; columns <= kMostColumns && wanted(scale) && enoughArea(scale);
                 ++columns) {
                widestLine_ = 0;
                if (place(task_.widths, columns, scale)) {
                    return scale;
                }
                if (widestLine_ < std::size_t(columns)) {
                    break; // more columns change nothing
                }
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] std::span<const double> scales() const
    {
        return std::span<const double>(kScales).first(task_.characterGrid ? 1 : kScales.size());
    }

    [[nodiscard]] bool enoughArea(double scale) const
    {
        const double size = scale * task_.size;
        const double em = std::accumulate(task_.widths.begin(), task_.widths.end(), 0.0);
        return em * size * size <= task_.area.area();
    }

    Packing packSome()
    {
        double scale = task_.characterGrid ? 1.0 : kLeastScale;
        std::vector<double> widths;
        for (int shown = int(task_.widths.size()) - 1; shown >= 0; --shown) {
            widths.assign(task_.widths.begin(), task_.widths.begin() + shown);
            widths.push_back(task_.moreWidth(int(task_.widths.size()) - shown));
            if (place(widths, kMostColumns, scale)) {
                return some(shown, scale);
            }
        }
        // Not even "+n" has room at the size at which labels are read.
        while (!place(widths, 1, scale)) {
            scale *= 0.8;
            if (scale < kVanishing) {
                boxes_ = {{task_.focus.x, task_.focus.y, task_.focus.x, task_.focus.y}};
                break;
            }
        }
        return some(0, scale);
    }

    Packing some(int shown, double scale)
    {
        const Box more = boxes_.back();
        boxes_.pop_back();
        return {scale * task_.size, boxes_, int(task_.widths.size()) - shown, more};
    }

    // Lays lines of at most `columns` labels, trying first those around the focus.
    bool place(std::span<const double> widths, int columns, double scale)
    {
        const double size = scale * task_.size;
        const double spacing = columns == 1 ? kLineSpacing : kTightSpacing;
        const double line = task_.characterGrid ? size : size * spacing;
        const int lines = (int(widths.size()) + columns - 1) / columns;
        const double height = (lines - 1) * line + size;
        if (height > task_.area.bottom() - task_.area.top()) {
            return false;
        }
        const double step = task_.characterGrid ? line : line * kShiftStep;
        const double first = task_.focus.y - height / 2.0;
        const double room = task_.area.bottom() - task_.area.top();
        for (int i = 0; i * step < room; ++i) {
            if (layLines(widths, columns, size, line, first - i * step) ||
                (i > 0 && layLines(widths, columns, size, line, first + i * step))) {
                return true;
            }
        }
        return false;
    }

    bool layLines(std::span<const double> widths, int columns, double size, double line, double top)
    {
        boxes_.clear();
        if (task_.characterGrid) {
            top = 2.0 * std::floor(top / 2.0) + 1.0;
        }
        const auto lines = int(widths.size() + std::size_t(columns) - 1) / columns;
        if (top < task_.area.top() ||
            top + (lines - 1) * line + size > task_.area.bottom() + 1e-9) {
            return false;
        }
        // A line may be too narrow for any label; later ones can be wider.
        while (boxes_.size() < widths.size() && top < task_.area.bottom()) {
            const std::size_t rest = widths.size() - boxes_.size();
            // No more lines than the columns ask for, so that the block stays around the focus.
            layOneLine(widths.subspan(boxes_.size(), std::min(rest, std::size_t(columns))), size,
                       top);
            top += line;
            if (boxes_.empty()) {
                return false;
            }
        }
        return boxes_.size() == widths.size();
    }

    void layOneLine(std::span<const double> widths, double size, double top)
    {
        const Interval room = freeRoom(top, top + size);
        const double gap = task_.characterGrid ? 1.0 : kGapBetweenLabels * size;
        double total = 0.0;
        std::size_t count = 0;
        while (count < widths.size()) {
            const double more = widths[count] * size + (count > 0 ? gap : 0.0);
            if (total + more > room.length() + 1e-9) {
                break;
            }
            total += more;
            ++count;
        }
        if (count == 0) {
            return;
        }
        double left = std::clamp(task_.focus.x - total / 2.0, room.low, room.high - total);
        if (task_.characterGrid) {
            left = std::floor(left) + 0.5;
            if (left < room.low - 1e-9) {
                left += 1.0;
            }
            if (left + total > room.high + 1e-9) {
                left -= 1.0;
            }
            if (left < room.low - 1e-9) {
                return;
            }
        }
        widestLine_ = std::max(widestLine_, count);
        for (std::size_t i = 0; i < count; ++i) {
            const double width = widths[i] * size;
            boxes_.push_back({left, top, left + width, top + size});
            left += width + gap;
        }
    }

    // The widest free span of a line.
    [[nodiscard]] Interval freeRoom(double top, double bottom) const
    {
        Interval room = task_.area.across(top, bottom);
        for (const Box& box : task_.obstacles) {
            if (box.top >= bottom || box.bottom <= top || box.left >= room.high ||
                box.right <= room.low) {
                continue;
            }
            if (box.left - room.low > room.high - box.right) {
                room.high = box.left;
            } else {
                room.low = box.right;
            }
        }
        return room;
    }

    const PackingTask& task_;
    std::vector<Box> boxes_;
    std::size_t widestLine_ = 0; ///< labels in the fullest line since it was cleared
};

} // namespace

Packing packLabels(const PackingTask& task)
{
    return Packer(task).pack();
}

Box placeText(const ConvexArea& area, Spot spot, double width, double size, bool characterGrid,
              double& scale)
{
    scale = 1.0;
    if (characterGrid) {
        // The grid has one size; a text that does not fit at its spot moves inwards by lines.
        for (int i = 0; i < 40; ++i) {
            const int lines = (i + 1) / 2;
            const double shift = i % 2 == 0 ? 2.0 * lines : -2.0 * lines;
            const double top = 2.0 * std::floor((spot.y - size / 2.0 + shift) / 2.0) + 1.0;
            const Interval room = area.across(top, top + size);
            double left = std::floor(std::min(std::max(spot.x - width * size / 2.0, room.low),
                                              room.high - width * size)) +
                          0.5;
            left += left < room.low - 1e-9 ? 1.0 : 0.0;
            if (left + width * size <= room.high + 1e-9) {
                return {left, top, left + width * size, top + size};
            }
        }
    }
    for (;; scale *= 0.9) {
        const double height = size * scale;
        const double top = spot.y - height / 2.0;
        const Interval room = area.across(top, top + height);
        const double length = width * height;
        if (room.length() >= length || scale < kVanishing) {
            const double left =
                std::clamp(spot.x - length / 2.0, room.low, std::max(room.low, room.high - length));
            return {left, top, left + length, top + height};
        }
    }
}

} // namespace kestrav::present
