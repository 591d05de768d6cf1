#include "app/cli/DatabaseOptions.h"

#include "app/cli/ChartSource.h"
#include "app/cli/Console.h"

namespace kestrav::cli
{

namespace
{

std::optional<std::size_t> lineOf(DatabaseCall& call, const Arguments& arguments, ExitCode& code)
{
    const core::Result<DatabaseChoice> choice = readDatabaseChoice(arguments);
    if (!choice) {
        code = usageError(call, choice.error().text());
        return std::nullopt;
    }
    return chosenLine(call.database, choice.value(), call.console, code);
}

} // namespace

std::optional<std::size_t> chosenChart(DatabaseCall& call, core::Chart& chart, ExitCode& code)
{
    Arguments arguments = call.arguments;
    arguments.store("--db", {call.path.string()});
    const std::optional<std::size_t> line = lineOf(call, arguments, code);
    if (line) {
        readLineInOrder(call.database, *line, chart);
    }
    return line;
}

std::optional<std::vector<std::size_t>> chosenCharts(DatabaseCall& call, ExitCode& code)
{
    std::vector<std::size_t> lines;
    for (const std::string_view option : {"--name", "--line"}) {
        for (const std::string& value : call.arguments.values(option)) {
            Arguments one;
            one.store("--db", {call.path.string()});
            one.store(option, {value});
            const std::optional<std::size_t> line = lineOf(call, one, code);
            if (!line) {
                return std::nullopt;
            }
            lines.push_back(*line);
        }
    }
    return lines;
}

} // namespace kestrav::cli
