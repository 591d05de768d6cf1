// Charts computed from the command line.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/BirthData.h"
#include "app/cli/Command.h"
#include "app/present/ComputedChart.h"
#include "astro/DataFile.h"

#include <optional>
#include <string>

namespace kestrav::cli
{

using present::ComputedChart;

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
