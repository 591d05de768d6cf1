#include "app/cli/ComputedChart.h"

#include "analysis/AnalyseChart.h"
#include "analysis/SignPositions.h"
#include "analysis/SpecialPoints.h"
#include "analysis/StorePoint.h"
#include "app/cli/ChartSource.h"
#include "app/cli/CommandSettings.h"
#include "app/cli/Console.h"
#include "app/cli/PositionsFile.h"
#include "app/present/BirthRecord.h"
#include "astro/Houses.h"
#include "core/FileText.h"
#include "core/Locations.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

namespace kestrav::cli
{

namespace
{

// The folders in which a missing data file was looked for.
std::wstring foldersLookedIn()
{
    std::string text;
    for (const std::filesystem::path& folder : core::searchFolders()) {
        text += (text.empty() ? "" : ", ") + folder.lexically_normal().string();
    }
    return core::fromFileBytes(text);
}

void reportLoadFailure(const astro::LoadResult& loaded, Console& console)
{
    if (loaded.problem == astro::DataFileProblem::Damaged) {
        console.error(loaded.error.text());
        return;
    }
    const std::wstring text =
        core::fromFileBytes(loaded.error.message) + L": " + core::fromFileBytes(loaded.error.file);
    const bool nowhere = loaded.error.message == core::toUtf8(astro::kMissingDataText);
    console.notice(std::wstring(astro::kMissingDataCaption),
                   nowhere ? text + L" is in none of the folders " + foldersLookedIn() : text);
}

void storePositions(core::Chart& chart, const GivenPositions& positions)
{
    for (int point = 0; point < core::kPointCount; ++point) {
        if (const std::optional<GivenPosition>& given = core::at(positions, point)) {
            analysis::storePoint(chart, point, given->longitude);
            core::at(chart.retrograde, point) = given->retrograde;
        }
    }
}

// The house systems that need no more than the ascendant, unless cusps were given.
void storeHouses(core::Chart& chart, const GivenPositions& positions, int system)
{
    int given = 0;
    for (int house = 1; house <= 12; ++house) {
        given += core::at(positions, core::cuspPoint(house)) ? 1 : 0;
    }
    if (given > 0) {
        chart.houseSystem = system;
        chart.cuspsComplete = given == 12;
    } else if (system == int(astro::HouseSystem::ByRashi) ||
               system == int(astro::HouseSystem::EqualHouse)) {
        astro::HouseCusps(chart, system);
        for (int house = 1; house <= 12; ++house) {
            analysis::computeSignData(chart, core::cuspPoint(house));
        }
    }
}

void computeFromPositions(ComputedChart& computed, const GivenPositions& positions,
                          astro::EphemerisContext& context)
{
    core::Chart& chart = computed.chart;
    storePositions(chart, positions);
    storeHouses(chart, positions, computed.settings.houseSystem);
    analysis::computeSpecialPoints(chart, computed.settings, context);
    // A point that was given is not replaced by a computed one.
    storePositions(chart, positions);
    analysis::analyseSigns(chart, computed.settings);
}

std::optional<BirthData> birthData(const Arguments& arguments, PlaceNeed need,
                                   std::string_view prefix, Console& console, ExitCode& code)
{
    core::Result<BirthData> birth = readBirthData(arguments, need, prefix);
    if (!birth) {
        console.error(birth.error().text());
        code = ExitCode::Usage;
        return std::nullopt;
    }
    return std::move(birth.value());
}

} // namespace

std::optional<CallData> openCall(const Arguments& arguments, Console& console, ExitCode& code)
{
    const std::optional<core::Settings> settings = settingsOfCall(arguments, console, code);
    if (!settings) {
        return std::nullopt;
    }
    astro::LoadResult loaded = astro::LoadSeries();
    if (!loaded.ok()) {
        reportLoadFailure(loaded, console);
        code = ExitCode::Failed;
        return std::nullopt;
    }
    return CallData{*settings, std::move(*loaded.data)};
}

std::optional<ComputedChart> computeChart(const CallData& call, BirthData birth, Console& console,
                                          ExitCode& code)
{
    if (!completeBirthData(birth, call.settings, console, code)) {
        return std::nullopt;
    }
    for (const std::string& warning : birth.warnings) {
        console.warning(warning);
    }
    ComputedChart computed;
    computed.chart = std::move(birth.chart);
    computed.chart.place = present::placeLabel(computed.chart);
    computed.settings = call.settings;
    computed.hasPlace = birth.hasPlace;
    astro::EphemerisContext context(call.data.series);
    if (!birth.positionsFile) {
        present::computeFromBirthData(computed, context);
        return computed;
    }
    computed.positionsFile = *birth.positionsFile;
    const core::Result<GivenPositions> positions = readPositionsFile(computed.positionsFile);
    if (!positions) {
        console.error(positions.error().text());
        code = ExitCode::Failed;
        return std::nullopt;
    }
    computeFromPositions(computed, positions.value(), context);
    return computed;
}

std::optional<ComputedChart> computeFromArguments(const Arguments& arguments, PlaceNeed need,
                                                  Console& console, ExitCode& code)
{
    const std::optional<BirthData> birth = birthData(arguments, need, kOwnChart, console, code);
    if (!birth) {
        return std::nullopt;
    }
    const std::optional<CallData> call = openCall(arguments, console, code);
    return call ? computeChart(*call, *birth, console, code) : std::nullopt;
}

std::optional<ComputedPair> computePairFromArguments(const Arguments& arguments, Console& console,
                                                     ExitCode& code)
{
    const auto first = birthData(arguments, PlaceNeed::Optional, kOwnChart, console, code);
    const auto second =
        first ? birthData(arguments, PlaceNeed::Optional, kSecondChart, console, code) : first;
    const auto call = second ? openCall(arguments, console, code) : std::nullopt;
    if (!call) {
        return std::nullopt;
    }
    std::optional<ComputedChart> one = computeChart(*call, *first, console, code);
    std::optional<ComputedChart> other =
        one ? computeChart(*call, *second, console, code) : std::nullopt;
    if (!other) {
        return std::nullopt;
    }
    return ComputedPair{std::move(*one), std::move(*other), call->data.matching};
}

} // namespace kestrav::cli
