// How long a month of panchanga, positions from the interpolants, long searches and transits take,
// beside the plain loop over the cosines of one chart.
#include "analysis/StorePoint.h"
#include "astro/Bodies.h"
#include "astro/DataFile.h"
#include "astro/PreciseMoon.h"
#include "timing/EclipseAtPlace.h"
#include "timing/Ephemeris.h"
#include "timing/EphemerisEvents.h"
#include "timing/EventSearch.h"
#include "timing/MoonPhases.h"
#include "timing/Panchanga.h"
#include "timing/PanchangaReport.h"
#include "timing/SadeSati.h"
#include "timing/TransitListing.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace
{

using namespace kestrav;

constexpr double kFirstDay = 2459945.5; // 2023 January 1
constexpr double kCentury = 36525.0;
const astro::Observer kDelhi{77.209, 28.6139, 5.5};

const astro::Series& series()
{
    static const astro::LoadResult kLoaded = astro::LoadSeries();
    if (!kLoaded.data) {
        std::fprintf(stderr, "%s\n", kLoaded.error.text().c_str());
        std::exit(1);
    }
    return kLoaded.data->series;
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
                for (const astro::SeriesBlock& block : entry.blocks) {
                    for (std::uint32_t i = block.first; i < block.first + block.count; ++i) {
                        total += all.amplitude[i] * std::cos(all.phase[i] + all.frequency[i] * t);
                    }
                }
            }
        }
        benchmark::DoNotOptimize(total);
    }
}

// Every month from scratch, as a command does it.
void monthOfPanchanga(benchmark::State& state)
{
    double first = kFirstDay;
    for (auto _ : state) {
        timing::Panchanga panchanga(series(), core::Settings{});
        std::size_t length = 0;
        for (int i = 0; i < 31; ++i) {
            length += timing::panchangaReport(panchanga.day(first + i, kDelhi), false).size();
        }
        benchmark::DoNotOptimize(length);
        first += 31.0;
    }
}

void sunAndMoonFromSeries(benchmark::State& state)
{
    astro::EphemerisContext context(series());
    double day = 45000.0;
    for (auto _ : state) {
        day += 0.125;
        const core::TimeArguments time = core::timeArguments(day / kCentury);
        context.setTime(time);
        astro::PlanetPosition(context, astro::kCodeSun);
        double sum = context.result.longitude + astro::preciseMoon(time.T).longitude;
        benchmark::DoNotOptimize(sum);
    }
}

void sunAndMoonInterpolated(benchmark::State& state)
{
    timing::BodyTrack track(series(), true);
    double day = 45000.0;
    for (auto _ : state) {
        day += 0.125;
        double sum = track.longitude(core::kSun, day) + track.longitude(core::kMoon, day);
        benchmark::DoNotOptimize(sum);
    }
}

struct Walk
{
    int point;
    timing::CurveShape shape;
};

// Days in which a body turns at most once in three steps, and stays below half a turn.
constexpr Walk kWalks[] = {
    {core::kSun, {360.0, 10.0, true, 1e-6}},      {core::kMoon, {360.0, 2.0, true, 1e-6}},
    {core::kMars, {360.0, 10.0, false, 1e-6}},    {core::kMercury, {360.0, 4.0, false, 1e-6}},
    {core::kJupiter, {360.0, 20.0, false, 1e-6}}, {core::kVenus, {360.0, 8.0, false, 1e-6}},
    {core::kSaturn, {360.0, 20.0, false, 1e-6}},  {core::kRahu, {360.0, 50.0, true, 1e-6}},
    {core::kUranus, {360.0, 20.0, false, 1e-6}},  {core::kNeptune, {360.0, 20.0, false, 1e-6}},
    {core::kPluto, {360.0, 20.0, false, 1e-6}},
};

