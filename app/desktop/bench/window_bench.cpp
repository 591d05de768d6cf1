// The window: from nothing to a shown chart, and from one chart to the next in a large database.
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/shell/Workspace.h"
#include "core/Files.h"
#include "core/Locations.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace
{

using namespace kestrav::desktop;

constexpr std::size_t kCharts = 100000;

// A database that repeats the sample charts.
std::filesystem::path makeDatabase(const QTemporaryDir& folder)
{
    const auto sample = kestrav::core::findFile("Sample.ksc");
    const auto bytes = kestrav::core::readFile(*sample, 1U << 22U);
    const std::string text(bytes.value().begin(), bytes.value().end());
    std::string all;
    std::size_t lines = 0;
    for (std::size_t start = 0; lines < kCharts; ++lines) {
        std::size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end;
        all.append(text, start, end - start).push_back('\n');
        start = end + 1 < text.size() ? end + 1 : 0;
    }
    const std::filesystem::path path = toPath(folder.filePath("large.ksc"));
    const std::span<const std::uint8_t> raw(reinterpret_cast<const std::uint8_t*>(all.data()),
                                            all.size());
    return kestrav::core::writeFileSafely(path, raw).ok() ? path : std::filesystem::path();
}

DataPointer loadData()
{
    auto loaded = kestrav::astro::LoadSeries();
    return std::make_shared<const kestrav::astro::ProgramData>(std::move(*loaded.data));
}

// Lets the window paint everything that is due, workers' results among it.
void paintAll(TKSVform1& window)
{
    QApplication::processEvents();
    BackgroundWork::waitForAll();
    QApplication::processEvents();
    window.grab();
}

void startToShownChart(benchmark::State& state)
{
    for ([[maybe_unused]] auto run : state) {
        Workspace workspace(loadData(), {}, "/dev/null");
        TKSVform1 window(workspace);
        static_cast<void>(workspace.database().load(*kestrav::core::findFile("Sample.ksc")).ok());
        workspace.showLine(0);
        window.show();
        paintAll(window);
    }
}
BENCHMARK(startToShownChart)->Unit(benchmark::kMillisecond);

void chartSwitchInLargeDatabase(benchmark::State& state)
{
    const QTemporaryDir folder;
    Workspace workspace(loadData(), {}, "/dev/null");
    TKSVform1 window(workspace);
    if (!workspace.database().load(makeDatabase(folder)).ok()) {
        state.SkipWithError("the database could not be made");
        return;
    }
    window.pages().show(int(state.range(0)));
    window.show();
    std::size_t line = 0;
    for ([[maybe_unused]] auto run : state) {
        line = (line + 997) % kCharts;
        workspace.showLine(line);
        paintAll(window);
    }
    state.SetLabel(window.pages().name(int(state.range(0))).toStdString());
}
BENCHMARK(chartSwitchInLargeDatabase)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

} // namespace

int main(int count, char** words)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, words);
    TMessages::answerOnTerminal();
    applyTheme({});
    benchmark::Initialize(&count, words);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
