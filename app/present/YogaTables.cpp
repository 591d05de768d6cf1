#include "app/present/YogaTables.h"

#include "core/FileText.h"

namespace kestrav::present
{

namespace
{

// What holds of the conditions of a rule that holds. Of alternatives only the one that decided was
// tested.
std::wstring reasonsOf(const yoga::YogaRule& rule, yoga::Subject& subject)
{
    std::wstring text;
    for (const yoga::ConditionOutcome& outcome : yoga::explainRule(rule, subject).conditions) {
        if (outcome.tested && outcome.truth) {
            text += (text.empty() ? L"" : L"; ") + outcome.reason;
        }
    }
    return text;
}

} // namespace

Table yogasTable(const yoga::YogaLibrary& library, yoga::Subject& subject)
{
    const std::vector<yoga::YogaPlace> holding = library.holding(subject);
    Table table = {"yogas",
                   std::to_wstring(holding.size()) + L" of " +
                       std::to_wstring(library.all().size()) + L" yogas hold",
                   {{L"Yoga"}, {L"Chapter"}, {L"Why", Align::Wrapped}}};
    for (const yoga::YogaPlace& place : holding) {
        const yoga::Yoga& yoga = library.yoga(place);
        table.add({core::fromFileBytes(yoga.title), core::fromFileBytes(yoga.chapter),
                   reasonsOf(*library.rule(place), subject)});
    }
    return table;
}

} // namespace kestrav::present
