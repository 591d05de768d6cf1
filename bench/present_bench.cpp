// How long diagrams take: the display list of one, and the pictures of all divisional charts.
#include "analysis/AnalyseChart.h"
#include "analysis/ComputeChart.h"
#include "app/present/Diagram.h"
#include "app/present/SvgWriter.h"
#include "app/present/TerminalDrawing.h"
#include "astro/DataFile.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace kestrav;

const core::Settings kSettings;

core::Chart computedChart()
{
    const astro::LoadResult loaded = astro::LoadSeries();
    if (!loaded.data) {
        std::fprintf(stderr, "%s\n", loaded.error.text().c_str());
        std::exit(1);
    }
    core::Chart chart;
    chart.name = L"Example";
    chart.time.year = 1996;
    chart.time.month = 12;
    chart.time.day = 7;
    chart.time.localTime = 10.0 + 34.0 / 60.0;
    chart.zone = 5.5;
    chart.geoLatitude = 13.0878;
    chart.geoLongitude = 80.2785;
    astro::EphemerisContext context(loaded.data->series);
    analysis::ComputeChart(chart, kSettings, context);
    analysis::AnalyseChart(chart, kSettings, context);
    return chart;
}

const core::Chart& example()
{
    static const core::Chart kChart = computedChart();
    return kChart;
}

present::DiagramOptions usualOptions()
{
    present::DiagramOptions options;
    options.centre = present::centreLines({example(), kSettings}, true);
    return options;
}

// The argument is the style.
void displayList(benchmark::State& state)
{
    const present::DiagramOptions options = usualOptions();
    const auto style = present::DiagramStyle(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            present::layoutDiagram({example(), kSettings}, style, options, 400.0));
    }
}

// With arudhas, upagrahas and lagnas: 52 points.
void displayListOfEveryPoint(benchmark::State& state)
{
    present::DiagramOptions options = usualOptions();
    options.points.set();
    for (int house = 1; house <= 12; ++house) {
        options.points.reset(std::size_t(core::cuspPoint(house)));
    }
    const auto style = present::DiagramStyle(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            present::layoutDiagram({example(), kSettings}, style, options, 400.0));
    }
}

void picturesOfAllVargas(benchmark::State& state)
{
    const present::DiagramOptions options = usualOptions();
    const auto style = present::DiagramStyle(state.range(0));
    for (auto _ : state) {
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            benchmark::DoNotOptimize(present::writeSvg(
                present::layoutDiagram({example(), kSettings, varga}, style, options, 200.0)));
        }
    }
}

void terminalDrawing(benchmark::State& state)
{
    const present::DiagramOptions options = usualOptions();
    const auto style = present::DiagramStyle(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(present::terminalDiagram({example(), kSettings}, style, options));
    }
}

BENCHMARK(displayList)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(displayListOfEveryPoint)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(picturesOfAllVargas)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(terminalDrawing)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
