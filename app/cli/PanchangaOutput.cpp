#include "app/cli/PanchangaOutput.h"

#include "app/present/PanchangaTables.h"
#include "app/present/TableWriters.h"
#include "app/present/TextTable.h"
#include "app/present/TextValues.h"
#include "core/TextForms.h"
#include "timing/PanchangaReport.h"

namespace kestrav::cli
{

namespace
{

using timing::PanchangaDay;

// The lines of a report with blanks for its tabs.
std::wstring withoutTabs(const std::wstring& report)
{
    std::wstring text;
    for (const wchar_t character : report) {
        if (character == L'\t') {
            text += L"  ";
        } else {
            if (character == L'\n') {
                text.erase(text.find_last_not_of(L' ') + 1);
            }
            text += character;
        }
    }
    return text;
}

// A table that stands below other lines, without its title; nothing when it has no rows.
std::wstring belowText(present::Table table)
{
    table.title.clear();
    return table.rows.empty() ? std::wstring() : L"\n" + present::tableText(table);
}

} // namespace

std::wstring panchangaPlaceText(const ComputedChart& computed,
                                const std::vector<PanchangaDay>& days)
{
    core::Chart chart = computed.chart;
    core::FormatRecordHours(chart);
    present::LabelledLines lines;
    if (!chart.name.empty()) {
        lines.add(L"Name", chart.name);
    }
    if (!chart.place.empty()) {
        lines.add(L"Place", chart.place);
    }
    lines.add(L"Coordinates", present::geoText(chart.geoLongitude, L'E', L'W') + L", " +
                                  present::geoText(chart.geoLatitude, L'N', L'S'));
    lines.add(L"Zone", (chart.zone < 0.0 ? L"" : L"+") + chart.zoneText + L", saving time " +
                           std::to_wstring(chart.daylightSaving) + L" h");
    std::wstring changes;
    for (std::size_t i = 1; i < days.size(); ++i) {
        const double step = days[i].clockOffset - days[i - 1].clockOffset;
        if (step != 0.0) {
            changes += (changes.empty() ? L"" : L", ") + present::dateText(days[i].date) +
                       (step > 0.0 ? L" forward" : L" back");
        }
    }
    if (!changes.empty()) {
        lines.add(L"Clock set", changes);
    }
    return lines.text();
}

std::wstring panchangaDayText(const PanchangaDay& day, bool twelveHour)
{
    std::wstring report;
    timing::appendHeader(report, day);
    timing::appendSunAndMonth(report, day, twelveHour);
    timing::appendYear(report, day);
    timing::appendTithis(report, day, twelveHour);
    timing::appendNakshatras(report, day, twelveHour);
    timing::appendYogas(report, day, twelveHour);
    timing::appendKaranas(report, day, twelveHour);
    timing::appendMoonStrength(report, day);
    return withoutTabs(report) + belowText(present::kalamsTable(day, twelveHour)) +
           belowText(present::eighthsTable(day, twelveHour)) +
           belowText(present::horasTable(day, twelveHour));
}

std::wstring panchangaTableText(const std::vector<PanchangaDay>& days, bool twelveHour)
{
    return present::tableText(present::panchangaDaysTable(days, twelveHour));
}

} // namespace kestrav::cli
