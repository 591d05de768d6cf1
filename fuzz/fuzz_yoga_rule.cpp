// Any text as a rule: it is evaluated, explained and edited on a research line and on a chart.
#include "data/ResearchLine.h"
#include "fuzz/chart_checks.h"
#include "yoga/ExplainRule.h"
#include "yoga/RuleCheck.h"
#include "yoga/RuleEdit.h"
#include "yoga/YogaRuleParser.h"

#include "analysis/AnalyseChart.h"
#include "analysis/SignPositions.h"

#include <string>
#include <string_view>

namespace
{

using namespace kestrav;

// Positions without a moment: what depends on one has to do without.
const core::Chart& someChart()
{
    static const core::Chart kChart = [] {
        core::Chart chart;
        chart.hasMoment = false;
        for (int point = 0; point <= core::kKetu; ++point) {
            core::at(chart.longitude, point) = 37.0 * point;
            analysis::computeSignData(chart, point);
        }
        for (const int point : {core::kUranus, core::kNeptune, core::kPluto, core::kGulika}) {
            core::at(chart.longitude, point) = 5.0 * point;
            analysis::computeSignData(chart, point);
        }
        analysis::analyseSigns(chart, core::Settings());
        return chart;
    }();
    return kChart;
}

const std::string& someLine()
{
    static const std::string kLine = data::FormatResearchLine(someChart());
    return kLine;
}

void checkEditing(std::string_view text, const yoga::YogaRule& rule)
{
    const yoga::RuleEdit edit(text);
    const auto again = yoga::YogaRule::read(edit.rule());
    fuzz::require(again.ok() && again.value().tokens().size() == rule.tokens().size());
    for (std::size_t i = 0; i < rule.conditions().size() && i < 8; ++i) {
        const yoga::Condition& condition = rule.conditions()[i];
        for (const bool negated : {true, false}) {
            const std::string changed = yoga::withNegation(condition.text, negated);
            const yoga::Condition read = yoga::ParseCondition(changed, yoga::kCatalogueNames);
            fuzz::require(read.negated == negated && read.kind == condition.kind &&
                          read.points == condition.points);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto rule = yoga::YogaRule::read(text);
    fuzz::require(rule.ok() == (size <= yoga::kLongestRule));
    if (!rule) {
        return 0;
    }
    (void)yoga::ruleProblems(text);
    (void)yoga::optionsOfRule(rule.value());
    (void)yoga::vargasOfRule(rule.value());
    checkEditing(text, rule.value());
    static yoga::Subject subject{core::Settings()};
    for (const bool line : {true, false}) {
        if (line) {
            fuzz::require(subject.setResearchLine(someLine()));
        } else {
            subject.setChart(someChart());
        }
        const bool truth = yoga::ruleHolds(rule.value(), subject);
        const yoga::RuleOutcome outcome = yoga::explainRule(rule.value(), subject);
        fuzz::require(outcome.truth == truth);
        for (const yoga::ConditionOutcome& condition : outcome.conditions) {
            fuzz::require(condition.tested || (!condition.truth && condition.reason.empty()));
        }
    }
    return 0;
}
