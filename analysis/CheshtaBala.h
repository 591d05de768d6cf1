// Cheshta bala: the strength of a planet by its motion around the Sun.
#pragma once

#include "analysis/StrengthInputs.h"
#include "core/Chart.h"

namespace kestrav::analysis
{

/// Mean tropical longitude in degrees, 0 to under 360, at a Julian day (Universal Time): of the Sun
/// geocentric, of Mars to Saturn heliocentric. The Moon has none here and gives 0.
[[nodiscard]] double meanLongitude(int planet, double julianDay);

/// Motional strength of planet 1 to 7, 0 to 60; always 0 for Sun and Moon, whose doubled ayana and
/// paksha stand for it. Needs the ayanamsa and the Julian day.
[[nodiscard]] Strength cheshtaBala(const core::Chart& chart, const StrengthInputs& inputs,
                                   int planet);

} // namespace kestrav::analysis
