#include "app/present/EphemerisTables.h"

#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/TextForms.h"
#include "timing/TransitSearch.h"

namespace kestrav::present
{

namespace
{

Cell positionCell(double longitude, bool retrograde = false)
{
    return {core::FormatSignPositionShort(longitude) + (retrograde ? L" R" : L""), longitude};
}

Table eventTable(std::string id, std::wstring title, std::vector<Column> columns)
{
    columns.insert(columns.begin(), {{L"Date"}, {L"Time", Align::Right}});
    return {std::move(id), std::move(title), std::move(columns)};
}

} // namespace

Cell momentCell(double julianDay, double clockOffset)
{
    return {dateText(timing::clockRecord(julianDay, clockOffset)),
            julianDay,
            {Subject::Moment, 0, 0, julianDay}};
}

Cell momentCell(double julianDay, double clockOffset, bool twelveHour)
{
    const double day0h = timing::civilDayOf(julianDay, clockOffset);
    return {dateText(timing::recordOfDay(day0h)) + L" " +
                clockSeconds((julianDay - day0h) * 24.0 + clockOffset, twelveHour),
            julianDay,
            {Subject::Moment, 0, 0, julianDay}};
}

Cell clockCell(double julianDay, double clockOffset, bool twelveHour)
{
    const double hours = timing::clockRecord(julianDay, clockOffset).localTime;
    return {clockSeconds(hours, twelveHour), hours};
}

Table ephemerisTable(const std::vector<timing::EphemerisRow>& rows, const EphemerisColumns& columns)
{
    Table table = {"ephemeris", L"", {{L"Date"}, {L"Weekday"}}};
    if (columns.clock) {
        table.columns.push_back({L"Time", Align::Right});
    }
    if (!rows.empty()) {
        for (const timing::EphemerisPosition& body : rows.front().bodies) {
            table.columns.push_back({pointLabel(body.point)});
            const auto beside = [&](bool wanted, const wchar_t* heading) {
                if (wanted) {
                    table.columns.push_back({heading, Align::Right});
                }
            };
            beside(columns.declination, L"Decl.");
            beside(columns.latitude, L"Lat.");
            beside(columns.speed, L"A day");
        }
    }
    for (const timing::EphemerisRow& row : rows) {
        Row cells = {{dateText(row.date), row.julianDay, {Subject::Moment, 0, 0, row.julianDay}},
                     {std::wstring(core::weekdayName(row.weekday)), double(row.weekday)}};
        if (columns.clock) {
            cells.emplace_back(clockSeconds(row.date.localTime, columns.twelveHour),
                               row.date.localTime);
        }
        for (const timing::EphemerisPosition& body : row.bodies) {
            cells.push_back(positionCell(body.sky.longitude, body.sky.speed < 0.0));
            const auto beside = [&](bool wanted, double value, int decimals) {
                if (wanted) {
                    cells.push_back(numberCell(value, decimals));
                }
            };
            beside(columns.declination, body.sky.declination, 2);
            beside(columns.latitude, body.sky.latitude, 2);
            beside(columns.speed, body.sky.speed, 3);
        }
        table.add(std::move(cells));
    }
    return table;
}

Table moonPhasesTable(const std::vector<timing::PhaseMoment>& phases, double clockOffset,
                      bool twelveHour)
{
    Table table =
        eventTable("moon-phases", L"Phases of the Moon", {{L"Phase"}, {L"Sun"}, {L"Moon"}});
    for (const timing::PhaseMoment& moment : phases) {
        table.add({momentCell(moment.julianDay, clockOffset),
                   clockCell(moment.julianDay, clockOffset, twelveHour),
                   timing::moonPhaseName(moment.phase), positionCell(moment.sunLongitude),
                   positionCell(moment.moonLongitude)});
    }
    return table;
}

Table ephemerisEventsTable(const std::vector<timing::EphemerisEvent>& events, double clockOffset,
                           bool twelveHour)
{
    Table table =
        eventTable("ephemeris-events", L"Ingresses and stations", {{L"Position"}, {L"Event"}});
    for (const timing::EphemerisEvent& event : events) {
        table.add({momentCell(event.julianDay, clockOffset),
                   clockCell(event.julianDay, clockOffset, twelveHour),
                   event.kind == timing::EphemerisEventKind::Station ? positionCell(event.longitude)
                                                                     : Cell(),
                   timing::ephemerisEventText(event)});
    }
    return table;
}

} // namespace kestrav::present
