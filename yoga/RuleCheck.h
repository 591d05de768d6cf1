// What is said about a rule as a whole before it is tested: its problems and what it uses.
#pragma once

#include "yoga/YogaRule.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

struct RuleProblem
{
    bool fatal = false; ///< the rule is not evaluated
    std::string text;   ///< a sentence without full stop
};

/// Everything that is wrong with a rule: an empty or too long one and brackets that do not match
/// are fatal; a condition with an unknown word, or words that do not fit its kind, never holds; an
/// empty group or alternative, and a word in the place of the negation mark, are probably not
/// meant.
[[nodiscard]] std::vector<RuleProblem> ruleProblems(std::string_view text);

/// A rule that can be evaluated, or why it cannot.
[[nodiscard]] core::Result<YogaRule> readCheckedRule(std::string_view text);

/// The divisional-chart options that a rule uses, in order: "1,3". For the field op.
[[nodiscard]] std::string optionsOfRule(const YogaRule& rule);

/// The short names of the divisional charts that a rule uses, in their order: "Rasi,Nava". For the
/// field vs.
[[nodiscard]] std::string vargasOfRule(const YogaRule& rule);

} // namespace kestrav::yoga
