#include "app/cli/AyanamsaCommands.h"

#include "app/cli/CommandSettings.h"
#include "app/cli/Console.h"
#include "app/cli/SettingsJson.h"
#include "app/cli/SharedOptions.h"
#include "app/present/TextTable.h"
#include "astro/Ayanamsa.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/TextForms.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr std::array<OptionInfo, 6> kRowOptions = {{
    {"--name", "TEXT", "name of the row, at most 16 bytes"},
    {"--epoch", "YEAR", "year at whose start the value holds, -100000 to 100000"},
    {"--degrees", "N", "value at the epoch: whole degrees, 0 to 359"},
    {"--minutes", "N", "value at the epoch: minutes, 0 to 59"},
    {"--seconds", "N", "value at the epoch: seconds, 0 to 59; the parts not given become 0"},
    {"--rate", "NUMBER", "arc seconds a year, -3600 to 3600; 0 or less makes charts tropical"},
}};

constexpr int kLargestEpoch = 100000;
constexpr double kLargestRate = 3600.0;

// The parts of a row that were typed.
struct RowChange
{
    int row = 0;
    std::optional<std::string> name;
    std::optional<int> epochYear;
    std::optional<double> value;
    std::optional<double> rate;
};

Result<std::optional<int>> readWhole(const Arguments& arguments, const std::string& option, int low,
                                     int high)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return std::optional<int>();
    }
    const std::optional<int> number = core::parseInteger(*text);
    if (!number || *number < low || *number > high) {
        return Error{option + " '" + *text + "' is not a whole number from " + std::to_string(low) +
                     " to " + std::to_string(high)};
    }
    return number;
}

Result<void> readName(const Arguments& arguments, RowChange& change)
{
    change.name = arguments.value("--name");
    if (!change.name) {
        return {};
    }
    const bool printable = std::all_of(change.name->begin(), change.name->end(), [](char byte) {
        return static_cast<unsigned char>(byte) >= 0x20 && byte != 0x7F;
    });
    if (change.name->empty() || change.name->size() > core::AyanamsaRow{}.name.size() ||
        !printable || !core::fromUtf8(*change.name)) {
        return Error{"--name '" + *change.name + "' is not a text of 1 to 16 bytes"};
    }
    return {};
}

Result<void> readValue(const Arguments& arguments, RowChange& change)
{
    const Result<std::optional<int>> degrees = readWhole(arguments, "--degrees", 0, 359);
    const Result<std::optional<int>> minutes = readWhole(arguments, "--minutes", 0, 59);
    const Result<std::optional<int>> seconds = readWhole(arguments, "--seconds", 0, 59);
    for (const Result<std::optional<int>>* const part : {&degrees, &minutes, &seconds}) {
        if (!*part) {
            return part->error();
        }
    }
    if (degrees.value() || minutes.value() || seconds.value()) {
        change.value = core::ayanamsaValue(degrees.value().value_or(0), minutes.value().value_or(0),
                                           seconds.value().value_or(0));
    }
    return {};
}

Result<void> readRate(const Arguments& arguments, RowChange& change)
{
    const std::optional<std::string> text = arguments.value("--rate");
    if (!text) {
        return {};
    }
    change.rate = core::parseNumber(*text);
    if (!change.rate || std::fabs(*change.rate) > kLargestRate) {
        return Error{"--rate '" + *text + "' is not a number from -3600 to 3600"};
    }
    return {};
}

Result<RowChange> readRowChange(const Arguments& arguments)
{
    RowChange change;
    const std::string rowText = arguments.value("ROW").value_or("");
    const std::optional<int> row = core::parseInteger(rowText);
    if (!row || *row < 0 || *row >= core::kAyanamsaRows) {
        return Error{"there is no ayanamsa row '" + rowText + "'; rows are 0 to 9"};
    }
    change.row = *row;
    const Result<std::optional<int>> epoch =
        readWhole(arguments, "--epoch", -kLargestEpoch, kLargestEpoch);
    if (!epoch) {
        return epoch.error();
    }
    change.epochYear = epoch.value();
    for (const auto read : {readName, readValue, readRate}) {
        const Result<void> part = read(arguments, change);
        if (!part) {
            return part.error();
        }
    }
    if (!change.name && !change.epochYear && !change.value && !change.rate) {
        return Error{"nothing to change in ayanamsa row " + rowText + " was given"};
    }
    return change;
}

