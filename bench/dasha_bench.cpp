// How long the lists of dasha periods take to write, beside the plain loop over the cosines of one
// chart.
#include "analysis/ComputeChart.h"
#include "astro/DataFile.h"
#include "core/PointNames.h"
#include "timing/DashaQuery.h"
#include "timing/DashaWalk.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

using namespace kestrav;

constexpr double kLife = 120.0;

const astro::Series& series()
{
    static const astro::LoadResult kLoaded = astro::LoadSeries();
    if (!kLoaded.data) {
        std::fprintf(stderr, "%s\n", kLoaded.error.text().c_str());
        std::exit(1);
    }
    return kLoaded.data->series;
}

const core::Chart& birth()
{
    static const core::Chart kChart = [] {
        core::Chart chart;
        chart.time.year = 1996;
        chart.time.month = 12;
        chart.time.day = 7;
        chart.time.localTime = 10.5667;
        chart.zone = 5.5;
        chart.geoLatitude = 13.0878;
        chart.geoLongitude = 80.2785;
        astro::EphemerisContext context(series());
        analysis::ComputeChart(chart, core::Settings{}, context);
        return chart;
    }();
    return kChart;
}

timing::Dasha dashaOf(int system, timing::YearLength yearLength)
{
    timing::DashaOptions options;
    options.system = system;
    options.yearLength = yearLength;
    auto dasha = timing::dashaOf(birth(), core::Settings{}, options, series());
    if (!dasha) {
        std::fprintf(stderr, "%s\n", dasha.error().text().c_str());
        std::exit(1);
    }
    return dasha.value();
}

void plainCosineLoop(benchmark::State& state)
{
    const astro::Series& all = series();
    double t = -0.2;
    for (auto _ : state) {
        t += 1e-5;
        double total = 0.0;
        for (int pass = 0; pass < 2; ++pass) {
            for (const astro::SeriesEntry& entry : all.entries) {
                for (std::size_t i = entry.first; i < entry.first + entry.length; ++i) {
                    total += all.amplitude[i] * std::cos(all.phase[i] + all.frequency[i] * t);
                }
            }
        }
        benchmark::DoNotOptimize(total);
    }
}

// One line a period: the lords of its levels and the civil date of its beginning.
void writeLine(const timing::DashaPeriod& period, const timing::DashaCalendar& calendar,
               std::string& out)
{
    for (int level = 0; level < period.level; ++level) {
        for (const wchar_t letter : core::PointName(3, core::at(period.lords, level))) {
            out += char(letter);
        }
        out += ' ';
    }
    const core::DateTimeRecord date = calendar.dateOf(period.startJulianDay);
    const int minutes = int(date.localTime * 60.0);
    char text[64];
    std::snprintf(text, sizeof text, "%d-%02d-%02d %02d:%02d\n", date.year, date.month, date.day,
                  minutes / 60, minutes % 60);
    out += text;
}

void writtenLife(benchmark::State& state, timing::YearLength yearLength)
{
    const timing::Dasha dasha = dashaOf(timing::kVimshottari, yearLength);
    timing::DashaSpan span;
    span.levels = int(state.range(0));
    span.endAge = kLife;
    span.budget = 1000000;
    std::string out;
    long long periods = 0;
    for (auto _ : state) {
        out.clear();
        periods = 0;
        for (const timing::DashaPeriod& period : timing::DashaList(dasha, span)) {
            writeLine(period, dasha.calendar, out);
            ++periods;
        }
        benchmark::DoNotOptimize(out.data());
    }
    state.counters["periods"] = double(periods);
}

void vimshottariLife(benchmark::State& state)
{
    writtenLife(state, timing::YearLength::MeanSidereal);
}

void vimshottariLifeTrueSolar(benchmark::State& state)
{
    writtenLife(state, timing::YearLength::TrueSolar);
}

// The first hundred records of level 5 in old age: what lies before them must cost nothing.
void lateRecords(benchmark::State& state)
{
    const timing::Dasha dasha = dashaOf(timing::kVimshottari, timing::YearLength::MeanSidereal);
    timing::DashaSpan span;
    span.levels = 5;
    span.startAge = 90.0;
    span.budget = 100;
    for (auto _ : state) {
        double sum = 0.0;
        for (const timing::DashaPeriod& period : timing::DashaList(dasha, span)) {
            sum += period.length;
        }
        benchmark::DoNotOptimize(sum);
    }
}

void lordAtMoment(benchmark::State& state)
{
    const timing::Dasha dasha = dashaOf(int(state.range(0)), timing::YearLength::MeanSidereal);
    double age = 0.0;
    for (auto _ : state) {
        age = age > 99.0 ? age - 99.0 : age + 0.37;
        benchmark::DoNotOptimize(timing::lordAtAge(dasha, age, 4));
    }
}

void planOfSystem(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            dashaOf(int(state.range(0)), timing::YearLength::MeanSidereal).plan.elapsed);
    }
}

BENCHMARK(plainCosineLoop);
BENCHMARK(vimshottariLife)->ArgName("levels")->Arg(2)->Arg(5)->Unit(benchmark::kMillisecond);
BENCHMARK(vimshottariLifeTrueSolar)
    ->ArgName("levels")
    ->Arg(2)
    ->Arg(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lateRecords);
BENCHMARK(lordAtMoment)->ArgName("system")->Arg(timing::kVimshottari)->Arg(timing::kNarayana);
BENCHMARK(planOfSystem)->ArgName("system")->Arg(timing::kVimshottari)->Arg(timing::kNarayana);

} // namespace

BENCHMARK_MAIN();
