// The tables of a chart that belong to its day of birth or to the days from a moment on.
#pragma once

#include "app/present/TableCatalogue.h"
#include "timing/Panchanga.h"

namespace kestrav::present
{

/// The day of birth. Fails without moment or place.
[[nodiscard]] core::Result<timing::PanchangaDay> panchangaDay(const TableSource& source);

// What happens in the days of the source, on the clock of the birth zone; the first day is that of
// its moment. They fail where the days lie outside the years of the ephemeris.
[[nodiscard]] core::Result<Table> transitsOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> transitKakshyasOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> sadeSatiOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> eclipsesOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> eclipsedPointsOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> ephemerisOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> ephemerisEventsOfDays(const TableSource& source);
[[nodiscard]] core::Result<Table> moonPhasesOfDays(const TableSource& source);

} // namespace kestrav::present
