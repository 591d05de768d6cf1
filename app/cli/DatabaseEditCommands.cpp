#include "app/cli/DatabaseEditCommands.h"

#include "app/cli/BirthData.h"
#include "app/cli/ChartSource.h"
#include "app/cli/Console.h"
#include "app/cli/DatabaseOptions.h"
#include "app/cli/DatabaseRecord.h"
#include "app/cli/SharedOptions.h"
#include "app/present/BirthRecord.h"
#include "core/FileText.h"
#include "data/BirthTexts.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/DatabaseMessages.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 1> kKeepBothOption = {{
    {"--keep-both", "", "save a chart whose name exists under the name with ~ instead of updating"},
}};

constexpr std::array<OptionInfo, 1> kNewNameOption = {{
    {"--new-name", "NAME", "the name from now on"},
}};

constexpr std::array<OptionInfo, 1> kClearOption = {{
    {"--clear", "", "leave no chart in the group"},
}};

// The birth data that an update takes: date to place, without the name, which finds the chart.
constexpr std::span<const OptionInfo> kChangedBirthOptions = kTypedBirthOptions.first(6);
constexpr std::array<OptionInfo, 1> kChangedPlaceOption = {{
    {"--place", "TEXT",
     "city and country, from which coordinates, zone and saving time are taken where they are not "
     "given; with --lon and --lat a label only"},
}};

std::optional<std::string> nameProblem(const std::wstring& name)
{
    if (!data::hasLetterOrDigit(name)) {
        return "the name '" + core::toUtf8(name) + "' has neither letter nor digit";
    }
    if (name.size() > data::kNameLength) {
        return "the name is longer than " + std::to_string(data::kNameLength) + " characters";
    }
    return std::nullopt;
}

// Looks up what is to be looked up, adds the typed fields, which win over it, and tests the result.
ExitCode finishRecord(DatabaseCall& call, BirthData& birth)
{
    ExitCode code = ExitCode::Done;
    if (!completeBirthData(birth, call.settings, call.console, code)) {
        return code;
    }
    for (const std::string& warning : birth.warnings) {
        call.console.warning(warning);
    }
    core::Chart& chart = birth.chart;
    const core::Result<void> applied = applyRecordOptions(call.arguments, chart);
    if (!applied) {
        return usageError(call, applied.error().text());
    }
    if (chart.place.size() > data::kPlaceLength) {
        return usageError(call, "--place is longer than " + std::to_string(data::kPlaceLength) +
                                    " characters");
    }
    const std::string problem = present::birthProblem(chart);
    if (!problem.empty()) {
        return usageError(call, problem);
    }
    data::cleanRecord(chart);
    data::refreshBirthTexts(chart);
    return ExitCode::Done;
}

