// Placing labels in a ring close to their degrees.
#pragma once

#include "app/present/DisplayList.h"

#include <span>
#include <vector>

namespace kestrav::present
{

/// A ring around the middle of a diagram.
struct Ring
{
    Spot middle;
    double inner = 0.0;
    double outer = 0.0;

    /// Whether a box that does not hold the middle lies in the ring.
    [[nodiscard]] bool holds(const Box& box) const;

    /// The spot at an angle in degrees, 0 to the right and counter-clockwise.
    [[nodiscard]] Spot spotAt(double angle, double radius) const;
};

struct RingTask
{
    Ring ring;
    bool fromOutside = true;        ///< the degrees are read at the outer edge of the ring
    std::span<const double> angles; ///< of the labels in degrees, ascending
    std::span<const double> widths; ///< of the labels in em
    double size = 1.0;
    bool characterGrid = false;
};

struct RingPlace
{
    bool placed = false;
    Box box;
    Spot tick; ///< the degree at the edge of the ring
    Spot end;  ///< the nearest spot of the box
};

/// Places every label as close to its degree as it can without touching another one or the edges,
/// and without its leader line crossing a label; with less room the font shrinks to 70%, and then
/// lines may cross. `size` becomes the size that was chosen.
[[nodiscard]] std::vector<RingPlace> placeInRing(const RingTask& task, double& size);

/// The box of a text around a spot, on the grid of characters where there is one.
[[nodiscard]] Box boxAround(Spot spot, double width, double size, bool characterGrid);

} // namespace kestrav::present
