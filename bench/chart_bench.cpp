// How long one chart takes at random dates, beside the plain loop over the same cosines.
#include "analysis/AnalyseChart.h"
#include "analysis/Ashtakavarga.h"
#include "analysis/ComputeChart.h"
#include "astro/DataFile.h"
#include "astro/MoonSeriesData.h"
#include "core/numeric.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <random>
#include <vector>

namespace
{

std::atomic<long long> allocations{0};

} // namespace

// Every allocation of the program is counted, so that a chart can be shown to make none.
void* operator new(std::size_t size)
{
    ++allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace
{

using namespace kestrav;

const astro::Series& series()
{
    static const astro::LoadResult kLoaded = astro::LoadSeries();
    if (!kLoaded.data) {
        std::fprintf(stderr, "%s\n", kLoaded.error.text().c_str());
        std::exit(1);
    }
    return kLoaded.data->series;
}

// Charts of random moments between 1800 and 2200 at random places below the polar circles.
const std::vector<core::Chart>& randomCharts()
{
    static const std::vector<core::Chart> kCharts = [] {
        std::mt19937 random(20261121);
        const auto number = [&](double low, double high) {
            return std::uniform_real_distribution<double>(low, high)(random);
        };
        std::vector<core::Chart> charts(512);
        for (core::Chart& chart : charts) {
            chart.time.year = int(number(1800, 2200));
            chart.time.month = int(number(1, 13));
            chart.time.day = int(number(1, 29));
            chart.time.localTime = number(0, 24);
            chart.geoLongitude = number(-180, 180);
            chart.geoLatitude = number(-60, 60);
            chart.zone = std::round(chart.geoLongitude / 15.0);
        }
        return charts;
    }();
    return kCharts;
}

core::Settings settingsOf(bool preciseMoon)
{
    core::Settings settings;
    settings.preciseMoon = preciseMoon;
    settings.houseSystem = 3;
    return settings;
}

// The sums of one chart as the plain loop writes them: every entry twice, the Moon's terms once
// with their derivative.
double plainSums(double t)
{
    const astro::Series& all = series();
    double total = 0.0;
    for (int pass = 0; pass < 2; ++pass) {
        for (const astro::SeriesEntry& entry : all.entries) {
            for (const astro::SeriesBlock& block : entry.blocks) {
                double sum = 0.0;
                for (std::uint32_t i = block.first; i < block.first + block.count; ++i) {
                    sum += all.amplitude[i] * std::cos(all.phase[i] + all.frequency[i] * t);
                }
                total += sum;
            }
        }
        t -= 1e-8;
    }
    return total;
}

double plainMoon(double t)
{
    double total = 0.0;
    for (int i = 0; i < 660; ++i) {
        const double phase = 1.0 + i + 8000.0 * t * i;
        total += std::sin(phase);
        if (i < 400) {
            total += std::cos(phase);
        }
    }
    return total;
}

void plainCosineLoop(benchmark::State& state)
{
    const bool preciseMoon = state.range(0) != 0;
    double t = -0.2;
    for (auto _ : state) {
        t += 1e-5;
        double sum = plainSums(t);
        if (preciseMoon) {
            sum += plainMoon(t);
        }
        benchmark::DoNotOptimize(sum);
    }
}

template <typename Compute>
void runCharts(benchmark::State& state, Compute compute)
{
    std::vector<core::Chart> charts = randomCharts();
    astro::EphemerisContext context(series());
    std::size_t next = 0;
    compute(charts[0], context);
    const long long before = allocations;
    for (auto _ : state) {
        core::Chart& chart = charts[next++ % charts.size()];
        compute(chart, context);
        benchmark::DoNotOptimize(chart.longitude.data());
    }
    if (state.threads() == 1) {
        state.counters["allocations"] = double(allocations - before);
    }
}

void positionsAndHouses(benchmark::State& state)
{
    const core::Settings settings = settingsOf(state.range(0) != 0);
    runCharts(state, [&](core::Chart& chart, astro::EphemerisContext& context) {
        analysis::computePositions(chart, settings, context);
        analysis::computeHouses(chart, settings);
    });
}

void wholeChart(benchmark::State& state)
{
    const core::Settings settings = settingsOf(true);
    runCharts(state, [&](core::Chart& chart, astro::EphemerisContext& context) {
        analysis::ComputeChart(chart, settings, context);
    });
}

// Relationships, combustion, 21 divisional charts, vimshopaka with its dignities and ashtakavarga.
void signAnalysis(benchmark::State& state)
{
    const core::Settings settings = settingsOf(true);
    std::vector<core::Chart> charts(randomCharts().begin(), randomCharts().begin() + 64);
    astro::EphemerisContext context(series());
    for (core::Chart& chart : charts) {
        analysis::ComputeChart(chart, settings, context);
        analysis::AnalyseChart(chart, settings, context);
    }
    std::size_t next = 0;
    const long long before = allocations;
    for (auto _ : state) {
        core::Chart& chart = charts[next++ % charts.size()];
        analysis::analyseSigns(chart, settings);
        benchmark::DoNotOptimize(analysis::computeAshtakavarga(chart, core::kRashi, true));
    }
    state.counters["allocations"] = double(allocations - before);
}

void analysedChart(benchmark::State& state)
{
    const core::Settings settings = settingsOf(true);
    runCharts(state, [&](core::Chart& chart, astro::EphemerisContext& context) {
        analysis::ComputeChart(chart, settings, context);
        analysis::AnalyseChart(chart, settings, context);
    });
}

BENCHMARK(plainCosineLoop)->ArgName("preciseMoon")->Arg(0)->Arg(1);
BENCHMARK(positionsAndHouses)->ArgName("preciseMoon")->Arg(0)->Arg(1);
BENCHMARK(wholeChart);
BENCHMARK(signAnalysis);
BENCHMARK(analysedChart)->Name("wholeChartAnalysed");
BENCHMARK(wholeChart)->Threads(1)->Threads(2)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
