// Tithi Astottari: the Astottari lords, the first one found from the running tithi.
#pragma once

#include "core/Chart.h"
#include "timing/DashaPlan.h"

namespace kestrav::timing
{

/// The lord, a planet 1 to 8, of a tithi 1 to 30.
[[nodiscard]] int lordOfTithi(int tithi);

/// Fills lords, years, first lord and the part passed. Sun and Moon must be there.
void fillTithiDasha(const core::Chart& chart, DashaPlan& plan);

} // namespace kestrav::timing
