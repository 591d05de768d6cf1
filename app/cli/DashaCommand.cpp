#include "app/cli/DashaCommand.h"

#include "app/cli/ChartText.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/DashaCommandOptions.h"
#include "app/cli/DashaOutput.h"
#include "app/cli/SharedOptions.h"
#include "timing/ConditionalDashas.h"
#include "timing/DashaQuery.h"
#include "timing/YearLength.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace kestrav::cli
{

namespace
{

ExitCode printSystems(std::string_view command, bool json, Console& console)
{
    if (json) {
        Json object = commandObject(command);
        object["systems"] = dashaSystemsJson();
        console.print(jsonText(object));
    } else {
        console.print(dashaSystemsText());
    }
    return ExitCode::Done;
}

// The periods of the span, and whether the budget cut the list off.
bool listPeriods(const timing::Dasha& dasha, timing::DashaSpan span,
                 std::vector<timing::DashaPeriod>& periods)
{
    const auto most = std::size_t(span.budget);
    ++span.budget;
    for (const timing::DashaPeriod& period : timing::DashaList(dasha, span)) {
        if (periods.size() == most) {
            return true;
        }
        periods.push_back(period);
    }
    return false;
}

std::vector<timing::DashaPeriod> runningAt(const timing::Dasha& dasha, double julianDay)
{
    std::vector<timing::DashaPeriod> running;
    const double age = dasha.calendar.ageAt(julianDay);
    for (int level = 1; level <= timing::kDashaLevels; ++level) {
        if (const auto period = timing::periodAtAge(dasha, age, level)) {
            running.push_back(*period);
        }
    }
    return running;
}

std::vector<int> applyingDashas(const ComputedChart& computed, const timing::DashaOptions& options)
{
    std::vector<int> systems;
    for (const int system : timing::kConditionalDashas) {
        if (timing::dashaApplies(computed.chart, computed.settings, options, system)) {
            systems.push_back(system);
        }
    }
    return systems;
}

core::Result<DashaResult> dashaResult(const ComputedChart& computed, const Arguments& arguments,
                                      const DashaRequest& request, const astro::Series& series,
                                      Console& console)
{
    const core::Chart& chart = computed.chart;
    const timing::DashaOptions options = timing::dashaOptions(computed.settings);
    core::Result<timing::Dasha> dasha = timing::dashaOf(chart, computed.settings, options, series);
    if (!dasha) {
        return core::Error{dasha.error().message +
                           (computed.hasPlace ? "" : "; give --lon and --lat")};
    }
    const core::Result<timing::DashaSpan> span =
        dashaSpan(request, arguments, computed.settings, dasha.value(), chart.zone);
    if (!span) {
        return span.error();
    }
    DashaResult result{options, std::move(dasha.value()), {}, {}, {}, {}};
    const bool cut = listPeriods(result.dasha, span.value(), result.periods);
    result.moment = momentAsked(request, chart.zone);
    if (result.moment) {
        result.running = runningAt(result.dasha, *result.moment);
    }
    if (arguments.has("--conditional")) {
        result.conditional = applyingDashas(computed, options);
    }
    if (cut && !request.lines && (!result.moment || arguments.has("--json"))) {
        console.warning("the list ends after " + std::to_string(result.periods.size()) +
                        " periods; --lines N gives more");
    }
    return result;
}

} // namespace

DashaCommand::DashaCommand()
    : Command({"dasha",
               "List the periods of a dasha, or those that run at a moment",
               {},
               {kBirthOptions, kPositionsOption, kDashaOptions, kSetOptions, kCommonOptions}})
{}

ExitCode DashaCommand::run(const Arguments& arguments, Console& console) const
{
    const bool json = arguments.has("--json");
    if (arguments.has("--list")) {
        return printSystems(info().name, json, console);
    }
    const auto usageError = [&console](const core::Error& error) {
        console.error(error.text());
        return ExitCode::Usage;
    };
    const core::Result<BirthData> birth = readBirthData(arguments, PlaceNeed::Optional);
    if (!birth) {
        return usageError(birth.error());
    }
    const core::Result<DashaRequest> request = readDashaRequest(arguments);
    if (!request) {
        return usageError(request.error());
    }
    ExitCode code = ExitCode::Done;
    std::optional<CallData> call = openCall(arguments, console, code);
    if (!call) {
        return code;
    }
    if (const core::Result<void> applied = applyDashaOptions(arguments, call->settings); !applied) {
        return usageError(applied.error());
    }
    // Bare positions have a Sun that was typed and not computed.
    timing::leaveTrueSolarYear(call->settings, birth.value().positionsFile.has_value(), console);
    const std::optional<ComputedChart> computed = computeChart(*call, birth.value(), console, code);
    if (!computed) {
        return code;
    }
    const core::Result<DashaResult> result =
        dashaResult(*computed, arguments, request.value(), call->data.series, console);
    if (!result) {
        return usageError(result.error());
    }
    if (!json) {
        console.print(inputText(*computed) + L"\n" + dashaText(*computed, result.value()));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    addDashaJson(object, *computed, result.value());
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
