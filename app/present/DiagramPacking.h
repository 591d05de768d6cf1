// Placing labels inside a cell so that none crosses its border.
#pragma once

#include "app/present/DiagramGeometry.h"
#include "app/present/DisplayList.h"

#include <functional>
#include <span>
#include <vector>

namespace kestrav::present
{

/// The share of the font size down to which labels shrink.
inline constexpr double kLeastScale = 0.7;

struct PackingTask
{
    const ConvexArea& area;
    Spot focus;                           ///< where the labels should stand
    std::span<const Box> obstacles;       ///< what they must keep away from
    std::span<const double> widths;       ///< of the labels in em, in their order
    double size = 1.0;                    ///< of the font
    bool characterGrid = false;           ///< then the size is 2 and is kept
    std::function<double(int)> moreWidth; ///< of "+n" in em
};

struct Packing
{
    double size = 0.0;      ///< the font size that was chosen
    std::vector<Box> boxes; ///< of the labels that are shown, the first ones
    int hidden = 0;         ///< how many are not
    Box more;               ///< of "+n", when some are hidden
};

/// Places the labels line by line around the focus: first in one column with the font shrinking to
/// kLeastScale, then in two to six columns in the same way, then as many as there is room for with
/// "+n" behind them. Letters below 6.5 units come only after columns of larger ones. Nothing is
/// ever placed outside the area.
[[nodiscard]] Packing packLabels(const PackingTask& task);

/// Places one text with its centre as close to the spot as the area lets it, shrunk as far as it
/// must be. `scale` becomes the share of the size.
[[nodiscard]] Box placeText(const ConvexArea& area, Spot spot, double width, double size,
                            bool characterGrid, double& scale);

} // namespace kestrav::present
