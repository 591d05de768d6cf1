// Where a chart comes from: birth data from the command line, a database, or a file of positions.
#pragma once

#include "app/cli/Arguments.h"
#include "core/Chart.h"
#include "core/Result.h"

#include <cstddef>
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

/// A chart that is to be taken from a database, by its name or its line.
struct DatabaseChoice
{
    std::string file;
    std::optional<std::wstring> name;
    std::optional<std::size_t> line; ///< from 0
};

/// A place that is to be looked up, and what is then taken from it: all that was not typed.
struct PlaceChoice
{
    std::wstring text;
    bool longitude = false;
    bool latitude = false;
    bool zone = false;
    bool daylightSaving = false;
    std::optional<double> moment; ///< --now in seconds since 1970, when the zone is to be found
};

/// What was typed. Where a chart or a place must still be found in a file, completeBirthData of
/// ChartSource.h does it.
struct BirthData
{
    core::Chart chart; ///< name, place, date, time, zone and coordinates; the rest is empty
    bool hasPlace = false;
    std::optional<std::string> positionsFile; ///< then the chart has only its name
    std::optional<DatabaseChoice> database;   ///< then everything comes from there
    std::optional<PlaceChoice> placeToFind;
    bool savingInForce = false; ///< then the setting daylightSavingHours says the saving time
    PlaceNeed need = PlaceNeed::Required;
    std::vector<std::string> warnings;
};

/// Reads the options of kBirthOptions, or of kSecondChartOptions. The error says which option is
/// missing or wrong.
[[nodiscard]] core::Result<BirthData> readBirthData(const Arguments& arguments, PlaceNeed need,
                                                    std::string_view prefix = kOwnChart);

/// The same without a database and without positions, for commands whose --db means something else.
[[nodiscard]] core::Result<BirthData> readTypedBirthData(const Arguments& arguments,
                                                         PlaceNeed need);

/// Changes in a chart only what was typed of date, time, zone, saving time, coordinates and place.
[[nodiscard]] core::Result<BirthData> changeBirthData(const Arguments& arguments,
                                                      const core::Chart& chart);

/// Reads --name and --line, of which exactly one must be there. `prefix` is "--" or "--with".
[[nodiscard]] core::Result<DatabaseChoice> readDatabaseChoice(const Arguments& arguments,
                                                              std::string_view prefix = kOwnChart);

/// A typed text without control characters.
[[nodiscard]] core::Result<std::wstring> readLabel(const Arguments& arguments,
                                                   const std::string& option);

} // namespace kestrav::cli
