#include "app/cli/ChartCommands.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/Shadbala.h"
#include "app/cli/AshtakavargaOutput.h"
#include "app/cli/ChartJson.h"
#include "app/cli/ChartText.h"
#include "app/cli/DignityOutput.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/SpecialPointsOutput.h"
#include "app/cli/StrengthText.h"
#include "app/cli/VargaOutput.h"

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
    const core::Chart& chart = computed.chart;
    const analysis::ShadbalaTable shadbala =
        analysis::computeShadbala(chart, analysis::strengthInputs(chart));
    return specialPointsText(computed) + notComputedNote(computed) + L"\nDivisional charts\n" +
           vargaSignsText(computed, mainPoints(computed)) + L"\n" + planetsText(computed) + L"\n" +
           vimshopakaText(computed) + L"\n" +
           ashtakavargaText(analysis::computeAshtakavarga(chart, core::kRashi, false)) + L"\n" +
           karakasText(computed) + L"\n" + shadbalaTotalsText(shadbala);
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
    return inputText(computed) + L"\n" + timeText(computed) + L"\n" + daylightText(computed) +
           L"\n" + pointsText(computed) + L"\n" + housesText(computed) + L"\n" +
           analysisText(computed);
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
    return inputText(computed) + L"\n" + timeText(computed) + L"\n" + pointsText(computed);
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
    return inputText(computed) + L"\n" + timeText(computed) + L"\n" + housesText(computed);
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
    return inputText(computed) + L"\n" + sunText(computed);
}

} // namespace kestrav::cli
