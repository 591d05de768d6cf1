// Tables of the comparison of two charts for a marriage.
#pragma once

#include "analysis/Matching.h"
#include "app/present/Table.h"

namespace kestrav::present
{

/// The eight kutas with points, maximum and reason, and their total.
[[nodiscard]] Table kutasTable(const analysis::Matching& matching);

/// Whether each dosha holds or is cancelled, with the reason.
[[nodiscard]] Table doshasTable(const analysis::Matching& matching);

} // namespace kestrav::present
