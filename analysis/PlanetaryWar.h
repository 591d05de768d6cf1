// Planetary war: two of Mars to Saturn less than a degree apart.
#pragma once

#include "analysis/StrengthInputs.h"
#include "core/Chart.h"

#include <optional>
#include <vector>

namespace kestrav::analysis
{

struct War
{
    int first = 0; ///< the two planets, in order of the point index
    int second = 0;
    std::optional<int> winner; ///< empty when the latitudes are not known
    std::optional<int> loser;
    Strength bala; ///< what the winner gains and the loser loses
};

/// Apparent diameter of the disc of planet 3 to 7 in seconds of arc, the same at every distance.
[[nodiscard]] double discDiameter(int planet);

/// The wars of a chart, each pair by itself. The planet further north wins; on equal latitudes the
/// one of smaller longitude. `strengths` are the sums of place, direction and time strength without
/// ayana; where one is empty the war has no bala.
[[nodiscard]] std::vector<War> planetaryWars(const core::Chart& chart, const StrengthInputs& inputs,
                                             const PlanetArray<Strength>& strengths);

/// What a planet gains or loses in the wars; 0 when it fights none, empty when one has no bala.
[[nodiscard]] Strength yuddhaBala(const std::vector<War>& wars, int planet);

} // namespace kestrav::analysis