void ingressesAndStationsOfACentury(benchmark::State& state)
{
    std::size_t events = 0;
    for (auto _ : state) {
        timing::SiderealSky sky(series(), core::Settings{});
        events = 0;
        const timing::Span span{kFirstDay, kFirstDay + kCentury};
        for (const Walk& walk : kWalks) {
            const auto sidereal = [&](double day) {
                return sky.longitude(walk.point, day);
            };
            const auto tropical = [&](double day) {
                return sky.tropicalLongitude(walk.point, day);
            };
            events += timing::crossingsIn(sidereal, walk.shape, span, {0.0, 30.0}).size();
            events += timing::turningPointsIn(tropical, walk.shape, span).size();
        }
    }
    state.counters["events"] = double(events);
}

// Every body to a native's points over ten years with orbs, ingresses, stations and combustion; the
// parameters are the count of points and the aspect choice.
void tenYearsOfTransits(benchmark::State& state)
{
    core::Chart native;
    timing::TransitOptions options;
    options.bodies.assign(core::kBodies.begin(), core::kBodies.end());
    options.aspectChoice = int(state.range(1));
    for (int point = 0; point < int(state.range(0)); ++point) {
        analysis::storePoint(native, point, 17.3 + 5.7 * point);
        options.targets.push_back(point);
    }
    std::size_t events = 0;
    for (auto _ : state) {
        timing::SiderealSky sky(series(), core::Settings{}, 5.5);
        events = timing::listTransits(sky, &native, options, {kFirstDay, kFirstDay + 3652.0}, 5.5)
                     .size();
    }
    state.counters["events"] = double(events);
}

void sadeSatiOfALife(benchmark::State& state)
{
    for (auto _ : state) {
        timing::SiderealSky sky(series(), core::Settings{}, 5.5);
        std::size_t phases = timing::sadeSati(sky, 7, {kFirstDay, kFirstDay + kCentury}).size();
        benchmark::DoNotOptimize(phases);
    }
}

// The eclipses of a century with what a place sees of them.
void eclipsesOfACentury(benchmark::State& state)
{
    std::size_t seen = 0;
    for (auto _ : state) {
        timing::SiderealSky sky(series(), core::Settings{});
        seen = 0;
        for (const timing::Eclipse& eclipse :
             timing::eclipsesIn(sky, {kFirstDay, kFirstDay + kCentury})) {
            seen += timing::eclipseAtPlace(sky, eclipse, kDelhi).visible ? 1U : 0U;
        }
    }
    state.counters["seen"] = double(seen);
}

// A month of daily positions of all bodies with its phases, ingresses and stations, every month
// from scratch.
void monthOfEphemeris(benchmark::State& state)
{
    timing::EphemerisPlan plan;
    plan.clockOffset = kDelhi.clockOffset;
    plan.bodies.assign(core::kBodies.begin(), core::kBodies.end());
    double first = kFirstDay;
    for (auto _ : state) {
        plan.first = timing::recordOfDay(first);
        plan.last = timing::recordOfDay(first + 30.0);
        timing::SiderealSky sky(series(), core::Settings{});
        timing::EphemerisRows rows(sky, plan);
        double sum = 0.0;
        while (const auto row = rows.next()) {
            sum += row->bodies.back().sky.longitude;
        }
        const timing::Span span = timing::spanOf(plan);
        sum += double(timing::moonPhasesIn(sky, span).size());
        sum += double(timing::ephemerisEventsIn(sky, plan.bodies, span).size());
        benchmark::DoNotOptimize(sum);
        first += 31.0;
    }
}

BENCHMARK(plainCosineLoop);
BENCHMARK(monthOfPanchanga);
BENCHMARK(sunAndMoonFromSeries);
BENCHMARK(sunAndMoonInterpolated);
BENCHMARK(ingressesAndStationsOfACentury);
BENCHMARK(eclipsesOfACentury);
BENCHMARK(monthOfEphemeris);
BENCHMARK(tenYearsOfTransits)->Args({10, 1})->Args({63, 1})->Args({63, 0});
BENCHMARK(sadeSatiOfALife);

} // namespace

BENCHMARK_MAIN();
