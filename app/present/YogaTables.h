// The table of the yogas that a chart has.
#pragma once

#include "app/present/Table.h"
#include "yoga/YogaLibrary.h"

namespace kestrav::present
{

/// The yogas that hold in the chart of the subject, with chapter and reasons; the title counts
/// them.
[[nodiscard]] Table yogasTable(const yoga::YogaLibrary& library, yoga::Subject& subject);

} // namespace kestrav::present
