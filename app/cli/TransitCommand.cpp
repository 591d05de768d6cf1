#include "app/cli/TransitCommand.h"

#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/Progress.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/TransitCommandOptions.h"
#include "app/cli/TransitCommandOutput.h"
#include "app/present/Clock.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "timing/SiderealSky.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::size_t kLongSpan = 2000; // days of which the progress is shown

// The clock of the days: the one typed, else that of the native, else --zone alone.
core::Result<double> clockOf(const TransitRequest& request, const Arguments& arguments,
                             const std::optional<ComputedChart>& native)
{
    if (request.clock) {
        return *request.clock;
    }
    if (native) {
        return native->chart.zone;
    }
    const std::optional<std::string> zone = arguments.value("--zone");
    return zone ? core::parseZone(*zone) : core::Result<double>(0.0);
}

std::wstring headingOf(const TransitRequest& request, const std::optional<ComputedChart>& native,
                       double clock)
{
    std::wstring text = L"Transits";
    if (request.options.mode == timing::TransitMode::Native && native) {
        text += native->chart.name.empty() ? L" to the chart" : L" to " + native->chart.name;
    }
    return text + L", " + present::dateText(timing::recordOfDay(request.days.first)) + L" to " +
           present::dateText(timing::recordOfDay(request.days.last)) + L", zone " +
           present::offsetText(clock);
}

// Nothing when it was stopped.
std::optional<TransitResult> computeTransits(const TransitRequest& request, const CallData& call,
                                             const std::optional<ComputedChart>& native,
                                             double clock)
{
    timing::SiderealSky sky(call.data.series, call.settings, clock);
    TransitResult result;
    result.clock = clock;
    result.style = {request.options.mode, request.options.orbDegrees,
                    call.settings.twelveHourClock};
    const core::Chart* const chart = native ? &native->chart : nullptr;
    Progress progress(L"Days");
    result.events = timing::listTransits(sky, chart, request.options, request.days, clock,
                                         [&](std::size_t done, std::size_t total) {
                                             if (total > kLongSpan) {
                                                 progress.show(done, total);
                                             }
                                             return !Progress::cancelled();
                                         });
    if (Progress::cancelled()) {
        return std::nullopt;
    }
    const timing::Span span{request.days.first - clock / 24.0,
                            request.days.last + 1.0 - clock / 24.0};
    if (chart != nullptr && request.kakshyas) {
        result.kakshyas = timing::transitKakshyas(sky, *chart, request.options.bodies, span);
    }
    if (chart != nullptr && request.sadeSati) {
        result.sadeSati = timing::sadeSati(sky, chart->rashi[core::kMoon], span);
    }
    return result;
}

} // namespace

TransitsCommand::TransitsCommand()
    : Command({"transits",
               "List transits: exact aspects, orbs, ingresses, stations and combustion; the place "
               "may be left out",
               {},
               {kBirthOptions, kPositionsOption, kTransitOptions, kSetOptions, kCommonOptions}})
{}

ExitCode TransitsCommand::run(const Arguments& arguments, Console& console) const
{
    const auto usageError = [&console](const core::Error& error) {
        console.error(error.text());
        return ExitCode::Usage;
    };
    core::Result<TransitRequest> read = readTransitRequest(arguments);
    if (!read) {
        return usageError(read.error());
    }
    TransitRequest& request = read.value();
    std::optional<BirthData> birth;
    if (request.needsNative() || namesChart(arguments)) {
        core::Result<BirthData> typed = readBirthData(arguments, PlaceNeed::Optional);
        if (!typed) {
            return usageError(typed.error());
        }
        birth = std::move(typed.value());
    }
    ExitCode code = ExitCode::Done;
    const std::optional<CallData> call = openCall(arguments, console, code);
    if (!call) {
        return code;
    }
    std::optional<ComputedChart> native;
    if (birth) {
        native = computeChart(*call, *birth, console, code);
        if (!native) {
            return code;
        }
    }
    const core::Result<double> clock = clockOf(request, arguments, native);
    if (!clock) {
        return usageError(clock.error());
    }
    core::Result<void> settled = settleTransitDays(request, clock.value());
    if (settled && request.options.mode == timing::TransitMode::Native) {
        settled = settleTransitTargets(request, native->chart);
    }
    if (!settled) {
        return usageError(settled.error());
    }
    const std::optional<TransitResult> result =
        computeTransits(request, *call, native, clock.value());
    if (!result) {
        console.error("stopped before the list was complete");
        return ExitCode::Failed;
    }
    if (!arguments.has("--json")) {
        console.print(transitText(headingOf(request, native, clock.value()), *result));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    addTransitJson(object, *result);
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
