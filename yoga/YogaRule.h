// A yoga rule whose tokens and conditions have been read once, for any number of evaluations.
#pragma once

#include "core/Result.h"
#include "yoga/Condition.h"
#include "yoga/Keywords.h"
#include "yoga/ParseCondition.h"
#include "yoga/RuleText.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

/// What the user sees, under the caption "Notice", when brackets do not match.
inline constexpr wchar_t kUnequalBrackets[] =
    L"The number of opening and closing brakets are not equal, please correct and try again";

/// The words of the catalogue of conditions.
inline constexpr ConditionNames kCatalogueNames{keywordCode, kindOfKeyword};

struct RuleToken
{
    TokenKind kind = TokenKind::Condition;
    std::uint32_t condition = 0; ///< index into the conditions, for a condition
};

class YogaRule
{
public:
    YogaRule() = default;

    /// Reads a rule; one of more than kLongestRule bytes is refused. Brackets are not checked.
    [[nodiscard]] static core::Result<YogaRule> read(std::string_view text,
                                                     const ConditionNames& names = kCatalogueNames);

    [[nodiscard]] std::span<const RuleToken> tokens() const
    {
        return tokens_;
    }
    [[nodiscard]] const std::vector<Condition>& conditions() const
    {
        return conditions_;
    }
    /// Words of conditions that are in no table, in the order of the rule. A condition with one
    /// never holds, so the user is warned of them.
    [[nodiscard]] const std::vector<std::string>& unknownWords() const
    {
        return unknownWords_;
    }

private:
    std::vector<RuleToken> tokens_;
    std::vector<Condition> conditions_;
    std::vector<std::string> unknownWords_;
};

} // namespace kestrav::yoga
