// Values as text where no text form of the program fits.
#pragma once

#include "core/DateTime.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrav::present
{

/// A number with a fixed count of decimals, the same in every locale.
[[nodiscard]] std::wstring fixedNumber(double value, int decimals);

/// The same, "--" for what is not there.
[[nodiscard]] std::wstring numberOrNone(const std::optional<double>& value, int decimals);

/// A text in lines of at most 100 characters, broken between words. The first begins with `lead`,
/// the others with as many blanks.
[[nodiscard]] std::wstring wrapped(std::wstring_view text, std::wstring_view lead);

/// Clock time rounded to the second, with the marker and the 12-hour rules of FormatClock but no
/// blank where it has no marker.
[[nodiscard]] std::wstring clockSeconds(double hours, bool twelveHour);

/// A date as it is typed, with the year BC where it is one.
[[nodiscard]] std::wstring dateText(const core::DateTimeRecord& record);

/// A geographic coordinate in degrees, minutes and seconds with its letter.
[[nodiscard]] std::wstring geoText(double degrees, wchar_t positive, wchar_t negative);

/// The long name of a point without the blank in which some names end.
[[nodiscard]] std::wstring pointLabel(int point);

/// The text without the blanks at its end, which fill some fixed texts up to a width.
[[nodiscard]] std::wstring withoutEndBlanks(std::wstring_view text);

/// Nakshatra 0 to 26 of a nakshatra position.
[[nodiscard]] int nakshatraOf(double position);

/// Quarter 1 to 4 of the nakshatra of a nakshatra position.
[[nodiscard]] int padaOf(double position);

} // namespace kestrav::present
