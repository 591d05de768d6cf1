// Tables of what a chart keeps about a person besides the birth.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"

namespace kestrav::present
{

/// The events that have a name, in the order in which they were entered.
[[nodiscard]] Table eventsTable(const ComputedChart& computed);

/// The fields of the contact that are filled in.
[[nodiscard]] Table contactTable(const ComputedChart& computed);

/// A date without a time of day.
[[nodiscard]] Cell plainDateCell(const core::PlainDate& date);

} // namespace kestrav::present
