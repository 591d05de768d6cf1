// Chart lists in binary records.
#pragma once

#include "data/import/ImportReport.h"

#include <cstdint>
#include <span>

namespace kestrav::data
{

/// Whether the bytes begin with a version 1 to 3 and eighty blanks.
[[nodiscard]] bool isBinaryChartList(std::span<const std::uint8_t> bytes);

/// Reads the records, which are found by the two bytes 01 01 at their beginning. The layout is not
/// published in full, so the list is believed only when exactly as many records pass every range
/// test as its head says; otherwise nothing is taken.
void readBinaryChartList(std::span<const std::uint8_t> bytes, ImportReport& report);

} // namespace kestrav::data
