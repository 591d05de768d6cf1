// How long a search over a million research lines takes, and all delivered yogas on one chart.
#include "analysis/AnalyseChart.h"
#include "analysis/ComputeChart.h"
#include "astro/DataFile.h"
#include "data/ResearchLine.h"
#include "yoga/YogaLibrary.h"
#include "yoga/YogaSearch.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace
{

using namespace kestrav;

const astro::Series& series()
{
    static const astro::LoadResult kLoaded = astro::LoadSeries();
    if (!kLoaded.ok()) {
        std::fprintf(stderr, "the program data file is missing\n");
        std::exit(1);
    }
    return kLoaded.data->series;
}

// Lines of random positions, as large as those of a real database.
const data::LineList& millionLines()
{
    static const data::LineList kLines = [] {
        constexpr int kCount = 1'000'000;
        std::mt19937 random(20261121);
        std::uniform_real_distribution<double> degrees(0.0, 360.0);
        data::LineList lines;
        core::Chart chart;
        chart.name = L"A Person of Some Name";
        chart.identity.occupation = L"occupation";
        chart.geoLongitude = 77.2;
        chart.geoLatitude = 28.6;
        for (int i = 0; i < kCount; ++i) {
            for (const int point : data::kResearchPoints) {
                core::at(chart.longitude, point) = degrees(random);
                core::at(chart.speed, point) = std::cos(degrees(random));
            }
            chart.longitude[core::kKetu] = std::fmod(chart.longitude[core::kRahu] + 180.0, 360.0);
            chart.motion[core::kMars] = i % 5 == 0 ? core::Motion::Retrograde : core::Motion::Fast;
            lines.append(data::FormatResearchLine(chart));
        }
        return lines;
    }();
    return kLines;
}

// Ten conditions that need signs only, and ten of several kinds. Every alternative is false for
// most charts, so that nearly all conditions are tested in nearly every chart.
constexpr std::string_view kSigns =
    "InSign,,Sun,Leo\\InHouse,,Jup,Moo,ken\\OR\\InSign,,Moo,Tau\\InHouse,,Ven,1\\OR\\"
    "InSign,,Mar,Cap\\InHouse,,Mar,10\\OR\\InHouse,,Sat,7\\InSign,,Sat,Lib\\OR\\InSign,,Jup,Can\\"
    "InHouse,,L9,10";
constexpr std::string_view kMixed =
    "InNakshatra,,Moo,Rohini\\InHouse,,Jup,Moo,ken\\OR\\Retrograde,,Mar\\InHouse,,Mar,10\\OR\\"
    "InDegree,,Sun,0,1\\InSign,,Sun,Ari\\OR\\*o1,Nava,Nava,Ven,,,1,,Pis\\InHouse,,Ven,1\\OR\\"
    "Aspect,,Sat,Moo\\InHouse,,L9,10";

void searchAMillion(benchmark::State& state, std::string_view text)
{
    const core::Result<yoga::YogaRule> rule = yoga::readCheckedRule(text);
    const data::LineList& lines = millionLines();
    if (!rule || !yoga::ruleProblems(text).empty()) {
        state.SkipWithError("the rule is wrong");
        return;
    }
    const data::ChartDatabase database;
    const core::Settings settings;
    yoga::YogaSearch search(rule.value(), lines, database, settings, series());
    std::size_t found = 0;
    for (auto _ : state) {
        const auto finds = search.run();
        found = finds->lines.size();
        if (finds->searched != lines.size() || finds->recomputed != 0) {
            state.SkipWithError("charts were computed or left out");
        }
    }
    state.counters["found"] = double(found);
}
BENCHMARK_CAPTURE(searchAMillion, signs, kSigns)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
BENCHMARK_CAPTURE(searchAMillion, mixed, kMixed)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

core::Chart someChart(const core::Settings& settings)
{
    astro::EphemerisContext context(series());
    core::Chart chart;
    chart.time.year = 1996;
    chart.time.month = 12;
    chart.time.day = 7;
    chart.time.localTime = 10.5;
    chart.zone = 5.5;
    chart.geoLongitude = 80.25;
    chart.geoLatitude = 13.0;
    analysis::ComputeChart(chart, settings, context);
    analysis::AnalyseChart(chart, settings, context);
    return chart;
}

void testYogas(benchmark::State& state, const yoga::YogaLibrary& library)
{
    const core::Settings settings;
    const core::Chart chart = someChart(settings);
    yoga::Subject subject(settings, &series());
    subject.setMoment(2455197.5);
    std::size_t holding = 0;
    for (auto _ : state) {
        subject.setChart(chart);
        holding = library.holding(subject).size();
    }
    state.counters["yogas"] = double(library.all().size());
    state.counters["holding"] = double(holding);
}

void wholeLibraryOnAChart(benchmark::State& state)
{
    yoga::YogaLibrary library;
    for (const auto& path : yoga::standardYogaFiles()) {
        if (!library.load(path)) {
            state.SkipWithError("a yoga file cannot be read");
            return;
        }
    }
    testYogas(state, library);
}
BENCHMARK(wholeLibraryOnAChart)->Unit(benchmark::kMicrosecond);

// One condition of every kind, so that everything a condition can ask for is computed.
void everyKindOnAChart(benchmark::State& state)
{
    yoga::YogaFile file;
    for (const yoga::Kind& kind : yoga::kinds()) {
        file.yogas.emplace_back().rule = kind.example;
    }
    yoga::YogaLibrary library;
    library.store("kinds", std::move(file));
    testYogas(state, library);
}
BENCHMARK(everyKindOnAChart)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
