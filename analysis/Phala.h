// Ishta and kashta phala: what good and what ill a planet can do.
#pragma once

#include "analysis/StrengthInputs.h"
#include "core/Chart.h"

namespace kestrav::analysis
{

struct Phala
{
    Strength ishta;  ///< 0 to 60
    Strength kashta; ///< 0 to 60
};

/// The motional strength that the phala of planet 1 to 7 reads: that of the planet, but for the Sun
/// the distance of 90 degrees beyond him from the equinox and for the Moon her distance from the
/// Sun, each a third of the arc.
[[nodiscard]] Strength phalaCheshta(const core::Chart& chart, const StrengthInputs& inputs,
                                    int planet);

/// The phala of an uccha bala and a motional strength, both 0 to 60.
[[nodiscard]] Phala phalaOf(const Strength& uccha, const Strength& cheshta);

} // namespace kestrav::analysis
