// The table of the charts of a database.
#pragma once

#include "app/present/Table.h"
#include "data/Chooser.h"

#include <vector>

namespace kestrav::present
{

/// Line, name, date, time, tag, sex and code of the rows of a list, in the order of `order`, which
/// has indexes into list.rows.
[[nodiscard]] Table chartListTable(const data::ChooserList& list,
                                   const std::vector<std::size_t>& order);

} // namespace kestrav::present
