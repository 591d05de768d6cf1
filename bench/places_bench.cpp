// How long a place and a zone take to look up, and the lists to load.
#include "core/FileText.h"
#include "data/PlaceLookup.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace
{

using namespace kestrav;

const data::Places& places()
{
    static const core::Result<data::LoadedPlaces> kLoaded = data::loadPlaces();
    if (!kLoaded) {
        std::fprintf(stderr, "%s\n", kLoaded.error().text().c_str());
        std::exit(1);
    }
    return kLoaded.value().places;
}

void loadLists(benchmark::State& state)
{
    for (auto _ : state) {
        const core::Result<data::LoadedPlaces> loaded = data::loadPlaces();
        benchmark::DoNotOptimize(loaded.ok());
    }
}

// Random places by their name and country.
void lookUpByName(benchmark::State& state)
{
    std::mt19937 random(1);
    std::vector<data::PlaceRequest> requests(1000);
    for (data::PlaceRequest& request : requests) {
        const data::Place& place =
            places().place(std::uint32_t(random() % places().list().places().size()));
        request.city = places().nameOf(place);
        request.countryOrState = places().countryOf(place);
    }
    std::size_t next = 0;
    for (auto _ : state) {
        const data::PlaceLookup found =
            data::lookUpPlace(places(), requests[next++ % requests.size()]);
        benchmark::DoNotOptimize(found.code);
    }
}

// The beginnings of names, with the most matches.
void lookUpByBeginning(benchmark::State& state)
{
    const std::wstring_view letters = L"abcdefghijklmnopqrstuvwxyz";
    const auto length = std::size_t(state.range(0));
    std::size_t next = 0;
    for (auto _ : state) {
        const std::wstring_view letter = letters.substr(next++ % letters.size(), 1);
        const std::wstring typed = length == 1 ? std::wstring(letter) : std::wstring(letter) + L"a";
        benchmark::DoNotOptimize(places().find(typed, {}).code);
    }
}

// The zone of random clock times of 1850 to 2060 in random zones.
void zoneOfClockTime(benchmark::State& state)
{
    const data::ZoneTable& zones = places().zones();
    std::mt19937_64 random(2);
    struct Question
    {
        int zone;
        data::UnixSeconds clock;
    };
    std::vector<Question> questions(4096);
    for (Question& question : questions) {
        question.zone = int(random() % std::uint64_t(zones.size()));
        question.clock = std::int64_t(random() % 6'600'000'000U) - 3'790'000'000;
    }
    std::size_t next = 0;
    for (auto _ : state) {
        const Question& question = questions[next++ % questions.size()];
        benchmark::DoNotOptimize(zones.atClock(question.zone, question.clock));
    }
}

// The same from the date-time record of a chart, in the years of the yearly rule.
void zoneOfRecord(benchmark::State& state)
{
    const int zone = places().zones().find("America/New_York").value_or(0);
    core::DateTimeRecord record;
    int day = 0;
    for (auto _ : state) {
        record.year = 2008 + day % 40;
        record.month = 1 + day % 12;
        record.day = 1 + day++ % 28;
        benchmark::DoNotOptimize(data::timeAtPlace(places().zones(), zone, -74.0, "US", record));
    }
}

BENCHMARK(loadLists)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpByName)->Unit(benchmark::kMicrosecond);
BENCHMARK(lookUpByBeginning)->ArgName("letters")->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(zoneOfClockTime);
BENCHMARK(zoneOfRecord);

} // namespace

BENCHMARK_MAIN();
