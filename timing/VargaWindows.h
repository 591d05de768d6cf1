// From when to when the ascendant of each divisional chart stays what it is at birth.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"
#include "core/Varga.h"

#include <optional>

namespace kestrav::timing
{

/// Local clock hours of the chart's civil date, below 0 and above 24 on the neighbouring dates.
struct VargaWindow
{
    int varga = 0;
    int sign = 0;                ///< of the ascendant in the varga, 1 to 12
    std::optional<double> begin; ///< the sign was entered; nothing when that is over a day before
    std::optional<double> end;   ///< the sign is left; nothing when that is over a day after
};

using VargaWindows = core::VargaArray<VargaWindow>;

/// The windows of every varga around the moment of a chart with a place, to less than a second.
/// Neighbouring parts that have the same sign are one window. Ayanamsa and obliquity stay those of
/// the chart.
[[nodiscard]] VargaWindows vargaWindows(const core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::timing
