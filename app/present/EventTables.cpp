#include "app/present/EventTables.h"

#include "analysis/VargaNames.h"
#include "app/present/ChangedPoints.h"
#include "app/present/DashaTables.h"
#include "app/present/LifeBar.h"
#include "app/present/PersonTables.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/SignData.h"
#include "core/TextForms.h"
#include "timing/DashaQuery.h"
#include "timing/SiderealSky.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace kestrav::present
{

namespace
{

using core::at;

constexpr int kEventLevels = 3;
constexpr int kMostSteps = 500;

struct DatedEvent
{
    const core::LifeEvent* event;
    double moment;
};

std::vector<DatedEvent> usableEvents(const core::Chart& chart)
{
    std::vector<DatedEvent> events;
    for (const core::LifeEvent& event : chart.identity.events) {
        if (const std::optional<double> moment = momentOfEvent(chart, event)) {
            events.push_back({&event, *moment});
        }
    }
    return events;
}

core::Result<timing::Dasha> dashaOfChart(const ComputedChart& computed, const astro::Series& series)
{
    return timing::dashaOf(computed.chart, computed.settings, dashaOptions(computed), series);
}

// The lord of a level at a moment.
Cell lordCell(const timing::Dasha& dasha, double moment, int level)
{
    const auto period = timing::periodAtAge(dasha, dasha.calendar.ageAt(moment), level);
    if (!period) {
        return core::kNoName;
    }
    const timing::LordKind kind = dasha.plan.lordKind;
    return {dashaLordName(kind, period->lord()), double(period->lord()),
            dashaLordLink(kind, period->lord())};
}

Cell dateCell(const DatedEvent& event)
{
    Cell cell = plainDateCell(event.event->date);
    cell.link = {Subject::Moment, 0, 0, event.moment};
    return cell;
}

Cell transitCell(const core::Chart& chart, timing::SiderealSky& sky, int body, double moment)
{
    const double longitude = sky.longitude(body, moment);
    if (!std::isfinite(longitude)) {
        return core::kNoName;
    }
    const int sign = core::signOfLongitude(longitude);
    return {std::wstring(core::SignName3(sign)) + L" " +
                countCell(countedFrom(chart, core::kAscendant, sign)).text + L"/" +
                countCell(countedFrom(chart, core::kMoon, sign)).text,
            longitude,
            {Subject::Sign, sign}};
}

// The chart of a birth so many seconds later.
ComputedChart shifted(const ComputedChart& computed, double seconds,
                      astro::EphemerisContext& context)
{
    ComputedChart trial = computed;
    core::DateTimeRecord& time = trial.chart.time;
    const double hours = time.localTime + seconds / 3600.0;
    const double days = std::floor(hours / 24.0);
    core::addDays(time, int(days));
    time.localTime = hours - 24.0 * days;
    computeFromBirthData(trial, context);
    return trial;
}

// One row of both tables, and the marks of what differs from the given time.
void mark(Row& row, const Row& given, std::size_t first)
{
    for (std::size_t i = first; i < row.size(); ++i) {
        if (row[i].text != given[i].text) {
            row[i].text += L" *";
        }
    }
}

std::wstring shiftText(double seconds)
{
    const double whole = std::round(std::fabs(seconds));
    const int minutes = int(std::floor(whole / 60.0));
    const std::wstring rest = fixedNumber(whole - 60.0 * minutes, 0);
    const std::wstring sign = seconds == 0.0 ? L"" : seconds < 0.0 ? L"-" : L"+";
    return sign + std::to_wstring(minutes) + L":" + (rest.size() < 2 ? L"0" : L"") + rest;
}

Row headCells(const ComputedChart& trial, double seconds)
{
    const core::Chart& chart = trial.chart;
    return {
        {shiftText(seconds), seconds},
        {clockSeconds(chart.time.localTime, trial.settings.twelveHourClock), chart.time.dayCount}};
}

Row ascendantRow(const ComputedChart& trial, double seconds)
{
    const core::Chart& chart = trial.chart;
    Row row = headCells(trial, seconds);
    const double ascendant = at(chart.longitude, core::kAscendant);
    row.emplace_back(core::FormatSignPosition(ascendant), ascendant);
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        const int sign = at(at(chart.vargas, varga), core::kAscendant).sign;
        row.emplace_back(std::wstring(core::SignName2(sign)), double(sign),
                         Link{Subject::Sign, sign, varga});
    }
    return row;
}

Row lordRow(const ComputedChart& trial, double seconds, const astro::Series& series,
            const std::vector<DatedEvent>& events, int levels)
{
    Row row = headCells(trial, seconds);
    const core::Result<timing::Dasha> dasha = dashaOfChart(trial, series);
    for (const DatedEvent& event : events) {
        const auto period =
            dasha ? timing::periodAtAge(dasha.value(), dasha.value().calendar.ageAt(event.moment),
                                        levels)
                  : std::nullopt;
        row.emplace_back(period ? dashaPeriodName(dasha.value().plan.lordKind, *period)
                                : std::wstring(core::kNoName));
    }
    return row;
}

constexpr wchar_t kChanged[] = L"* other than at the given time";

} // namespace

