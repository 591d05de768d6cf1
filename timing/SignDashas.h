// The dashas of signs: whose sign comes first, in which order they follow and for how many years.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"
#include "timing/DashaOptions.h"
#include "timing/DashaPlan.h"

namespace kestrav::timing
{

/// Fills the cycles, the sub-periods and the part already passed of one of the sign dashas. The
/// points 0 to 9 must be there.
void fillSignDasha(const core::Chart& chart, const core::Settings& settings,
                   const DashaOptions& options, DashaPlan& plan);

/// What the twelve houses of the Sudarshana Chakra fall on: the sign of a house 1 to 12 counted
/// from the ascendant, the Moon and the Sun; 0 where the reference was not computed.
[[nodiscard]] std::array<int, 3> sudarshanaSigns(const core::Chart& chart, int house);

} // namespace kestrav::timing
