#include "app/cli/MatchCommand.h"

#include "analysis/Matching.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/JsonValues.h"
#include "app/cli/SharedOptions.h"
#include "app/present/MatchTables.h"
#include "app/present/TableWriters.h"
#include "app/present/TextTable.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"
#include "core/Names.h"
#include "core/TextForms.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 1> kMatchOptions = {{
    {"--bride-first", "", "the first chart is the bride's and the second the groom's"},
}};

Json kutasJson(const analysis::Matching& matching)
{
    Json list = Json::array();
    for (const analysis::KutaScore& kuta : matching.kutas) {
        Json object;
        object["name"] = textJson(kuta.name);
        object["points"] = kuta.points;
        object["maximum"] = kuta.maximum;
        object["why"] = textJson(kuta.why);
        list.push_back(std::move(object));
    }
    return list;
}

Json doshasJson(const analysis::Matching& matching)
{
    Json list = Json::array();
    for (const analysis::Dosha& dosha : matching.doshas) {
        Json object;
        object["name"] = textJson(dosha.name);
        object["holds"] = dosha.holds;
        object["cancelled"] = dosha.cancelled;
        object["why"] = textJson(dosha.why);
        list.push_back(std::move(object));
    }
    return list;
}

std::wstring personText(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    std::wstring text = chart.name;
    if (text.empty()) {
        text = chart.hasMoment ? present::dateText(chart.time)
                               : core::fromFileBytes(computed.positionsFile);
    }
    const double position = chart.nakshatraPosition[core::kMoon];
    return text + L", Moon " + core::FormatSignPosition(chart.longitude[core::kMoon]) + L", " +
           std::wstring(core::nakshatraName(present::nakshatraOf(position))) + L" " +
           std::to_wstring(present::padaOf(position));
}

std::wstring matchText(const ComputedChart& groom, const ComputedChart& bride,
                       const analysis::Matching& matching)
{
    present::LabelledLines people;
    people.add(L"Groom", personText(groom));
    people.add(L"Bride", personText(bride));
    present::Table kutas = present::kutasTable(matching);
    kutas.title.clear();
    return people.text() + L"\n" + present::tableText(kutas) + L"\n" +
           present::tableText(present::doshasTable(matching));
}

} // namespace

MatchCommand::MatchCommand()
    : Command({"match",
               "Compare the charts of a groom and a bride; their places may be left out",
               {},
               {kBirthOptions, kPositionsOption, kSecondChartOptions, kMatchOptions, kSetOptions,
                kCommonOptions}})
{}

ExitCode MatchCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const std::optional<ComputedPair> pair = computePairFromArguments(arguments, console, code);
    if (!pair) {
        return code;
    }
    const bool brideFirst = arguments.has("--bride-first");
    const ComputedChart& groom = brideFirst ? pair->second : pair->first;
    const ComputedChart& bride = brideFirst ? pair->first : pair->second;
    const core::Result<analysis::Matching> matching =
        analysis::matchCharts(groom.chart, bride.chart, pair->tables, groom.settings);
    if (!matching) {
        console.error(matching.error().text());
        return ExitCode::Failed;
    }
    if (!arguments.has("--json")) {
        console.print(matchText(groom, bride, matching.value()));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["kutas"] = kutasJson(matching.value());
    object["total"] = matching.value().total;
    object["doshas"] = doshasJson(matching.value());
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
