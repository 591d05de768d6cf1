// The balance of the Vimshottari dasha that runs at birth, for the report header.
#pragma once

#include "core/Chart.h"

#include <optional>
#include <string>

namespace kestrav::timing
{

struct DashaBalance
{
    int lord = 0; ///< planet 1 to 9
    int years = 0;
    int months = 0;
    int days = 0; ///< 0 to 30; a month has 30.5 days, whatever the dasha year
};

/// The balance of a nakshatra position 0 to under 27.
[[nodiscard]] DashaBalance balanceOf(double nakshatraPosition);

/// The balance of a chart's Moon, whatever the dasha options are; nothing without the Moon.
[[nodiscard]] std::optional<DashaBalance> balanceAtBirth(const core::Chart& chart);

/// "Balance of %s Dasha %dY %dM %dD" with the lord's name in the language of the display flags.
[[nodiscard]] std::wstring balanceLine(const DashaBalance& balance);

} // namespace kestrav::timing