ExitCode printChart(DatabaseCall& call, std::size_t line)
{
    core::Chart chart;
    call.database.read(line, chart);
    if (!call.json()) {
        call.console.print(L"line " + std::to_wstring(line + 1) + L": " + chart.name + L"\n");
        return ExitCode::Done;
    }
    Json object = call.object();
    object["line"] = line + 1;
    object["chart"] = recordJson(chart);
    call.console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace

NewDatabaseCommand::NewDatabaseCommand()
    : DatabaseCommand("db new", "Begin an empty database", {}, {kYesOption}, Opens::Nothing)
{}

ExitCode NewDatabaseCommand::work(DatabaseCall& call) const
{
    const ExitCode code = exitCodeOf(data::newDatabase(call.database, call.path, call.messages));
    if (code == ExitCode::Done && call.json()) {
        Json object = call.object();
        object["file"] = call.path.string();
        call.console.print(jsonText(object));
    }
    return code;
}

AddChartCommand::AddChartCommand()
    : DatabaseCommand("db add", "Save a chart in a database; a chart of the same name is updated",
                      {}, {kTypedBirthOptions, kRecordOptions, kKeepBothOption, kYesOption})
{}

ExitCode AddChartCommand::work(DatabaseCall& call) const
{
    core::Result<BirthData> birth = readTypedBirthData(call.arguments, PlaceNeed::Required);
    if (!birth) {
        return usageError(call, birth.error().text());
    }
    if (!call.arguments.has("--name")) {
        return usageError(call, "--name is missing");
    }
    if (const std::optional<std::string> problem = nameProblem(birth.value().chart.name)) {
        return usageError(call, *problem);
    }
    const ExitCode code = finishRecord(call, birth.value());
    if (code != ExitCode::Done) {
        return code;
    }
    if (call.arguments.has("--keep-both")) {
        call.messages.answerBeforehand(data::kNameExists, core::Answer::No);
    }
    const std::optional<std::size_t> line =
        data::saveChart(call.database, birth.value().chart, {}, call.messages);
    if (!line || saveCall(call) != ExitCode::Done) {
        return ExitCode::Failed;
    }
    return printChart(call, *line);
}

UpdateChartCommand::UpdateChartCommand()
    : DatabaseCommand("db update", "Change what is given of a chart in a database", {},
                      {kChosenChartOptions, kNewNameOption, kChangedBirthOptions,
                       kChangedPlaceOption, kRecordOptions, kYesOption})
{}

ExitCode UpdateChartCommand::work(DatabaseCall& call) const
{
    core::Chart chart;
    ExitCode code = ExitCode::Done;
    const std::optional<std::size_t> line = chosenChart(call, chart, code);
    if (!line) {
        return code;
    }
    const auto given = [&](const OptionInfo& option) {
        return call.arguments.has(option.name);
    };
    if (std::none_of(kChangedBirthOptions.begin(), kChangedBirthOptions.end(), given) &&
        !given(kChangedPlaceOption.front()) && !given(kNewNameOption.front()) &&
        !hasRecordOptions(call.arguments)) {
        return usageError(call, "nothing to change was given");
    }
    core::Result<BirthData> birth = changeBirthData(call.arguments, chart);
    if (!birth) {
        return usageError(call, birth.error().text());
    }
    core::Chart& changed = birth.value().chart;
    if (call.arguments.has("--new-name")) {
        const core::Result<std::wstring> name = readLabel(call.arguments, "--new-name");
        const std::optional<std::string> problem =
            name ? nameProblem(name.value()) : name.error().text();
        if (problem) {
            return usageError(call, *problem);
        }
        const std::optional<std::size_t> other = call.database.find(name.value());
        if (other && *other != *line) {
            return usageError(call, "line " + std::to_string(*other + 1) + " has the name '" +
                                        core::toUtf8(name.value()) + "' already");
        }
        changed.name = name.value();
    }
    code = finishRecord(call, birth.value());
    if (code != ExitCode::Done) {
        return code;
    }
    call.database.replace(*line, changed);
    code = saveCall(call);
    return code == ExitCode::Done ? printChart(call, *line) : code;
}

DeleteChartCommand::DeleteChartCommand()
    : DatabaseCommand("db delete", "Take a chart out of a database", {},
                      {kChosenChartOptions, kYesOption})
{}

ExitCode DeleteChartCommand::work(DatabaseCall& call) const
{
    const std::optional<std::string> typed = call.arguments.value("--name");
    std::wstring name = typed ? core::fromFileBytes(*typed) : std::wstring();
    if (!typed) {
        core::Chart chart;
        ExitCode code = ExitCode::Done;
        const std::optional<std::size_t> line = chosenChart(call, chart, code);
        if (!line) {
            return code;
        }
        if (call.messages.show(data::kNoticeCaption, data::deleteQuestion(chart.name),
                               core::Buttons::YesNo) != core::Answer::Yes) {
            return ExitCode::Failed;
        }
        name = chart.name;
        call.database.remove(*line);
    } else if (call.arguments.has("--line")) {
        return usageError(call, "the chart is chosen by --name or by --line, not both");
    } else if (data::deleteChart(call.database, name, call.messages) != data::Outcome::Done) {
        return ExitCode::Failed;
    }
    const ExitCode code = saveCall(call);
    if (code == ExitCode::Done && call.json()) {
        Json object = call.object();
        object["name"] = textJson(name);
        call.console.print(jsonText(object));
    }
    return code;
}

GroupChartsCommand::GroupChartsCommand()
    : DatabaseCommand("db group", "Make the charts that are named, and no other, group A or B",
                      {{"GROUP", "A or B"}}, {kChosenChartsOptions, kClearOption, kYesOption})
{}

ExitCode GroupChartsCommand::work(DatabaseCall& call) const
{
    const std::string& group = call.arguments.values("GROUP").front();
    const bool groupA = group == "A" || group == "a";
    if (!groupA && group != "B" && group != "b") {
        return usageError(call, "the group '" + group + "' is neither A nor B");
    }
    ExitCode code = ExitCode::Done;
    const std::optional<std::vector<std::size_t>> lines = chosenCharts(call, code);
    if (!lines) {
        return code;
    }
    if (lines->empty() != call.arguments.has("--clear")) {
        return usageError(call, lines->empty()
                                    ? "no chart is named; --clear leaves none in the group"
                                    : "--clear cannot stand beside --name and --line");
    }
    const wchar_t tag = groupA ? L'A' : L'B';
    code = exitCodeOf(data::changeGroup(call.database, tag, *lines, call.messages));
    if (code == ExitCode::Done && call.json()) {
        Json object = call.object();
        object["group"] = groupA ? "A" : "B";
        object["lines"] = Json::array();
        for (const std::size_t line : *lines) {
            object["lines"].push_back(line + 1);
        }
        call.console.print(jsonText(object));
    }
    return code;
}

OrderDatesCommand::OrderDatesCommand()
    : DatabaseCommand("db order", "Write the dates of every chart in one order",
                      {{"ORDER", "day-first or month-first"}}, {kYesOption})
{}

ExitCode OrderDatesCommand::work(DatabaseCall& call) const
{
    const std::string& typed = call.arguments.values("ORDER").front();
    if (typed != "day-first" && typed != "month-first") {
        return usageError(call, "the order '" + typed + "' is neither day-first nor month-first");
    }
    const data::DateOrder wanted =
        typed == "day-first" ? data::DateOrder::DayFirst : data::DateOrder::MonthFirst;
    ExitCode code = ExitCode::Done;
    if (call.database.order() != wanted) {
        code = exitCodeOf(data::saveInOtherOrder(call.database, call.messages));
    } else {
        core::Chart chart;
        for (std::size_t i = 0; i < call.database.size(); ++i) {
            if (!data::isShortLine(call.database.line(i))) {
                call.database.replaceLine(
                    i, data::FormatChartLine(call.database.read(i, chart), wanted));
            }
        }
        code = saveCall(call);
    }
    if (code == ExitCode::Done && call.json()) {
        Json object = call.object();
        object["order"] = typed;
        call.console.print(jsonText(object));
    }
    return code;
}

} // namespace kestrav::cli
