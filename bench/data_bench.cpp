// How long it takes to list a large database, and to rebuild its research data beside computing the
// sky alone.
#include "analysis/ComputeChart.h"
#include "astro/DataFile.h"
#include "data/ChartDatabase.h"
#include "data/ChartLine.h"
#include "data/CheckDatabaseLine.h"
#include "data/Chooser.h"
#include "data/ResearchLine.h"
#include "data/ResearchRebuild.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{

using namespace kestrav;

// Charts of random moments and places, every fourth with notes and events.
data::ChartDatabase randomDatabase(int count)
{
    std::mt19937 random(20261121);
    const auto whole = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    data::ChartDatabase database;
    core::Chart chart;
    for (int i = 0; i < count; ++i) {
        chart.name = L"Person " + std::to_wstring(whole(0, 99999999));
        chart.place = L"Some Town";
        chart.identity.country = L"Country";
        chart.identity.sex = whole(0, 1) == 0 ? L"M" : L"F";
        chart.time.year = whole(1800, 2100);
        chart.time.month = whole(1, 12);
        chart.time.day = whole(1, 28);
        chart.time.localTime = whole(0, 1439) / 60.0;
        chart.geoLongitude = whole(-179 * 60, 179 * 60) / 60.0;
        chart.geoLatitude = whole(-60 * 60, 60 * 60) / 60.0;
        chart.zone = std::round(chart.geoLongitude / 15.0);
        chart.identity.notes = whole(0, 3) == 0 ? L"Known from a register." : L"";
        chart.identity.events[0].name = whole(0, 3) == 0 ? L"Marriage" : L"";
        chart.identity.events[0].date = {chart.time.year + 25, 6, 1};
        database.add(chart);
    }
    return database;
}

// The file of a million charts, which is written once and removed at the end.
class LargeFile
{
public:
    LargeFile()
        : path_(std::filesystem::temp_directory_path() /
                ("kestrav-bench-" + std::to_string(::getpid()) + ".ksc"))
    {
        if (!randomDatabase(1'000'000).save(path_)) {
            std::fprintf(stderr, "cannot write %s\n", path_.c_str());
            std::exit(1);
        }
    }
    ~LargeFile()
    {
        std::filesystem::remove(path_);
    }
    LargeFile(const LargeFile&) = delete;
    LargeFile& operator=(const LargeFile&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const
    {
        return path_;
    }

private:
    std::filesystem::path path_;
};

const std::filesystem::path& largeFile()
{
    static const LargeFile kFile;
    return kFile.path();
}

void openAndListAMillion(benchmark::State& state)
{
    const bool namesOnly = state.range(0) != 0;
    const std::filesystem::path& path = largeFile();
    for (auto _ : state) {
        data::ChartDatabase database;
        if (!database.load(path)) {
            state.SkipWithError("cannot read");
            break;
        }
        const data::ChooserList list = data::listCharts(database, namesOnly);
        benchmark::DoNotOptimize(list.rows.data());
    }
}

void openAMillion(benchmark::State& state)
{
    const std::filesystem::path& path = largeFile();
    for (auto _ : state) {
        data::ChartDatabase database;
        benchmark::DoNotOptimize(database.load(path).ok());
    }
}

void sortAMillionByName(benchmark::State& state)
{
    data::ChartDatabase database;
    if (!database.load(largeFile())) {
        state.SkipWithError("cannot read");
        return;
    }
    const data::ChooserList list = data::listCharts(database);
    for (auto _ : state) {
        benchmark::DoNotOptimize(data::sortedRows(list, data::SortOrder::Alphabetical).data());
    }
}

void parseChartLine(benchmark::State& state)
{
    data::ChartDatabase database = randomDatabase(1000);
    core::Chart chart;
    std::size_t next = 0;
    for (auto _ : state) {
        database.read(next++ % database.size(), chart);
        benchmark::DoNotOptimize(chart.geoLatitude);
    }
}

void formatChartLine(benchmark::State& state)
{
    data::ChartDatabase database = randomDatabase(1);
    core::Chart chart;
    database.read(0, chart);
    for (auto _ : state) {
        benchmark::DoNotOptimize(data::FormatChartLine(chart, data::DateOrder::DayFirst).size());
    }
}

const astro::Series& series()
{
    static const astro::LoadResult kLoaded = astro::LoadSeries();
    if (!kLoaded.data) {
        std::fprintf(stderr, "%s\n", kLoaded.error.text().c_str());
        std::exit(1);
    }
    return kLoaded.data->series;
}

// Nobody to talk to: the database has no damaged lines.
class NoMessages : public core::Messages
{
public:
    core::Answer show(const std::wstring&, const std::wstring&, core::Buttons) override
    {
        return core::Answer::Cancel;
    }
};

constexpr int kRebuiltCharts = 20'000;

// Charts of the rebuild, parsed.
std::vector<core::Chart> parsedCharts()
{
    data::ChartDatabase database = randomDatabase(1000);
    std::vector<core::Chart> charts(database.size());
    for (std::size_t i = 0; i < charts.size(); ++i) {
        database.read(i, charts[i]);
    }
    return charts;
}

// What the charts of the rebuild cost without anything around: positions and houses only.
void skyAlone(benchmark::State& state)
{
    std::vector<core::Chart> charts = parsedCharts();
    astro::EphemerisContext context(series());
    const core::Settings settings;
    std::size_t next = 0;
    for (auto _ : state) {
        core::Chart& chart = charts[next++ % charts.size()];
        analysis::computePositions(chart, settings, context);
        analysis::computeHouses(chart, settings);
        benchmark::DoNotOptimize(chart.longitude.data());
    }
}

// A whole chart with motions and the running day, as every research line needs it.
void wholeChartAlone(benchmark::State& state)
{
    std::vector<core::Chart> charts = parsedCharts();
    astro::EphemerisContext context(series());
    const core::Settings settings;
    std::size_t next = 0;
    for (auto _ : state) {
        core::Chart& chart = charts[next++ % charts.size()];
        analysis::ComputeChart(chart, settings, context);
        benchmark::DoNotOptimize(chart.longitude.data());
    }
}

void formatResearchLine(benchmark::State& state)
{
    std::vector<core::Chart> charts = parsedCharts();
    astro::EphemerisContext context(series());
    for (core::Chart& chart : charts) {
        data::computeForResearch(chart, core::Settings(), context);
    }
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(data::FormatResearchLine(charts[next++ % charts.size()]).size());
    }
}

