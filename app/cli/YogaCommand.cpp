#include "app/cli/YogaCommand.h"

#include "app/cli/CommandSettings.h"
#include "app/cli/JsonValues.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/YogaOutput.h"
#include "app/present/Clock.h"
#include "core/DateTime.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/import/ImportText.h"
#include "timing/SiderealSky.h"
#include "yoga/CustomYogaList.h"
#include "yoga/YogaListEdit.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrav::cli
{

namespace
{

constexpr double kUnixEpoch = 2440587.5;
constexpr double kSecondsPerDay = 86400.0;
constexpr double kHoursPerDay = 24.0;

constexpr std::array<OptionInfo, 1> kChapterOption = {{
    {"--chapter", "TEXT", "only the yogas of this chapter"},
}};

constexpr std::array<OptionInfo, 1> kRuleOption = {{
    {"--rule", "TEXT", "a rule instead of files"},
}};

struct CheckedYoga
{
    std::string path;
    std::size_t number = 0; ///< in its file, from 1; 0 for a typed rule
    std::string title;
    std::vector<yoga::RuleProblem> problems;
};

Json checkedJson(const CheckedYoga& checked)
{
    Json object;
    object["path"] = textOrNull(core::fromFileBytes(checked.path));
    object["number"] = checked.number > 0 ? Json(checked.number) : Json();
    object["title"] = textOrNull(core::fromFileBytes(checked.title));
    object["problems"] = ruleProblemsJson(checked.problems);
    return object;
}

std::string checkedText(const CheckedYoga& checked)
{
    std::string place;
    if (checked.number > 0) {
        place = checked.path + ": yoga " + std::to_string(checked.number) + " " +
                data::shown(checked.title) + ": ";
    }
    std::string text;
    for (const yoga::RuleProblem& problem : checked.problems) {
        text += core::toUtf8(core::fromFileBytes(place + problem.text)) + "\n";
    }
    return text;
}

std::wstring listText(const yoga::YogaLibrary& library, const std::optional<std::string>& chapter)
{
    std::wstring text;
    for (const yoga::LoadedYogaFile& file : library.files()) {
        const std::wstring name = core::fromFileBytes(file.file.name);
        text += (text.empty() ? L"" : L"\n") + core::fromFileBytes(file.path.string()) +
                (name.empty() ? L"" : L": " + name) + L"\n";
        std::map<std::string_view, std::wstring> titles;
        for (const yoga::Yoga& yoga : file.file.yogas) {
            titles[yoga.chapter] += L"    " + core::fromFileBytes(yoga.title) + L"\n";
        }
        for (const std::string& one : yoga::chaptersOf(file.file)) {
            if (!chapter || *chapter == one) {
                text += one.empty() ? L"" : L"  " + core::fromFileBytes(one) + L"\n";
                text += titles[one];
            }
        }
    }
    return text;
}

// A plain list is recognised by its extension, because any line of text can be one of its yogas.
core::Result<void> loadFile(yoga::YogaLibrary& library, const std::filesystem::path& path)
{
    if (path.extension() != ".txt") {
        return library.load(path);
    }
    const core::Result<std::vector<yoga::CustomYoga>> list = yoga::readCustomYogas(path);
    if (!list) {
        return list.error();
    }
    yoga::YogaFile file;
    yoga::importYogas(file, list.value());
    library.store(path, std::move(file));
    return {};
}

} // namespace

std::optional<yoga::YogaLibrary> loadYogas(const Arguments& arguments, Console& console,
                                           ExitCode& code)
{
    const std::vector<std::string>& typed = arguments.values("--file");
    std::vector<std::filesystem::path> files(typed.begin(), typed.end());
    if (typed.empty()) {
        files = yoga::standardYogaFiles();
    }
    yoga::YogaLibrary library;
    for (const std::filesystem::path& file : files) {
        const core::Result<void> loaded = loadFile(library, file);
        if (loaded) {
            continue;
        }
        if (!typed.empty()) {
            console.error(loaded.error().text());
            code = ExitCode::Failed;
            return std::nullopt;
        }
        console.warning(loaded.error().text());
    }
    if (library.files().empty()) {
        console.error("no yoga file was found; name one with --file");
        code = ExitCode::Failed;
        return std::nullopt;
    }
    return library;
}

std::optional<ChosenRule> chosenRule(const Arguments& arguments, Console& console, ExitCode& code)
{
    const std::optional<std::string> title = arguments.value("--yoga");
    const std::optional<std::string> text = arguments.value("--rule");
    code = ExitCode::Usage;
    if (title.has_value() == text.has_value()) {
        console.error(title ? "--yoga cannot stand beside --rule" : "give --yoga or --rule");
        return std::nullopt;
    }
    ChosenRule chosen;
    if (title) {
        const std::optional<yoga::YogaLibrary> library = loadYogas(arguments, console, code);
        if (!library) {
            return std::nullopt;
        }
        const std::optional<yoga::YogaPlace> place = library->find(*title);
        if (!place) {
            console.error("--yoga " + data::shown(*title) + " is no title, or one of several");
            return std::nullopt;
        }
        chosen.title = library->yoga(*place).title;
        chosen.text = library->yoga(*place).rule;
    } else {
        chosen.text = *text;
    }
    core::Result<yoga::YogaRule> rule = yoga::readCheckedRule(chosen.text);
    if (!rule) {
        // A yoga that cannot be used is no wrong usage.
        code = title ? ExitCode::Failed : ExitCode::Usage;
        console.error(rule.error().text());
        return std::nullopt;
    }
    for (const yoga::RuleProblem& problem : yoga::ruleProblems(chosen.text)) {
        console.warning(core::toUtf8(core::fromFileBytes(problem.text)));
    }
    chosen.rule = std::move(rule.value());
    code = ExitCode::Done;
    return chosen;
}

core::Result<double> presentJulianDay()
{
    const core::Result<double> moment = present::presentMoment();
    if (!moment) {
        return moment.error();
    }
    return kUnixEpoch + moment.value() / kSecondsPerDay;
}

core::Result<std::optional<double>> typedMoment(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--at");
    if (!text) {
        return std::optional<double>();
    }
    if (*text == "now") {
        const core::Result<double> now = presentJulianDay();
        return now ? core::Result<std::optional<double>>(std::optional(now.value())) : now.error();
    }
    const std::size_t mark = std::min(text->find_first_of("T "), text->size());
    const core::Result<core::CivilDate> date = core::parseDate(text->substr(0, mark));
    if (!date) {
        return core::Error{"--at: " + date.error().message};
    }
    double hour = 0.0;
    if (mark < text->size()) {
        const core::Result<double> read = core::parseClock(text->substr(mark + 1));
        if (!read) {
            return core::Error{"--at: " + read.error().message};
        }
        hour = read.value();
    }
    core::DateTimeRecord record;
    record.year = date.value().year;
    record.month = date.value().month;
    record.day = date.value().day;
    return std::optional(timing::julianDayOf(record, 0.0) + hour / kHoursPerDay);
}

ListYogasCommand::ListYogasCommand()
    : Command({"yogas list",
               "List the yogas of the loaded files",
               {},
               {kYogaFileOption, kChapterOption, kCommonOptions}})
{}

ExitCode ListYogasCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const std::optional<yoga::YogaLibrary> library = loadYogas(arguments, console, code);
    if (!library) {
        return code;
    }
    const std::optional<std::string> chapter = arguments.value("--chapter");
    if (!arguments.has("--json")) {
        console.print(listText(*library, chapter));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["files"] = Json::array();
    for (const yoga::LoadedYogaFile& file : library->files()) {
        Json& entry = object["files"].emplace_back(yogaFileJson(file));
        entry["yogas"] = Json::array();
        for (const yoga::Yoga& yoga : file.file.yogas) {
            if (!chapter || *chapter == yoga.chapter) {
                entry["yogas"].push_back(yogaJson(yoga));
            }
        }
    }
    console.print(jsonText(object));
    return ExitCode::Done;
}

CheckYogasCommand::CheckYogasCommand()
    : Command({"yogas check",
               "Report what is wrong with the rules of yoga files, or with one rule",
               {},
               {kYogaFileOption, kRuleOption, kCommonOptions}})
{}

ExitCode CheckYogasCommand::run(const Arguments& arguments, Console& console) const
{
    const std::optional<std::string> rule = arguments.value("--rule");
    std::vector<CheckedYoga> checked;
    std::size_t count = 1;
    if (rule) {
        checked.push_back({{}, 0, {}, yoga::ruleProblems(*rule)});
    } else {
        ExitCode code = ExitCode::Done;
        const std::optional<yoga::YogaLibrary> library = loadYogas(arguments, console, code);
        if (!library) {
            return code;
        }
        count = library->all().size();
        for (const yoga::YogaPlace& place : library->all()) {
            const yoga::Yoga& yoga = library->yoga(place);
            checked.push_back({library->files()[place.file].path.string(), place.yoga + 1,
                               yoga.title, yoga::ruleProblems(yoga.rule)});
        }
    }
    std::erase_if(checked, [](const CheckedYoga& one) { return one.problems.empty(); });
    if (arguments.has("--json")) {
        Json object = commandObject(info().name);
        object["checked"] = count;
        object["yogas"] = Json::array();
        for (const CheckedYoga& one : checked) {
            object["yogas"].push_back(checkedJson(one));
        }
        console.print(jsonText(object));
    } else {
        std::string text;
        for (const CheckedYoga& one : checked) {
            text += checkedText(one);
        }
        console.print(text + std::to_string(count) + (count == 1 ? " rule, " : " rules, ") +
                      std::to_string(checked.size()) + " with problems\n");
    }
    return checked.empty() ? ExitCode::Done : ExitCode::Failed;
}

YogaKindsCommand::YogaKindsCommand()
    : Command({"yogas kinds",
               "List the kinds of conditions, or describe some of them",
               {{"KIND", "keyword or number of a kind", false, true}},
               {kCommonOptions}})
{}

ExitCode YogaKindsCommand::run(const Arguments& arguments, Console& console) const
{
    std::vector<const yoga::Kind*> chosen;
    for (const std::string& name : arguments.values("KIND")) {
        const std::optional<int> number = core::parseInteger(name);
        const yoga::Kind* const kind =
            number ? yoga::findKind(*number) : yoga::findKind(std::string_view(name));
        if (kind == nullptr) {
            console.error("there is no kind " + data::shown(name));
            return ExitCode::Usage;
        }
        chosen.push_back(kind);
    }
    if (!arguments.has("--json")) {
        std::wstring text = chosen.empty() ? kindsText() : std::wstring();
        for (const yoga::Kind* const kind : chosen) {
            text += (text.empty() ? L"" : L"\n") + kindText(*kind);
        }
        console.print(text);
        return ExitCode::Done;
    }
    if (chosen.empty()) {
        for (const yoga::Kind& kind : yoga::kinds()) {
            chosen.push_back(&kind);
        }
    }
    Json object = commandObject(info().name);
    object["kinds"] = Json::array();
    for (const yoga::Kind* const kind : chosen) {
        object["kinds"].push_back(kindJson(*kind));
    }
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
