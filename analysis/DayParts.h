// The running day or night of a chart in equal parts, and the planets that rule them.
#pragma once

#include "core/Chart.h"

#include <optional>

namespace kestrav::analysis
{

/// Parts of a half-day: kala velas and choghadia, horas, muhurtas, ghatis.
inline constexpr int kEighths = 8;
inline constexpr int kHorasOfHalf = 12;
inline constexpr int kMuhurtasOfHalf = 15;
inline constexpr int kGhatisOfHalf = 30;

/// A day from sunrise to sunset or a night from sunset to the next sunrise, in local clock hours
/// from 0h of the civil date of the moment it was found for.
struct HalfDay
{
    bool night = false;
    double start = 0.0;
    double end = 0.0;

    /// The hour at which `part` of `parts` equal parts begins, the first part being 0. A fraction
    /// leads into the part, and `part` = `parts` gives the end.
    [[nodiscard]] double partStart(double part, int parts) const;

    /// The part, 0 to parts - 1, that contains an hour of the half-day. A part begins with its
    /// first moment; hours outside give the first or the last part.
    [[nodiscard]] int partAt(double hour, int parts) const;
};

/// The two halves of an astrological day.
[[nodiscard]] HalfDay dayHalf(const core::VedicDay& day);
[[nodiscard]] HalfDay nightHalf(const core::VedicDay& day);

/// The half-day that contains the chart's moment; before sunrise it is the night that began at the
/// sunset of the day before. Nothing for a chart without moment, and where no day runs.
[[nodiscard]] std::optional<HalfDay> runningHalf(const core::Chart& chart);

/// Whether the chart's moment is by night. Where no day runs the altitude of the Sun decides, and
/// in a chart of bare positions its half of the ecliptic from the ascendant. Nothing when the
/// positions for that are missing.
[[nodiscard]] std::optional<bool> isNight(const core::Chart& chart);

/// The planet, 1 to 7, that rules an eighth (0 to 7) of the day or night of a weekday (1 = Sunday
/// to 7 = Saturday): the kala vela. The last eighth has no ruler and gives 0.
[[nodiscard]] int kalaVelaRuler(int weekday, bool night, int part);

/// The eighth, 0 to 6, that a planet 1 to 7 rules.
[[nodiscard]] int kalaVelaPart(int weekday, bool night, int planet);

/// The lord, a planet 1 to 7, of hora 0 to 23 of a weekday; hora 12 is the first of the night.
[[nodiscard]] int horaLord(int weekday, int hora);

/// The hora, 0 to 23, that runs at the chart's moment; nothing where no day runs.
[[nodiscard]] std::optional<int> runningHora(const core::Chart& chart);

/// The lord of the running hora.
[[nodiscard]] std::optional<int> runningHoraLord(const core::Chart& chart);

} // namespace kestrav::analysis
