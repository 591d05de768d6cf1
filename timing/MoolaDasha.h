// Moola dasha, the planets in the order of their houses from the strongest of three references.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"
#include "timing/DashaPlan.h"

namespace kestrav::timing
{

/// The sign from which the houses are counted: the strongest of those of the ascendant, the Moon
/// and the Sun.
[[nodiscard]] int moolaBase(const core::Chart& chart, const core::Settings& settings);

/// The planets 1 to 9: those in the kendras from the base, in the houses after these, in the houses
/// before them; inside such a group by the strength of their signs, inside a sign by degree.
[[nodiscard]] std::array<int, 9> moolaOrder(const core::Chart& chart,
                                            const core::Settings& settings);

/// The years of a planet in the first cycle: its Vimshottari years less the signs from its own to
/// the next that it owns or is exalted in.
[[nodiscard]] double moolaYears(const core::Chart& chart, const core::Settings& settings,
                                int planet);

/// Fills order and years of both cycles. The points 0 to 9 must be there.
void fillMoolaDasha(const core::Chart& chart, const core::Settings& settings, DashaPlan& plan);

} // namespace kestrav::timing
