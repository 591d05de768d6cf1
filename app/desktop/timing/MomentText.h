// The shared date as it is written and typed: date order and clock of the settings, on the clock of
// the place that the shared date belongs to.
#pragma once

#include "core/DateTime.h"
#include "core/Result.h"

#include <QString>

#include <string>
#include <string_view>

namespace kestrav::desktop
{

class Workspace;

/// A moment on a clock, rounded to the second.
struct ClockReading
{
    core::DateTimeRecord date; ///< civil date and clock time
    int weekday = 1;           ///< of the civil date: 1 = Sunday to 7 = Saturday
    double offset = 0.0;       ///< hours of the clock before Universal Time
};

/// The reading of a moment (Julian day of Universal Time) on a clock that is so many hours before
/// Universal Time.
[[nodiscard]] ClockReading readingOn(double moment, double offset);

/// The same on the clock of the shared date: that of the Now location, else of the chart's place,
/// else of the system.
[[nodiscard]] ClockReading readingOf(const Workspace& workspace, double moment);

/// The moment of a civil date and clock hours on that clock.
[[nodiscard]] double momentAt(const Workspace& workspace, const core::DateTimeRecord& date,
                              double hours);

/// "15/01/2026", or "01/15/2026" where the month comes first. Years before Christ are negative.
[[nodiscard]] std::wstring typedDate(const core::DateTimeRecord& date, bool monthFirst);

/// Reads such a date, with any of "/.-" and blanks between its parts; "2026-01-15" too, whatever
/// the order. The error says what is expected.
[[nodiscard]] core::Result<core::DateTimeRecord> readTypedDate(std::wstring_view text,
                                                               bool monthFirst);

/// "2026-01-15 12:00:00, Thursday" on the clock of the shared date.
[[nodiscard]] QString momentLine(const Workspace& workspace, double moment);

} // namespace kestrav::desktop
