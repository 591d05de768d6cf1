#include "app/cli/YogaCommandSearch.h"

#include "app/cli/BirthData.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/Progress.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/YogaCommand.h"
#include "app/cli/YogaCommandChart.h"
#include "app/cli/YogaCommandResearch.h"
#include "app/cli/YogaOutput.h"
#include "core/FileText.h"
#include "data/ResearchLine.h"
#include "yoga/YogaSearch.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 2> kSearchOptions = {{
    {"--make-group-b", "", "make the found charts the B group of the database"},
    {"--without-reasons", "", "list the found charts alone"},
}};

std::optional<yoga::YogaFinds> runSearch(yoga::YogaSearch& search, DatabaseCall& call)
{
    Progress progress(L"charts searched");
    data::LongWork work;
    work.progress = [&](std::size_t done, std::size_t total) {
        progress.show(done, total);
    };
    work.cancel = Progress::cancelFlag();
    std::optional<yoga::YogaFinds> finds = search.run(work);
    progress.clear();
    if (!finds) {
        call.console.error("interrupted");
    }
    return finds;
}

std::wstring nameOf(const data::LineList& research, std::size_t line)
{
    const std::string_view name = data::researchField(research.line(line), 0);
    return name == " " ? std::wstring() : core::fromFileBytes(name);
}

void printFinds(DatabaseCall& call, const ChosenRule& chosen, const yoga::YogaFinds& finds,
                const data::LineList& research, yoga::YogaSearch& search)
{
    const bool reasons = !call.arguments.has("--without-reasons");
    if (!call.json()) {
        call.console.print(yoga::searchTitle(finds) + L"\n");
        for (const std::size_t line : finds.lines) {
            std::wstring text = std::to_wstring(line + 1) + L"  " + nameOf(research, line) + L"\n";
            if (reasons) {
                text += reasonsText(chosen.rule, search.explain(line), false);
            }
            call.console.print(text);
        }
        return;
    }
    Json object = call.object();
    object["title"] = textOrNull(core::fromFileBytes(chosen.title));
    object["rule"] = textJson(core::fromFileBytes(chosen.text));
    object["searched"] = finds.searched;
    object["recomputed"] = finds.recomputed;
    object["found"] = Json::array();
    for (const std::size_t line : finds.lines) {
        Json entry;
        entry["line"] = line + 1;
        entry["name"] = textOrNull(nameOf(research, line));
        entry["reasons"] = reasons ? reasonsJson(chosen.rule, search.explain(line)) : Json();
        object["found"].push_back(std::move(entry));
    }
    call.console.print(jsonText(object));
}

// What a search needs besides the database.
struct SearchCall
{
    ChosenRule rule;
    std::optional<wchar_t> tag;
    std::optional<CallData> data;
    std::optional<ComputedChart> second;
    std::optional<double> moment;
};

std::optional<SearchCall> readSearch(DatabaseCall& call, ExitCode& code)
{
    SearchCall search;
    std::optional<ChosenRule> rule = chosenRule(call.arguments, call.console, code);
    if (!rule) {
        return std::nullopt;
    }
    search.rule = std::move(*rule);
    const core::Result<std::optional<wchar_t>> tag = typedTag(call.arguments);
    if (!tag) {
        code = usageError(call, tag.error().message);
        return std::nullopt;
    }
    search.tag = tag.value();
    search.data = openCall(call.arguments, call.console, code);
    if (!search.data) {
        return std::nullopt;
    }
    if (hasSecondChart(call.arguments)) {
        core::Result<BirthData> birth =
            readBirthData(call.arguments, PlaceNeed::Optional, kSecondChart);
        if (!birth) {
            code = usageError(call, birth.error().message);
            return std::nullopt;
        }
        search.second = computeChart(*search.data, std::move(birth.value()), call.console, code);
        if (!search.second) {
            return std::nullopt;
        }
    }
    const core::Result<std::optional<double>> moment = dashaMoment(call.arguments, search.second);
    if (!moment) {
        code = usageError(call, moment.error().message);
        return std::nullopt;
    }
    search.moment = moment.value();
    return search;
}

yoga::YogaSearch searchOf(const SearchCall& search, const DatabaseCall& call,
                          const data::LineList& research)
{
    yoga::YogaSearch result(search.rule.rule, research, call.database, call.settings,
                            search.data->data.series);
    result.setSecondChart(search.second ? &search.second->chart : nullptr);
    result.setMoment(search.moment);
    result.setGroup(search.tag);
    return result;
}

} // namespace

SearchYogaCommand::SearchYogaCommand()
    : DatabaseCommand("yogas search",
                      "Find the charts of a database that have a yoga, with the reasons", {},
                      {kOneYogaOptions, kYogaFileOption, kTagOption, kSearchOptions,
                       kYogaMomentOption, kSecondChartOptions, kYesOption})
{}

ExitCode SearchYogaCommand::work(DatabaseCall& call) const
{
    ExitCode code = ExitCode::Done;
    const std::optional<SearchCall> search = readSearch(call, code);
    if (!search) {
        return code;
    }
    const astro::Series& series = search->data->data.series;
    std::optional<data::LineList> research = openResearch(call, series, code);
    if (!research) {
        return code;
    }
    std::optional<yoga::YogaSearch> tested(searchOf(*search, call, *research));
    std::optional<yoga::YogaFinds> finds = runSearch(*tested, call);
    if (finds && finds->lines.empty() && yoga::triesRefreshing(call.messages)) {
        tested.reset();
        research = refreshedResearch(call, series, code);
        if (!research) {
            return code;
        }
        tested.emplace(searchOf(*search, call, *research));
        finds = runSearch(*tested, call);
    }
    if (!finds) {
        return ExitCode::Failed;
    }
    printFinds(call, search->rule, *finds, *research, *tested);
    if (call.arguments.has("--make-group-b") &&
        !yoga::makeGroupB(call.database, *finds, call.messages)) {
        return ExitCode::Failed;
    }
    return ExitCode::Done;
}

} // namespace kestrav::cli
