// Ways through the regions of a diagram: which cell follows which, and what an area is about.
#pragma once

#include "app/present/DisplayList.h"
#include "app/present/Table.h"

#include <vector>

namespace kestrav::present
{

/// The cells of the chart, which are read aloud, as indices of regions: by house where there are
/// houses, else by sign.
[[nodiscard]] std::vector<int> cellsInOrder(const DisplayList& list);

/// The points and "+n" of both charts, cell by cell in that order.
[[nodiscard]] std::vector<int> pointsInOrder(const DisplayList& list);

/// The cell of that list to which a region belongs, itself for a cell; -1 for the middle.
[[nodiscard]] int cellOf(const DisplayList& list, int region);

/// The region of a point of a layer, -1 where it is not shown by itself.
[[nodiscard]] int regionOfPoint(const DisplayList& list, int point, int layer = 0);

/// What a region is about. `ascendantSign` is that of the chart, 0 without one; a house that counts
/// from elsewhere, or has another sign than the one it has by signs, leads to the sign.
[[nodiscard]] Link linkOf(const Region& region, int varga, int ascendantSign);

/// The regions that stand for what a link leads to, in a diagram of that varga.
[[nodiscard]] std::vector<int> regionsOf(const DisplayList& list, const Link& link, int varga,
                                         int ascendantSign);

} // namespace kestrav::present
