// The search for the charts of a database that have a yoga.
#pragma once

#include "astro/Series.h"
#include "core/Chart.h"
#include "core/Messages.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/DateOrder.h"
#include "data/LineList.h"
#include "data/LongWork.h"
#include "yoga/ExplainRule.h"
#include "yoga/YogaRule.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

struct YogaFinds
{
    std::vector<std::size_t> lines; ///< lines of the database whose charts have the yoga, in order
    std::size_t searched = 0;       ///< charts that have a research line
    std::size_t recomputed = 0;     ///< of them, charts that had to be computed again
};

/// Tests a rule on the research lines of a database. A chart is computed only when a condition is
/// tested that a research line cannot answer.
class YogaSearch
{
public:
    /// Everything must outlive the object. The research lines belong to the database.
    YogaSearch(const YogaRule& rule, const data::LineList& research,
               const data::ChartDatabase& database, const core::Settings& settings,
               const astro::Series& series);

    /// A second chart, analysed, for conditions that compare with one; it must outlive the object.
    void setSecondChart(const core::Chart* chart)
    {
        second_ = chart;
    }
    /// The moment of running dashas, a Julian day of Universal Time.
    void setMoment(std::optional<double> julianDay)
    {
        moment_ = julianDay;
    }
    /// Only charts with this tag are searched.
    void setGroup(std::optional<wchar_t> tag)
    {
        group_ = tag;
    }

    /// Searches on the wanted number of threads; what is found does not depend on it. Nothing when
    /// the work was cancelled.
    [[nodiscard]] std::optional<YogaFinds> run(const data::LongWork& work = {});

    /// What became of the conditions in the chart of one line.
    [[nodiscard]] RuleOutcome explain(std::size_t line);

private:
    class Worker;

    void findOrders();

    const YogaRule& rule_;
    const data::LineList& research_;
    const data::ChartDatabase& database_;
    const core::Settings& settings_;
    const astro::Series& series_;
    const core::Chart* second_ = nullptr;
    std::optional<double> moment_;
    std::optional<wchar_t> group_;
    std::vector<bool> onLine_;            ///< by condition: whether a research line is enough
    std::vector<data::DateOrder> orders_; ///< by line of the database, when charts are computed
};

/// "Natives with Yoga (%d of %d)".
[[nodiscard]] std::wstring searchTitle(const YogaFinds& finds);

/// Asks, when nothing was found, whether to refresh the research database and search again.
[[nodiscard]] bool triesRefreshing(core::Messages& messages);

/// Makes the found charts the B group of the database, when the user agrees, and saves it.
[[nodiscard]] bool makeGroupB(data::ChartDatabase& database, const YogaFinds& finds,
                              core::Messages& messages);

} // namespace kestrav::yoga
