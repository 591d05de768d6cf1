// A computed chart with what its presentation needs to know beside it.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <bitset>
#include <optional>
#include <string>

namespace kestrav::present
{

struct ComputedChart
{
    core::Chart chart; ///< computed and analysed
    core::Settings settings;
    bool hasPlace = false;     ///< without it there are no houses and no sunrise
    std::string positionsFile; ///< the file of a chart of bare positions, which has no moment
    std::optional<core::VedicDay> day;      ///< the day running; none near the poles
    std::optional<double> upperCulmination; ///< of the Sun on the civil date, local hours
    std::bitset<std::size_t(core::kPointCount)> changed; ///< points with a longitude of the user's
};

/// Computes and analyses the chart from its birth data under its settings. Without a place there
/// are no houses, no sunrise and no sahams.
void computeFromBirthData(ComputedChart& computed, astro::EphemerisContext& context);

} // namespace kestrav::present
