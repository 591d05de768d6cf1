// Tables of dignities, relationships and functional nature.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"

namespace kestrav::present
{

/// Sign, dignity, combustion and functional nature of the planets.
[[nodiscard]] Table planetsTable(const ComputedChart& computed);

/// The short dignity words of the planets in the scored divisional charts.
[[nodiscard]] Table dignitiesTable(const ComputedChart& computed);

/// The same with the points of vimshopaka below, every cell with a shade for its dignity: -3 for
/// debilitated to 4 for exalted, 0 where a debilitation is cancelled. Vimshopaka is shaded by its
/// word: -2 weak, -1 small, 1 middling, 3 full.
[[nodiscard]] Table heatTable(const ComputedChart& computed);

/// What each planet (row) is to the others by nature, and with the temporary relationship added.
[[nodiscard]] Table naturalRelationshipsTable();
[[nodiscard]] Table compoundRelationshipsTable(const ComputedChart& computed);

} // namespace kestrav::present
