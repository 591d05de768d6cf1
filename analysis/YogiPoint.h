// The Yogi point with its planets, and the Part of Fortune.
#pragma once

#include "core/Chart.h"

namespace kestrav::analysis
{

struct Yogi
{
    double point = 0.0;    ///< sidereal degrees
    int planet = 0;        ///< lord of its nakshatra, a point 1 to 9
    int duplicate = 0;     ///< lord of its sign, a planet 1 to 7
    double avayogi = 0.0;  ///< the Avayogi point, sidereal degrees
    int avayogiPlanet = 0; ///< lord of that point's nakshatra, a point 1 to 9
};

/// The Yogi and Avayogi of the longitudes of Sun and Moon.
[[nodiscard]] Yogi yogiOf(double sun, double moon);

/// The Part of Fortune in degrees; Sun and Moon change places by night.
[[nodiscard]] double partOfFortune(double ascendant, double sun, double moon, bool night);

/// Fills points 59 and 60 where the Sun, the Moon and, for the latter, the ascendant are there.
void computeYogiAndFortune(core::Chart& chart);

} // namespace kestrav::analysis
