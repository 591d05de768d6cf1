// The birth data of a chart from the command line.
#pragma once

#include "app/cli/Arguments.h"
#include "core/Chart.h"
#include "core/Result.h"

#include <string>
#include <vector>

namespace kestrav::cli
{

enum class PlaceNeed
{
    Required,
    Optional,
};

struct BirthData
{
    core::Chart chart; ///< name, place, date, time, zone and coordinates; the rest is empty
    bool hasPlace = false;
    std::vector<std::string> warnings;
};

/// Reads the options of kBirthOptions. The error says which option is missing or wrong.
[[nodiscard]] core::Result<BirthData> readBirthData(const Arguments& arguments, PlaceNeed need);

} // namespace kestrav::cli
