#include "app/cli/ChartCommands.h"

#include "app/cli/ChartJson.h"
#include "app/cli/ChartText.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/SharedOptions.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace kestrav::cli
{

namespace
{

CommandInfo chartInfo(std::string_view name, std::string_view description)
{
    return {name, description, {}, {kBirthOptions, kSetOptions, kCommonOptions}};
}

} // namespace

ChartCommand::ChartCommand()
    : Command(chartInfo("chart", "Compute a whole chart: positions, houses, sunrise and sunset"))
{}

ExitCode ChartCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const auto computed = computeFromArguments(arguments, PlaceNeed::Required, console, code);
    if (!computed) {
        return code;
    }
    if (!arguments.has("--json")) {
        console.print(inputText(*computed) + L"\n" + timeText(*computed) + L"\n" +
                      daylightText(*computed) + L"\n" + pointsText(*computed) + L"\n" +
                      housesText(*computed));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["input"] = inputJson(*computed);
    object["time"] = timeJson(*computed);
    object["ayanamsa"] = ayanamsaJson(*computed);
    object["houses"] = housesJson(*computed);
    object["sun"] = sunJson(*computed);
    object["points"] = pointsJson(*computed);
    object["vargas"] = nullptr;
    object["vimshopaka"] = nullptr;
    object["ashtakavarga"] = nullptr;
    console.print(jsonText(object));
    return ExitCode::Done;
}

PositionsCommand::PositionsCommand()
    : Command(chartInfo("positions", "Compute the positions of the bodies; the place may be left "
                                     "out"))
{}

ExitCode PositionsCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const auto computed = computeFromArguments(arguments, PlaceNeed::Optional, console, code);
    if (!computed) {
        return code;
    }
    if (!arguments.has("--json")) {
        console.print(inputText(*computed) + L"\n" + timeText(*computed) + L"\n" +
                      pointsText(*computed));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["input"] = inputJson(*computed);
    object["time"] = timeJson(*computed);
    object["ayanamsa"] = ayanamsaJson(*computed);
    object["points"] = pointsJson(*computed);
    console.print(jsonText(object));
    return ExitCode::Done;
}

HousesCommand::HousesCommand()
    : Command(chartInfo("houses", "Compute ascendant, midheaven and house cusps"))
{}

ExitCode HousesCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const auto computed = computeFromArguments(arguments, PlaceNeed::Required, console, code);
    if (!computed) {
        return code;
    }
    if (!arguments.has("--json")) {
        console.print(inputText(*computed) + L"\n" + timeText(*computed) + L"\n" +
                      housesText(*computed));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["input"] = inputJson(*computed);
    object["time"] = timeJson(*computed);
    object["ayanamsa"] = ayanamsaJson(*computed);
    object["houses"] = housesJson(*computed);
    console.print(jsonText(object));
    return ExitCode::Done;
}

SunCommand::SunCommand()
    : Command(chartInfo("sun", "Compute sunrise, noon and sunset, and the day from sunrise to "
                               "sunrise"))
{}

ExitCode SunCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const auto computed = computeFromArguments(arguments, PlaceNeed::Required, console, code);
    if (!computed) {
        return code;
    }
    if (!arguments.has("--json")) {
        console.print(inputText(*computed) + L"\n" + sunText(*computed));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["input"] = inputJson(*computed);
    object["sun"] = sunJson(*computed);
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
