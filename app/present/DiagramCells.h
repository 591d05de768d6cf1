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
    Spot label;      ///< centre of the number of the sign or house
    Spot focus;      ///< centre of the labels
    Spot outward;    ///< the direction away from the middle
    double division; ///< share of the depth, from inside, at which a second chart begins

    [[nodiscard]] std::span<const Spot> polygon() const
    {
        return std::span<const Spot>(corners).first(count);
    }
};

struct CellPlan
{
    bool housesStand; ///< cell i is house i + 1; else it is sign i + 1
    std::array<CellShape, 12> cells;
    std::optional<Box> centre;
    bool cornerStroke; ///< the ascendant's cell has a stroke across its corner
};

/// The plan of a cell with its corners moved to the other side of an axis or diagonal.
[[nodiscard]] constexpr CellShape transformed(CellShape cell, Spot (*change)(Spot),
                                              Spot (*turn)(Spot))
{
    for (Spot& corner : cell.corners) {
        corner = change(corner);
    }
    cell.label = change(cell.label);
    cell.focus = change(cell.focus);
    cell.outward = turn(cell.outward);
    return cell;
}

/// Left and right exchanged.
[[nodiscard]] constexpr CellShape mirrored(const CellShape& cell)
{
    return transformed(
        cell,
        [](Spot spot) {
            return Spot{1.0 - spot.x, spot.y};
        },
        [](Spot spot) {
            return Spot{-spot.x, spot.y};
        });
}

/// Top and bottom exchanged.
[[nodiscard]] constexpr CellShape flipped(const CellShape& cell)
{
    return transformed(
        cell,
        [](Spot spot) {
            return Spot{spot.x, 1.0 - spot.y};
        },
        [](Spot spot) {
            return Spot{spot.x, -spot.y};
        });
}

/// Mirrored in the diagonal from the top left corner.
[[nodiscard]] constexpr CellShape transposed(const CellShape& cell)
{
    constexpr auto kSwap = [](Spot spot) {
        return Spot{spot.y, spot.x};
    };
    return transformed(cell, kSwap, kSwap);
}

/// Adds everything of a diagram of this plan but the paper.
void layoutCells(const DiagramFrame& frame, const CellPlan& plan, DisplayList& list);

} // namespace kestrav::present
