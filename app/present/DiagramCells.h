// The layout of the styles whose cells are polygons of a fixed plan.
#pragma once

#include "app/present/DiagramFrame.h"
#include "app/present/DisplayList.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace kestrav::present
{

/// One cell in the unit square.
struct CellShape
{
    std::size_t count; ///< of the corners
    std::array<Spot, 4> corners;
    Spot label; ///< centre of the number of the sign or house
    Spot focus; ///< centre of the labels

    [[nodiscard]] std::span<const Spot> polygon() const
    {
        return std::span<const Spot>(corners).first(count);
    }
};

/// What belongs to a cell in the frame around the diagram, in which a second chart stands. The
/// diagram itself then fills the middle of the unit square up to kFrameDepth from its sides.
struct FrameShape
{
    std::size_t count; ///< of the corners
    std::array<Spot, 6> corners;
    std::array<Spot, 4> room; ///< where the labels may stand

    [[nodiscard]] std::span<const Spot> polygon() const
    {
        return std::span<const Spot>(corners).first(count);
    }
};

inline constexpr double kFrameDepth = 1.0 / 6.0;

struct CellPlan
{
    bool housesStand; ///< cell i is house i + 1; else it is sign i + 1
    std::array<CellShape, 12> cells;
    std::array<FrameShape, 12> frame;
    std::optional<Box> centre;
    bool cornerStroke; ///< the ascendant's cell has a stroke across its first corner
};

using SpotChange = Spot (*)(Spot);

template <std::size_t Count>
constexpr void change(std::array<Spot, Count>& spots, SpotChange how)
{
    for (Spot& spot : spots) {
        spot = how(spot);
    }
}

[[nodiscard]] constexpr CellShape changed(CellShape cell, SpotChange how)
{
    change(cell.corners, how);
    cell.label = how(cell.label);
    cell.focus = how(cell.focus);
    return cell;
}

[[nodiscard]] constexpr FrameShape changed(FrameShape cell, SpotChange how)
{
    change(cell.corners, how);
    change(cell.room, how);
    return cell;
}

/// Left and right exchanged.
template <typename Cell>
[[nodiscard]] constexpr Cell mirrored(const Cell& cell)
{
    return changed(cell, [](Spot spot) { return Spot{1.0 - spot.x, spot.y}; });
}

/// Top and bottom exchanged.
template <typename Cell>
[[nodiscard]] constexpr Cell flipped(const Cell& cell)
{
    return changed(cell, [](Spot spot) { return Spot{spot.x, 1.0 - spot.y}; });
}

/// Mirrored in the diagonal from the top left corner.
template <typename Cell>
[[nodiscard]] constexpr Cell transposed(const Cell& cell)
{
    return changed(cell, [](Spot spot) { return Spot{spot.y, spot.x}; });
}

/// The twelve cells that follow from the first four of a plan that runs counter-clockwise from the
/// top.
template <typename Cell>
[[nodiscard]] constexpr std::array<Cell, 12> allAround(const Cell& first, const Cell& second,
                                                       const Cell& third, const Cell& fourth)
{
    return {first,
            second,
            third,
            fourth,
            flipped(third),
            flipped(second),
            flipped(first),
            mirrored(flipped(second)),
            mirrored(flipped(third)),
            mirrored(fourth),
            mirrored(third),
            mirrored(second)};
}

/// The frame of a plan that runs counter-clockwise from the top, whose first cell reaches from
/// `from` to 1 - `from`. The second and third meet in a corner.
[[nodiscard]] constexpr std::array<FrameShape, 12> frameAllAround(double from)
{
    constexpr double kDepth = kFrameDepth;
    const double to = 1.0 - from;
    const std::array<Spot, 4> top = {{{from, 0.0}, {to, 0.0}, {to, kDepth}, {from, kDepth}}};
    const std::array<Spot, 4> corner = {
        {{0.0, 0.0}, {from, 0.0}, {from, kDepth}, {kDepth, kDepth}}};
    const auto shape = [](const std::array<Spot, 4>& spots) {
        return FrameShape{4, {{spots[0], spots[1], spots[2], spots[3]}}, spots};
    };
    return allAround(shape(top), shape(corner), transposed(shape(corner)), transposed(shape(top)));
}

/// Adds everything of a diagram of this plan but the paper.
void layoutCells(const DiagramFrame& frame, const CellPlan& plan, DisplayList& list);

} // namespace kestrav::present