void apply(const RowChange& change, core::AyanamsaRow& row)
{
    if (change.name) {
        row.setName(*change.name);
    }
    row.epochYear = change.epochYear.value_or(row.epochYear);
    row.valueAtEpoch = change.value.value_or(row.valueAtEpoch);
    row.annualRate = change.rate.value_or(row.annualRate);
}

void printTable(const Command& command, const Arguments& arguments, const core::Settings& settings,
                Console& console)
{
    if (arguments.has("--json")) {
        Json object = commandObject(command.info().name);
        object["ayanamsaTable"] = ayanamsaTableJson(settings);
        console.print(jsonText(object));
        return;
    }
    present::TextTable table({{L"Row", present::TextTable::Align::Right},
                              {L"Name"},
                              {L"Epoch", present::TextTable::Align::Right},
                              {L"Value", present::TextTable::Align::Right},
                              {L"Rate", present::TextTable::Align::Right},
                              {L""}});
    for (std::size_t i = 0; i < settings.ayanamsaTable.size(); ++i) {
        const core::AyanamsaRow& row = settings.ayanamsaTable[i];
        table.add({std::to_wstring(i), core::fromFileBytes(row.nameText()),
                   std::to_wstring(row.epochYear), core::FormatDMS(row.valueAtEpoch, 1),
                   core::fromFileBytes(core::shortestNumber(row.annualRate)),
                   astro::isTropical(row) ? L"tropical" : L""});
    }
    console.print(table.text());
}

} // namespace

ListAyanamsasCommand::ListAyanamsasCommand()
    : Command({"settings ayanamsa list", "List the table of ayanamsas", {}, {kCommonOptions}})
{}

ExitCode ListAyanamsasCommand::run(const Arguments& arguments, Console& console) const
{
    const auto stored = loadSettings(arguments, FileNeed::MustExist, console);
    if (!stored) {
        console.error(stored.error().text());
        return ExitCode::Failed;
    }
    printTable(*this, arguments, stored.value().settings, console);
    return ExitCode::Done;
}

SetAyanamsaCommand::SetAyanamsaCommand()
    : Command({"settings ayanamsa set",
               "Change a row of the table of ayanamsas and store it",
               {{"ROW", "row of the table, 0 to 9"}},
               {kRowOptions, kCommonOptions}})
{}

ExitCode SetAyanamsaCommand::run(const Arguments& arguments, Console& console) const
{
    const Result<RowChange> change = readRowChange(arguments);
    if (!change) {
        console.error(change.error().text());
        return ExitCode::Usage;
    }
    const auto row = static_cast<std::size_t>(change.value().row);
    core::Settings changed;
    const ExitCode code = changeStoredSettings(arguments, console, [&](core::Settings& settings) {
        apply(change.value(), settings.ayanamsaTable[row]);
        changed = settings;
    });
    if (code != ExitCode::Done) {
        return code;
    }
    if (astro::isTropical(changed.ayanamsaTable[row])) {
        console.warning("ayanamsa row " + std::to_string(row) +
                        " has a rate of 0 or less, which makes charts tropical whatever its value");
    }
    printTable(*this, arguments, changed, console);
    return ExitCode::Done;
}

ResetAyanamsasCommand::ResetAyanamsasCommand()
    : Command({"settings ayanamsa reset",
               "Give the table of ayanamsas its original rows back",
               {},
               {kCommonOptions}})
{}

ExitCode ResetAyanamsasCommand::run(const Arguments& arguments, Console& console) const
{
    core::Settings changed;
    const ExitCode code = changeStoredSettings(arguments, console, [&](core::Settings& settings) {
        settings.ayanamsaTable = core::factoryAyanamsaTable();
        changed = settings;
    });
    if (code == ExitCode::Done) {
        printTable(*this, arguments, changed, console);
    }
    return code;
}

} // namespace kestrav::cli
