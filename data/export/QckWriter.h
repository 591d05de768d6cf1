// A chart as one line of a chart list in fixed columns.
#pragma once

#include "core/Chart.h"

#include <string>
#include <vector>

namespace kestrav::data
{

struct QckLine
{
    std::string line;                ///< 100 bytes of Windows-1252, without line end
    std::vector<std::string> losses; ///< what the columns could not hold, in words
};

/// Name and place are cut to their columns. Offsets are whole minutes there, so the moment of a
/// zone with seconds is off by less than 30 seconds. Saving time is carried by a mark whose second
/// letter is D; two hours of it come back as one with the zone moved by the other.
[[nodiscard]] QckLine qckLine(const core::Chart& chart);

} // namespace kestrav::data
