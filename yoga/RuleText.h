// The text of a yoga rule: tokens separated by backslashes.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

/// The longest rule in bytes. Longer ones are refused.
inline constexpr std::size_t kLongestRule = 65536;

inline constexpr char kTokenSeparator = '\\';
inline constexpr char kWordSeparator = ',';
inline constexpr std::string_view kOrToken = "OR";
inline constexpr std::string_view kOpenToken = "(";
inline constexpr std::string_view kCloseToken = ")";
inline constexpr std::string_view kNegationMark = "!";

enum class TokenKind : unsigned char
{
    Open,
    Close,
    Or,
    Condition,
};

/// What a token is. Only the exact texts "(", ")" and "OR" are no conditions: "or" or " OR" are.
[[nodiscard]] TokenKind tokenKind(std::string_view token);

/// The tokens of a rule in order. Nothing between two separators, or at an end, is no token.
[[nodiscard]] std::vector<std::string_view> splitRule(std::string_view rule);

/// The rule of the tokens.
[[nodiscard]] std::string joinRule(std::span<const std::string> tokens);

/// The words of a condition in order, at most 15. A double quote at the beginning of a word is
/// dropped; it does not keep a comma from separating.
[[nodiscard]] std::vector<std::string_view> wordsOf(std::string_view condition);

} // namespace kestrav::yoga
