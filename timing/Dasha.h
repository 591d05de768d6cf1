// One dasha of a chart, ready to be listed and asked: its plan and its calendar.
#pragma once

#include "astro/Series.h"
#include "core/Chart.h"
#include "core/Result.h"
#include "core/Settings.h"
#include "timing/DashaCalendar.h"
#include "timing/DashaOptions.h"
#include "timing/DashaPlan.h"

namespace kestrav::timing
{

struct Dasha
{
    DashaPlan plan;
    DashaCalendar calendar;
};

/// The plan of a system 0 to 24 for a chart. Fails, naming the point, when one that the system
/// needs was not computed: the start point for the nakshatra systems, Sun and Moon for Tithi
/// Astottari, the points 0 to 9 for the sign dashas and Moola. The passed part of the nakshatra is
/// that of the time only for the Moon as start point and in a chart with a moment.
[[nodiscard]] core::Result<DashaPlan> dashaPlan(const core::Chart& chart,
                                                const core::Settings& settings,
                                                const DashaOptions& options,
                                                const astro::Series& series);

/// The plan together with the calendar of the birth. The series must outlive it. A chart without
/// moment has ages, but no dates.
[[nodiscard]] core::Result<Dasha> dashaOf(const core::Chart& chart, const core::Settings& settings,
                                          const DashaOptions& options, const astro::Series& series);

} // namespace kestrav::timing
