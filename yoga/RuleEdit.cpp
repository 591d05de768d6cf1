#include "yoga/RuleEdit.h"

#include "data/DatabaseMessages.h"
#include "yoga/ParseCondition.h"
#include "yoga/RuleText.h"
#include "yoga/YogaRuleParser.h"

#include <algorithm>

namespace kestrav::yoga
{

namespace
{

// Where a word begins in the text of a condition; the end when it has fewer words.
std::size_t beginOfWord(std::string_view condition, std::size_t index)
{
    std::size_t begin = 0;
    for (; index > 0; --index) {
        const std::size_t comma = condition.find(kWordSeparator, begin);
        if (comma == std::string_view::npos) {
            return condition.size();
        }
        begin = comma + 1;
    }
    return begin;
}

bool isNegated(std::string_view condition)
{
    const std::vector<std::string_view> words = wordsOf(condition);
    const std::size_t mark = markIndex(condition);
    return mark < words.size() && words[mark] == kNegationMark;
}

} // namespace

RuleEdit::RuleEdit(std::string_view rule)
{
    for (const std::string_view token : splitRule(rule)) {
        tokens_.emplace_back(token);
    }
}

std::string RuleEdit::rule() const
{
    return joinRule(tokens_);
}

void RuleEdit::select(std::optional<std::size_t> token)
{
    selected_ = token && *token < tokens_.size() ? token : std::nullopt;
}

core::Result<void> RuleEdit::addCondition(std::string_view condition)
{
    if (condition.empty() || tokenKind(condition) != TokenKind::Condition ||
        condition.find(kTokenSeparator) != std::string_view::npos) {
        return core::Error{"this is no condition"};
    }
    std::string token =
        not_ ? withNegation(condition, !isNegated(condition)) : std::string(condition);
    core::Result<void> added = add(std::move(token));
    not_ = not_ && !added;
    return added;
}

core::Result<void> RuleEdit::addOr()
{
    return add(std::string(kOrToken));
}

core::Result<void> RuleEdit::addOpen()
{
    return add(std::string(kOpenToken));
}

core::Result<void> RuleEdit::addClose()
{
    return add(std::string(kCloseToken));
}

core::Result<void> RuleEdit::add(std::string token)
{
    if (rule().size() + 1 + token.size() > kLongestRule) {
        return core::Error{"the rule is longer than " + std::to_string(kLongestRule) + " bytes"};
    }
    const std::size_t place = selected_ ? *selected_ + 1 : tokens_.size();
    tokens_.insert(tokens_.begin() + std::ptrdiff_t(place), std::move(token));
    selected_ = place;
    return {};
}

bool RuleEdit::negateSelected()
{
    if (!selected_ || tokenKind(tokens_[*selected_]) != TokenKind::Condition) {
        return false;
    }
    std::string& token = tokens_[*selected_];
    token = withNegation(token, !isNegated(token));
    return true;
}

bool RuleEdit::removeSelected()
{
    if (!selected_) {
        return false;
    }
    tokens_.erase(tokens_.begin() + std::ptrdiff_t(*selected_));
    select(*selected_ > 0 ? *selected_ - 1 : 0);
    return true;
}

bool RuleEdit::clear(core::Messages& messages)
{
    if (messages.show(kQueryCaption, kDeleteRule, core::Buttons::YesNo) != core::Answer::Yes) {
        return false;
    }
    tokens_.clear();
    selected_.reset();
    not_ = false;
    return true;
}

std::string withNegation(std::string_view condition, bool negated)
{
    const std::size_t mark = markIndex(condition);
    std::string text(condition);
    for (std::size_t words = wordsOf(condition).size(); words <= mark && negated; ++words) {
        text += kWordSeparator;
    }
    const std::size_t begin = beginOfWord(text, mark);
    const std::size_t end = std::min(text.find(kWordSeparator, begin), text.size());
    text.replace(begin, end - begin, negated ? kNegationMark : std::string_view());
    if (!negated && text.size() == begin && text.ends_with(kWordSeparator)) {
        text.pop_back();
    }
    return text;
}

bool tellsMatchingBrackets(std::string_view rule, core::Messages& messages)
{
    const core::Result<YogaRule> read = YogaRule::read(rule);
    if (!read) {
        messages.notice(data::kNoticeCaption, L"The rule is too long");
        return false;
    }
    if (!bracketsBalanced(read.value())) {
        messages.notice(data::kNoticeCaption, kUnequalBrackets);
        return false;
    }
    return true;
}

} // namespace kestrav::yoga
