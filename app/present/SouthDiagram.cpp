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
    const Spot outward = row == 0      ? Spot{0.0, -1.0}
                         : row == 3    ? Spot{0.0, 1.0}
                         : column == 0 ? Spot{-1.0, 0.0}
                                       : Spot{1.0, 0.0};
    return {4,
            {{{left, top}, {left + 0.25, top}, {left + 0.25, top + 0.25}, {left, top + 0.25}}},
            {left + 0.222, top + 0.228},
            {left + 0.125, top + 0.115},
            outward,
            0.5};
}

constexpr CellPlan kSouth = {
    false,
    {{
        square(0, 1), // Aries
        square(0, 2), square(0, 3), square(1, 3), square(2, 3), square(3, 3), square(3, 2),
        square(3, 1), square(3, 0), square(2, 0), square(1, 0), square(0, 0), // Pisces
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
