// The analysis of a computed chart: everything that follows from its positions.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

/// Fills the special points, the divisional charts, relationships, combustion and vimshopaka of a
/// chart whose positions were computed. The points 0 to 9 must be there. The context is used for
/// the Sun at sunrise only.
void AnalyseChart(core::Chart& chart, const core::Settings& settings,
                  astro::EphemerisContext& context);

/// The part of it that needs no engine: compound relationships, combustion, divisional charts and
/// vimshopaka of the points that the chart has.
void analyseSigns(core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::analysis
