// The name lists that every floor shares: nakshatras, weekdays, lunar months and years.
#pragma once

#include <string_view>

namespace kestrav::core
{

/// Nakshatra 0 (Ashwini) to 26 (Revati); anything else gives "--".
[[nodiscard]] std::wstring_view nakshatraName(int nakshatra);

/// Its three-letter abbreviation.
[[nodiscard]] std::wstring_view nakshatraName3(int nakshatra);

/// Weekday 1 (Sunday) to 7 (Saturday) in the language of the display flags.
[[nodiscard]] std::wstring_view weekdayName(int weekday);

/// Lunar month 1 (Chaitra) to 12 (Phalguna).
[[nodiscard]] std::wstring_view lunarMonthName(int month);

/// Season 0 (Vasanta) to 5 (Shishira).
[[nodiscard]] std::wstring_view rituName(int ritu);

/// Half year 0 (Uttarayana) or 1 (Dakshinayana).
[[nodiscard]] std::wstring_view ayanaName(int ayana);

/// Year 0 (Prabhava) to 59 (Akshaya) of the sixty-year cycle.
[[nodiscard]] std::wstring_view samvatsaraName(int year);

} // namespace kestrav::core
