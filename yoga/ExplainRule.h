// Why a rule holds in a chart or not, condition by condition.
#pragma once

#include "timing/FunctionRef.h"
#include "yoga/Subject.h"
#include "yoga/YogaRule.h"

#include <string>
#include <vector>

namespace kestrav::yoga
{

/// What became of one condition.
struct ConditionOutcome
{
    bool tested = false; ///< conditions that cannot change the result any more are not
    bool truth = false;  ///< after negation; false when not tested
    std::wstring reason; ///< in words; empty when not tested
};

struct RuleOutcome
{
    bool truth = false;
    std::vector<ConditionOutcome> conditions; ///< one for each condition of the rule, in order
};

/// Begins a new evaluation of a rule on a subject and gives its truth.
[[nodiscard]] bool ruleHolds(const YogaRule& rule, Subject& subject);

/// The same with what became of every condition.
[[nodiscard]] RuleOutcome explainRule(const YogaRule& rule, Subject& subject);

/// The truth of a condition without its negation, with the reason.
using ConditionExplainer = timing::FunctionRef<ConditionResult(const Condition&)>;

/// The same with conditions explained by the caller.
[[nodiscard]] RuleOutcome explainRule(const YogaRule& rule, ConditionExplainer explain);

} // namespace kestrav::yoga
