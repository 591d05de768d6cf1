// The points that analysis adds to the point table: upagrahas, special lagnas, arudhas, the Yogi
// point, the Part of Fortune and two sahams.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

/// Fills points 10 to 21, 24 to 31 and 47 to 62 with their sign data from the positions, the
/// ascendant, the running day and the weekday. A point whose sources are missing stays not
/// computed: 15 to 21, 24 to 26 and 29 in a chart without moment and where the Sun does not rise or
/// set, further ones when a body was not computed. Muntha and Janmalagna (22, 23) belong to annual
/// charts and are left alone. The context may be left at the sunrise. Allocates nothing.
void computeSpecialPoints(core::Chart& chart, const core::Settings& settings,
                          astro::EphemerisContext& context);

} // namespace kestrav::analysis
