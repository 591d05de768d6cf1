// How long the tables of a chart and whole reports take, in every form in which they are written.
#include "analysis/AnalyseChart.h"
#include "analysis/ComputeChart.h"
#include "app/present/Report.h"
#include "app/present/TableCatalogue.h"
#include "app/present/TableWriters.h"
#include "astro/DataFile.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{

using namespace kestrav;

constexpr double kMoment = 2461365.5; // 2026 November 21

template <typename Value>
Value orEnd(core::Result<Value> result)
{
    if (!result) {
        std::fprintf(stderr, "%s\n", result.error().text().c_str());
        std::exit(1);
    }
    return std::move(result.value());
}

struct Example
{
    Example()
    {
        astro::LoadResult loaded = astro::LoadSeries();
        if (!loaded.data) {
            std::fprintf(stderr, "%s\n", loaded.error.text().c_str());
            std::exit(1);
        }
        data = std::move(*loaded.data);
        core::Chart& chart = computed.chart;
        chart.name = L"Example";
        chart.time.year = 1996;
        chart.time.month = 12;
        chart.time.day = 7;
        chart.time.localTime = 10.0 + 34.0 / 60.0;
        chart.zone = 5.5;
        chart.geoLatitude = 13.0878;
        chart.geoLongitude = 80.2785;
        computed.hasPlace = true;
        astro::EphemerisContext context(data.series);
        analysis::ComputeChart(chart, computed.settings, context);
        analysis::AnalyseChart(chart, computed.settings, context);
        for (const auto& path : yoga::standardYogaFiles()) {
            if (const core::Result<void> read = library.load(path); !read) {
                std::fprintf(stderr, "%s\n", read.error().text().c_str());
                std::exit(1);
            }
        }
    }

    [[nodiscard]] present::Document report(const present::ReportDefinition& definition) const
    {
        const present::ReportSource source{computed, data.series, &library, kMoment,
                                           present::DiagramStyle::North};
        return present::makeReport(source, definition);
    }

    astro::ProgramData data;
    present::ComputedChart computed;
    yoga::YogaLibrary library;
};

const Example& example()
{
    static const Example kExample;
    return kExample;
}

present::ReportDefinition delivered(const char* name)
{
    std::ifstream file(std::string(KESTRAV_RESOURCES) + "/reports/" + name + ".txt");
    std::stringstream bytes;
    bytes << file.rdbuf();
    return orEnd(present::readReportDefinition(bytes.str()));
}

void textOfReport(benchmark::State& state, const char* name)
{
    const present::ReportDefinition definition = delivered(name);
    for (auto _ : state) {
        benchmark::DoNotOptimize(present::documentText(example().report(definition)));
    }
}

void sectionAsText(benchmark::State& state, const char* name)
{
    const present::ReportDefinition definition = orEnd(present::reportOfSections({name}));
    for (auto _ : state) {
        benchmark::DoNotOptimize(present::documentText(example().report(definition)));
    }
}

// The writers alone.
template <typename Write>
void writing(benchmark::State& state, const Write& write)
{
    const present::Document document = example().report(delivered("full"));
    for (auto _ : state) {
        benchmark::DoNotOptimize(write(document));
    }
}

void oneTable(benchmark::State& state, const present::TableInfo& info)
{
    present::TableSource source{example().computed, example().data.series};
    source.moment = kMoment;
    source.yogas = &example().library;
    source.groom = &example().computed.chart;
    source.bride = source.groom;
    source.matchingTables = &example().data.matching;
    for (auto _ : state) {
        benchmark::DoNotOptimize(present::tableText(orEnd(info.make(source))));
    }
}

} // namespace

int main(int argc, char** argv)
{
    for (const char* const name : {"full", "one-page", "dasha", "panchanga", "yogas"}) {
        benchmark::RegisterBenchmark((std::string("report/") + name).c_str(), textOfReport, name)
            ->Unit(benchmark::kMillisecond);
    }
    for (int section = 0; section < present::kReportSections; ++section) {
        const std::string_view name =
            present::reportSectionName(static_cast<present::ReportSection>(section));
        benchmark::RegisterBenchmark(("section/" + std::string(name)).c_str(), sectionAsText,
                                     name.data())
            ->Unit(benchmark::kMillisecond);
    }
    const auto writer = [](const char* name, auto write) {
        benchmark::RegisterBenchmark((std::string("write/") + name).c_str(),
                                     [write](benchmark::State& state) { writing(state, write); })
            ->Unit(benchmark::kMillisecond);
    };
    writer("text", present::documentText);
    writer("html", present::documentHtml);
    writer("rtf", [](const present::Document& document) { return present::documentRtf(document); });
    writer("json", present::documentJson);
    writer("csv", present::documentCsv);
    for (const present::TableInfo& info : present::allTables()) {
        benchmark::RegisterBenchmark(("table/" + std::string(info.id)).c_str(),
                                     [&info](benchmark::State& state) { oneTable(state, info); })
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
