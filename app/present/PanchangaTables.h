// Tables of the panchanga: the elements of a day with their times, its parts, and lists of days.
#pragma once

#include "app/present/Table.h"
#include "timing/Panchanga.h"

#include <vector>

namespace kestrav::present
{

/// Date, Sun and Moon, month, season and years, and the strength of the day's Moon where there is a
/// native. Clock times here and below are hours of the civil date, with '-' and '+' behind those of
/// the dates before and after.
[[nodiscard]] Table panchangaTable(const timing::PanchangaDay& day, bool twelveHour);

// The elements in force between the sunrises with their whole periods.
[[nodiscard]] Table tithisTable(const timing::PanchangaDay& day, bool twelveHour);
[[nodiscard]] Table nakshatrasTable(const timing::PanchangaDay& day, bool twelveHour);
[[nodiscard]] Table nityaYogasTable(const timing::PanchangaDay& day, bool twelveHour);
[[nodiscard]] Table karanasTable(const timing::PanchangaDay& day, bool twelveHour);

/// The horas of day and night side by side. Without rows where there is neither, as the next.
[[nodiscard]] Table horasTable(const timing::PanchangaDay& day, bool twelveHour);

/// The eighths of day and night with their choghadia, or kala velas, or both.
[[nodiscard]] Table choghadiaTable(const timing::PanchangaDay& day, bool twelveHour);
[[nodiscard]] Table kalaVelasTable(const timing::PanchangaDay& day, bool twelveHour);
[[nodiscard]] Table eighthsTable(const timing::PanchangaDay& day, bool twelveHour);

/// Rahu kalam, Abhijit, varjyam and the other stretches of the day with what they are held to be.
[[nodiscard]] Table kalamsTable(const timing::PanchangaDay& day, bool twelveHour);

/// One row for a day and more where several elements of a kind end in it. The strength of the Moon
/// has columns when the first day has a native.
[[nodiscard]] Table panchangaDaysTable(const std::vector<timing::PanchangaDay>& days,
                                       bool twelveHour);

} // namespace kestrav::present