void computeForResearch(benchmark::State& state)
{
    std::vector<core::Chart> charts = parsedCharts();
    astro::EphemerisContext context(series());
    const core::Settings settings;
    std::size_t next = 0;
    for (auto _ : state) {
        core::Chart& chart = charts[next++ % charts.size()];
        data::computeForResearch(chart, settings, context);
        benchmark::DoNotOptimize(chart.longitude.data());
    }
}

void rebuildResearch(benchmark::State& state)
{
    data::ChartDatabase database = randomDatabase(kRebuiltCharts);
    const core::Settings settings;
    NoMessages messages;
    const data::LongWork work{{}, nullptr, unsigned(state.range(0))};
    for (auto _ : state) {
        const auto lines = data::rebuildResearch(database, settings, series(), messages, work);
        benchmark::DoNotOptimize(lines->data());
    }
    state.SetItemsProcessed(state.iterations() * kRebuiltCharts);
    state.counters["s/chart"] =
        benchmark::Counter(double(state.iterations() * kRebuiltCharts),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK(openAMillion)->Unit(benchmark::kMillisecond);
BENCHMARK(openAndListAMillion)->ArgName("namesOnly")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(sortAMillionByName)->Unit(benchmark::kMillisecond);
BENCHMARK(skyAlone)->Unit(benchmark::kMicrosecond);
BENCHMARK(wholeChartAlone)->Unit(benchmark::kMicrosecond);
BENCHMARK(rebuildResearch)
    ->ArgName("threads")
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
BENCHMARK(parseChartLine)->Unit(benchmark::kMicrosecond);
BENCHMARK(computeForResearch)->Unit(benchmark::kMicrosecond);
BENCHMARK(formatResearchLine)->Unit(benchmark::kMicrosecond);
BENCHMARK(formatChartLine)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
