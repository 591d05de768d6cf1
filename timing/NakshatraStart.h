// Whose mahadasha runs at birth, and how much of it has passed, when the nakshatra tells it.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"
#include "timing/DashaOptions.h"
#include "timing/SunAndMoonAt.h"

#include <optional>

namespace kestrav::timing
{

/// The nakshatra position, 0 to under 27, of a start point 0 to 13. The derived ones lie 3, 4, 5 or
/// 7 nakshatras after the Moon and are reduced by 27. Nothing when the point was not computed.
[[nodiscard]] std::optional<double> startPosition(const core::Chart& chart, int startPoint);

/// The stretch of the zodiac whose passed part decides, in nakshatras.
struct NakshatraStretch
{
    double from;
    double to;
};

/// The stretch around a position: its nakshatra, or with Astottari and Shastihayani between 20 and
/// 22 what the Abhijit nakshatra leaves of Uttarashadha and Shravana, or Abhijit itself.
[[nodiscard]] NakshatraStretch stretchAt(int system, double position);

/// The part of the stretch that the position has passed by longitude, 0 to under 1.
[[nodiscard]] double passedByLongitude(int system, double position);

/// The part of the stretch's time that has passed at a Julian day, between the moments at which the
/// Moon enters and leaves it. Nothing when they are not found within a day and a half.
[[nodiscard]] std::optional<double> passedByTime(const SunAndMoonAt& sky, double julianDay,
                                                 const NakshatraStretch& stretch);

/// The place of the first lord in the row's cycle and the years of its period that have passed.
struct NakshatraStart
{
    int first = 0;
    double elapsed = 0.0;
};

/// The start of one of the nakshatra systems, Kala Chakra excepted, for a position 0 to under 27 of
/// which `passed` (0 to under 1) of its stretch lies behind. Years of the unscaled row.
[[nodiscard]] NakshatraStart nakshatraStart(int system, double position, double passed);

} // namespace kestrav::timing