Table skyTable(const ComputedChart& computed, const astro::Series& series, double moment)
{
    const core::Chart& chart = computed.chart;
    timing::SiderealSky sky(series, computed.settings, chart.hasMoment ? chart.zone : 0.0);
    Table table = {
        "sky",
        L"The sky",
        {{L"Body"}, {L"Position"}, {L"House", Align::Right}, {L"From the Moon", Align::Right}}};
    for (const int body : core::kBodies) {
        const timing::SkyPosition position = sky.position(body, moment);
        if (!std::isfinite(position.longitude)) {
            continue;
        }
        const int sign = core::signOfLongitude(position.longitude);
        table.add(
            {pointCell(body),
             {core::FormatSignPosition(position.longitude) + (position.speed < 0.0 ? L" R" : L""),
              position.longitude,
              {Subject::Sign, sign}},
             houseCell(countedFrom(chart, core::kAscendant, sign)),
             countCell(countedFrom(chart, core::kMoon, sign))});
    }
    return table;
}

Table eventTransitsTable(const ComputedChart& computed, const astro::Series& series)
{
    const core::Chart& chart = computed.chart;
    Table table = {"event-transits",
                   L"Events with their dashas and transits",
                   {{L"Date"}, {L"Event"}, {L"Dasha"}, {L"Second"}, {L"Third"}}};
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        table.columns.push_back({pointLabel(body)});
    }
    if (!chart.hasMoment) {
        table.notes.emplace_back(L"A chart of bare positions has no dates.");
        return table;
    }
    const core::Result<timing::Dasha> dasha = dashaOfChart(computed, series);
    timing::SiderealSky sky(series, computed.settings, chart.zone);
    for (const DatedEvent& event : usableEvents(chart)) {
        Row row = {dateCell(event), event.event->name};
        for (int level = 1; level <= kEventLevels; ++level) {
            row.push_back(dasha ? lordCell(dasha.value(), event.moment, level)
                                : Cell(core::kNoName));
        }
        for (int body = core::kSun; body <= core::kKetu; ++body) {
            row.push_back(transitCell(chart, sky, body, event.moment));
        }
        table.add(std::move(row));
    }
    table.notes.emplace_back(table.rows.empty()
                                 ? L"The chart has no events with a date."
                                 : L"Signs with the houses from the ascendant and from the Moon.");
    return table;
}

TrialTables trialTables(const ComputedChart& computed, const astro::Series& series,
                        const TrialTimes& times, const data::LongWork& work)
{
    TrialTables tables;
    tables.ascendants = {"trial-ascendants",
                         L"Ascendants of other birth times",
                         {{L"Shift", Align::Right}, {L"Time", Align::Right}, {L"Ascendant"}}};
    tables.lords = {"trial-lords",
                    L"Dasha lords of other birth times",
                    {{L"Shift", Align::Right}, {L"Time", Align::Right}}};
    if (!computed.chart.hasMoment || !computed.hasPlace) {
        for (Table* const table : {&tables.ascendants, &tables.lords}) {
            table->notes.emplace_back(L"Other birth times need the moment and the place.");
        }
        return tables;
    }
    const std::vector<DatedEvent> events = usableEvents(computed.chart);
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        tables.ascendants.columns.push_back(
            {L"D" + std::to_wstring(analysis::vargaDivision(varga))});
    }
    for (const DatedEvent& event : events) {
        tables.lords.columns.push_back({event.event->name});
    }
    astro::EphemerisContext context(series);
    const int steps = core::ClampRange(0, kMostSteps, times.steps);
    const int levels = core::ClampRange(1, timing::kDashaLevels, times.levels);
    for (int step = -steps; step <= steps; ++step) {
        if (work.progress) {
            work.progress(std::size_t(step + steps), std::size_t(2 * steps + 1));
        }
        if (work.cancelled()) {
            tables.ascendants.rows.clear();
            tables.lords.rows.clear();
            return tables;
        }
        const double seconds = step * times.seconds;
        const ComputedChart trial = shifted(computed, seconds, context);
        tables.ascendants.add(ascendantRow(trial, seconds));
        tables.lords.add(lordRow(trial, seconds, series, events, levels));
    }
    for (Table* const table : {&tables.ascendants, &tables.lords}) {
        const Row given = table->rows[std::size_t(steps)];
        // The degree of the ascendant always differs.
        const std::size_t first = table == &tables.ascendants ? 3 : 2;
        for (Row& row : table->rows) {
            mark(row, given, first);
        }
        table->notes.emplace_back(kChanged);
    }
    return tables;
}

} // namespace kestrav::present
