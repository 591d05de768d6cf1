// Files of positions: charts of which only the longitudes of the points are known.
#pragma once

#include "core/Points.h"
#include "core/Result.h"

#include <optional>
#include <string>

namespace kestrav::cli
{

struct GivenPosition
{
    double longitude = 0.0; ///< sidereal degrees, 0 to under 360
    bool retrograde = false;
};

/// The points of a file; those that it does not have are empty.
using GivenPositions = core::PointArray<std::optional<GivenPosition>>;

/// Reads {"points": [{"index": 1, "longitude": 180.9, "retrograde": false}, ...]}. Points 0 to 9
/// must be there, every other one may. Where `retrograde` is left out Rahu and Ketu are retrograde
/// and the other points direct. The error names the file, the line or the entry.
[[nodiscard]] core::Result<GivenPositions> readPositionsFile(const std::string& path);

} // namespace kestrav::cli
