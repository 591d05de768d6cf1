// Tables of the divisional charts and the vimshopaka.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"

#include <string>
#include <vector>

namespace kestrav::present
{

/// Points from here on have no placements in the divisional charts.
inline constexpr int kPlacedPoints = core::kPartOfFortune;

/// "Navamsha (D-9), spouse": name, division and meaning.
[[nodiscard]] std::wstring vargaHeading(int varga);

/// What the mark "*" of placements means.
[[nodiscard]] std::wstring boundaryNote(const core::Settings& settings);

/// "D9", which leads to the divisional chart.
[[nodiscard]] Cell vargaCell(int varga);

/// The word of a planet's dignity in a divisional chart, sorted by its display index; empty for
/// points that have none.
[[nodiscard]] Cell vargaDignityCell(const ComputedChart& computed, int varga, int point);

/// The points that are computed and have placements, in their order.
[[nodiscard]] std::vector<int> placedPoints(const ComputedChart& computed);

/// Of these the ascendant, the nine planets and the outer three.
[[nodiscard]] std::vector<int> mainPoints(const ComputedChart& computed);

/// The place 1 to 12 of a sign counted from that of a point, such as the house from the ascendant;
/// 0 when the point has none in the divisional chart, or for sign 0.
[[nodiscard]] int countedFrom(const core::Chart& chart, int reference, int sign,
                              int varga = core::kRashi);

/// Index, division, name and meaning of all divisional charts.
[[nodiscard]] Table vargaListTable();

/// The signs of the points in all divisional charts.
[[nodiscard]] Table vargaSignsTable(const ComputedChart& computed, const std::vector<int>& points);

/// One divisional chart: sign, position, step and dignity of each point.
[[nodiscard]] Table vargaTable(const ComputedChart& computed, int varga);

/// The four sets of vimshopaka with points out of 20 and words.
[[nodiscard]] Table vimshopakaTable(const ComputedChart& computed);

} // namespace kestrav::present
