// What the window tells about the thing that is selected.
#pragma once

#include "app/present/Table.h"
#include "app/present/TableCatalogue.h"
#include "timing/DashaWalk.h"

#include <string>
#include <vector>

namespace kestrav::present
{

struct Inspection
{
    std::wstring title; ///< "Mars", "House 4, Cancer (Navamsha)"; empty when nothing is selected
    std::vector<Table> sections; ///< each with its title, in the order of reading
};

/// Everything about a point, sign, house, divisional chart, nakshatra or moment of the chart of the
/// source; nothing for a number that does not exist. The library of yogas and the tables of
/// matching are used where the source has them. What the chart does not have is said in notes.
[[nodiscard]] Inspection inspect(const TableSource& source, const Link& about);

/// A period of the chosen dasha: its dates, its sub-periods and where its lord stands.
[[nodiscard]] Inspection inspectPeriod(const TableSource& source,
                                       const timing::DashaPeriod& period);

/// A tithi 0 to 29.
[[nodiscard]] Inspection inspectTithi(int tithi);

} // namespace kestrav::present
