// Tables of special points, karakas, sphutas and sahams.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"

namespace kestrav::present
{

/// Upagrahas, special lagnas, arudha padas, sahams and the other points beside the bodies.
[[nodiscard]] Table specialPointsTable(const ComputedChart& computed);

/// The chara karakas, seven or eight as the settings say.
[[nodiscard]] Table karakasTable(const ComputedChart& computed);

/// Yogi and Avayogi; without rows when Sun or Moon are not computed.
[[nodiscard]] Table yogiTable(const ComputedChart& computed);

[[nodiscard]] Table sphutasTable(const ComputedChart& computed);
[[nodiscard]] Table sahamsTable(const ComputedChart& computed);

/// The table with its rows in two halves side by side, for pages that are wide and not long.
[[nodiscard]] Table sideBySide(const Table& table);

} // namespace kestrav::present
