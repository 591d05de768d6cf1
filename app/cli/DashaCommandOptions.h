// The options of the dasha command.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "core/NumberText.h"
#include "core/Result.h"
#include "core/Settings.h"
#include "timing/Dasha.h"
#include "timing/DashaWalk.h"

#include <array>
#include <optional>

namespace kestrav::cli
{

inline constexpr std::array<OptionInfo, 13> kDashaOptions = {{
    {"--list", "", "list the dasha systems; needs no chart"},
    {"--system", "NAME|INDEX", "dasha system: its name, the beginning of it, or its index 0 to 23"},
    {"--levels", "N", "levels of periods, 1 to 5"},
    {"--start-point", "NAME|INDEX",
     "point from which the first dasha is found: 0 to 9 or its name, 10 Kshema, 11 Utpanna, 12 "
     "Sadha, 13 Adhana"},
    {"--total-length", "NAME|INDEX",
     "length of the whole cycle: Standard, 1 year, 1/4, 1/8 or 1/12 year, or index 0 to 4"},
    {"--year-length", "NAME|INDEX|DAYS",
     "length of a dasha year: True Solar, Mean Tropical, Mean Sidereal, 360 days, 354 days, "
     "Jovian, Custom, index 0 to 6, or 200 to 500 days"},
    {"--from-age", "YEARS", "age at which the list begins; 0 when not given"},
    {"--to-age", "YEARS",
     "age at which the list ends; 120 years or one chosen cycle later when neither it nor --lines "
     "is given"},
    {"--from", "YYYY-MM-DD", "date on which the list begins, instead of the age"},
    {"--to", "YYYY-MM-DD", "last date of the list, instead of the age"},
    {"--lines", "N", "most periods of the list, 1 to 100000; 1000 when not given"},
    {"--at", "DATE[THH:MM]",
     "the periods of all levels that run at a moment on the clock of the birth zone, or now"},
    {"--conditional", "", "add the conditional dashas that apply to the native"},
}};

/// The list that is asked for, before the chart is known.
struct DashaRequest
{
    std::optional<double> fromAge;
    std::optional<double> toAge;
    std::optional<core::CivilDate> from;
    std::optional<core::CivilDate> to;
    std::optional<long long> lines;

    std::optional<core::CivilDate> atDate;
    double atHour = 0.0;
    std::optional<double> atJulianDay; ///< of the present moment, for "now"
};

/// Reads the options of the list. The error names the option.
[[nodiscard]] core::Result<DashaRequest> readDashaRequest(const Arguments& arguments);

/// Applies the options that stand for settings. Names of points are those of the language in force.
[[nodiscard]] core::Result<void> applyDashaOptions(const Arguments& arguments,
                                                   core::Settings& settings);

/// The span of the list for a dasha. Dates are days on the clock of the birth zone, the last one
/// included. The error says which options contradict each other.
[[nodiscard]] core::Result<timing::DashaSpan> dashaSpan(const DashaRequest& request,
                                                        const Arguments& arguments,
                                                        const core::Settings& settings,
                                                        const timing::Dasha& dasha, double zone);

/// Reads the value of --at, which may be "now".
[[nodiscard]] core::Result<void> readAt(const std::string& text, DashaRequest& request);

/// The Julian day (Universal Time) of --at; nothing when it was not typed.
[[nodiscard]] std::optional<double> momentAsked(const DashaRequest& request, double zone);

} // namespace kestrav::cli
