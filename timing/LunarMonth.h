// The lunar month of a moment, with the leap and the lost months, and the years that follow from
// it.
#pragma once

#include "core/DateTime.h"
#include "timing/SiderealSky.h"

#include <string>

namespace kestrav::timing
{

/// A month from new moon to new moon (amanta).
struct LunarMonth
{
    int number = 0;      ///< 1 (Chaitra) to 12 (Phalguna)
    bool adhika = false; ///< the leap month before the true month of that number
    bool kshaya = false; ///< the Sun enters two signs in it, so the following number is lost
    double begin = 0.0;  ///< Julian day of its new moon
    double end = 0.0;    ///< Julian day of the next one
};

/// The month that runs at a Julian day of Universal Time; number 0 for a moment out of reach. It is
/// named after the Sun's sign at the new moons. The Sun can stand within 0.04 degrees of a sign's
/// limit there, so leap and lost months belong to one ayanamsa.
[[nodiscard]] LunarMonth lunarMonthAt(SiderealSky& sky, double julianDay);

/// The number of the month that runs from full moon to full moon (purnimanta) in a half of an
/// amanta month. The waning half has the name of the next amanta month that is no leap month,
/// except in a leap month.
[[nodiscard]] int purnimantaMonth(SiderealSky& sky, const LunarMonth& month, bool krishna);

/// The name with "Ad." before that of a leap month; both names joined by '-' when one is lost.
[[nodiscard]] std::wstring lunarMonthText(const LunarMonth& month);

/// The season, 0 to 5, of a month number.
[[nodiscard]] int rituOf(int monthNumber);

/// The half year: 0 (Uttarayana) while the Sun is between 270 and 90 degrees, else 1. With the
/// sidereal Sun it begins at Makara and Karka, with the tropical Sun at the solstices.
[[nodiscard]] int ayanaOf(double sun);

/// Counts of years that begin with Chaitra.
struct LunarYear
{
    int shaka = 0;
    int vikrama = 0;
    int southernSamvatsara = 0; ///< 0 (Prabhava) to 59
    int northernSamvatsara = 0;
};

/// The years of a civil date in a lunar month. A month of number 9 to 12 from January to April
/// still belongs to the year before; the rule goes by these civil months in every century, although
/// Chaitra leaves them some thousand years from now.
[[nodiscard]] LunarYear lunarYearOf(const core::DateTimeRecord& date, int monthNumber);

} // namespace kestrav::timing
