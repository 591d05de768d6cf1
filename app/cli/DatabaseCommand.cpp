#include "app/cli/DatabaseCommand.h"
#include "app/present/BirthRecord.h"

#include "app/cli/ChartSource.h"
#include "app/cli/CommandSettings.h"
#include "app/cli/Console.h"
#include "app/cli/SharedOptions.h"
#include "data/import/ReadImport.h"

#include <nlohmann/json.hpp>

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 1> kDatabaseOption = {{
    {"--db", "FILE", "the chart database"},
}};

// Where nothing else is told by its place the database may be.
constexpr PositionalInfo kDatabasePlace = {"DATABASE", "the chart database, instead of --db",
                                           false};

std::optional<std::string> databaseFile(const Arguments& arguments)
{
    const std::optional<std::string> option = arguments.value("--db");
    return option ? option : arguments.value(kDatabasePlace.name);
}

CommandInfo databaseInfo(std::string_view name, std::string_view description,
                         std::vector<PositionalInfo> positionals,
                         std::vector<std::span<const OptionInfo>> options)
{
    if (positionals.empty()) {
        positionals.push_back(kDatabasePlace);
    }
    options.insert(options.begin(), kDatabaseOption);
    options.insert(options.end(), {kSetOptions, kCommonOptions});
    return {name, description, std::move(positionals), std::move(options)};
}

} // namespace

Json DatabaseCall::object() const
{
    return commandObject(info.name);
}

DatabaseCommand::DatabaseCommand(std::string_view name, std::string_view description,
                                 std::vector<PositionalInfo> positionals,
                                 std::vector<std::span<const OptionInfo>> options, Opens opens)
    : Command(databaseInfo(name, description, std::move(positionals), std::move(options))),
      opens_(opens)
{}

ExitCode DatabaseCommand::run(const Arguments& arguments, Console& console) const
{
    const std::optional<std::string> file = databaseFile(arguments);
    if (!file) {
        console.error("--db is missing");
        return ExitCode::Usage;
    }
    if (arguments.has("--db") && arguments.has(kDatabasePlace.name)) {
        console.error("the database is named twice, '" + *file + "' and '" +
                      *arguments.value(kDatabasePlace.name) + "'");
        return ExitCode::Usage;
    }
    if (data::isImportName(*file)) {
        console.error(*file + ": is no chart database; db import adds its charts to one");
        return ExitCode::Usage;
    }
    ExitCode code = ExitCode::Done;
    const std::optional<core::Settings> settings = settingsOfCall(arguments, console, code);
    if (!settings) {
        return code;
    }
    DatabaseCall call{info(),
                      arguments,
                      console,
                      ConsoleMessages(console, arguments.has("--yes")),
                      *settings,
                      *file,
                      data::ChartDatabase(present::dateOrder(*settings))};
    if (opens_ == Opens::Database) {
        code = exitCodeOf(data::openDatabase(call.database, call.path, call.messages));
    }
    return code == ExitCode::Done ? work(call) : code;
}

ExitCode exitCodeOf(data::Outcome outcome)
{
    return outcome == data::Outcome::Done ? ExitCode::Done : ExitCode::Failed;
}

ExitCode saveCall(DatabaseCall& call)
{
    return exitCodeOf(data::saveDatabase(call.database, call.messages));
}

ExitCode usageError(DatabaseCall& call, std::string_view what)
{
    call.console.error(what);
    return ExitCode::Usage;
}

} // namespace kestrav::cli
