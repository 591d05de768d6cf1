// Where a chart comes from: birth data from the command line, or a file of positions.
#pragma once

#include "app/cli/Arguments.h"
#include "core/Chart.h"
#include "core/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

enum class PlaceNeed
{
    Required,
    Optional,
};

/// How the options of a chart begin: those of the chart itself, or of one that it is compared with.
inline constexpr std::string_view kOwnChart = "--";
inline constexpr std::string_view kSecondChart = "--with-";

struct BirthData
{
    core::Chart chart; ///< name, place, date, time, zone and coordinates; the rest is empty
    bool hasPlace = false;
    std::optional<std::string> positionsFile; ///< then the chart has only its name
    std::vector<std::string> warnings;
};

/// Reads the options of kBirthOptions, or of kSecondChartOptions. The error says which option is
/// missing or wrong.
[[nodiscard]] core::Result<BirthData> readBirthData(const Arguments& arguments, PlaceNeed need,
                                                    std::string_view prefix = kOwnChart);

} // namespace kestrav::cli
