// One chart as lines of "key: value".
#pragma once

#include "data/import/ImportReport.h"

#include <string>
#include <vector>

namespace kestrav::data
{

/// Whether some line begins with the key "date" or "name" and a colon or an equals sign.
[[nodiscard]] bool isBirthKeys(const std::vector<std::string>& lines);

/// Reads the keys name, sex, date, time, place, country, longitude, latitude, zone and dst, in any
/// order and case. Dates are y-m-d or "d Mon y", never figures whose order is not known; a chart
/// without date, time, zone, longitude or latitude is refused, because none is guessed.
void readBirthKeys(const std::vector<std::string>& lines, ImportReport& report);

} // namespace kestrav::data
