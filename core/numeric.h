// Numeric constants, and the guard against unsafe floating-point modes.
#pragma once

#ifdef __FAST_MATH__
#error                                                                                             \
    "Kestrav must not be compiled with fast-math: houses rely on division by zero, and results must not change."
#endif

#include <limits>
#include <numbers>

namespace kestrav::core
{

inline constexpr double kPi = std::numbers::pi;
inline constexpr double kTwoPi = 2.0 * std::numbers::pi;
inline constexpr double kDegreesPerRadian = 180.0 / kPi;
inline constexpr double kRadiansPerDegree = kPi / 180.0;
inline constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace kestrav::core
