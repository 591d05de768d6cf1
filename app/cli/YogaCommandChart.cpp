#include "app/cli/YogaCommandChart.h"

#include "app/cli/BirthData.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/YogaCommand.h"
#include "app/cli/YogaOutput.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 1> kFindOptions = {{
    {"--holding", "", "in JSON too, only the yogas that hold"},
}};

// A chart, what may be beside it, and the subject of them.
struct ChartCall
{
    std::optional<CallData> call;
    ComputedChart chart;
    std::optional<ComputedChart> second;
    std::unique_ptr<yoga::Subject> subject;
};

std::optional<ComputedChart> computed(const Arguments& arguments, const CallData& call,
                                      std::string_view prefix, Console& console, ExitCode& code)
{
    core::Result<BirthData> birth = readBirthData(arguments, PlaceNeed::Optional, prefix);
    if (!birth) {
        console.error(birth.error().text());
        code = ExitCode::Usage;
        return std::nullopt;
    }
    return computeChart(call, std::move(birth.value()), console, code);
}

// Nothing after a failure, which has been reported with its exit code in `code`.
std::optional<ChartCall> openChart(const Arguments& arguments, Console& console, ExitCode& code)
{
    ChartCall result;
    result.call = openCall(arguments, console, code);
    std::optional<ComputedChart> chart =
        result.call ? computed(arguments, *result.call, kOwnChart, console, code) : std::nullopt;
    if (!chart) {
        return std::nullopt;
    }
    result.chart = std::move(*chart);
    if (hasSecondChart(arguments)) {
        result.second = computed(arguments, *result.call, kSecondChart, console, code);
        if (!result.second) {
            return std::nullopt;
        }
    }
    const core::Result<std::optional<double>> moment = dashaMoment(arguments, result.second);
    if (!moment) {
        console.error(moment.error().text());
        code = ExitCode::Usage;
        return std::nullopt;
    }
    result.subject =
        std::make_unique<yoga::Subject>(result.call->settings, &result.call->data.series);
    result.subject->setMoment(moment.value());
    return result;
}

// The subject refers to the charts, which have their places only now.
void begin(ChartCall& call)
{
    call.subject->setChart(call.chart.chart);
    call.subject->setSecondChart(call.second ? &call.second->chart : nullptr);
}

struct FoundYoga
{
    yoga::YogaPlace place;
    yoga::RuleOutcome outcome;
};

Json foundJson(const yoga::YogaLibrary& library, const FoundYoga& found)
{
    const yoga::Yoga& yoga = library.yoga(found.place);
    const std::optional<yoga::YogaRule>& rule = library.rule(found.place);
    Json object;
    object["file"] = textJson(core::fromFileBytes(library.files()[found.place.file].path.string()));
    object["title"] = textJson(core::fromFileBytes(yoga.title));
    object["chapter"] = textOrNull(core::fromFileBytes(yoga.chapter));
    object["rule"] = textJson(core::fromFileBytes(yoga.rule));
    object["interpretation"] = textOrNull(core::fromFileBytes(yoga.interpretation));
    object["comment"] = textOrNull(core::fromFileBytes(yoga.comment));
    object["holds"] = rule ? Json(found.outcome.truth) : Json();
    object["reasons"] = rule ? reasonsJson(*rule, found.outcome) : Json::array();
    return object;
}

std::wstring foundText(const yoga::YogaLibrary& library, const FoundYoga& found)
{
    const yoga::Yoga& yoga = library.yoga(found.place);
    const std::wstring chapter = core::fromFileBytes(yoga.chapter);
    std::wstring text = core::fromFileBytes(yoga.title) +
                        (chapter.empty() ? std::wstring() : L" (" + chapter + L")") + L"\n";
    if (!yoga.interpretation.empty()) {
        text += present::wrapped(core::fromFileBytes(yoga.interpretation), L"  ");
    }
    return text + reasonsText(*library.rule(found.place), found.outcome, false) + L"\n";
}

} // namespace

bool hasSecondChart(const Arguments& arguments)
{
    return std::any_of(kSecondChartOptions.begin(), kSecondChartOptions.end(),
                       [&](const OptionInfo& option) { return arguments.has(option.name); });
}

core::Result<std::optional<double>> dashaMoment(const Arguments& arguments,
                                                const std::optional<ComputedChart>& second)
{
    core::Result<std::optional<double>> typed = typedMoment(arguments);
    if (!typed || typed.value() || (second && second->chart.hasMoment)) {
        return typed;
    }
    const core::Result<double> now = presentJulianDay();
    return now ? core::Result<std::optional<double>>(std::optional(now.value())) : now.error();
}

FindYogasCommand::FindYogasCommand()
    : Command({"yogas find",
               "Find the yogas that a chart has, with the reasons",
               {},
               {kYogaFileOption, kFindOptions, kYogaMomentOption, kBirthOptions, kPositionsOption,
                kSecondChartOptions, kSetOptions, kCommonOptions}})
{}

ExitCode FindYogasCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    std::optional<ChartCall> call = openChart(arguments, console, code);
    const std::optional<yoga::YogaLibrary> library =
        call ? loadYogas(arguments, console, code) : std::nullopt;
    if (!library) {
        return code;
    }
    begin(*call);
    const bool json = arguments.has("--json");
    const bool holdingOnly = !json || arguments.has("--holding");
    std::vector<FoundYoga> yogas;
    std::size_t holding = 0;
    for (const yoga::YogaPlace& place : library->all()) {
        FoundYoga found{place, {}};
        if (const std::optional<yoga::YogaRule>& rule = library->rule(place)) {
            found.outcome = yoga::explainRule(*rule, *call->subject);
        }
        holding += found.outcome.truth ? 1 : 0;
        if (found.outcome.truth || !holdingOnly) {
            yogas.push_back(std::move(found));
        }
    }
    if (!json) {
        std::wstring text;
        for (const FoundYoga& found : yogas) {
            text += foundText(*library, found);
        }
        console.print(text + std::to_wstring(holding) + L" of " +
                      std::to_wstring(library->all().size()) + L" yogas hold\n");
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["yogas"] = Json::array();
    for (const FoundYoga& found : yogas) {
        object["yogas"].push_back(foundJson(*library, found));
    }
    console.print(jsonText(object));
    return ExitCode::Done;
}

ExplainYogaCommand::ExplainYogaCommand()
    : Command({"yogas explain",
               "Tell why a yoga or a rule holds in a chart or not, condition by condition",
               {},
               {kOneYogaOptions, kYogaFileOption, kYogaMomentOption, kBirthOptions,
                kPositionsOption, kSecondChartOptions, kSetOptions, kCommonOptions}})
{}

ExitCode ExplainYogaCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const std::optional<ChosenRule> chosen = chosenRule(arguments, console, code);
    std::optional<ChartCall> call = chosen ? openChart(arguments, console, code) : std::nullopt;
    if (!call) {
        return code;
    }
    begin(*call);
    const yoga::RuleOutcome outcome = yoga::explainRule(chosen->rule, *call->subject);
    if (!arguments.has("--json")) {
        const std::wstring title = core::fromFileBytes(chosen->title);
        console.print((title.empty() ? L"The rule" : title) +
                      (outcome.truth ? L" holds\n" : L" does not hold\n") +
                      reasonsText(chosen->rule, outcome, true));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["title"] = textOrNull(core::fromFileBytes(chosen->title));
    object["rule"] = textJson(core::fromFileBytes(chosen->text));
    object["holds"] = outcome.truth;
    object["reasons"] = reasonsJson(chosen->rule, outcome);
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
