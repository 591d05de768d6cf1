// Sign, degree in sign, navamsha sign and nakshatra position of a longitude.
#pragma once

#include <cmath>

namespace kestrav::core
{

/// Sign 1 to 12 of a longitude 0 to under 360.
[[nodiscard]] inline int signOfLongitude(double longitude)
{
    return int(std::floor(longitude / 30.0)) + 1;
}

/// Degree in sign, 0 to under 30.
[[nodiscard]] inline double degreeInSignOf(double longitude)
{
    return longitude - 30.0 * std::floor(longitude / 30.0);
}

/// Navamsha sign 1 to 12. The factor 0.3 puts 25 of the 108 navamsha starts one sign lower than the
/// Navamsha varga does; both are meant, and neither is derived from the other.
[[nodiscard]] inline int navamshaSignOf(double longitude)
{
    return int(std::floor(longitude * 0.3)) % 12 + 1;
}

/// Nakshatras from the start of Ashwini with the fraction, 0 to under 27.
[[nodiscard]] inline double nakshatraPositionOf(double longitude)
{
    return longitude * 0.075;
}

} // namespace kestrav::core
