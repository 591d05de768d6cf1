// Tara bala and chandra bala: the day's Moon against the Moon of a native.
#pragma once

#include <string_view>

namespace kestrav::timing
{

struct TaraBala
{
    int score = 0; ///< +1, 0 for the birth star, -1
    std::wstring_view text;
};

/// Tara bala from two nakshatra positions of the Moon, 0 to under 27. Only the same nakshatra is
/// the birth star; the tenth and the nineteenth from it are favourable.
[[nodiscard]] TaraBala taraBala(double nakshatraPosition, double birthNakshatraPosition);

/// Chandra bala from the Moon's sign and that of the birth Moon, 1 to 12: +1 in the 1st, 3rd, 6th,
/// 7th, 10th and 11th sign from it, -1 in the 4th, 8th and 12th, else 0.
[[nodiscard]] int chandraBala(int sign, int birthSign);

} // namespace kestrav::timing
