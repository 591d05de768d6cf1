// The shared date as it is written and typed: date order and clock of the settings, on the clock of
// the place that the shared date belongs to.
#pragma once

#include "core/DateTime.h"
#include "core/Result.h"
#include "core/Settings.h"

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

/// The date as it is typed, in the order of the settings.
[[nodiscard]] std::wstring typedDate(const core::DateTimeRecord& date,
                                     const core::Settings& settings);

/// Reads such a date, or "2026-01-15" whatever the order. The error says in a whole sentence what
/// is wrong.
[[nodiscard]] core::Result<core::DateTimeRecord> readTypedDate(std::wstring_view text,
                                                               const core::Settings& settings);

/// "2026-01-15 12:00:00, Thursday" on the clock of the shared date.
[[nodiscard]] QString momentLine(const Workspace& workspace, double moment);

/// An error's message as a sentence of its own.
[[nodiscard]] QString asSentence(const std::string& message);

} // namespace kestrav::desktop
