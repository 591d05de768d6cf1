// Tables that compare: two charts with each other, and one chart under two settings.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "astro/Series.h"

namespace kestrav::present
{

/// Where the points of one chart fall in another: the house counted from the ascendant and from the
/// Moon of the other, and its points in the same sign. Houses of what is missing are "--".
[[nodiscard]] Table positionsInChart(const core::Chart& one, const core::Chart& other);

/// What becomes different when the same birth is computed under other settings: the sign,
/// nakshatra, quarter and placements in the divisional charts of every point, and the dasha lords
/// of the first three levels at a moment (Julian day of Universal Time). One row for each change.
[[nodiscard]] Table differencesTable(const ComputedChart& one, const ComputedChart& other,
                                     const astro::Series& series, double moment);

} // namespace kestrav::present
