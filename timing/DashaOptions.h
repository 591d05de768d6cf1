// The choices that a dasha computation reads.
#pragma once

#include "core/Settings.h"
#include "timing/YearLength.h"

namespace kestrav::timing
{

/// Where the sub-periods of a sign dasha begin.
enum class SubPeriodStart : int
{
    OwnSign = 0,    ///< the sign of the parent period
    StrongerOfBoth, ///< the stronger of that sign and its seventh
    SignOfLord,     ///< the sign in which the lord of that sign stands
};

/// Start points beyond the points 0 to 9: the Moon's nakshatra moved on by 3, 4, 5 or 7.
inline constexpr int kKshemaStart = 10;
inline constexpr int kUtpannaStart = 11;
inline constexpr int kSadhaStart = 12;
inline constexpr int kAdhanaStart = 13;

struct DashaOptions
{
    int system = 0;      ///< a DashaSystem
    int startPoint = 2;  ///< a point 0 to 9, or one of the start points above
    int totalLength = 0; ///< 0 the system's own, 1 to 4: a cycle of 1, 1/4, 1/8 or 1/12 year
    bool fractionByTime = false; ///< whether the passed part of the nakshatra is that of the time
    YearLength yearLength = YearLength::MeanSidereal;
    double customYearDays = kDefaultCustomYear;
    bool sunModified = false; ///< the user moved the Sun, so True Solar years do not exist

    SubPeriodStart subPeriodStart = SubPeriodStart::OwnSign; ///< sign dashas
    bool charaOwnSignLast = true;      ///< Jaimini Chara: the parent's sign closes its sub-periods
    bool charaExaltationYears = false; ///< Jaimini Chara: a year more or less for an exalted or
                                       ///< debilitated lord, as in the other sign dashas
    bool dwisaptatiLordInAscendant = false; ///< Dwisaptati sama applies with its own lord in the
                                            ///< ascendant, too
};

/// The options that the settings hold; the others keep their defaults.
[[nodiscard]] DashaOptions dashaOptions(const core::Settings& settings);

/// The length of the cycle in years that the total-length choice 1 to 4 asks for; 0 for any other.
[[nodiscard]] double chosenCycleYears(int totalLength);

} // namespace kestrav::timing
