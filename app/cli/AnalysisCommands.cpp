#include "app/cli/AnalysisCommands.h"

#include "analysis/Ashtakavarga.h"
#include "app/cli/AshtakavargaOutput.h"
#include "app/cli/ChartJson.h"
#include "app/cli/ChartText.h"
#include "app/cli/DignityOutput.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/SpecialPointsOutput.h"
#include "app/cli/StrengthJson.h"
#include "app/cli/VargaOutput.h"
#include "app/present/AshtakavargaTables.h"
#include "app/present/ChartTables.h"
#include "app/present/DignityTables.h"
#include "app/present/SpecialPointTables.h"
#include "app/present/StrengthTables.h"
#include "app/present/VargaTables.h"
#include "app/present/VargaWindowTable.h"
#include "core/NumberText.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 1> kWindowsOption = {{
    {"--windows", "", "add from when to when the ascendants of the divisional charts hold"},
}};

constexpr std::array<OptionInfo, 1> kReductionsOption = {{
    {"--reductions", "", "add the trikona and ekadhipatya reductions and the pindas"},
}};

constexpr std::array<OptionInfo, 1> kNameLetterOption = {{
    {"--name-letter", "N", "group 1 to 5 of the first sound of the name, for the Shayanadi states"},
}};

CommandInfo infoOf(std::string_view name, std::string_view description,
                   const std::vector<std::span<const OptionInfo>>& own = {})
{
    CommandInfo info = {name, description, {}, {kBirthOptions, kPositionsOption}};
    info.optionGroups.insert(info.optionGroups.end(), own.begin(), own.end());
    info.optionGroups.insert(info.optionGroups.end(),
                             {kExplainOption, kSetOptions, kCommonOptions});
    return info;
}

core::Result<void> checkVarga(const Arguments& arguments)
{
    const auto varga = chosenVarga(arguments);
    return varga ? core::Result<void>() : varga.error();
}

// 0 when the option was not typed.
core::Result<int> nameLetter(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--name-letter");
    if (!text) {
        return 0;
    }
    const std::optional<int> group = core::parseInteger(*text);
    if (!group || *group < 1 || *group > 5) {
        return core::Error{"--name-letter '" + *text + "' is not a whole number from 1 to 5"};
    }
    return *group;
}

// Whether the chart has an ascendant that moves: bare positions and charts without a place have
// not.
bool hasWindows(const ComputedChart& computed)
{
    return computed.hasPlace && computed.chart.hasMoment;
}

Json windowsJson(const ComputedChart& computed, std::optional<int> varga)
{
    Json list = Json::array();
    for (const timing::VargaWindow& window :
         timing::vargaWindows(computed.chart, computed.settings)) {
        if (varga && window.varga != *varga) {
            continue;
        }
        Json object;
        object["varga"] = window.varga;
        object["sign"] = window.sign;
        object["begin"] = numberJson(window.begin);
        object["end"] = numberJson(window.end);
        list.push_back(std::move(object));
    }
    return list;
}

present::Table windowsTable(const ComputedChart& computed, std::optional<int> varga)
{
    if (hasWindows(computed)) {
        return present::vargaWindowTable(
            computed, timing::vargaWindows(computed.chart, computed.settings), varga);
    }
    present::Table table;
    table.notes.emplace_back(L"The windows of the ascendants need a moment and a place.");
    return table;
}

analysis::Ashtakavarga ashtakavargaOf(const ComputedChart& computed, const Arguments& arguments)
{
    const int varga = chosenVarga(arguments).value().value_or(core::kRashi);
    return analysis::computeAshtakavarga(computed.chart, varga, arguments.has("--reductions"));
}

} // namespace

VargasCommand::VargasCommand()
    : ComputingCommand(infoOf("vargas", "Compute the divisional charts and the vimshopaka",
                              {kVargaOption, kWindowsOption}))
{}

core::Result<void> VargasCommand::check(const Arguments& arguments) const
{
    return checkVarga(arguments);
}

void VargasCommand::addJson(Json& object, const ComputedChart& computed,
                            const Arguments& arguments) const
{
    const std::optional<int> varga = chosenVarga(arguments).value();
    object["vargas"] = vargasJson(computed, varga);
    object["vimshopaka"] = vimshopakaJson(computed);
    const bool windows = arguments.has("--windows") && hasWindows(computed);
    object["windows"] = windows ? windowsJson(computed, varga) : Json();
}

std::wstring VargasCommand::text(const ComputedChart& computed, const Arguments& arguments) const
{
    const std::optional<int> varga = chosenVarga(arguments).value();
    std::vector<present::Table> tables = {present::birthTable(computed)};
    if (varga) {
        tables.push_back(present::vargaTable(computed, *varga));
    } else {
        tables.push_back(present::vargaSignsTable(computed, present::placedPoints(computed)));
        tables.push_back(present::vargaListTable());
        tables.push_back(present::vimshopakaTable(computed));
    }
    if (arguments.has("--windows")) {
        tables.push_back(windowsTable(computed, varga));
    }
    return tablesText(tables);
}

