// Building the research lines of a whole database.
#pragma once

#include "astro/Series.h"
#include "core/Messages.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/LongWork.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrav::data
{

/// One research line per database line, in the same order. A line that was skipped has an empty
/// one, so that the indexes of the lines after it stay.
using ResearchLines = std::vector<std::string>;

/// Builds all research lines on the wanted number of threads; their bytes do not depend on it.
/// Damaged lines are told first, on the calling thread, and Cancel there ends the work; charts
/// without a name are called "No Name" in the database. Nothing when the work was cancelled.
[[nodiscard]] std::optional<ResearchLines>
rebuildResearch(ChartDatabase& database, const core::Settings& settings,
                const astro::Series& series, core::Messages& messages, const LongWork& work = {});

} // namespace kestrav::data
