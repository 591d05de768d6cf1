#include "app/cli/ComputedChart.h"

#include "analysis/ComputeChart.h"
#include "analysis/Motion.h"
#include "app/cli/CommandSettings.h"
#include "app/cli/Console.h"
#include "astro/DataFile.h"
#include "core/FileText.h"
#include "core/Locations.h"

#include <filesystem>
#include <string>
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

void compute(ComputedChart& computed, astro::EphemerisContext& context)
{
    core::Chart& chart = computed.chart;
    if (!computed.hasPlace) {
        analysis::computePositions(chart, computed.settings, context);
        analysis::computeMotions(chart, context);
        chart.weekday = core::Weekday(chart);
        return;
    }
    analysis::ComputeChart(chart, computed.settings, context);
    const astro::Observer observer = astro::observerOf(chart);
    computed.day = astro::vedicDay(context, chart.time, observer);
    computed.upperCulmination =
        astro::sunEvent(context, chart.time, observer, astro::HorizonEvent::UpperCulmination);
}

} // namespace

std::optional<ComputedChart> computeFromArguments(const Arguments& arguments, PlaceNeed need,
                                                  Console& console, ExitCode& code)
{
    core::Result<BirthData> birth = readBirthData(arguments, need);
    if (!birth) {
        console.error(birth.error().text());
        code = ExitCode::Usage;
        return std::nullopt;
    }
    const std::optional<core::Settings> settings = settingsOfCall(arguments, console, code);
    if (!settings) {
        return std::nullopt;
    }
    const astro::LoadResult loaded = astro::LoadSeries();
    if (!loaded.ok()) {
        reportLoadFailure(loaded, console);
        code = ExitCode::Failed;
        return std::nullopt;
    }
    for (const std::string& warning : birth.value().warnings) {
        console.warning(warning);
    }
    ComputedChart computed;
    computed.chart = std::move(birth.value().chart);
    computed.settings = *settings;
    computed.hasPlace = birth.value().hasPlace;
    astro::EphemerisContext context(loaded.data->series);
    compute(computed, context);
    return computed;
}

} // namespace kestrav::cli
