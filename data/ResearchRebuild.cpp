#include "data/ResearchRebuild.h"

#include "data/ChartLine.h"
#include "data/CheckDatabaseLine.h"
#include "data/Chooser.h"
#include "data/ResearchLine.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <system_error>
#include <thread>
#include <utility>

namespace kestrav::data
{

namespace
{

constexpr std::size_t kLinesAtOnce = 64;

// What the sequential pass finds out about a line.
enum class LineUse : unsigned char
{
    Skipped,
    DayFirst,
    MonthFirst,
};

// Tests every line and finds the date order in which it is read, which depends on the lines before
// it. Nothing when the user cancelled.
std::optional<std::vector<LineUse>> testLines(ChartDatabase& database, core::Messages& messages)
{
    std::vector<LineUse> uses(database.size(), LineUse::Skipped);
    for (std::size_t i = 0; i < database.size(); ++i) {
        bool cancelled = false;
        const bool usable = testLine(database, i, messages, cancelled);
        if (cancelled) {
            return std::nullopt;
        }
        if (usable) {
            DateOrder order = database.order();
            uses[i] = order == DateOrder::DayFirst ? LineUse::DayFirst : LineUse::MonthFirst;
            static_cast<void>(chooserRow(database.line(i), order));
            database.setOrder(order);
        }
    }
    return uses;
}

// Takes the lines in portions until none is left.
class Workers
{
public:
    Workers(const ChartDatabase& database, const std::vector<LineUse>& uses,
            const core::Settings& settings, const astro::Series& series, const LongWork& work)
        : database_(database), uses_(uses), settings_(settings), series_(series), work_(work),
          lines_(database.size())
    {}

    ResearchLines& run()
    {
        const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
        const std::size_t portions = (lines_.size() + kLinesAtOnce - 1) / kLinesAtOnce;
        const std::size_t wanted = std::min<std::size_t>(
            std::max<std::size_t>(portions, 1), work_.threads == 0 ? cores : work_.threads);
        std::vector<std::thread> helpers;
        try {
            for (std::size_t i = 1; i < wanted; ++i) {
                helpers.emplace_back([this] { takePortions(false); });
            }
        } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch)
            // The system gives no more threads; those that run do the work.
        }
        takePortions(true);
        for (std::thread& helper : helpers) {
            helper.join();
        }
        report();
        return lines_;
    }

private:
    void report() const
    {
        if (work_.progress) {
            work_.progress(done_, lines_.size());
        }
    }

    void takePortions(bool reporting)
    {
        astro::EphemerisContext context(series_);
        core::Chart chart;
        while (!work_.cancelled()) {
            const std::size_t first = next_.fetch_add(kLinesAtOnce);
            if (first >= lines_.size()) {
                return;
            }
            const std::size_t end = std::min(first + kLinesAtOnce, lines_.size());
            for (std::size_t i = first; i < end; ++i) {
                build(i, context, chart);
            }
            done_ += end - first;
            if (reporting) {
                report();
            }
        }
    }

    void build(std::size_t index, astro::EphemerisContext& context, core::Chart& chart)
    {
        if (uses_[index] == LineUse::Skipped) {
            return;
        }
        DateOrder order =
            uses_[index] == LineUse::DayFirst ? DateOrder::DayFirst : DateOrder::MonthFirst;
        ParseChartLine(database_.line(index), chart, order);
        computeForResearch(chart, settings_, context);
        lines_[index] = FormatResearchLine(chart);
    }

    const ChartDatabase& database_;
    const std::vector<LineUse>& uses_;
    const core::Settings& settings_;
    const astro::Series& series_;
    const LongWork& work_;
    ResearchLines lines_;
    std::atomic<std::size_t> next_{0};
    std::atomic<std::size_t> done_{0};
};

} // namespace

std::optional<ResearchLines> rebuildResearch(ChartDatabase& database,
                                             const core::Settings& settings,
                                             const astro::Series& series, core::Messages& messages,
                                             const LongWork& work)
{
    const std::optional<std::vector<LineUse>> uses = testLines(database, messages);
    if (!uses) {
        return std::nullopt;
    }
    Workers workers(database, *uses, settings, series, work);
    ResearchLines& lines = workers.run();
    return work.cancelled() ? std::nullopt : std::optional(std::move(lines));
}

} // namespace kestrav::data
