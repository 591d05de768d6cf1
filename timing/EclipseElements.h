// The geometry of one new or full moon, from which follows whether it is an eclipse and of which
// kind.
#pragma once

#include <optional>

namespace kestrav::timing
{

/// The shadow at the moment of greatest eclipse. Lengths are in equatorial radii of the Earth.
struct EclipseElements
{
    double greatest = 0.0;    ///< Julian day in Terrestrial Time
    double gamma = 0.0;       ///< least distance of the shadow's axis from the centre of the Earth,
                              ///< or of the Moon from the axis of the Earth's shadow
    double u = 0.0;           ///< radius of the Moon's umbra in the plane through that centre;
                              ///< negative when the umbra reaches it
    double moonAnomaly = 0.0; ///< the Moon's mean anomaly in degrees, not reduced
};

/// The whole number of lunations from the new moon of 2000 January 6 to about a Julian day, from
/// which the exact one is at most two away within ten thousand years.
[[nodiscard]] double lunationNear(double julianDay);

/// The elements of a lunation: a whole number is a new moon, a half more a full moon. Nothing when
/// the Moon is too far from its nodes for any eclipse.
/// Source: J. Meeus, Astronomical Algorithms, chapter 54.
[[nodiscard]] std::optional<EclipseElements> eclipseElements(double lunation);

} // namespace kestrav::timing
