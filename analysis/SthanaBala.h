// Sthana bala: the strength of a planet by its place.
#pragma once

#include "analysis/StrengthParts.h"
#include "core/Chart.h"

#include <array>

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

/// What one divisional chart adds to saptavargaja bala.
struct SaptavargajaPart
{
    int varga = 0;
    int sign = 0; ///< 0 where the planet has no placement
    Strength score;
};

/// The seven parts of a planet 1 to 7 that has a position. The Hora is that of rule 0, whatever the
/// settings say.
[[nodiscard]] std::array<SaptavargajaPart, 7> saptavargajaParts(const core::Chart& chart,
                                                                int planet);

/// Place strength of planet 1 to 7. Needs its vargas and the compound relationships; kendradi needs
/// the ascendant.
[[nodiscard]] SthanaBala sthanaBala(const core::Chart& chart, int planet);

} // namespace kestrav::analysis
