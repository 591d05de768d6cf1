// The special lagnas: Bhava, Hora and Ghati from the last sunrise, Indu, Shri, Varnada and Divya
// from the ascendant and the Moon.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"

namespace kestrav::analysis
{

/// Degrees that the lagnas counted from sunrise move in an hour.
inline constexpr double kBhavaLagnaRate = 15.0;
inline constexpr double kHoraLagnaRate = 30.0;
inline constexpr double kGhatiLagnaRate = 75.0;

/// A lagna in degrees that starts from the Sun's longitude at sunrise and moves at one of the
/// rates.
[[nodiscard]] double lagnaFromSunrise(double sunAtSunrise, double hoursSinceSunrise, double rate);

/// The kala of the lord of the ninth sign from a sign 1 to 12, which the Indu lagna counts.
[[nodiscard]] int kalaOfNinthFrom(int sign);

/// The sign, 1 to 12, of the Indu lagna for the signs of the ascendant and the Moon.
[[nodiscard]] int induSign(int ascendantSign, int moonSign);

/// The Shri lagna in degrees: from the ascendant as far as the Moon has passed its nakshatra, the
/// nakshatra taken as a whole circle.
[[nodiscard]] double shriLagna(double ascendant, double moon);

/// The Varnada sign, 1 to 12, of a house 1 to 12 for the signs of ascendant and hora lagna; that of
/// house 1 is the Varnada lagna.
[[nodiscard]] int varnadaSign(int ascendantSign, int horaLagnaSign, int house = 1);

/// The Divya lagna in degrees: the ascendant's place in the navamsha.
[[nodiscard]] double divyaLagna(double ascendant);

/// Fills points 24 to 30 where the ascendant and the Moon, which most of them need, are there.
/// Bhava, Hora, Ghati and Varnada stay not computed in a chart without moment and where no day
/// runs; for them the context is moved to the sunrise.
void computeSpecialLagnas(core::Chart& chart, astro::EphemerisContext& context);

} // namespace kestrav::analysis
