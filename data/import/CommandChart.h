// Charts as command lines of another program.
#pragma once

#include "data/import/ImportReport.h"

#include <string>
#include <vector>

namespace kestrav::data
{

/// Whether the first line that is not blank begins with "@".
[[nodiscard]] bool isCommandChart(const std::vector<std::string>& lines);

/// Reads the commands /qb (birth data) and /zi (name and place); the zone is west positive there.
/// Saving time that the other program would find by itself is refused, because it is not known.
void readCommandChart(const std::vector<std::string>& lines, ImportReport& report);

} // namespace kestrav::data
