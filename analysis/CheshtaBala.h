// Cheshta bala: the strength of a planet by its motion around the Sun.
#pragma once

#include "analysis/StrengthInputs.h"
#include "core/Chart.h"

#include <optional>

namespace kestrav::analysis
{

/// Mean tropical longitude in degrees, 0 to under 360, at a Julian day (Universal Time): of the Sun
/// geocentric, of Mars to Saturn heliocentric. The Moon has none here and gives 0.
[[nodiscard]] double meanLongitude(int planet, double julianDay);

/// The sidereal longitudes, in degrees, from which cheshta bala follows. They are not reduced.
struct CheshtaReckoning
{
    double mean = 0.0; ///< mean longitude: the planet's own, or the Sun's for Mercury and Venus
    double apex = 0.0; ///< seeghrochcha: the mean Sun, or the planet's own mean place for those
    double corrected = 0.0; ///< halfway from the mean to the true place
};

/// Of planet 3 to 7 that has a position; empty without ayanamsa or Julian day.
[[nodiscard]] std::optional<CheshtaReckoning>
cheshtaReckoning(const core::Chart& chart, const StrengthInputs& inputs, int planet);

/// Motional strength of planet 1 to 7, 0 to 60; always 0 for Sun and Moon, whose doubled ayana and
/// paksha stand for it. Needs the ayanamsa and the Julian day.
[[nodiscard]] Strength cheshtaBala(const core::Chart& chart, const StrengthInputs& inputs,
                                   int planet);

} // namespace kestrav::analysis
