#include "app/cli/ComputingCommand.h"

#include "app/cli/Console.h"
#include "app/cli/Explanations.h"
#include "core/FileText.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace kestrav::cli
{

core::Result<void> ComputingCommand::check(const Arguments& /*arguments*/) const
{
    return {};
}

ExitCode ComputingCommand::run(const Arguments& arguments, Console& console) const
{
    const bool json = arguments.has("--json");
    if (asksForTopics(arguments)) {
        console.print(json ? jsonText(topicsJson(info().name)) : core::toUtf8(topicsText()));
        return ExitCode::Done;
    }
    if (const core::Result<void> checked = check(arguments); !checked) {
        console.error(checked.error().text());
        return ExitCode::Usage;
    }
    ExitCode code = ExitCode::Done;
    const std::optional<ComputedChart> computed =
        computeFromArguments(arguments, need_, console, code);
    if (!computed) {
        return code;
    }
    const auto explanations = explanationsOf(arguments, *computed);
    if (!explanations) {
        console.error(explanations.error().text());
        return ExitCode::Usage;
    }
    if (!json) {
        console.print(text(*computed, arguments) + explanationsText(explanations.value()));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    addJson(object, *computed, arguments);
    if (!explanations.value().empty()) {
        object["explanations"] = explanationsJson(explanations.value());
    }
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
