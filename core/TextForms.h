// The exact text forms of angles, sign positions and clock times. Every table, report and diagram
// prints through these, so widths, rounding and carries are part of each form.
#pragma once

#include <string>

namespace kestrav::core
{

struct Chart;

/// Degrees (or hours) with minutes and seconds. The seconds are truncated after 1/7200 minute has
/// been added, and nothing is carried: 29.999999 gives 29 60 0.
/// Style 0 "29 60  0", 1 with degree, minute and second marks, 2 "29:60: 0", 3 "29g60p 0v", 4
/// "29:60" and 5 "29:60:00" (4 and 5 never show a sign). Any other style gives an empty text, and a
/// value that is not finite "--".
[[nodiscard]] std::wstring FormatDMS(double value, int style);

/// The older form with styles 0 to 3. Its sign text for a negative value is the literal "-%d" with
/// a degree sign; callers pass values that are not negative.
[[nodiscard]] std::wstring FormatDMSWide(double value, int style);

/// Degrees, minutes and seconds with their marks, without width on the degrees, written to `out`.
void FormatDegMinSec(double value, std::wstring& out);

/// Position in the sign, such as 15 degrees 7' Leo, of a longitude 0 to under 360. `sign` becomes 1
/// to 12. Always in letters: in glyph mode English names are used. Longitudes outside the circle
/// give "--" and sign 0.
[[nodiscard]] std::wstring FormatSignPosition(double longitude, int& sign);
[[nodiscard]] std::wstring FormatSignPosition(double longitude);

/// Writes the position as the beginning of `line`; what it held goes. Returns the sign.
int StartSignPosition(double longitude, std::wstring& line);

/// FormatSignPosition with the two-letter sign name and no blank before it.
[[nodiscard]] std::wstring FormatSignPositionShort(double longitude);

/// Clock time rounded to the minute, followed by a blank, '+' (above 24 hours) or '-' (below 0).
/// 23:59:45 gives hour 24. In 12-hour mode noon is hour 0 "pm" and midnight hour 0 "am", and
/// `leadingZero` has no effect.
[[nodiscard]] std::wstring FormatClock(double hours, bool twelveHour, bool leadingZero);

/// Clock time with truncated minutes and no marker.
[[nodiscard]] std::wstring FormatClockTrunc(double hours, bool twelveHour, bool leadingZero);

/// Hours and minutes of a time in 0..24; other values print as 0:00.
[[nodiscard]] std::wstring FormatHM(double hours);

/// Writes the chart's zone ("%s%d:%02d:%02d") and birth time ("%d:%02d") into its display texts.
/// Minutes that reach 60 are carried into the hours here, unlike in FormatDMS.
void FormatRecordHours(Chart& chart);

} // namespace kestrav::core
