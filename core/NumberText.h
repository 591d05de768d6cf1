// Numbers, dates, clock times and angles in text, the same in every locale.
#pragma once

#include "core/Result.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrav::core
{

/// The whole text as a decimal number, or nothing. Infinities and not-a-number are refused.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

/// The whole text as an integer in the range of int, or nothing.
[[nodiscard]] std::optional<int> parseInteger(std::string_view text);

/// The integer at the beginning of the text, up to the first character that is no part of it; 0
/// when there is none. Values outside the range of int are clamped.
[[nodiscard]] int readLeadingInteger(std::string_view text);

/// The decimal number at the beginning of the text; 0 when there is none.
[[nodiscard]] double readLeadingNumber(std::string_view text);

/// The shortest decimal text that reads back as the same number.
[[nodiscard]] std::string shortestNumber(double value);

struct CivilDate
{
    int year;
    int month;
    int day;
};

/// A date "YYYY-MM-DD" that exists, in historical numbering ("-0044-03-15" is in 44 BC).
[[nodiscard]] Result<CivilDate> parseDate(std::string_view text);

/// A clock time "HH:MM", "HH:MM:SS" or "HH:MM:SS.f" in hours, 0 to under 24.
[[nodiscard]] Result<double> parseClock(std::string_view text);

/// A zone "+5:30", "-4:56:02" or "5.5" in hours east of Greenwich, within 15 hours.
[[nodiscard]] Result<double> parseZone(std::string_view text);

/// A geographic longitude "77E13", "77E13:30", "0w7" or a decimal number, in degrees east.
[[nodiscard]] Result<double> parseGeoLongitude(std::string_view text);

/// A geographic latitude "28N39", "28N39:15" or a decimal number, in degrees north.
[[nodiscard]] Result<double> parseGeoLatitude(std::string_view text);

} // namespace kestrav::core
