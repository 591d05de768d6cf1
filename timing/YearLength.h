// How many days a dasha year has.
#pragma once

#include "core/Messages.h"
#include "core/Settings.h"

namespace kestrav::timing
{

/// The choices of the year length, in the order of the setting.
enum class YearLength : int
{
    TrueSolar = 0, ///< the Sun's way round to its place at birth
    MeanTropical,
    MeanSidereal,
    Days360,
    Days354,
    Jovian, ///< the mean time of Jupiter through one sign
    Custom,
};

/// Days of a mean sidereal year, from which the search for true solar years starts.
inline constexpr double kMeanSiderealYear = 365.256364;

inline constexpr double kDefaultCustomYear = 365.25;

/// Days in a year of the choice. True Solar gives the mean sidereal year. A custom length is held
/// inside 200 to 500 days; one that is no number gives its default.
[[nodiscard]] double yearDays(YearLength choice, double customDays);

/// Sets True Solar years back to Mean Sidereal and says so when the Sun's position is not the
/// computed one, because its way cannot be followed then. Returns whether it did.
bool leaveTrueSolarYear(core::Settings& settings, bool sunModified, core::Messages& messages);

} // namespace kestrav::timing
