#include "yoga/ExplainRule.h"

#include "yoga/YogaRuleParser.h"

#include <utility>

namespace kestrav::yoga
{

bool ruleHolds(const YogaRule& rule, Subject& subject)
{
    subject.resetOption();
    const auto test = [&](const Condition& condition) {
        return testCondition(condition, subject);
    };
    return evaluateRule(rule, test);
}

RuleOutcome explainRule(const YogaRule& rule, Subject& subject)
{
    subject.resetOption();
    const auto explain = [&](const Condition& condition) {
        return explainCondition(condition, subject);
    };
    return explainRule(rule, explain);
}

RuleOutcome explainRule(const YogaRule& rule, ConditionExplainer explain)
{
    RuleOutcome outcome;
    outcome.conditions.resize(rule.conditions().size());
    const Condition* const first = rule.conditions().data();
    const auto test = [&](const Condition& condition) {
        ConditionResult result = explain(condition);
        outcome.conditions[std::size_t(&condition - first)].reason = std::move(result.reason);
        return result.truth;
    };
    std::vector<TestedCondition> tested;
    outcome.truth = evaluateRule(rule, test, &tested);
    for (const TestedCondition& one : tested) {
        ConditionOutcome& condition = outcome.conditions[one.condition];
        condition.tested = true;
        condition.truth = one.truth;
        // One with an unknown word failed without a test.
        if (condition.reason.empty()) {
            condition.reason = explain(rule.conditions()[one.condition]).reason;
        }
    }
    return outcome;
}

} // namespace kestrav::yoga
