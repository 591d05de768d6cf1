// Aspects of planets by house and by degree.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

/// Whether a planet 1 to 9 has a full graha aspect on the house-th sign counted from its own
/// (inclusive, 1 to 12): all the 7th; Mars the 4th and 8th, Jupiter the 5th and 9th, Saturn the 3rd
/// and 10th; the nodes only the 5th and 9th, and the 2nd or 12th by nodeAspectOption.
[[nodiscard]] bool fullGrahaAspect(int planet, int house, const core::Settings& settings);

/// Share of a full aspect that a planet casts on the house-th sign from its own: 1, 0.75, 0.5, 0.25
/// or 0. Nodes cast full aspects only.
[[nodiscard]] double grahaAspectShare(int planet, int house, const core::Settings& settings);

/// Whether a planet of the chart fully aspects a sign in the rashi. One without a position does
/// not.
[[nodiscard]] bool fullyAspects(const core::Chart& chart, int planet, int sign,
                                const core::Settings& settings);

/// Value in virupas, 0 to 60, of the aspect of planet 1 to 7 on a point k degrees further on
/// (aspected - aspecting, 0 to under 360).
[[nodiscard]] double aspectValue(int planet, double k);

/// Value of the aspect of a planet of the chart on a longitude; 0 for one without a position.
[[nodiscard]] double aspectValueOn(const core::Chart& chart, int planet, double longitude);

} // namespace kestrav::analysis
