// Chart lists in fixed columns, one chart per line.
#pragma once

#include "data/import/ImportReport.h"

#include <string>
#include <vector>

namespace kestrav::data
{

/// The columns of a line, counted in characters from 0.
namespace qck
{
inline constexpr std::size_t kName = 0;
inline constexpr std::size_t kNameWidth = 23;
inline constexpr std::size_t kMonth = 23;
inline constexpr std::size_t kDay = 26;
inline constexpr std::size_t kComma = 29;
inline constexpr std::size_t kYear = 30;
inline constexpr std::size_t kTime = 35;
inline constexpr std::size_t kMark = 47;
inline constexpr std::size_t kOffset = 50;
inline constexpr std::size_t kLongitude = 56;
inline constexpr std::size_t kLatitude = 66;
inline constexpr std::size_t kPlace = 75;
inline constexpr std::size_t kPlaceWidth = 25;
inline constexpr std::size_t kLineWidth = kPlace + kPlaceWidth;
} // namespace qck

/// Whether the first line that is not blank has a month and a comma in their columns.
[[nodiscard]] bool isQckList(const std::vector<std::string>& lines);

/// Reads all lines. Lines of 75 characters and more are accepted, blank ones skipped.
void readQckList(const std::vector<std::string>& lines, ImportReport& report);

} // namespace kestrav::data
