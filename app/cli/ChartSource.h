// Charts whose data must be found in a file: in a database, or by the name of their place.
#pragma once

#include "app/cli/BirthData.h"
#include "app/cli/Command.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrav::cli
{

/// Takes the chart from its database, or looks its place up, and fills the birth data in; what was
/// typed stays. False after a failure, which has been reported with its exit code in `code`.
[[nodiscard]] bool completeBirthData(BirthData& birth, const core::Settings& settings,
                                     Console& console, ExitCode& code);

/// The line of the chosen chart: the first of exactly this name, else the only one whose name
/// differs in case and accents. Nothing after a failure, as above.
[[nodiscard]] std::optional<std::size_t> chosenLine(data::ChartDatabase& database,
                                                    const DatabaseChoice& choice, Console& console,
                                                    ExitCode& code);

/// Parses a line in the date order that is in force for it, which lines before it can flip.
void readLineInOrder(data::ChartDatabase& database, std::size_t line, core::Chart& chart);

} // namespace kestrav::cli
