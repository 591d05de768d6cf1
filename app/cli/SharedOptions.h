// The options that several commands share.
#pragma once

#include "app/cli/Command.h"

#include <array>
#include <span>

namespace kestrav::cli
{

/// A chart: its birth data, or the database that has it.
inline constexpr std::array<OptionInfo, 11> kBirthOptions = {{
    {"--date", "YYYY-MM-DD", "date of birth in historical years; -0044-03-15 is in 44 BC"},
    {"--time", "HH:MM[:SS[.f]]", "clock time of birth, 0:00 to 23:59:59"},
    {"--zone", "+H:MM[:SS]", "zone of the clock in hours east of Greenwich; decimal hours too"},
    {"--dst", "N|on",
     "whole hours of saving time that the clock shows, 0 to 3, or on for those of the setting "
     "daylightSavingHours; 0 when not given"},
    {"--lon", "77E13[:SS]", "geographic longitude; decimal degrees too, negative in the west"},
    {"--lat", "28N39[:SS]", "geographic latitude; decimal degrees too, negative in the south"},
    {"--name", "TEXT", "name of the native, or of the chart in the database"},
    {"--place", "TEXT",
     "city and country, such as \"Pune, India\", from which coordinates, zone and saving time are "
     "taken where they are not given; with --lon, --lat and --zone a label only"},
    {"--now", "",
     "the present moment instead of --date and --time; without --zone in the zone of the system"},
    {"--db", "FILE", "database that has the chart, which --name or --line chooses"},
    {"--line", "N", "line of the chart in the database, from 1"},
}};

/// The birth data alone.
inline constexpr std::span<const OptionInfo> kTypedBirthOptions =
    std::span<const OptionInfo>(kBirthOptions).first(9);

/// A chart without birth data.
inline constexpr std::array<OptionInfo, 1> kPositionsOption = {{
    {"--positions", "FILE", "JSON file of positions to take instead of birth data"},
}};

/// The second chart of a comparison.
inline constexpr std::array<OptionInfo, 11> kSecondChartOptions = {{
    {"--with", "NAME", "the second chart by its name in the database of --db"},
    {"--with-line", "N", "the second chart by its line there, from 1"},
    {"--with-date", "YYYY-MM-DD", "date of birth of the second chart"},
    {"--with-time", "HH:MM[:SS[.f]]", "its clock time of birth"},
    {"--with-zone", "+H:MM[:SS]", "its zone"},
    {"--with-dst", "N|on", "its saving time; 0 when not given"},
    {"--with-lon", "77E13[:SS]", "its geographic longitude"},
    {"--with-lat", "28N39[:SS]", "its geographic latitude"},
    {"--with-place", "TEXT", "its city and country, as with --place"},
    {"--with-name", "TEXT", "its name"},
    {"--with-positions", "FILE", "JSON file of positions to take as second chart"},
}};

/// Reasons of derived results.
inline constexpr std::array<OptionInfo, 1> kExplainOption = {{
    {"--explain", "QUERY",
     "explain a result, such as mars:navamsha, after the others; may be repeated; list shows what "
     "can be explained",
     true},
}};

/// A divisional chart.
inline constexpr std::array<OptionInfo, 1> kVargaOption = {{
    {"--varga", "NAME|INDEX", "one divisional chart: its name, its index 0 to 20, or D9"},
}};

/// Settings of one call.
inline constexpr std::array<OptionInfo, 2> kSetOptions = {{
    {"--set", "NAME=VALUE", "a setting for this call, which is not stored; may be repeated", true},
    {"--language", "NAME", "language of the names for this call: english or sanskrit"},
}};

/// Answers to the questions of a command.
inline constexpr std::array<OptionInfo, 1> kYesOption = {{
    {"--yes", "", "answer every question with yes"},
}};

/// Options of every command.
inline constexpr std::array<OptionInfo, 2> kCommonOptions = {{
    {"--settings", "FILE", "the settings file to use instead of the one found"},
    {"--json", "", "write one JSON object instead of text"},
}};

} // namespace kestrav::cli
