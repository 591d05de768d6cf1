// The upagrahas: points 10 to 14 from the Sun, 15 to 19 and Mandi from the parts of the day,
// Pranapada from the time since sunrise.
#pragma once

#include "core/Chart.h"

#include <array>
#include <optional>

namespace kestrav::analysis
{

/// Dhuma, Vyatipata, Parivesha, Indrachapa and Upaketu for a longitude of the Sun, in degrees.
[[nodiscard]] std::array<double, 5> sunBasedUpagrahas(double sun);

/// Pranapada in degrees for the Sun's longitude at the moment and the ghatis since sunrise.
[[nodiscard]] double pranapada(double sun, double ghatis);

/// The ghati, of the 30 of a half-day, after which Mandi rises on a weekday (1 = Sunday).
[[nodiscard]] int mandiGhati(int weekday, bool night);

/// The planet whose part of the day Kaala to Gulika (points 15 to 19) stand for.
[[nodiscard]] int upagrahaPlanet(int point);

/// The local clock hour at which the ascendant gives the place of points 15 to 19 and of Mandi;
/// nothing where no day runs.
[[nodiscard]] std::optional<double> upagrahaHour(const core::Chart& chart, int point,
                                                 bool atMiddle);

/// Fills points 10 to 21. Kaala to Gulika are the ascendant at the start of their planet's eighth
/// of the day or night, or with `atMiddle` at its middle. Points 15 to 21 stay not computed in a
/// chart without moment and where no day runs; none is computed without the Sun.
void computeUpagrahas(core::Chart& chart, bool atMiddle);

} // namespace kestrav::analysis
