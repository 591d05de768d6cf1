#include "app/present/RuleLines.h"

#include "core/FileText.h"
#include "yoga/ParseCondition.h"
#include "yoga/YogaRule.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kestrav::present
{

namespace
{

constexpr std::size_t kBlanksOfDepth = 4;

LiveTruth truthOf(const yoga::RuleOutcome* outcome, std::size_t condition)
{
    if (outcome == nullptr || condition >= outcome->conditions.size()) {
        return LiveTruth::None;
    }
    const yoga::ConditionOutcome& one = outcome->conditions[condition];
    return !one.tested ? LiveTruth::NotTested : one.truth ? LiveTruth::Holds : LiveTruth::Fails;
}

} // namespace

std::vector<RuleLine> ruleLines(std::string_view rule, const yoga::RuleOutcome* outcome)
{
    std::vector<RuleLine> lines;
    int depth = 0;
    std::size_t condition = 0;
    for (const std::string_view token : yoga::splitRule(rule)) {
        RuleLine line;
        line.kind = yoga::tokenKind(token);
        if (line.kind == yoga::TokenKind::Close) {
            depth = std::max(0, depth - 1);
        }
        line.depth = depth;
        if (line.kind == yoga::TokenKind::Open) {
            ++depth;
        }
        if (line.kind == yoga::TokenKind::Condition) {
            line.words = conditionSentence(token);
            line.truth = truthOf(outcome, condition);
            if (line.truth == LiveTruth::Holds || line.truth == LiveTruth::Fails) {
                line.reason = outcome->conditions[condition].reason;
            }
            ++condition;
        } else {
            line.words = core::fromFileBytes(token);
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::wstring truthText(LiveTruth truth)
{
    switch (truth) {
    case LiveTruth::Holds:
        return L"\u2713 holds";
    case LiveTruth::Fails:
        return L"\u2717 does not hold";
    case LiveTruth::NotTested:
        return L"? not tested";
    case LiveTruth::None:
        break;
    }
    return {};
}

std::wstring conditionSentence(std::string_view condition)
{
    std::wstring words =
        yoga::conditionWords(yoga::ParseCondition(condition, yoga::kCatalogueNames));
    return words.empty() || words == L"?" ? core::fromFileBytes(condition) : words;
}

Table ruleTable(const std::vector<RuleLine>& lines, std::wstring title)
{
    Table table = {"rule", std::move(title), {{L"Rule"}, {L"Holds"}, {L"Why", Align::Wrapped}}};
    for (const RuleLine& line : lines) {
        table.add({std::wstring(std::size_t(line.depth) * kBlanksOfDepth, L' ') + line.words,
                   truthText(line.truth), line.reason});
    }
    return table;
}

Table reasonTable(const std::vector<RuleLine>& lines, std::wstring title)
{
    Table table = {"reasons", title, {{title, Align::Wrapped}}};
    for (const RuleLine& line : lines) {
        if (line.kind == yoga::TokenKind::Condition) {
            table.add(
                {truthText(line.truth) + L": " + (line.reason.empty() ? line.words : line.reason)});
        }
    }
    return table;
}

} // namespace kestrav::present
