// Saturn's passages around the birth Moon.
#pragma once

#include "timing/EventSearch.h"
#include "timing/SiderealSky.h"

#include <string_view>
#include <vector>

namespace kestrav::timing
{

/// A stay of Saturn in the 12th, 1st or 2nd sign from the birth Moon, which are the three phases of
/// Sade Sati, or in the 4th or 8th, the small ones.
struct SaturnPhase
{
    int house = 0;      ///< of Saturn from the Moon: 12, 1, 2, 4 or 8
    int sign = 0;       ///< in which Saturn stands, 1 to 12
    double begin = 0.0; ///< Julian days of Universal Time
    double end = 0.0;
    bool isReturn = false; ///< Saturn came back into the sign retrograde

    [[nodiscard]] bool isSmall() const
    {
        return house == 4 || house == 8;
    }
};

/// The phases that overlap a span, each with its whole length. Ingresses bound them, so a
/// retrograde return into a sign is a phase of its own. `moonSign` is 1 to 12.
[[nodiscard]] std::vector<SaturnPhase> sadeSati(SiderealSky& sky, int moonSign, Span span);

/// What a phase is called.
[[nodiscard]] std::wstring_view saturnPhaseName(int house);

} // namespace kestrav::timing
