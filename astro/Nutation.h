// Nutation in longitude and the mean lunar and solar arguments that come with it.
#pragma once

#include "core/DateTime.h"

namespace kestrav::astro
{

/// All in degrees. The nutation is small and signed, the arguments lie in 0 to under 360.
struct NutationResult
{
    double longitude;     ///< nutation in longitude
    double node;          ///< the Moon's mean ascending node
    double sunLongitude;  ///< the Sun's mean longitude
    double sunAnomaly;    ///< the Sun's mean anomaly
    double moonAnomaly;   ///< the Moon's mean anomaly
    double elongation;    ///< the Moon's mean elongation from the Sun
    double moonLongitude; ///< the Moon's mean longitude
    double perigee;       ///< longitude of the lunar perigee
};

/// Nutation in longitude at the moment, good to 0.75 arc seconds between 1900 and 2100, with its
/// arguments.
[[nodiscard]] NutationResult Nutation(const core::TimeArguments& time);

} // namespace kestrav::astro
