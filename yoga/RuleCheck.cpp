#include "yoga/RuleCheck.h"

#include "analysis/VargaNames.h"
#include "core/FileText.h"
#include "core/Varga.h"
#include "data/import/ImportText.h"
#include "yoga/Subject.h"
#include "yoga/YogaRuleParser.h"

#include <set>

namespace kestrav::yoga
{

namespace
{

std::string condition(std::size_t index, const Condition& condition)
{
    return "condition " + std::to_string(index + 1) + " " + data::shown(condition.text);
}

// Nothing stands between a bracket or OR and the next closing one, OR or end.
bool hasEmptyPiece(const YogaRule& rule)
{
    bool empty = true;
    for (const RuleToken& token : rule.tokens()) {
        const bool ends = token.kind == TokenKind::Close || token.kind == TokenKind::Or;
        if (empty && ends) {
            return true;
        }
        empty = token.kind == TokenKind::Open || token.kind == TokenKind::Or;
    }
    return empty;
}

// The test of a condition that is wrong fails, so that its negation holds in every chart.
std::string failingCondition(std::size_t index, const Condition& one)
{
    return condition(index, one) + (one.negated ? " always holds: " : " never holds: ");
}

void checkCondition(std::size_t index, const Condition& one, std::vector<RuleProblem>& problems)
{
    std::vector<std::string> unknown;
    static_cast<void>(ParseCondition(one.text, kCatalogueNames, &unknown));
    for (const std::string& word : unknown) {
        problems.push_back({false, failingCondition(index, one) + "the word " + data::shown(word) +
                                       " is not known"});
    }
    if (unknown.empty()) {
        const std::string problem = conditionProblem(one);
        if (!problem.empty()) {
            problems.push_back({false, failingCondition(index, one) + problem});
        }
    }
    const std::vector<std::string_view> words = wordsOf(one.text);
    const std::size_t mark = markIndex(one.text);
    if (mark < words.size() && !words[mark].empty() && words[mark] != kNegationMark) {
        problems.push_back({false, condition(index, one) + " has the word " +
                                       data::shown(words[mark]) +
                                       " where only a negation mark counts"});
    }
}

std::string commaList(const std::set<int>& numbers, std::string (*name)(int))
{
    std::string text;
    for (const int number : numbers) {
        text += (text.empty() ? "" : ",") + name(number);
    }
    return text;
}

} // namespace

std::vector<RuleProblem> ruleProblems(std::string_view text)
{
    const core::Result<YogaRule> rule = YogaRule::read(text);
    if (!rule) {
        return {{true, rule.error().message}};
    }
    std::vector<RuleProblem> problems;
    const std::vector<Condition>& conditions = rule.value().conditions();
    if (rule.value().tokens().empty()) {
        problems.push_back({true, "the rule is empty"});
    } else if (!bracketsBalanced(rule.value())) {
        problems.push_back({true, core::toUtf8(kUnequalBrackets)});
    } else if (hasEmptyPiece(rule.value())) {
        problems.push_back({false, "there is nothing in a group or beside an OR"});
    }
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        checkCondition(i, conditions[i], problems);
    }
    return problems;
}

core::Result<YogaRule> readCheckedRule(std::string_view text)
{
    core::Result<YogaRule> rule = YogaRule::read(text);
    if (rule && rule.value().tokens().empty()) {
        return core::Error{"the rule is empty"};
    }
    if (rule && !bracketsBalanced(rule.value())) {
        return core::Error{core::toUtf8(kUnequalBrackets)};
    }
    return rule;
}

std::string optionsOfRule(const YogaRule& rule)
{
    std::set<int> options;
    for (const Condition& condition : rule.conditions()) {
        options.insert(condition.option);
    }
    return commaList(options, [](int option) { return std::to_string(option); });
}

std::string vargasOfRule(const YogaRule& rule)
{
    std::set<int> vargas;
    for (const Condition& condition : rule.conditions()) {
        for (const int varga : condition.vargas) {
            if (varga >= 0 && varga < core::kVargaCount) {
                vargas.insert(varga);
            }
        }
    }
    return commaList(vargas,
                     [](int varga) { return core::toUtf8(analysis::vargaShortName(varga)); });
}

} // namespace kestrav::yoga
