// The options of tables and reports.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "app/present/DiagramOptions.h"
#include "app/present/ReportDefinition.h"
#include "core/Result.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace kestrav::cli
{

inline constexpr std::array<OptionInfo, 2> kFormatOptions = {{
    {"--format", "NAME", "text, csv, html, rtf or json; text when not given"},
    {"--output", "FILE", "write to a file, of which an earlier one is kept as .BAK"},
}};

inline constexpr std::array<OptionInfo, 8> kTableOptions = {{
    {"--list", "", "list the tables; needs no chart"},
    {"--levels", "N", "levels of dasha periods, 1 to 5; 2 when not given"},
    {"--lines", "N", "most dasha periods, 1 to 10000; 1000 when not given"},
    {"--name-letter", "N", "group 1 to 5 of the first sound of the name, for the Shayanadi states"},
    {"--at", "DATE[THH:MM]",
     "moment at which periods run and tables of days begin, on the clock of the birth zone; now "
     "when not given"},
    {"--days", "N", "length of tables of days, 1 to 36525; as the list says when not given"},
    {"--yogas", "FILE", "a yoga file to use instead of the delivered ones; may be repeated", true},
    {"--bride-first", "", "the first chart is the bride's and the second the groom's"},
}};

inline constexpr std::array<OptionInfo, 6> kReportOptions = {{
    {"--list", "", "list the delivered reports and the sections; needs no chart"},
    {"--report", "NAME|FILE", "a delivered report or a file of your own; one-page when not given"},
    {"--section", "NAME", "a section instead of a report; may be repeated", true},
    {"--style", "NAME", "style of diagrams: north, south, east or circle; north when not given"},
    {"--yogas", "FILE", "a yoga file to use instead of the delivered ones; may be repeated", true},
    {"--at", "DATE[THH:MM]",
     "moment of the report, from which transits are listed; now when not "
     "given"},
}};

enum class WrittenForm
{
    Text,
    Csv,
    Html,
    Rtf,
    Json,
};

/// The form of --format or --json. The error names the option.
[[nodiscard]] core::Result<WrittenForm> writtenForm(const Arguments& arguments);

/// A whole number of an option in a range, or the default.
[[nodiscard]] core::Result<int> integerOption(const Arguments& arguments, std::string_view option,
                                              int least, int most, int byDefault);

/// The style of --style.
[[nodiscard]] core::Result<present::DiagramStyle> styleOption(const Arguments& arguments);

/// The Julian day (Universal Time) of --at, or the present moment.
[[nodiscard]] core::Result<double> momentOption(const Arguments& arguments, double zone);

/// The folder of the delivered report definitions inside a data folder.
inline constexpr char kReportFolder[] = "reports";

/// The delivered definitions, sorted by name.
[[nodiscard]] std::vector<std::filesystem::path> deliveredReports();

/// The definition that --report or --section ask for. The error names the option or the file.
[[nodiscard]] core::Result<present::ReportDefinition> chosenReport(const Arguments& arguments);

} // namespace kestrav::cli
