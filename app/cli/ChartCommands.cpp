#include "app/cli/ChartCommands.h"

#include "analysis/Ashtakavarga.h"
#include "app/cli/AshtakavargaOutput.h"
#include "app/cli/ChartJson.h"
#include "app/cli/ChartText.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/VargaOutput.h"
#include "app/present/AshtakavargaTables.h"
#include "app/present/ChartTables.h"
#include "app/present/DignityTables.h"
#include "app/present/SpecialPointTables.h"
#include "app/present/StrengthTables.h"
#include "app/present/VargaTables.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

CommandInfo engineInfo(std::string_view name, std::string_view description)
{
    return {name, description, {}, {kBirthOptions, kSetOptions, kCommonOptions}};
}

CommandInfo chartInfo(std::string_view name, std::string_view description)
{
    return {name,
            description,
            {},
            {kBirthOptions, kPositionsOption, kExplainOption, kSetOptions, kCommonOptions}};
}

std::wstring analysisText(const ComputedChart& computed)
{
    present::Table points = present::sideBySide(present::specialPointsTable(computed));
    present::addNotComputedNote(points, computed);
    return tablesText({points, present::vargaSignsTable(computed, present::mainPoints(computed)),
                       present::planetsTable(computed), present::vimshopakaTable(computed),
                       present::ashtakavargaTable(
                           analysis::computeAshtakavarga(computed.chart, core::kRashi, false)),
                       present::karakasTable(computed),
                       present::shadbalaTotalsTable(present::Strengths(computed, 0))});
}

} // namespace

ChartCommand::ChartCommand()
    : ComputingCommand(chartInfo("chart", "Compute a whole chart: positions, houses, sunrise and "
                                          "sunset, and the analysis"))
{}

void ChartCommand::addJson(Json& object, const ComputedChart& computed,
                           const Arguments& /*arguments*/) const
{
    object["input"] = inputJson(computed);
    object["time"] = timeJson(computed);
    object["ayanamsa"] = ayanamsaJson(computed);
    object["houses"] = housesJson(computed);
    object["sun"] = sunJson(computed);
    object["points"] = pointsJson(computed);
    object["vargas"] = vargasJson(computed);
    object["vimshopaka"] = vimshopakaJson(computed);
    object["ashtakavarga"] =
        ashtakavargaJson(analysis::computeAshtakavarga(computed.chart, core::kRashi, false));
}

std::wstring ChartCommand::text(const ComputedChart& computed, const Arguments& /*arguments*/) const
{
    return tablesText({present::birthTable(computed), present::timeTable(computed),
                       present::daylightTable(computed), present::positionsTable(computed),
                       present::housesSummary(computed), present::housesTable(computed)}) +
           L"\n" + analysisText(computed);
}

PositionsCommand::PositionsCommand()
    : ComputingCommand(
          chartInfo("positions", "Compute the positions of the bodies; the place may be left out"),
          PlaceNeed::Optional)
{}

void PositionsCommand::addJson(Json& object, const ComputedChart& computed,
                               const Arguments& /*arguments*/) const
{
    object["input"] = inputJson(computed);
    object["time"] = timeJson(computed);
    object["ayanamsa"] = ayanamsaJson(computed);
    object["points"] = pointsJson(computed);
}

std::wstring PositionsCommand::text(const ComputedChart& computed,
                                    const Arguments& /*arguments*/) const
{
    return tablesText({present::birthTable(computed), present::timeTable(computed),
                       present::positionsTable(computed)});
}

HousesCommand::HousesCommand()
    : ComputingCommand(engineInfo("houses", "Compute ascendant, midheaven and house cusps"))
{}

void HousesCommand::addJson(Json& object, const ComputedChart& computed,
                            const Arguments& /*arguments*/) const
{
    object["input"] = inputJson(computed);
    object["time"] = timeJson(computed);
    object["ayanamsa"] = ayanamsaJson(computed);
    object["houses"] = housesJson(computed);
}

std::wstring HousesCommand::text(const ComputedChart& computed,
                                 const Arguments& /*arguments*/) const
{
    return tablesText({present::birthTable(computed), present::timeTable(computed),
                       present::housesSummary(computed), present::housesTable(computed)});
}

SunCommand::SunCommand()
    : ComputingCommand(engineInfo("sun", "Compute sunrise, noon and sunset, and the day from "
                                         "sunrise to sunrise"))
{}

void SunCommand::addJson(Json& object, const ComputedChart& computed,
                         const Arguments& /*arguments*/) const
{
    object["input"] = inputJson(computed);
    object["sun"] = sunJson(computed);
}

std::wstring SunCommand::text(const ComputedChart& computed, const Arguments& /*arguments*/) const
{
    return tablesText({present::birthTable(computed), present::sunTable(computed),
                       present::vedicDayTable(computed)});
}

} // namespace kestrav::cli
