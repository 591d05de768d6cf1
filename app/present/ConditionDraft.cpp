#include "app/present/ConditionDraft.h"

#include "analysis/VargaNames.h"
#include "core/FileText.h"
#include "yoga/Keywords.h"
#include "yoga/ParseCondition.h"
#include "yoga/RuleText.h"
#include "yoga/Subject.h"
#include "yoga/YogaRule.h"

#include <algorithm>
#include <cstddef>

namespace kestrav::present
{

namespace
{

using yoga::Parameter;
using yoga::ParameterType;

constexpr std::size_t kPrefixPoints = 3;

// Whether a word of this code can stand for a parameter that takes one word.
bool fits(const Parameter& parameter, int code)
{
    const yoga::WordClass found = yoga::wordClass(code);
    switch (parameter.type) {
    case ParameterType::Subject:
    case ParameterType::Set:
        return found == yoga::WordClass::Point || found == yoga::WordClass::Set;
    case ParameterType::Point:
        return found == yoga::WordClass::Point;
    case ParameterType::Number:
        return found == yoga::WordClass::Number;
    case ParameterType::Word: {
        const auto word = yoga::plainWord(code);
        return word && (parameter.words >> unsigned(*word) & 1U) != 0;
    }
    default:
        return false;
    }
}

std::string prefixOf(const ConditionDraft& draft,
                     std::array<std::string_view, kPrefixPoints> points)
{
    std::string text = "*-" + std::to_string(draft.option);
    for (const int varga : draft.vargas) {
        text += ",";
        text += core::toUtf8(std::wstring(analysis::vargaShortName(varga)));
    }
    for (const std::string_view point : points) {
        text += ",";
        text += point;
    }
    return text + "," +
           std::to_string(draft.kind->number + (draft.exchanged ? yoga::kSecondChartKinds : 0));
}

} // namespace

std::string conditionText(const ConditionDraft& draft)
{
    if (draft.kind == nullptr) {
        return {};
    }
    std::array<std::string_view, kPrefixPoints> points;
    std::string rest;
    std::size_t point = 0;
    for (std::size_t i = 0; i < draft.kind->used().size(); ++i) {
        const std::string& words = draft.words[i];
        if (draft.inVargas && yoga::isPointLike(draft.kind->parameters[i].type)) {
            const std::size_t place = point++;
            if (place < points.size() && yoga::pointOfShortName(words) >= 0) {
                points[place] = words;
                continue;
            }
        }
        rest += "," + words;
    }
    std::string text = draft.inVargas
                           ? prefixOf(draft, points)
                           : (draft.exchanged ? "T." : "") + std::string(draft.kind->keyword);
    text += draft.negated ? ",!" : ",";
    text += rest;
    while (text.ends_with(',')) {
        text.pop_back();
    }
    return text;
}

std::optional<ConditionDraft> readDraft(std::string_view condition)
{
    const yoga::Condition read = yoga::ParseCondition(condition, yoga::kCatalogueNames);
    ConditionDraft draft;
    draft.exchanged = read.kind >= yoga::kSecondChartKinds;
    draft.kind = yoga::findKind(read.kind - (draft.exchanged ? yoga::kSecondChartKinds : 0));
    if (draft.kind == nullptr || read.unknownName) {
        return std::nullopt;
    }
    draft.negated = read.negated;
    draft.inVargas = read.hasPrefix;
    draft.option = read.option;
    draft.vargas[0] = std::max(read.vargas[0], 0);
    draft.vargas[1] = read.vargas[1] < 0 ? draft.vargas[0] : read.vargas[1];
    const std::vector<std::string_view> words = yoga::wordsOf(condition);
    const std::size_t first = yoga::markIndex(condition) + 1;
    std::size_t next = 0;
    std::size_t point = 0;
    for (std::size_t i = 0; i < draft.kind->used().size(); ++i) {
        const Parameter& parameter = draft.kind->parameters[i];
        std::string& own = draft.words[i];
        if (yoga::isPointLike(parameter.type) && read.hasPrefix && point < kPrefixPoints) {
            const std::size_t place = point++;
            if (read.points[place] >= 0) {
                own = words[kPrefixPoints + place];
                continue;
            }
        }
        if (parameter.repeated) {
            for (; next < read.parameterCount; ++next) {
                own += (own.empty() ? "" : ",") + std::string(words[first + next]);
            }
        } else if (next < read.parameterCount && fits(parameter, read.parameters[next])) {
            own = words[first + next];
            ++next;
        } else if (next < read.parameterCount && read.parameters[next] < 0) {
            ++next;
        }
    }
    return next == read.parameterCount ? std::optional(draft) : std::nullopt;
}

std::string draftProblem(const ConditionDraft& draft)
{
    if (draft.kind == nullptr) {
        return "Choose what the condition is about";
    }
    const std::string text = conditionText(draft);
    if (text.find(yoga::kTokenSeparator) != std::string::npos) {
        return "a condition cannot hold a backslash";
    }
    if (std::size_t(std::count(text.begin(), text.end(), yoga::kWordSeparator)) >=
        yoga::kMaxConditionWords) {
        return "a condition has at most " + std::to_string(yoga::kMaxConditionWords) + " words";
    }
    std::vector<std::string> unknown;
    const yoga::Condition condition = yoga::ParseCondition(text, yoga::kCatalogueNames, &unknown);
    return unknown.empty() ? yoga::conditionProblem(condition)
                           : "'" + unknown.front() + "' is no word that conditions know";
}

std::wstring kindLabel(const yoga::Kind& kind)
{
    std::wstring label;
    for (const char letter : kind.keyword) {
        if (letter >= 'A' && letter <= 'Z' && !label.empty()) {
            label += L' ';
        }
        label += wchar_t(letter);
    }
    return label;
}

std::wstring optionLabel(int option)
{
    constexpr int kFirstHora = 2;
    constexpr int kFirstShodashamsha = 6;
    constexpr int kFirstRudramsha = 8;
    if (option >= kFirstRudramsha) {
        return L"variant " + std::to_wstring(option - kFirstRudramsha) + L" of the Rudramsha";
    }
    if (option >= kFirstShodashamsha) {
        return L"variant " + std::to_wstring(option - kFirstShodashamsha) + L" of the Shodashamsha";
    }
    if (option >= kFirstHora) {
        return L"method " + std::to_wstring(option - kFirstHora) + L" of the Hora";
    }
    return L"as in the settings";
}

} // namespace kestrav::present
