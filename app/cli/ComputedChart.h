// Charts computed from the command line.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/BirthData.h"
#include "app/cli/Command.h"
#include "astro/DataFile.h"
#include "astro/RiseSet.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <optional>
#include <string>

namespace kestrav::cli
{

struct ComputedChart
{
    core::Chart chart; ///< computed and analysed
    core::Settings settings;
    bool hasPlace = false;     ///< without it there are no houses and no sunrise
    std::string positionsFile; ///< the file of a chart of bare positions, which has no moment
    std::optional<core::VedicDay> day;      ///< the day running; none near the poles
    std::optional<double> upperCulmination; ///< of the Sun on the civil date, local hours
};

/// What a call that computes works with.
struct CallData
{
    core::Settings settings;
    astro::ProgramData data;
};

/// Two charts computed with the same settings.
struct ComputedPair
{
    ComputedChart first;
    ComputedChart second;
    astro::MatchingTables tables;
};

/// Reads the settings and loads the program data file. After a failure, which has been reported
/// with its exit code in `code`, there is nothing.
[[nodiscard]] std::optional<CallData> openCall(const Arguments& arguments, Console& console,
                                               ExitCode& code);

/// Computes and analyses a chart, after the warnings about its birth data. Nothing after a failure,
/// as above.
[[nodiscard]] std::optional<ComputedChart> computeChart(const CallData& call, BirthData birth,
                                                        Console& console, ExitCode& code);

/// Reads birth data or positions and settings, loads the program data file, computes and analyses.
/// After a failure, which has been reported with its exit code in `code`, there is nothing.
[[nodiscard]] std::optional<ComputedChart>
computeFromArguments(const Arguments& arguments, PlaceNeed need, Console& console, ExitCode& code);

/// The same for a chart and the second one beside it; neither needs a place.
[[nodiscard]] std::optional<ComputedPair>
computePairFromArguments(const Arguments& arguments, Console& console, ExitCode& code);

} // namespace kestrav::cli
