#include "app/present/SouthDiagram.h"

namespace kestrav::present
{

namespace
{

// The square in a row and a column 0 to 3 of the four by four.
constexpr CellShape square(int row, int column)
{
    const double left = column * 0.25;
    const double top = row * 0.25;
    return {4,
            {{{left, top}, {left + 0.25, top}, {left + 0.25, top + 0.25}, {left, top + 0.25}}},
            {left + 0.222, top + 0.228},
            {left + 0.125, top + 0.115}};
}

constexpr double kDepth = kFrameDepth;
constexpr double kSide = (1.0 - 2.0 * kFrameDepth) / 4.0;

// A frame cell above the square of a column 1 or 2.
constexpr FrameShape above(int column)
{
    const double left = kDepth + column * kSide;
    const double right = left + kSide;
    const std::array<Spot, 4> room = {{{left, 0.0}, {right, 0.0}, {right, kDepth}, {left, kDepth}}};
    return {4, {{room[0], room[1], room[2], room[3]}}, room};
}

// Around the top left square; its labels stand above.
constexpr FrameShape kCorner = {
    6,
    {{{0.0, 0.0},
      {kDepth + kSide, 0.0},
      {kDepth + kSide, kDepth},
      {kDepth, kDepth},
      {kDepth, kDepth + kSide},
      {0.0, kDepth + kSide}}},
    {{{0.0, 0.0}, {kDepth + kSide, 0.0}, {kDepth + kSide, kDepth}, {0.0, kDepth}}}};

constexpr CellPlan kSouth = {
    false,
    {{
        square(0, 1), // Aries
        square(0, 2), square(0, 3), square(1, 3), square(2, 3), square(3, 3), square(3, 2),
        square(3, 1), square(3, 0), square(2, 0), square(1, 0), square(0, 0), // Pisces
    }},
    {{
        above(1), // Aries
        above(2), mirrored(kCorner), mirrored(transposed(above(1))), mirrored(transposed(above(2))),
        mirrored(flipped(kCorner)), flipped(above(2)), flipped(above(1)), flipped(kCorner),
        transposed(above(2)), transposed(above(1)),
        kCorner, // Pisces
    }},
    Box{0.25, 0.25, 0.75, 0.75},
    true,
};

} // namespace

const CellPlan& southPlan()
{
    return kSouth;
}

} // namespace kestrav::present