DignitiesCommand::DignitiesCommand()
    : ComputingCommand(
          infoOf("dignities", "Compute dignities, relationships and functional nature"))
{}

void DignitiesCommand::addJson(Json& object, const ComputedChart& computed,
                               const Arguments& /*arguments*/) const
{
    object["dignities"] = dignitiesJson(computed);
    object["relationships"] = relationshipsJson(computed);
    object["functional"] = functionalJson(computed);
}

std::wstring DignitiesCommand::text(const ComputedChart& computed,
                                    const Arguments& /*arguments*/) const
{
    return tablesText({present::birthTable(computed), present::planetsTable(computed),
                       present::dignitiesTable(computed), present::naturalRelationshipsTable(),
                       present::compoundRelationshipsTable(computed)});
}

StrengthsCommand::StrengthsCommand()
    : ComputingCommand(infoOf("strengths",
                              "Compute shadbala, bhava bala, rashmis, avasthas, planetary wars and "
                              "aspects",
                              {kNameLetterOption}))
{}

core::Result<void> StrengthsCommand::check(const Arguments& arguments) const
{
    const core::Result<int> letter = nameLetter(arguments);
    return letter ? core::Result<void>() : letter.error();
}

void StrengthsCommand::addJson(Json& object, const ComputedChart& computed,
                               const Arguments& arguments) const
{
    const present::Strengths strengths(computed, nameLetter(arguments).value());
    object["shadbala"] = shadbalaJson(strengths.shadbala);
    object["bhavaBala"] = bhavaBalaJson(strengths.houses);
    object["rashmis"] = rashmisJson(strengths.rashmis);
    object["avasthas"] = avasthasJson(strengths.avasthas);
    object["war"] = warsJson(strengths.shadbala.wars);
    object["aspects"] = aspectsJson(strengths.aspects);
}

std::wstring StrengthsCommand::text(const ComputedChart& computed, const Arguments& arguments) const
{
    const present::Strengths strengths(computed, nameLetter(arguments).value());
    present::Table shadbala = present::shadbalaTable(strengths);
    present::addNotComputedNote(shadbala, computed);
    return tablesText({present::birthTable(computed), shadbala, present::bhavaBalaTable(strengths),
                       present::avasthasTable(strengths), present::warsTable(strengths),
                       present::bodyAspectsTable(strengths),
                       present::houseAspectsTable(strengths)});
}

AshtakavargaCommand::AshtakavargaCommand()
    : ComputingCommand(
          infoOf("ashtakavarga", "Compute the ashtakavarga", {kVargaOption, kReductionsOption}))
{}

core::Result<void> AshtakavargaCommand::check(const Arguments& arguments) const
{
    return checkVarga(arguments);
}

void AshtakavargaCommand::addJson(Json& object, const ComputedChart& computed,
                                  const Arguments& arguments) const
{
    object["ashtakavarga"] = ashtakavargaJson(ashtakavargaOf(computed, arguments));
}

std::wstring AshtakavargaCommand::text(const ComputedChart& computed,
                                       const Arguments& arguments) const
{
    const analysis::Ashtakavarga ashtakavarga = ashtakavargaOf(computed, arguments);
    std::vector<present::Table> tables = {present::birthTable(computed),
                                          present::ashtakavargaTable(ashtakavarga)};
    if (ashtakavarga.reduced) {
        tables.push_back(present::trikonaTable(ashtakavarga));
        tables.push_back(present::ekadhipatyaTable(ashtakavarga));
        tables.push_back(present::pindaTable(ashtakavarga));
    }
    return tablesText(tables);
}

PointsCommand::PointsCommand()
    : ComputingCommand(infoOf("points", "Compute the special points, karakas, sphutas and sahams"))
{}

void PointsCommand::addJson(Json& object, const ComputedChart& computed,
                            const Arguments& /*arguments*/) const
{
    object["points"] = pointsJson(computed);
    object["karakas"] = karakasJson(computed);
    object["sphutas"] = sphutasJson(computed);
    object["sahams"] = sahamsJson(computed);
}

std::wstring PointsCommand::text(const ComputedChart& computed,
                                 const Arguments& /*arguments*/) const
{
    present::Table points = present::sideBySide(present::specialPointsTable(computed));
    present::addNotComputedNote(points, computed);
    return tablesText({present::birthTable(computed), present::positionsTable(computed), points,
                       present::yogiTable(computed), present::karakasTable(computed),
                       present::sideBySide(present::sphutasTable(computed)),
                       present::sideBySide(present::sahamsTable(computed))});
}

} // namespace kestrav::cli
