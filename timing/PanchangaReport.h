// The text of the panchanga page: one function for each kind of line, and the whole report.
#pragma once

#include "timing/Panchanga.h"

#include <string>

namespace kestrav::timing
{

/// The title, the date with its weekday and the note that explains the times and their marks.
/// All functions append whole lines to the report, in the language of the display flags; the clock
/// form is that of FormatClock.
void appendHeader(std::wstring& report, const PanchangaDay& day);

/// Sunrise, sunset, moonrise and moonset, and the lunar month. What does not exist on the day is
/// said in words.
void appendSunAndMonth(std::wstring& report, const PanchangaDay& day, bool twelveHour);

/// Season, half year and the counts of years.
void appendYear(std::wstring& report, const PanchangaDay& day);

/// One line for every element of the kind that is in force during the day. The first one has its
/// beginning too.
void appendTithis(std::wstring& report, const PanchangaDay& day, bool twelveHour);
void appendNakshatras(std::wstring& report, const PanchangaDay& day, bool twelveHour);
void appendYogas(std::wstring& report, const PanchangaDay& day, bool twelveHour);
void appendKaranas(std::wstring& report, const PanchangaDay& day, bool twelveHour);

/// The beginnings of the parts of the day, each beside that of the night. Nothing where neither
/// exists.
void appendHoras(std::wstring& report, const PanchangaDay& day, bool twelveHour);
void appendChoghadia(std::wstring& report, const PanchangaDay& day, bool twelveHour);
void appendKalaVelas(std::wstring& report, const PanchangaDay& day, bool twelveHour);

/// Rahu kalam and the other stretches of the day with beginning and end.
void appendKalams(std::wstring& report, const PanchangaDay& day, bool twelveHour);

/// Tara bala and chandra bala, when there is a native.
void appendMoonStrength(std::wstring& report, const PanchangaDay& day);

/// All of it.
[[nodiscard]] std::wstring panchangaReport(const PanchangaDay& day, bool twelveHour);

} // namespace kestrav::timing
