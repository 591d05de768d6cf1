// How positions are told that the user has given to points of a chart.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "timing/DashaOptions.h"

#include <string>

namespace kestrav::present
{

/// "Changed by you: Sun, Midheaven"; empty where every point stands where it is computed. The
/// tenth cusp stands for the midheaven.
[[nodiscard]] std::wstring changedPointsLine(const ComputedChart& computed);

/// Writes "*" behind the names of changed points that begin a row, and says below the table what it
/// means. Tables of other moments and of two charts, whose points are not only the chart's own,
/// are left as they are.
void markChangedPoints(Table& table, const ComputedChart& computed);

/// The dasha options of the chart's settings, with the word that its Sun was changed.
[[nodiscard]] timing::DashaOptions dashaOptions(const ComputedChart& computed);

} // namespace kestrav::present
