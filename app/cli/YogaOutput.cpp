#include "app/cli/YogaOutput.h"

#include "app/present/TextTable.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string_view>

namespace kestrav::cli
{

namespace
{

using yoga::ParameterType;

std::string_view typeText(ParameterType type)
{
    switch (type) {
    case ParameterType::None:
        break;
    case ParameterType::Subject:
        return "subject";
    case ParameterType::Point:
        return "point";
    case ParameterType::Set:
        return "set";
    case ParameterType::Houses:
        return "houses";
    case ParameterType::Signs:
        return "signs";
    case ParameterType::Nakshatra:
        return "nakshatra";
    case ParameterType::Number:
        return "number";
    case ParameterType::Word:
        return "word";
    }
    return "none";
}

std::string_view needsText(yoga::Needs needs)
{
    switch (needs) {
    case yoga::Needs::Nothing:
        return "nothing";
    case yoga::Needs::Signs:
        return "signs";
    case yoga::Needs::Positions:
        return "positions";
    case yoga::Needs::Chart:
        return "chart";
    case yoga::Needs::Strengths:
        break;
    }
    return "strengths";
}

// File text may be in any encoding when it was typed.
Json text(std::string_view bytes)
{
    return textJson(core::fromFileBytes(bytes));
}

Json textOrNone(std::string_view bytes)
{
    return textOrNull(core::fromFileBytes(bytes));
}

std::wstring wide(std::string_view bytes)
{
    return core::fromFileBytes(bytes);
}

Json parameterJson(const yoga::Parameter& parameter)
{
    const bool number = parameter.type == ParameterType::Number;
    Json object;
    object["name"] = parameter.name;
    object["type"] = typeText(parameter.type);
    object["optional"] = parameter.optional;
    object["repeated"] = parameter.repeated;
    object["lowest"] = number ? Json(parameter.lowest) : Json();
    object["highest"] = number ? Json(parameter.highest) : Json();
    return object;
}

} // namespace

Json yogaFileJson(const yoga::LoadedYogaFile& file)
{
    Json object;
    object["path"] = text(file.path.string());
    object["version"] = textOrNone(file.file.version);
    object["name"] = textOrNone(file.file.name);
    object["author"] = textOrNone(file.file.author);
    object["rights"] = textOrNone(file.file.rights);
    object["introduction"] = textOrNone(file.file.introduction);
    object["closing"] = textOrNone(file.file.closing);
    return object;
}

Json yogaJson(const yoga::Yoga& yoga)
{
    Json object;
    object["title"] = text(yoga.title);
    object["chapter"] = textOrNone(yoga.chapter);
    object["rule"] = text(yoga.rule);
    object["interpretation"] = textOrNone(yoga.interpretation);
    object["comment"] = textOrNone(yoga.comment);
    object["options"] = textOrNone(yoga.options);
    object["vargas"] = textOrNone(yoga.vargas);
    object["further"] = textOrNone(yoga.further);
    return object;
}

Json ruleProblemsJson(const std::vector<yoga::RuleProblem>& problems)
{
    Json list = Json::array();
    for (const yoga::RuleProblem& problem : problems) {
        Json object;
        object["fatal"] = problem.fatal;
        object["text"] = text(problem.text);
        list.push_back(std::move(object));
    }
    return list;
}

Json reasonsJson(const yoga::YogaRule& rule, const yoga::RuleOutcome& outcome)
{
    Json list = Json::array();
    for (std::size_t i = 0; i < outcome.conditions.size(); ++i) {
        const yoga::Condition& condition = rule.conditions()[i];
        const yoga::ConditionOutcome& one = outcome.conditions[i];
        Json object;
        object["condition"] = text(condition.text);
        object["words"] = textOrNull(yoga::conditionWords(condition));
        object["negated"] = condition.negated;
        object["tested"] = one.tested;
        object["truth"] = one.tested ? Json(one.truth) : Json();
        object["reason"] = one.tested ? textOrNull(one.reason) : Json();
        list.push_back(std::move(object));
    }
    return list;
}

std::wstring reasonsText(const yoga::YogaRule& rule, const yoga::RuleOutcome& outcome, bool all)
{
    std::wstring lines;
    for (std::size_t i = 0; i < outcome.conditions.size(); ++i) {
        const yoga::ConditionOutcome& one = outcome.conditions[i];
        if (one.tested) {
            lines += present::wrapped(one.reason, one.truth ? L"  + " : L"  - ");
        } else if (all) {
            const yoga::Condition& condition = rule.conditions()[i];
            const std::wstring words = yoga::conditionWords(condition);
            lines += present::wrapped(
                (words.empty() ? wide(condition.text) : words) + L" (not tested)", L"  ? ");
        }
    }
    return lines;
}

Json kindJson(const yoga::Kind& kind)
{
    Json object;
    object["number"] = kind.number;
    object["keyword"] = kind.keyword;
    object["group"] = kind.group;
    object["form"] = yoga::kindForm(kind);
    object["parameters"] = Json::array();
    for (const yoga::Parameter& parameter : kind.used()) {
        object["parameters"].push_back(parameterJson(parameter));
    }
    object["meaning"] = kind.meaning;
    object["example"] = kind.example;
    object["exampleMeaning"] = kind.exampleMeaning;
    object["needs"] = needsText(kind.needs);
    return object;
}

std::wstring kindText(const yoga::Kind& kind)
{
    present::LabelledLines lines;
    lines.add(L"Kind", wide(kind.keyword) + L", number " + std::to_wstring(kind.number));
    lines.add(L"Form", wide(yoga::kindForm(kind)));
    lines.add(L"Example", wide(kind.example));
    lines.add(L"", wide(kind.exampleMeaning));
    return lines.text() + present::wrapped(wide(kind.meaning), L"");
}

std::wstring kindsText()
{
    std::wstring text;
    std::string_view group;
    for (const yoga::Kind& kind : yoga::kinds()) {
        if (kind.group != group) {
            group = kind.group;
            text += (text.empty() ? L"" : L"\n") + wide(group) + L"\n";
        }
        std::wstring number = std::to_wstring(kind.number);
        number.insert(0, number.size() < 3 ? 3 - number.size() : 0, L' ');
        text += number + L"  " + wide(yoga::kindForm(kind)) + L"\n";
    }
    return text;
}

} // namespace kestrav::cli
