// The nakshatra and pada of a position, and the lords of the nakshatras with their years.
#pragma once

#include <array>

namespace kestrav::analysis
{

/// The lords of the first nine nakshatras, Ashwini first; they repeat twice. Points 1 to 9.
inline constexpr std::array<int, 9> kNakshatraLords = {9, 6, 1, 2, 3, 8, 5, 7, 4};

/// The years of these lords in the cycle of 120 years, in the same order.
inline constexpr std::array<double, 9> kVimshottariYears = {7, 20, 6, 10, 7, 18, 16, 19, 17};

/// The nakshatra, 0 (Ashwini) to 26, of a nakshatra position; positions outside 0 to 27 are
/// reduced.
[[nodiscard]] int nakshatraOf(double nakshatraPosition);

/// The part of the nakshatra already passed, 0 to under 1.
[[nodiscard]] double nakshatraFraction(double nakshatraPosition);

/// The pada, 1 to 4.
[[nodiscard]] int padaOf(double nakshatraPosition);

/// The Vimshottari lord, a point 1 to 9, of the nakshatra of a position.
[[nodiscard]] int nakshatraLord(double nakshatraPosition);

/// The Vimshottari years of a lord, a point 1 to 9.
[[nodiscard]] double vimshottariYears(int lord);

} // namespace kestrav::analysis
