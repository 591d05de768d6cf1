// Ascendant, midheaven and the twelve house cusps.
#pragma once

#include "astro/Placidus.h" // PlacidusPoint belongs to the cusps
#include "core/Chart.h"

namespace kestrav::astro
{

/// The values follow the order of the option list.
enum class HouseSystem : int
{
    ByRashi = 0,
    EqualHouse = 1,
    SriPati = 2,
    PlacidusVedic = 3,
    PlacidusKp = 4,
};

/// The sidereal ascendant in degrees for a local sidereal time in hours, or, when `mode` is
/// negative, in degrees. When the mode is not 0 the chart's midheaven (sidereal degrees) and the
/// hourly factor of the ascendant are stored too. Needs the chart's obliquity and ayanamsa.
double Ascendant(core::Chart& chart, double siderealTime, int mode);

/// Fills cusps 35 to 46 by the house system; another value leaves them untouched. A cusp that does
/// not exist gets a negative degree in sign; the other cusps get degree 0 until their sign data are
/// computed, except under "By Rashi", where the sign data are set here. Needs the chart's
/// ascendant, midheaven and local sidereal time.
void HouseCusps(core::Chart& chart, int system);

} // namespace kestrav::astro
