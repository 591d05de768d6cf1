// The commands of the yoga editor on one rule.
#pragma once

#include "core/Messages.h"
#include "core/Result.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

inline constexpr wchar_t kQueryCaption[] = L"Query";
inline constexpr wchar_t kDeleteRule[] = L"Delete entire rule? (No undo)";

/// A rule under work: its tokens, and which of them is selected. What is added stands behind the
/// selected token, or at the end when none is, and is selected then.
class RuleEdit
{
public:
    explicit RuleEdit(std::string_view rule = {});

    [[nodiscard]] std::span<const std::string> tokens() const
    {
        return tokens_;
    }
    [[nodiscard]] std::string rule() const;
    [[nodiscard]] std::optional<std::size_t> selected() const
    {
        return selected_;
    }
    /// An index outside the rule selects nothing.
    void select(std::optional<std::size_t> token);

    /// Adds a condition, negated when "NOT" was given before. Refused are a text that is no
    /// condition, one that holds a backslash, and what would make the rule too long.
    [[nodiscard]] core::Result<void> addCondition(std::string_view condition);
    [[nodiscard]] core::Result<void> addOr();
    [[nodiscard]] core::Result<void> addOpen();
    [[nodiscard]] core::Result<void> addClose();

    /// "NOT": the next condition is added negated. Given twice it is taken back.
    void toggleNot()
    {
        not_ = !not_;
    }
    [[nodiscard]] bool notGiven() const
    {
        return not_;
    }

    /// Negates the selected condition, or takes its negation away. False when no condition is
    /// selected.
    bool negateSelected();

    /// Removes the selected token and selects the one before it. False when none is selected.
    bool removeSelected();

    /// Removes all tokens when the user agrees.
    bool clear(core::Messages& messages);

private:
    core::Result<void> add(std::string token);

    std::vector<std::string> tokens_;
    std::optional<std::size_t> selected_;
    bool not_ = false;
};

/// The condition with its negation mark set or taken away; no other byte changes, except a comma
/// that the mark needs.
[[nodiscard]] std::string withNegation(std::string_view condition, bool negated);

/// The check before a rule is saved or searched. When the brackets do not match the user is told,
/// and the answer is false.
[[nodiscard]] bool tellsMatchingBrackets(std::string_view rule, core::Messages& messages);

} // namespace kestrav::yoga
