#include "app/present/EclipseTables.h"

#include "app/present/EphemerisTables.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/SignData.h"
#include "core/TextForms.h"

#include <array>

namespace kestrav::present
{

namespace
{

using timing::ContactKind;
using timing::Eclipse;
using timing::EclipseKind;

std::wstring typeText(const Eclipse& eclipse)
{
    std::wstring text(timing::eclipseTypeName(eclipse.type));
    if (eclipse.kind == EclipseKind::Solar && !eclipse.central &&
        eclipse.type != timing::EclipseType::Partial) {
        text += L", not central";
    }
    return text + (eclipse.nearLimit ? L", near the limit" : L"");
}

Cell positionCell(double longitude)
{
    return {core::FormatSignPositionShort(longitude), longitude};
}

Cell nakshatraCell(double longitude)
{
    const int nakshatra = nakshatraOf(core::nakshatraPositionOf(longitude));
    return {std::wstring(core::nakshatraName(nakshatra)),
            double(nakshatra),
            {Subject::Nakshatra, nakshatra}};
}

struct ContactColumn
{
    ContactKind kind;
    const wchar_t* heading;
};

constexpr std::array<ContactColumn, 7> kContacts = {{
    {ContactKind::PenumbralBegin, L"Penumbra"},
    {ContactKind::PartialBegin, L"Partial"},
    {ContactKind::TotalBegin, L"Total"},
    {ContactKind::Greatest, L"Greatest"},
    {ContactKind::TotalEnd, L"Total to"},
    {ContactKind::PartialEnd, L"Partial to"},
    {ContactKind::PenumbralEnd, L"Penumbra to"},
}};

Cell contactCell(const ShownEclipse& shown, ContactKind kind, const EclipseClock& clock)
{
    if (!shown.seen) {
        for (const timing::EclipseContact& contact : timing::lunarContacts(shown.eclipse)) {
            if (contact.kind == kind) {
                return clockCell(contact.julianDay, clock.offset, clock.twelveHour);
            }
        }
        return {};
    }
    for (const timing::ContactAtPlace& contact : shown.seen->contacts) {
        if (contact.kind == kind) {
            Cell cell = clockCell(contact.julianDay, clock.offset, clock.twelveHour);
            if (!contact.up) {
                cell.text = L"(" + cell.text + L")";
            }
            return cell;
        }
    }
    return {};
}

} // namespace

Table eclipsesTable(const std::vector<ShownEclipse>& eclipses, const EclipseClock& clock)
{
    const bool place = !eclipses.empty() && eclipses.front().seen.has_value();
    Table table = {"eclipses",
                   L"",
                   {{L"Date"},
                    {L"Greatest", Align::Right},
                    {L"Kind"},
                    {L"Type"},
                    {L"Magnitude", Align::Right},
                    {L"Sun"},
                    {L"Nakshatra"},
                    {L"Moon"},
                    {L"Nakshatra"}}};
    if (place) {
        table.columns.push_back({L"Seen"});
    }
    for (const ShownEclipse& shown : eclipses) {
        const Eclipse& eclipse = shown.eclipse;
        Row row = {momentCell(eclipse.julianDay, clock.offset),
                   clockCell(eclipse.julianDay, clock.offset, clock.twelveHour),
                   timing::eclipseKindName(eclipse.kind),
                   typeText(eclipse),
                   numberCell(eclipse.magnitude, 3),
                   positionCell(eclipse.sunLongitude),
                   nakshatraCell(eclipse.sunLongitude),
                   positionCell(eclipse.moonLongitude),
                   nakshatraCell(eclipse.moonLongitude)};
        if (place) {
            row.emplace_back(shown.seen->visible ? timing::eclipseTypeName(*shown.seen->seenType)
                                                 : std::wstring_view(L"no"));
        }
        table.add(std::move(row));
    }
    return table;
}

Table eclipseContactsTable(const std::vector<ShownEclipse>& eclipses, const EclipseClock& clock)
{
    const bool place = !eclipses.empty() && eclipses.front().seen.has_value();
    Table table = {"eclipse-contacts", place ? L"Seen from the place" : L"Contacts", {{L"Date"}}};
    if (place) {
        table.columns.insert(table.columns.end(),
                             {{L"Type"}, {L"Magnitude", Align::Right}, {L"Seen"}});
    }
    for (const ContactColumn& contact : kContacts) {
        table.columns.push_back({contact.heading, Align::Right});
    }
    bool below = false;
    for (const ShownEclipse& shown : eclipses) {
        const bool listed = place ? shown.seen->visible : shown.eclipse.kind == EclipseKind::Lunar;
        if (!listed) {
            continue;
        }
        Row row = {momentCell(shown.eclipse.julianDay, clock.offset)};
        if (place) {
            const timing::Span& span = *shown.seen->seen;
            row.emplace_back(timing::eclipseTypeName(*shown.seen->type));
            row.push_back(numberCell(shown.seen->magnitude, 3));
            row.emplace_back(clockCell(span.from, clock.offset, clock.twelveHour).text + L" to " +
                             clockCell(span.to, clock.offset, clock.twelveHour).text);
        }
        for (const ContactColumn& contact : kContacts) {
            row.push_back(contactCell(shown, contact.kind, clock));
            below = below || row.back().text.starts_with(L'(');
        }
        table.add(std::move(row));
    }
    if (below) {
        table.notes.emplace_back(L"In parentheses: below the horizon.");
    }
    return table;
}

Table eclipsedPointsTable(const std::vector<ShownEclipse>& eclipses, const core::Chart& chart,
                          const EclipseClock& clock)
{
    Table table = {
        "eclipsed-points",
        L"Points of the chart within 3 degrees",
        {{L"Date"}, {L"Kind"}, {L"Point"}, {L"Position"}, {L"From"}, {L"Degrees", Align::Right}}};
    for (const ShownEclipse& shown : eclipses) {
        for (const timing::EclipsedPoint& point : shown.points) {
            table.add({momentCell(shown.eclipse.julianDay, clock.offset),
                       timing::eclipseKindName(shown.eclipse.kind), pointCell(point.point),
                       positionCell(core::at(chart.longitude, point.point)), pointCell(point.body),
                       numberCell(point.distance, 2)});
        }
    }
    return table;
}

} // namespace kestrav::present
