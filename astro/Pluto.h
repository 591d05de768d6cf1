// Pluto's heliocentric theory and the rotations of its frame, the fixed equinox of J2000.0.
#pragma once

#include "astro/Engine.h"

namespace kestrav::astro
{

/// Heliocentric ecliptic coordinates of Pluto, J2000.0 (Astronomical Algorithms, chapter 37, Table
/// 37.A). `centuries` are Julian centuries from J2000.0. The theory is fitted to 1885-2099; far
/// outside its longitudes are wrong by degrees.
[[nodiscard]] HeliocentricPosition plutoHeliocentric(double centuries);

/// An ecliptic J2000.0 position turned to the equator of J2000.0.
[[nodiscard]] Rectangular equatorialJ2000(const HeliocentricPosition& position);

/// The Sun's geocentric equatorial coordinates of J2000.0 from the Earth's heliocentric ones.
[[nodiscard]] Rectangular sunEquatorialJ2000(const HeliocentricPosition& earth);

/// Ecliptic longitude of J2000.0 in degrees, 0 to under 360, and latitude in radians.
struct EclipticJ2000
{
    double longitude;
    double latitude;
};

[[nodiscard]] EclipticJ2000 eclipticJ2000(const Rectangular& equatorial);

} // namespace kestrav::astro
