// The options that name charts of a database.
#pragma once

#include "app/cli/DatabaseCommand.h"
#include "core/Chart.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace kestrav::cli
{

/// One chart.
inline constexpr std::array<OptionInfo, 2> kChosenChartOptions = {{
    {"--name", "NAME", "the chart of this name"},
    {"--line", "N", "the chart in this line, from 1"},
}};

/// Several charts.
inline constexpr std::array<OptionInfo, 2> kChosenChartsOptions = {{
    {"--name", "NAME", "a chart of this name; may be repeated", true},
    {"--line", "N", "the chart in this line, from 1; may be repeated", true},
}};

/// Finds the chart of --name or --line and reads it. Nothing after a failure, which has been
/// reported with its exit code in `code`.
[[nodiscard]] std::optional<std::size_t> chosenChart(DatabaseCall& call, core::Chart& chart,
                                                     ExitCode& code);

/// The lines of all charts that were named; empty when none was.
[[nodiscard]] std::optional<std::vector<std::size_t>> chosenCharts(DatabaseCall& call,
                                                                   ExitCode& code);

} // namespace kestrav::cli
