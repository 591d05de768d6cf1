// The ayanamsa of a moment: what is subtracted from a tropical longitude to make it sidereal.
#pragma once

#include "core/AyanamsaTable.h"
#include "core/DateTime.h"
#include "core/Settings.h"

namespace kestrav::astro
{

/// The date as a decimal year: year + (month - 1)/12 + (day - 1 + UT/24)/(12 x days in the month).
/// February has 28 days, 29 in Gregorian leap years, in every century. The year is the historical
/// one, so between 1 BC December 31 and AD 1 January 1 the result jumps by 1.
[[nodiscard]] double DecimalYear(const core::DateTimeRecord& record);

/// The value of one definition in degrees: (decimal year - epoch year) x rate / 3600 + value.
[[nodiscard]] double ayanamsaOfRow(const core::AyanamsaRow& row, double decimalYear);

/// The ayanamsa of the selected row in degrees, stored into the record too. It stays the linear
/// function for every row; ComputeChart replaces it where the row is tropical.
double Ayanamsa(core::DateTimeRecord& record, const core::Settings& settings);

/// Whether a row makes the chart tropical: an annual rate of zero or less, also in an edited row.
[[nodiscard]] bool isTropical(const core::AyanamsaRow& row);

/// The row that the settings select.
[[nodiscard]] const core::AyanamsaRow& selectedRow(const core::Settings& settings);

/// The precession between the date and the year 2000, in degrees, at the rate of row 0 of the
/// table; positive before 2000. It is subtracted from a longitude of J2000.0 to carry it to the
/// date. Pluto is not carried.
[[nodiscard]] double PrecessionSince2000(const core::DateTimeRecord& record,
                                         const core::Settings& settings);

} // namespace kestrav::astro
