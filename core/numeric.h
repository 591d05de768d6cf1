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

/// The value cut toward zero and held inside the range of int; not-a-number gives 0.
[[nodiscard]] constexpr int truncated(double value)
{
    constexpr int kLowest = std::numeric_limits<int>::min();
    constexpr int kHighest = std::numeric_limits<int>::max();
    if (value != value) {
        return 0;
    }
    if (value <= kLowest) {
        return kLowest;
    }
    return value >= kHighest ? kHighest : static_cast<int>(value);
}

} // namespace kestrav::core
