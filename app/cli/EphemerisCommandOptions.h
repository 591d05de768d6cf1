// The options that the tables of the sky share: dates, clock and bodies.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "core/DateTime.h"
#include "core/Result.h"
#include "core/Settings.h"
#include "timing/Ephemeris.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

inline constexpr std::array<OptionInfo, 13> kEphemerisOptions = {{
    {"--from", "YYYY-MM-DD", "first date, in historical years"},
    {"--to", "YYYY-MM-DD", "last date; the end of the month of --from when not given"},
    {"--step", "STEP", "distance of two rows: 10min, 6h, 1d, 1mo and the like; 1d when not given"},
    {"--time", "HH:MM[:SS[.f]]", "clock time of the first row; 0:00 when not given"},
    {"--zone", "+H:MM[:SS]",
     "zone of the clock in hours east of Greenwich; Universal Time when not given"},
    {"--dst", "N", "whole hours of saving time that the clock shows, 0 to 3; 0 when not given"},
    {"--bodies", "LIST",
     "bodies by name or point index with commas between them, such as sun,moon,9; Sun to Rahu and "
     "Uranus to Pluto when not given"},
    {"--zodiac", "NAME",
     "tropical or sidereal; when not given, as the ayanamsa of the settings is"},
    {"--declination", "", "add the declinations to the text"},
    {"--latitude", "", "add the latitudes to the text"},
    {"--speed", "", "add the speeds in degrees a day to the text"},
    {"--no-events", "", "leave out the phases of the Moon, the ingresses and the stations"},
    {"--no-rows", "", "leave out the rows of positions"},
}};

/// "the years -4000 to 8000", outside which no date of a table may lie.
[[nodiscard]] std::string yearsOfTables();

/// A date of an option, within the years of the tables. The error names the option.
[[nodiscard]] core::Result<core::DateTimeRecord> readTableDate(const Arguments& arguments,
                                                               std::string_view option);

/// Zone and saving time of --zone and --dst as hours before Universal Time.
[[nodiscard]] core::Result<double> readTableClock(const Arguments& arguments);

/// The table that is asked for. The error names the option that is wrong.
[[nodiscard]] core::Result<timing::EphemerisPlan> readEphemerisPlan(const Arguments& arguments);

/// Makes the zodiac of the settings that of --zodiac.
[[nodiscard]] core::Result<void> applyZodiac(const Arguments& arguments, core::Settings& settings);

} // namespace kestrav::cli
