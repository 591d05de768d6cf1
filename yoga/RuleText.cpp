#include "yoga/RuleText.h"

#include "yoga/Condition.h"

namespace kestrav::yoga
{

TokenKind tokenKind(std::string_view token)
{
    if (token == kOrToken) {
        return TokenKind::Or;
    }
    if (token == kOpenToken) {
        return TokenKind::Open;
    }
    return token == kCloseToken ? TokenKind::Close : TokenKind::Condition;
}

std::vector<std::string_view> splitRule(std::string_view rule)
{
    std::vector<std::string_view> tokens;
    while (!rule.empty()) {
        const std::size_t end = rule.find(kTokenSeparator);
        const std::string_view token = rule.substr(0, end);
        if (!token.empty()) {
            tokens.push_back(token);
        }
        rule = end == std::string_view::npos ? std::string_view() : rule.substr(end + 1);
    }
    return tokens;
}

std::string joinRule(std::span<const std::string> tokens)
{
    std::string rule;
    for (const std::string& token : tokens) {
        if (!rule.empty()) {
            rule += kTokenSeparator;
        }
        rule += token;
    }
    return rule;
}

std::vector<std::string_view> wordsOf(std::string_view condition)
{
    std::vector<std::string_view> words;
    bool more = true;
    while (more && words.size() < kMaxConditionWords) {
        const std::size_t end = condition.find(kWordSeparator);
        std::string_view word = condition.substr(0, end);
        if (word.starts_with('"')) {
            word.remove_prefix(1);
        }
        words.push_back(word);
        more = end != std::string_view::npos;
        condition.remove_prefix(more ? end + 1 : condition.size());
    }
    return words;
}

} // namespace kestrav::yoga
