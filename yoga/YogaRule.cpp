#include "yoga/YogaRule.h"

namespace kestrav::yoga
{

core::Result<YogaRule> YogaRule::read(std::string_view text, const ConditionNames& names)
{
    if (text.size() > kLongestRule) {
        return core::Error{"the rule is longer than " + std::to_string(kLongestRule) + " bytes"};
    }
    YogaRule rule;
    for (const std::string_view token : splitRule(text)) {
        const TokenKind kind = tokenKind(token);
        rule.tokens_.push_back({kind, std::uint32_t(rule.conditions_.size())});
        if (kind == TokenKind::Condition) {
            rule.conditions_.push_back(ParseCondition(token, names, &rule.unknownWords_));
        }
    }
    return rule;
}

} // namespace kestrav::yoga
