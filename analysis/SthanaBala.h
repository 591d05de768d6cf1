// Sthana bala: the strength of a planet by its place.
#pragma once

#include "analysis/StrengthParts.h"
#include "core/Chart.h"

namespace kestrav::analysis
{

struct SthanaBala
{
    Strength uccha;        ///< nearness to the deepest exaltation, 0 to 60
    Strength saptavargaja; ///< dignity in seven divisional charts
    Strength ojayugma;     ///< odd or even sign and navamsha, 0, 15 or 30
    Strength kendradi;     ///< angular, succedent or cadent sign, 60, 30 or 15
    Strength drekkana;     ///< third of the sign, 0 or 15

    [[nodiscard]] Strength total() const;
};

/// Place strength of planet 1 to 7. Needs its vargas and the compound relationships; kendradi needs
/// the ascendant.
[[nodiscard]] SthanaBala sthanaBala(const core::Chart& chart, int planet);

} // namespace kestrav::analysis
