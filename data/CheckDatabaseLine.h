// The check that every walk over a database makes of its lines.
#pragma once

#include "astro/Engine.h"
#include "core/Messages.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"

#include <cstddef>
#include <string>

namespace kestrav::data
{

enum class CheckMode
{
    Compute,  ///< the chart is computed
    Research, ///< and turned into a research line
};

struct LineCheck
{
    bool cancelled = false;   ///< the user pressed Cancel: the walk ends
    bool computed = false;    ///< the record holds the computed chart
    std::string researchLine; ///< in research mode; empty for a line that was skipped
};

/// Tests a line before it is used. A line that is too short, or whose chart has no name, is told
/// with OK and Cancel. After OK a short line is skipped; a chart without a name is called "No Name"
/// and its line written again. Returns false when the line cannot be used.
[[nodiscard]] bool testLine(ChartDatabase& database, std::size_t index, core::Messages& messages,
                            bool& cancelled);

/// Tests a line, parses it into the record and computes it.
LineCheck CheckDatabaseLine(ChartDatabase& database, std::size_t index, CheckMode mode,
                            const core::Settings& settings, astro::EphemerisContext& context,
                            core::Chart& chart, core::Messages& messages);

/// Computes a parsed chart as far as a research line needs it.
void computeForResearch(core::Chart& chart, const core::Settings& settings,
                        astro::EphemerisContext& context);

} // namespace kestrav::data
