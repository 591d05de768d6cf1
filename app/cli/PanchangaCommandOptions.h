// The options of the panchanga command.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/BirthData.h"
#include "app/cli/Command.h"
#include "app/cli/SharedOptions.h"
#include "core/NumberText.h"
#include "core/Result.h"

#include <array>
#include <optional>

namespace kestrav::cli
{

/// The options of a chart with the meaning that they have for a day.
inline constexpr auto kDayOptions = [] {
    auto options = kBirthOptions;
    for (OptionInfo& option : options) {
        if (option.name == "--date") {
            option.meaning = "the day, in historical years; -0044-03-15 is in 44 BC";
        } else if (option.name == "--time") {
            option.meaning = "clock time of a moment; then it is the day that runs at it";
        } else if (option.name == "--name") {
            option.meaning = "name of the chart in the database";
        }
    }
    return options;
}();

inline constexpr std::array<OptionInfo, 3> kPanchangaOptions = {{
    {"--from", "YYYY-MM-DD", "first day of a span, instead of --date"},
    {"--to", "YYYY-MM-DD", "last day of the span, which has at most 3660 days"},
    {"--month", "YYYY-MM", "all days of a month, instead of --date"},
}};

inline constexpr std::array<OptionInfo, 8> kNativeOptions = {{
    {"--native", "NAME",
     "native for tara bala and chandra bala by the name in the database of --db"},
    {"--native-star", "NAME|1..27",
     "birth star of the native, with its pada when it is known, as in \"Swati 1\""},
    {"--native-date", "YYYY-MM-DD", "date of birth of the native"},
    {"--native-time", "HH:MM[:SS[.f]]", "clock time of birth of the native"},
    {"--native-zone", "+H:MM[:SS]", "zone of the native's clock"},
    {"--native-dst", "N|on", "saving time of the native's clock; 0 when not given"},
    {"--native-place", "TEXT",
     "city and country of birth, from which zone and saving time are taken"},
    {"--native-positions", "FILE", "JSON file of positions of the native"},
}};

/// The days that are asked for.
struct PanchangaDays
{
    /// Julian days (0h of the civil date) of the first and the last one.
    double first = 0.0;
    double last = 0.0;
    bool isSpan = false;   ///< from --from or --month
    bool atMoment = false; ///< the day that runs at the moment of the birth data
};

/// The Moon of a birth star.
struct BirthStar
{
    double moonLongitude = 0.0; ///< sidereal degrees, the middle of what was typed
    bool signKnown = false;     ///< false when the star lies in two signs and no pada was typed
};

/// Reads which days are asked for and stores the date and time in the arguments that the place and
/// its clock are read with. The error names the option.
[[nodiscard]] core::Result<PanchangaDays> readPanchangaDays(Arguments& arguments);

/// Whether options of a native were typed, apart from its star.
[[nodiscard]] bool hasNativeChart(const Arguments& arguments);

/// The native's birth data. The error says which option is missing or cannot stand beside another.
[[nodiscard]] core::Result<BirthData> readNative(const Arguments& arguments);

/// The star of --native-star; nothing when it was not typed.
[[nodiscard]] core::Result<std::optional<BirthStar>> readBirthStar(const Arguments& arguments);

} // namespace kestrav::cli
