// What may stand in the places of a condition's words.
#include "app/present/ConditionDraft.h"
#include "core/FileText.h"
#include "core/Points.h"
#include "yoga/KeywordTables.h"
#include "yoga/Keywords.h"
#include "yoga/RuleText.h"

#include <algorithm>
#include <array>
#include <span>

namespace kestrav::present
{

namespace
{

using yoga::Parameter;
using yoga::ParameterType;

constexpr int kTwelve = 12;
constexpr int kNakshatras = 27;

constexpr std::array<std::string_view, 13> kPlanetWords = {
    "Asc", "Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket", "Ura", "Nep", "Plu"};
constexpr std::array<std::string_view, 9> kLagnaWords = {"BhL", "HoL", "GaL", "InL", "SrL",
                                                         "VaL", "DiL", "YoP", "PF"};
constexpr std::array<std::string_view, 12> kUpagrahaWords = {
    "Dhu", "Vya", "Par", "Ind", "Upa", "Kal", "Mri", "ArP", "Yam", "Gul", "PPd", "Mdi"};
constexpr std::array<std::string_view, 12> kArudhaWords = {"ArL", "a2", "a3", "a4",  "a5",  "a6",
                                                           "a7",  "a8", "a9", "a10", "a11", "UpL"};
constexpr std::array<std::string_view, 12> kCuspWords = {"Hs1", "Hs2", "Hs3", "Hs4", "Hs5", "Hs6",
                                                         "Hs7", "Hs8", "Hs9", "H10", "H11", "H12"};

ChoiceWord pointChoice(std::string word)
{
    std::wstring meaning = yoga::codeWords(yoga::keywordCode(word));
    return {std::move(word), std::move(meaning)};
}

ChoiceGroup pointGroup(const wchar_t* heading, std::span<const std::string_view> words)
{
    ChoiceGroup group{heading, {}};
    for (const std::string_view word : words) {
        group.choices.push_back(pointChoice(std::string(word)));
    }
    return group;
}

// "L1" to "L12" with a heading.
ChoiceGroup numbered(const wchar_t* heading, const char* letter)
{
    ChoiceGroup group{heading, {}};
    for (int house = 1; house <= kTwelve; ++house) {
        group.choices.push_back(pointChoice(letter + std::to_string(house)));
    }
    return group;
}

// The bits of the houses or signs that words stand for.
std::uint32_t maskOf(ParameterType type, std::string_view words)
{
    std::uint32_t mask = 0;
    for (const std::string_view word : yoga::wordsOf(words)) {
        const bool number = !word.empty() && word[0] >= '0' && word[0] <= '9';
        int code = 0;
        for (const char digit : number ? word : std::string_view()) {
            code = code * 10 + (digit - '0');
        }
        mask |= yoga::twelveMask(number ? code : yoga::keywordCode(word),
                                 type == ParameterType::Houses ? yoga::WordClass::Houses
                                                               : yoga::WordClass::Signs);
    }
    return mask;
}

// One word for the houses or signs of a mask: that of a group, a number, a list.
std::string maskWord(ParameterType type, std::uint32_t mask)
{
    for (const MaskChoice& choice : maskChoices(type)) {
        if (choice.mask == mask) {
            return choice.word.word;
        }
    }
    std::string word;
    for (int number = 1; number <= kTwelve; ++number) {
        if ((mask >> unsigned(number) & 1U) == 0) {
            continue;
        }
        const std::string one = type == ParameterType::Signs
                                    ? std::string(yoga::kSignWords[std::size_t(number) - 1].word)
                                    : std::to_string(number);
        word += (word.empty() ? "" : "+") + one;
    }
    const bool list = type == ParameterType::Houses && word.find('+') != std::string::npos;
    return list ? "h" + word : word;
}

bool isTwelve(ParameterType type)
{
    return type == ParameterType::Houses || type == ParameterType::Signs;
}

} // namespace

std::vector<ChoiceGroup> pointChoices()
{
    std::vector<ChoiceGroup> groups;
    groups.push_back(pointGroup(L"Planets and ascendant", kPlanetWords));
    groups.push_back(numbered(L"Lords of houses", "L"));
    groups.push_back(numbered(L"Places of houses", "B"));
    ChoiceGroup& bases = groups.emplace_back(ChoiceGroup{L"Karakas and lords of time", {}});
    for (const yoga::BaseWord& base : yoga::kBaseWords) {
        bases.choices.push_back({std::string(base.word), std::wstring(base.meaning)});
    }
    groups.push_back(pointGroup(L"Special lagnas", kLagnaWords));
    groups.push_back(pointGroup(L"Upagrahas", kUpagrahaWords));
    groups.push_back(pointGroup(L"Arudhas", kArudhaWords));
    groups.push_back(pointGroup(L"Cusps", kCuspWords));
    return groups;
}

std::vector<ChoiceWord> setChoices()
{
    std::vector<ChoiceWord> choices;
    for (const yoga::MaskWord& group : yoga::kPlanetGroups) {
        choices.push_back({std::string(group.word), std::wstring(group.meaning)});
    }
    for (std::size_t i = 0; i < yoga::kSetWords.size(); ++i) {
        choices.push_back({std::string(yoga::kSetWords[i]), std::wstring(yoga::kSetMeanings[i])});
    }
    return choices;
}

std::vector<ChoiceWord> quantifierChoices()
{
    std::vector<ChoiceWord> choices = {
        {"any.", L"one of"}, {"all.", L"every one of"}, {"no.", L"none of"}};
    constexpr int kMostPlanets = 9;
    for (int count = 2; count <= kMostPlanets; ++count) {
        choices.push_back(
            {"min" + std::to_string(count) + ".", L"at least " + std::to_wstring(count) + L" of"});
    }
    for (int count = 1; count <= kMostPlanets; ++count) {
        choices.push_back(
            {"max" + std::to_string(count) + ".", L"at most " + std::to_wstring(count) + L" of"});
    }
    for (int count = 1; count <= kMostPlanets; ++count) {
        choices.push_back(
            {"eqs" + std::to_string(count) + ".", L"exactly " + std::to_wstring(count) + L" of"});
    }
    return choices;
}

std::vector<ChoiceGroup> stepChoices()
{
    std::vector<ChoiceGroup> groups = {
        {L"", {}}, {L"Lord of the house from it", {}}, {L"House from it", {}}};
    for (const yoga::StepWord& step : yoga::kStepWords) {
        groups[0].choices.push_back(
            {std::string(step.word) + ".",
             std::wstring(step.before) + L"..." + std::wstring(step.after)});
    }
    for (int house = 1; house <= kTwelve; ++house) {
        const std::string number = std::to_string(house);
        for (const auto& [group, letter] : {std::pair(1, 'L'), std::pair(2, 'B')}) {
            groups[std::size_t(group)].choices.push_back(
                {letter + number + ".", std::to_wstring(house)});
        }
    }
    return groups;
}

std::vector<ChoiceWord> listChoices(const Parameter& parameter)
{
    std::vector<ChoiceWord> choices;
    switch (parameter.type) {
    case ParameterType::Houses:
        for (int house = 1; house <= kTwelve; ++house) {
            choices.push_back({std::to_string(house), std::to_wstring(house)});
        }
        break;
    case ParameterType::Signs:
        for (int sign = 1; sign <= kTwelve; ++sign) {
            choices.push_back({std::string(yoga::kSignWords[std::size_t(sign) - 1].word),
                               yoga::signWords(1U << unsigned(sign))});
        }
        break;
    case ParameterType::Nakshatra:
        for (int star = 0; star < kNakshatras; ++star) {
            std::string word(yoga::kNakshatraWords[std::size_t(star)]);
            std::wstring name = yoga::codeWords(yoga::keywordCode(word));
            choices.push_back({std::move(word), std::move(name)});
        }
        break;
    case ParameterType::Number:
        for (int number = parameter.lowest; parameter.repeated && number <= parameter.highest;
             ++number) {
            choices.push_back({std::to_string(number), std::to_wstring(number)});
        }
        break;
    case ParameterType::Word:
        for (int word = 0; word < yoga::kPlainWords; ++word) {
            if ((parameter.words >> unsigned(word) & 1U) != 0) {
                choices.push_back({std::string(yoga::kPlainTexts[std::size_t(word)]),
                                   std::wstring(yoga::kPlainMeanings[std::size_t(word)])});
            }
        }
        break;
    default:
        break;
    }
    return choices;
}

std::vector<MaskChoice> maskChoices(ParameterType type)
{
    std::vector<MaskChoice> choices;
    const auto add = [&](const yoga::MaskWord& word) {
        choices.push_back({{std::string(word.word), std::wstring(word.meaning)}, word.mask});
    };
    if (type == ParameterType::Houses) {
        std::for_each(yoga::kHouseWords.begin(), yoga::kHouseWords.end(), add);
    } else if (type == ParameterType::Signs) {
        std::for_each(yoga::kSignWords.begin() + kTwelve, yoga::kSignWords.end(), add);
    }
    return choices;
}

std::string wordsOfChoices(const Parameter& parameter, const std::vector<bool>& chosen)
{
    const std::vector<ChoiceWord> choices = listChoices(parameter);
    std::uint32_t mask = 0;
    std::string words;
    for (std::size_t i = 0; i < std::min(choices.size(), chosen.size()); ++i) {
        if (chosen[i]) {
            mask |= 1U << unsigned(i + 1);
            words += (words.empty() ? "" : ",") + choices[i].word;
        }
    }
    return isTwelve(parameter.type) ? maskWord(parameter.type, mask) : words;
}

std::vector<bool> choicesOfWords(const Parameter& parameter, std::string_view words)
{
    const std::vector<ChoiceWord> choices = listChoices(parameter);
    std::vector<bool> chosen(choices.size());
    if (isTwelve(parameter.type)) {
        const std::uint32_t mask = words.empty() ? 0 : maskOf(parameter.type, words);
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            chosen[i] = (mask >> unsigned(i + 1) & 1U) != 0;
        }
        return chosen;
    }
    for (const std::string_view word : yoga::wordsOf(words)) {
        for (std::size_t i = 0; i < choices.size(); ++i) {
            const bool byNumber =
                parameter.type == ParameterType::Nakshatra && word == std::to_string(i + 1);
            chosen[i] = chosen[i] || byNumber || choices[i].word == word;
        }
    }
    return chosen;
}

} // namespace kestrav::present
