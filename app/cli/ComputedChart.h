// A chart computed from the command line.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/BirthData.h"
#include "app/cli/Command.h"
#include "astro/RiseSet.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <optional>

namespace kestrav::cli
{

struct ComputedChart
{
    core::Chart chart;
    core::Settings settings;
    bool hasPlace = false;                  ///< without it there are no houses and no sunrise
    std::optional<core::VedicDay> day;      ///< the day running; none near the poles
    std::optional<double> upperCulmination; ///< of the Sun on the civil date, local hours
};

/// Reads birth data and settings, loads the program data file and computes. After a failure, which
/// has been reported with its exit code in `code`, there is nothing.
[[nodiscard]] std::optional<ComputedChart>
computeFromArguments(const Arguments& arguments, PlaceNeed need, Console& console, ExitCode& code);

} // namespace kestrav::cli
