#include "app/present/TransitTables.h"

#include "app/present/EphemerisTables.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"

namespace kestrav::present
{

namespace
{

Cell dayCell(double day0h, double julianDay)
{
    return {dateText(timing::recordOfDay(day0h)), julianDay, {Subject::Moment, 0, 0, julianDay}};
}

} // namespace

Table transitTable(const std::vector<timing::TransitEvent>& events,
                   const timing::TransitLineStyle& style)
{
    Table table = {"transits", L"", {{L"Date"}, {L"Weekday"}, {L"Time", Align::Right}, {L"Event"}}};
    for (const timing::TransitEvent& event : events) {
        const int weekday = timing::weekdayOfDay(event.day0h);
        table.add({dayCell(event.day0h, event.julianDay),
                   Cell(std::wstring(core::weekdayName(weekday)), weekday),
                   Cell(clockSeconds(event.hour, style.twelveHour), event.hour),
                   timing::transitLine(event, style)});
    }
    if (events.empty()) {
        table.notes.emplace_back(L"There is no event of these kinds on these days.");
    }
    return table;
}

Table kakshyaStaysTable(const std::vector<timing::KakshyaStay>& stays, double clockOffset,
                        bool twelveHour)
{
    Table table = {"transit-kakshyas",
                   L"Kakshyas",
                   {{L"Planet"},
                    {L"Sign"},
                    {L"Kakshya", Align::Right},
                    {L"Lord"},
                    {L"Bindu"},
                    {L"In sign", Align::Right},
                    {L"From"},
                    {L"To"}}};
    for (const timing::KakshyaStay& stay : stays) {
        Cell planet = pointCell(stay.planet);
        planet.text += stay.stay.backward ? L" (R)" : L"";
        table.add({std::move(planet), signCell(stay.sign), integerCell(stay.kakshya.part + 1),
                   pointCell(stay.kakshya.lord), stay.bindu ? L"yes" : L"no",
                   integerCell(stay.bindusOfSign),
                   momentCell(stay.stay.begin, clockOffset, twelveHour),
                   momentCell(stay.stay.end, clockOffset, twelveHour)});
    }
    return table;
}

Table sadeSatiTable(const std::vector<timing::SaturnPhase>& phases, double clockOffset,
                    bool twelveHour)
{
    Table table = {
        "sade-sati", L"Sade Sati", {{L"Saturn from the Moon"}, {L"Sign"}, {L"From"}, {L"To"}}};
    for (const timing::SaturnPhase& phase : phases) {
        table.add({std::wstring(timing::saturnPhaseName(phase.house)) +
                       (phase.isReturn ? L" (returns)" : L""),
                   signCell(phase.sign), momentCell(phase.begin, clockOffset, twelveHour),
                   momentCell(phase.end, clockOffset, twelveHour)});
    }
    if (phases.empty()) {
        table.notes.emplace_back(L"Saturn stands neither in the 12th, 1st, 2nd, 4th nor 8th sign "
                                 L"from the birth Moon on these days.");
    }
    return table;
}

} // namespace kestrav::present
