#include "app/present/InspectorSections.h"

#include "app/present/TextValues.h"
#include "core/FileText.h"
#include "yoga/conditions/Place.h"

#include <algorithm>

namespace kestrav::present::inspecting
{

namespace
{

// Whether a reason names a planet.
bool speaksOf(std::wstring_view reason, int planet)
{
    return reason.find(pointLabel(planet)) != std::wstring_view::npos;
}

// Whether a set has the point in it. Where some members suffice the reason names those that
// decided; then it has to be one of them.
bool hasMember(const yoga::SetWord& word, int point, int varga, std::wstring_view reason,
               yoga::Subject& subject)
{
    const std::uint32_t members = subject.native().members(word, varga);
    const auto isMember = [members](int planet) {
        return (members >> unsigned(planet) & 1U) != 0;
    };
    if (word.secondChart || word.quantifier == yoga::Quantifier::No || point < core::kSun ||
        point > core::kKetu || !isMember(point)) {
        return false;
    }
    if (word.quantifier == yoga::Quantifier::All || speaksOf(reason, point)) {
        return true;
    }
    bool namesOthers = false;
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        namesOthers = namesOthers || (isMember(planet) && speaksOf(reason, planet));
    }
    return !namesOthers && word.set == yoga::kNamedPlanets && !word.without;
}

// Whether a word leads to the point: an expression by its steps, a set by its members.
bool leadsTo(int code, int point, int varga, std::wstring_view reason, yoga::Subject& subject)
{
    switch (yoga::wordClass(code)) {
    case yoga::WordClass::Point: {
        const yoga::Place place = yoga::placeOf(code, subject.native(), subject.second(), varga);
        return place.frame == &subject.native() && place.point == point && place.shift == 0;
    }
    case yoga::WordClass::Set:
        return hasMember(yoga::setWord(code), point, varga, reason, subject);
    default:
        return false;
    }
}

// Whether a condition that holds, for the reason given, names the point.
bool names(const yoga::Condition& condition, int point, std::wstring_view reason,
           yoga::Subject& subject)
{
    if (std::find(condition.points.begin(), condition.points.end(), point) !=
        condition.points.end()) {
        return true;
    }
    subject.prepareOption(condition.option);
    bool first = true;
    for (std::size_t i = 0; i < condition.parameterCount; ++i) {
        const int code = condition.parameters[i];
        if (leadsTo(code, point, condition.vargas[first ? 0 : 1], reason, subject)) {
            return true;
        }
        const yoga::WordClass kind = yoga::wordClass(code);
        first = first && kind != yoga::WordClass::Point && kind != yoga::WordClass::Set;
    }
    return false;
}

// The reasons of the conditions that hold and name the point.
std::wstring partOf(const yoga::YogaRule& rule, int point, yoga::Subject& subject)
{
    const yoga::RuleOutcome outcome = yoga::explainRule(rule, subject);
    std::wstring text;
    for (std::size_t i = 0; i < outcome.conditions.size(); ++i) {
        const yoga::ConditionOutcome& tested = outcome.conditions[i];
        const yoga::Condition& condition = rule.conditions()[i];
        if (tested.tested && tested.truth && !condition.negated &&
            names(condition, point, tested.reason, subject)) {
            text += (text.empty() ? L"" : L"; ") + tested.reason;
        }
    }
    return text;
}

} // namespace

Table yogaSection(const TableSource& source, int point)
{
    Table table = {
        "yogas-of-point", L"Yogas", {{L"Yoga"}, {L"Chapter"}, {L"What names it", Align::Wrapped}}};
    yoga::Subject subject(source.computed.settings, &source.series);
    subject.setChart(source.computed.chart);
    subject.setMoment(source.moment);
    for (const yoga::YogaPlace& place : source.yogas->holding(subject)) {
        std::wstring part = partOf(*source.yogas->rule(place), point, subject);
        if (!part.empty()) {
            const yoga::Yoga& yoga = source.yogas->yoga(place);
            table.add({core::fromFileBytes(yoga.title), core::fromFileBytes(yoga.chapter),
                       std::move(part)});
        }
    }
    if (table.rows.empty()) {
        table.notes.emplace_back(L"None.");
    }
    return table;
}

} // namespace kestrav::present::inspecting
