// The driver that fills a whole chart from its birth data.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

/// Computes a chart in one direction: time, positions, ayanamsa, ascendant, cusps, sign data,
/// sunrise and sunset, weekday, motion codes. Reads the birth data (date, local time, zone, saving
/// time, place) and overwrites everything that follows from them. Any date gives a result; the
/// accuracy falls far from 2000. The context is used for this computation only; charts may be
/// computed on several threads, each with its own context.
void ComputeChart(core::Chart& chart, const core::Settings& settings,
                  astro::EphemerisContext& context);

/// The part of ComputeChart that needs no place: time, ayanamsa and the bodies with their speeds,
/// latitudes and sign data.
void computePositions(core::Chart& chart, const core::Settings& settings,
                      astro::EphemerisContext& context);

/// The part that follows: obliquity, sidereal time, ascendant, midheaven and cusps.
void computeHouses(core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::analysis
