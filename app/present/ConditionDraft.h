// A condition while it is composed: its kind and the words of each parameter, and what may stand
// in the place of each word.
#pragma once

#include "yoga/Catalogue.h"
#include "yoga/Condition.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

struct ConditionDraft
{
    const yoga::Kind* kind = nullptr;
    bool negated = false;
    bool exchanged = false; ///< tested with the two charts in each other's place
    bool inVargas = false;  ///< in divisional charts instead of the rashi
    int option = 1;         ///< of the divisional charts, 1 for the settings
    std::array<int, 2> vargas{0, 0};
    /// The words of each parameter; those of a repeated one with commas between them, empty for
    /// one that is left out.
    std::array<std::string, yoga::kMaxParameters> words;

    bool operator==(const ConditionDraft&) const = default;
};

/// The condition in the language of rules; empty without a kind.
[[nodiscard]] std::string conditionText(const ConditionDraft& draft);

/// The draft of a condition; nothing when its kind or its words cannot be shown as choices.
[[nodiscard]] std::optional<ConditionDraft> readDraft(std::string_view condition);

/// What keeps the draft from being used, as a sentence without full stop; empty when nothing does.
[[nodiscard]] std::string draftProblem(const ConditionDraft& draft);

/// A word of rules and what it means in words.
struct ChoiceWord
{
    std::string word;
    std::wstring meaning;

    bool operator==(const ChoiceWord&) const = default;
};

/// Choices that belong together under a heading.
struct ChoiceGroup
{
    std::wstring heading;
    std::vector<ChoiceWord> choices;
};

/// Points by groups: planets, lords of houses, places of houses, karakas, lagnas, the rest. Their
/// meanings are in the language of the display.
[[nodiscard]] std::vector<ChoiceGroup> pointChoices();

/// Sets of planets.
[[nodiscard]] std::vector<ChoiceWord> setChoices();

/// What can stand before a set: "any." to "eqs9.".
[[nodiscard]] std::vector<ChoiceWord> quantifierChoices();

/// What leads from a point to another one: "D." and its like, "L5.", "B7.".
[[nodiscard]] std::vector<ChoiceGroup> stepChoices();

/// The plain words, numbers, nakshatras, houses or signs of which a parameter takes some; nothing
/// for points and sets.
[[nodiscard]] std::vector<ChoiceWord> listChoices(const yoga::Parameter& parameter);

/// Words for several houses or signs, with the places that they stand for in listChoices.
struct MaskChoice
{
    ChoiceWord word;
    std::uint32_t mask = 0; ///< bit n for house or sign n
};
[[nodiscard]] std::vector<MaskChoice> maskChoices(yoga::ParameterType type);

/// The words of chosen entries of listChoices: houses and signs as one word, others with commas.
[[nodiscard]] std::string wordsOfChoices(const yoga::Parameter& parameter,
                                         const std::vector<bool>& chosen);

/// The entries that the words of a parameter choose.
[[nodiscard]] std::vector<bool> choicesOfWords(const yoga::Parameter& parameter,
                                               std::string_view words);

/// "In Nakshatra" of "InNakshatra".
[[nodiscard]] std::wstring kindLabel(const yoga::Kind& kind);

/// The meaning of a divisional-chart option 1 to 9.
[[nodiscard]] std::wstring optionLabel(int option);

inline constexpr int kVargaOptions = 9;

} // namespace kestrav::present
