#include "yoga/YogaSearch.h"

#include "analysis/AnalyseChart.h"
#include "analysis/ComputeChart.h"
#include "astro/Engine.h"
#include "data/ChartLine.h"
#include "data/Chooser.h"
#include "data/DatabaseCommands.h"
#include "data/DatabaseMessages.h"
#include "yoga/YogaRuleParser.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

namespace kestrav::yoga
{

namespace
{

constexpr std::size_t kLinesAtOnce = 256;

} // namespace

// Tests the charts of a search one after the other, on one thread.
class YogaSearch::Worker
{
public:
    explicit Worker(const YogaSearch& search)
        : search_(search), line_(search.settings_, &search.series_),
          whole_(search.settings_, &search.series_)
    {
        for (Subject* const subject : {&line_, &whole_}) {
            subject->setSecondChart(search.second_);
            subject->setMoment(search.moment_);
        }
    }

    /// Begins with another chart; false when it is not searched.
    bool take(std::size_t line)
    {
        number_ = line;
        computed_ = false;
        const std::string_view text = search_.research_.line(line);
        if (text.empty() || (search_.group_ &&
                             (line >= search_.database_.size() ||
                              data::tagOfLine(search_.database_.line(line)) != *search_.group_))) {
            return false;
        }
        if (!line_.setResearchLine(text)) {
            return false;
        }
        line_.resetOption();
        return true;
    }

    [[nodiscard]] bool holds()
    {
        const auto test = [this](const Condition& condition) {
            return testCondition(condition, subjectFor(condition));
        };
        return evaluateRule(search_.rule_, test);
    }

    /// The subject that can answer the condition.
    Subject& subjectFor(const Condition& condition)
    {
        const auto index = std::size_t(&condition - search_.rule_.conditions().data());
        return search_.onLine_[index] ? line_ : whole();
    }

    [[nodiscard]] bool computed() const
    {
        return computed_;
    }

private:
    Subject& whole()
    {
        if (computed_) {
            return whole_;
        }
        computed_ = true;
        if (!chart_) {
            chart_ = std::make_unique<core::Chart>();
            context_ = std::make_unique<astro::EphemerisContext>(search_.series_);
        }
        if (number_ >= search_.orders_.size()) {
            // A research line without its chart: only the line can be asked.
            static_cast<void>(whole_.setResearchLine(search_.research_.line(number_)));
        } else {
            data::DateOrder order = search_.orders_[number_];
            data::ParseChartLine(search_.database_.line(number_), *chart_, order);
            analysis::ComputeChart(*chart_, search_.settings_, *context_);
            analysis::AnalyseChart(*chart_, search_.settings_, *context_);
            whole_.setChart(*chart_);
        }
        whole_.resetOption();
        return whole_;
    }

    const YogaSearch& search_;
    Subject line_;
    Subject whole_;
    std::unique_ptr<core::Chart> chart_;
    std::unique_ptr<astro::EphemerisContext> context_;
    std::size_t number_ = 0;
    bool computed_ = false;
};

YogaSearch::YogaSearch(const YogaRule& rule, const data::LineList& research,
                       const data::ChartDatabase& database, const core::Settings& settings,
                       const astro::Series& series)
    : rule_(rule), research_(research), database_(database), settings_(settings), series_(series)
{
    for (const Condition& condition : rule.conditions()) {
        onLine_.push_back(needsOf(condition).researchSuffices());
    }
}

// The date order of a line without an order of its own depends on the lines before it, so that all
// of them are looked at, in their order.
void YogaSearch::findOrders()
{
    const bool linesSuffice =
        std::all_of(onLine_.begin(), onLine_.end(), [](bool enough) { return enough; });
    if (linesSuffice || !orders_.empty()) {
        return;
    }
    data::DateOrder order = database_.order();
    orders_.reserve(database_.size());
    for (std::size_t i = 0; i < database_.size(); ++i) {
        if (!data::isShortLine(database_.line(i))) {
            static_cast<void>(data::chooserRow(database_.line(i), order));
        }
        orders_.push_back(order);
    }
}

std::optional<YogaFinds> YogaSearch::run(const data::LongWork& work)
{
    findOrders();
    const std::size_t total = research_.size();
    // Each portion has its own list, so that the lines come out in order.
    const std::size_t portions = (total + kLinesAtOnce - 1) / kLinesAtOnce;
    std::vector<std::vector<std::size_t>> found(portions);
    std::atomic<std::size_t> next{0};
    std::atomic<std::size_t> done{0};
    std::atomic<std::size_t> searched{0};
    std::atomic<std::size_t> recomputed{0};
    const auto report = [&] {
        if (work.progress) {
            work.progress(done, total);
        }
    };
    const auto takePortions = [&](bool reporting) {
        Worker worker(*this);
        std::size_t charts = 0;
        std::size_t computed = 0;
        for (std::size_t portion = next++; portion < portions && !work.cancelled();
             portion = next++) {
            const std::size_t first = portion * kLinesAtOnce;
            const std::size_t end = std::min(first + kLinesAtOnce, total);
            for (std::size_t line = first; line < end && !work.cancelled(); ++line) {
                if (worker.take(line)) {
                    ++charts;
                    if (worker.holds()) {
                        found[portion].push_back(line);
                    }
                    computed += worker.computed() ? 1 : 0;
                }
            }
            done += end - first;
            if (reporting) {
                report();
            }
        }
        searched += charts;
        recomputed += computed;
    };
    const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t wanted = std::min<std::size_t>(std::max<std::size_t>(portions, 1),
                                                     work.threads == 0 ? cores : work.threads);
    std::vector<std::thread> helpers;
    try {
        for (std::size_t i = 1; i < wanted; ++i) {
            helpers.emplace_back([&] { takePortions(false); });
        }
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch)
        // The system gives no more threads; those that run do the work.
    }
    takePortions(true);
    for (std::thread& helper : helpers) {
        helper.join();
    }
    report();
    if (work.cancelled()) {
        return std::nullopt;
    }
    YogaFinds finds;
    finds.searched = searched;
    finds.recomputed = recomputed;
    for (const std::vector<std::size_t>& lines : found) {
        finds.lines.insert(finds.lines.end(), lines.begin(), lines.end());
    }
    return finds;
}

RuleOutcome YogaSearch::explain(std::size_t line)
{
    findOrders();
    Worker worker(*this);
    RuleOutcome outcome;
    outcome.conditions.resize(rule_.conditions().size());
    if (line >= research_.size() || !worker.take(line)) {
        return outcome;
    }
    return explainRule(rule_, [&](const Condition& condition) {
        return explainCondition(condition, worker.subjectFor(condition));
    });
}

std::wstring searchTitle(const YogaFinds& finds)
{
    return L"Natives with Yoga (" + std::to_wstring(finds.lines.size()) + L" of " +
           std::to_wstring(finds.searched) + L")";
}

bool triesRefreshing(core::Messages& messages)
{
    return messages.show(data::kNoticeCaption, data::kTryRefreshing, core::Buttons::YesNo) ==
           core::Answer::Yes;
}

bool makeGroupB(data::ChartDatabase& database, const YogaFinds& finds, core::Messages& messages)
{
    return data::changeGroup(database, L'B', finds.lines, messages) == data::Outcome::Done;
}

} // namespace kestrav::yoga
