// Charts as a list of packed numbers: seven of them, or a file of up to eighteen lines.
#pragma once

#include "data/import/ImportReport.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// Whether the text begins with seven numbers, on seven lines or blank-separated on one.
[[nodiscard]] bool isPackedList(const std::vector<std::string>& lines);

/// Reads the one chart of the list: month, day, year, time, offset in force, longitude (both east
/// negative) and latitude, then perhaps the offsets of the place without and with saving time on
/// lines 9 and 10, city and country on lines 13 and 14. The name comes from the file.
void readPackedList(const std::vector<std::string>& lines, std::string_view name,
                    ImportReport& report);

} // namespace kestrav::data
