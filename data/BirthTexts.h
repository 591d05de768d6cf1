// The display texts of birth time, zone and place, and the numbers they stand for.
#pragma once

#include "core/Chart.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrav::data
{

/// A clock time as files have it: "14:32", "14:32:10", "2:32 pm", "14.5". 12 and 0 o'clock am are
/// midnight, pm noon. Hours, 0 to under 24.
[[nodiscard]] std::optional<double> readTimeText(std::wstring_view text);

/// A zone: "5:30", "-5:00:00", "5E30", "05:30W", "5.5". Without sign and letter east. Hours, within
/// 16.
[[nodiscard]] std::optional<double> readZoneText(std::wstring_view text);

/// A longitude: " 77E12'32"", "77 12 E", "77.21". Degrees east, within 180.
[[nodiscard]] std::optional<double> readLongitudeText(std::wstring_view text);

/// A latitude in the same forms with N and S. Degrees north, within 90.
[[nodiscard]] std::optional<double> readLatitudeText(std::wstring_view text);

/// "h:mm", or "h:mm:ss" when the time has seconds, rounded to the second.
[[nodiscard]] std::wstring timeText(double hours);

/// "h:mm:ss" with a minus west of Greenwich, rounded to the second.
[[nodiscard]] std::wstring zoneText(double hours);

/// Degrees in three places, E or W, minutes in two places, an apostrophe, seconds in two places and
/// a double quote, rounded to the second: " 77E12'32"".
[[nodiscard]] std::wstring longitudeText(double degrees);

/// The same with degrees in two places and N or S: "28N39' 0"".
[[nodiscard]] std::wstring latitudeText(double degrees);

/// The four display texts of a record.
struct BirthTexts
{
    std::wstring time;
    std::wstring zone;
    std::wstring longitude;
    std::wstring latitude;
};

/// The texts of a record. Those that do not stand for its numbers to the second are made again,
/// the others stay as they were typed.
[[nodiscard]] BirthTexts birthTexts(const core::Chart& chart);

/// One of these texts.
[[nodiscard]] std::wstring longitudeTextOf(const core::Chart& chart);
[[nodiscard]] std::wstring latitudeTextOf(const core::Chart& chart);

/// Stores these texts in the record.
void refreshBirthTexts(core::Chart& chart);

} // namespace kestrav::data
