// The Moon from a truncated ELP/MPP02 series, used when the precise Moon is chosen.
#pragma once

namespace kestrav::astro
{

struct MoonPosition
{
    double longitude; // degrees, 0 <= longitude < 360, mean equinox and ecliptic of date
    double latitude;  // radians, as every latitude the engine gives
    double distance;  // AU
    double speed;     // degrees per day, in longitude
};

/// Apparent geocentric position of the Moon, without nutation. `centuriesFrom1900` is Julian
/// centuries TT from 1900 January 0.5, so J2000.0 is exactly 1. Within 1 arc second in longitude
/// and latitude and 2 arc seconds a day in speed for 1800 to 2200, within 20 arc seconds back to
/// -3000. The distance is that at the moment when the light left. Re-entrant; a time that is not
/// finite gives not-a-number everywhere.
[[nodiscard]] MoonPosition preciseMoon(double centuriesFrom1900);

} // namespace kestrav::astro
