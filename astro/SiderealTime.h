// Obliquity, sidereal time, declination and right ascension.
#pragma once

#include "core/Chart.h"

namespace kestrav::astro
{

/// Obliquity of the ecliptic in degrees, T centuries from 1900 January 0.5. The linear term only.
[[nodiscard]] double obliquityDegrees(double T);

/// Stores the obliquity of the chart's T in the chart, with its cosine and sine.
void Obliquity(core::Chart& chart);

/// Mean sidereal time at a geographic longitude (degrees east) in hours, 0 to under 24, from the
/// day count of the moment and its Universal Time, which need not lie inside 0 to 24.
[[nodiscard]] double siderealTimeHours(double dayCount, double utHours, double geoLongitude);

/// Local mean sidereal time of the chart in hours, 0 to under 24. With `useOtherTime` the chart's
/// second clock time is taken; the stored day count stays that of the first one, so a second time
/// more than 12 hours away gives a result that is off by 236.6 seconds.
[[nodiscard]] double LocalSiderealTime(const core::Chart& chart, bool useOtherTime = false);

/// Declination in radians of tropical ecliptic coordinates in radians.
[[nodiscard]] double declinationOf(double longitude, double latitude, double cosObliquity,
                                   double sinObliquity);

/// The slot of a point in the chart's declination array: 1 to 9 have their own, 32 to 34 stand 22
/// places lower. Other points have no declination and give -1.
[[nodiscard]] int declinationSlot(int point);

/// Computes and stores the declination of a point that has a slot, in radians.
void Declination(core::Chart& chart, int point);

/// Right ascension in hours of a sidereal longitude (degrees) on the ecliptic. A tropical longitude
/// of exactly 180 degrees gives 24, because the tangent of pi is slightly negative; its neighbours
/// are right.
[[nodiscard]] double RightAscensionHours(const core::Chart& chart, double siderealLongitude);

} // namespace kestrav::astro
