// What the commands on chart databases have in common.
#pragma once

#include "app/cli/Command.h"
#include "app/cli/ConsoleMessages.h"
#include "app/cli/JsonValues.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/DatabaseCommands.h"

#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

/// One call of a command on a database.
struct DatabaseCall
{
    const CommandInfo& info;
    const Arguments& arguments;
    Console& console;
    ConsoleMessages messages;
    core::Settings settings;
    std::filesystem::path path; ///< of --db
    data::ChartDatabase database;

    [[nodiscard]] bool json() const
    {
        return arguments.has("--json");
    }
    /// The beginning of the command's JSON object.
    [[nodiscard]] Json object() const;
};

/// Reads the settings of the call and opens the database of --db.
class DatabaseCommand : public Command
{
public:
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const final;

protected:
    enum class Opens
    {
        Database,
        Nothing, ///< the file of --db is written as a whole
    };

    DatabaseCommand(std::string_view name, std::string_view description,
                    std::vector<PositionalInfo> positionals = {},
                    std::vector<std::span<const OptionInfo>> options = {},
                    Opens opens = Opens::Database);

    [[nodiscard]] virtual ExitCode work(DatabaseCall& call) const = 0;

private:
    Opens opens_;
};

/// The exit code of an outcome, of which the user was told.
[[nodiscard]] ExitCode exitCodeOf(data::Outcome outcome);

/// Writes the database to its file.
[[nodiscard]] ExitCode saveCall(DatabaseCall& call);

/// Reports wrong usage in one line.
[[nodiscard]] ExitCode usageError(DatabaseCall& call, std::string_view what);

} // namespace kestrav::cli
