// Yogas, their rules and the conditions of rules as text and JSON.
#pragma once

#include "app/cli/JsonValues.h"
#include "yoga/Catalogue.h"
#include "yoga/ExplainRule.h"
#include "yoga/RuleCheck.h"
#include "yoga/YogaLibrary.h"

#include <string>
#include <vector>

namespace kestrav::cli
{

/// A yoga file without its yogas.
[[nodiscard]] Json yogaFileJson(const yoga::LoadedYogaFile& file);

/// Every field of a yoga.
[[nodiscard]] Json yogaJson(const yoga::Yoga& yoga);

[[nodiscard]] Json ruleProblemsJson(const std::vector<yoga::RuleProblem>& problems);

/// One object for each condition of a rule: its text and words, whether it is negated, whether it
/// was tested, and then its truth and the reason.
[[nodiscard]] Json reasonsJson(const yoga::YogaRule& rule, const yoga::RuleOutcome& outcome);

/// The same as lines that begin with "+" where the condition is true, "-" where it is not, and "?"
/// where it was not tested, which are left out unless `all` is set.
[[nodiscard]] std::wstring reasonsText(const yoga::YogaRule& rule, const yoga::RuleOutcome& outcome,
                                       bool all);

[[nodiscard]] Json kindJson(const yoga::Kind& kind);
[[nodiscard]] std::wstring kindText(const yoga::Kind& kind);

/// One line for each kind, under the headings of the groups.
[[nodiscard]] std::wstring kindsText();

} // namespace kestrav::cli
