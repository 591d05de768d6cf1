#include "app/present/PersonTables.h"

#include "app/present/TextValues.h"

#include <utility>

namespace kestrav::present
{

namespace
{

// Months and days never reach these factors, so the dates stay in their order.
constexpr double kYearOrder = 372.0;
constexpr double kMonthOrder = 31.0;

} // namespace

Cell plainDateCell(const core::PlainDate& date)
{
    core::DateTimeRecord record;
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
    return {dateText(record), date.year * kYearOrder + date.month * kMonthOrder + date.day};
}

Table eventsTable(const ComputedChart& computed)
{
    Table table = {"events", L"Events", {{L"Date"}, {L"Time", Align::Right}, {L"Event"}}};
    for (const core::LifeEvent& event : computed.chart.identity.events) {
        if (event.name.empty()) {
            continue;
        }
        table.add(
            {plainDateCell(event.date),
             event.usable()
                 ? Cell(clockSeconds(event.hours, computed.settings.twelveHourClock), event.hours)
                 : Cell(),
             event.name});
    }
    return table;
}

Table contactTable(const ComputedChart& computed)
{
    const core::Contact& contact = computed.chart.identity.contact;
    Table table = labelledTable("contact", L"Contact");
    const std::pair<const wchar_t*, const std::wstring&> fields[] = {
        {L"Name", contact.name},
        {L"Street", contact.street},
        {L"City", contact.city},
        {L"State", contact.state},
        {L"Postcode", contact.postcode},
        {L"Country", contact.country},
        {L"Telephone", contact.telephone1},
        {L"Telephone 2", contact.telephone2},
        {L"Fax", contact.fax},
        {L"E-mail", contact.email},
    };
    for (const auto& [label, value] : fields) {
        if (!value.empty()) {
            table.add({label, value});
        }
    }
    return table;
}

} // namespace kestrav::present
