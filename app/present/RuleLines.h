// A yoga rule as lines to read: one for each token, with what became of it in a chart.
#pragma once

#include "app/present/Table.h"
#include "yoga/ExplainRule.h"
#include "yoga/RuleText.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

enum class LiveTruth : std::uint8_t
{
    None, ///< brackets, OR, and everything while there is no chart
    Holds,
    Fails,
    NotTested, ///< could not change the result any more
};

struct RuleLine
{
    yoga::TokenKind kind = yoga::TokenKind::Condition;
    std::wstring words;  ///< the condition as a sentence, else the token
    std::wstring reason; ///< of a tested condition
    int depth = 0;       ///< of the brackets around it
    LiveTruth truth = LiveTruth::None;
};

/// The lines of a rule; `outcome` is what became of it, null without a chart.
[[nodiscard]] std::vector<RuleLine> ruleLines(std::string_view rule,
                                              const yoga::RuleOutcome* outcome);

/// "✓ holds", "✗ does not hold", "? not tested"; empty for None.
[[nodiscard]] std::wstring truthText(LiveTruth truth);

/// A condition as a sentence that begins with a capital, "not: ..." where it is negated; the
/// condition itself where it cannot be read.
[[nodiscard]] std::wstring conditionSentence(std::string_view condition);

/// The lines as a table: rule, truth, reason.
[[nodiscard]] Table ruleTable(const std::vector<RuleLine>& lines, std::wstring title);

/// What became of the conditions alone, in one column under the title.
[[nodiscard]] Table reasonTable(const std::vector<RuleLine>& lines, std::wstring title);

} // namespace kestrav::present
