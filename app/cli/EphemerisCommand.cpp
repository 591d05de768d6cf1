#include "app/cli/EphemerisCommand.h"

#include "app/cli/ChartText.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/EphemerisCommandOptions.h"
#include "app/cli/Progress.h"
#include "app/cli/SharedOptions.h"
#include "app/present/EphemerisTables.h"
#include "core/FileText.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <utility>

namespace kestrav::cli
{

namespace
{

// All that the command shows.
struct Ephemeris
{
    timing::EphemerisPlan plan;
    bool hasRows = true;
    bool hasEvents = true;
    std::vector<timing::EphemerisRow> rows;
    std::vector<timing::PhaseMoment> phases;
    std::vector<timing::EphemerisEvent> events;
};

// False when the user stopped the work.
bool compute(Ephemeris& ephemeris, timing::SiderealSky& sky)
{
    Progress progress(L"Ephemeris");
    timing::EphemerisRows rows(sky, ephemeris.plan);
    // A body's events count as much as a tenth of the rows.
    const auto atMost = std::size_t(rows.rowsAtMost());
    const std::size_t share = ephemeris.hasEvents ? atMost / 10 + 1 : 0;
    const std::size_t total = atMost + share * ephemeris.plan.bodies.size();
    while (ephemeris.hasRows) {
        std::optional<timing::EphemerisRow> row = rows.next();
        if (!row) {
            break;
        }
        if (Progress::cancelled()) {
            return false;
        }
        ephemeris.rows.push_back(std::move(*row));
        progress.show(ephemeris.rows.size(), total);
    }
    if (ephemeris.hasEvents) {
        const timing::Span span = timing::spanOf(ephemeris.plan);
        ephemeris.phases = timing::moonPhasesIn(sky, span);
        ephemeris.events =
            timing::ephemerisEventsIn(sky, ephemeris.plan.bodies, span, [&](std::size_t done) {
                progress.show(atMost + share * done, total);
                return !Progress::cancelled();
            });
    }
    return !Progress::cancelled();
}

Json rowsJson(const Ephemeris& ephemeris)
{
    Json list = Json::array();
    for (const timing::EphemerisRow& row : ephemeris.rows) {
        Json object;
        object["julianDay"] = row.julianDay;
        object["date"] = dateJson(row.date);
        object["hour"] = row.date.localTime;
        object["weekday"] = row.weekday;
        Json& bodies = object["bodies"] = Json::array();
        for (const timing::EphemerisPosition& body : row.bodies) {
            Json position;
            position["point"] = body.point;
            position["longitude"] = numberJson(body.sky.longitude);
            position["speed"] = numberJson(body.sky.speed);
            position["declination"] = numberJson(body.sky.declination);
            position["latitude"] = numberJson(body.sky.latitude);
            bodies.push_back(std::move(position));
        }
        list.push_back(std::move(object));
    }
    return list;
}

std::string_view phaseKey(timing::MoonPhase phase)
{
    switch (phase) {
    case timing::MoonPhase::New:
        return "new";
    case timing::MoonPhase::FirstQuarter:
        return "first-quarter";
    case timing::MoonPhase::Full:
        return "full";
    case timing::MoonPhase::LastQuarter:
        break;
    }
    return "last-quarter";
}

Json phasesJson(const Ephemeris& ephemeris)
{
    Json list = Json::array();
    for (const timing::PhaseMoment& moment : ephemeris.phases) {
        Json object;
        addMoment(object, moment.julianDay, ephemeris.plan.clockOffset);
        object["phase"] = std::string(phaseKey(moment.phase));
        object["sunLongitude"] = numberJson(moment.sunLongitude);
        object["moonLongitude"] = numberJson(moment.moonLongitude);
        list.push_back(std::move(object));
    }
    return list;
}

// Events have the keys of a transit event, of which these have no target.
Json eventsJson(const Ephemeris& ephemeris)
{
    Json list = Json::array();
    for (const timing::EphemerisEvent& event : ephemeris.events) {
        Json object;
        addMoment(object, event.julianDay, ephemeris.plan.clockOffset);
        object["kind"] = event.kind == timing::EphemerisEventKind::Ingress ? "ingress" : "station";
        object["body"] = event.body;
        object["target"] = nullptr;
        object["houseDistance"] = nullptr;
        object["sign"] = event.sign;
        object["line"] = textJson(timing::ephemerisEventText(event));
        object["longitude"] = numberJson(event.longitude);
        object["retrograde"] = event.retrograde;
        list.push_back(std::move(object));
    }
    return list;
}

// The items of a list from a position on that lie before a moment; the position moves behind them.
template <typename Item>
std::vector<Item> takeBefore(const std::vector<Item>& list, std::size_t& next, double julianDay)
{
    std::vector<Item> taken;
    while (next < list.size() && list[next].julianDay < julianDay) {
        taken.push_back(list[next++]);
    }
    return taken;
}

bool sameMonth(const core::DateTimeRecord& one, const core::DateTimeRecord& other)
{
    return one.year == other.year && one.month == other.month;
}

// 0h of the first day of a date's month, as a moment of Universal Time.
double beginOfMonth(core::DateTimeRecord date, double clockOffset)
{
    date.day = 1;
    return timing::julianDayOf(date, clockOffset);
}

// Month by month: its rows, and below them what happens until the next month that has rows begins.
void printText(const Ephemeris& ephemeris, const Arguments& arguments,
               const core::Settings& settings, Console& console)
{
    const timing::EphemerisPlan& plan = ephemeris.plan;
    present::EphemerisColumns columns;
    columns.clock =
        plan.step.unit == timing::StepUnit::Minute || plan.step.unit == timing::StepUnit::Hour;
    columns.declination = arguments.has("--declination");
    columns.latitude = arguments.has("--latitude");
    columns.speed = arguments.has("--speed");
    columns.twelveHour = settings.twelveHourClock;
    const double end = timing::spanOf(plan).to;
    std::size_t nextPhase = 0;
    std::size_t nextEvent = 0;
    std::size_t first = 0;
    do {
        std::size_t last = first;
        while (last < ephemeris.rows.size() &&
               sameMonth(ephemeris.rows[last].date, ephemeris.rows[first].date)) {
            ++last;
        }
        const double until = last < ephemeris.rows.size()
                                 ? beginOfMonth(ephemeris.rows[last].date, plan.clockOffset)
                                 : end;
        const std::vector<timing::EphemerisRow> rows(ephemeris.rows.begin() + std::ptrdiff_t(first),
                                                     ephemeris.rows.begin() + std::ptrdiff_t(last));
        const std::wstring text = tablesText(
            {present::ephemerisTable(rows, columns),
             present::moonPhasesTable(takeBefore(ephemeris.phases, nextPhase, until),
                                      plan.clockOffset, columns.twelveHour),
             present::ephemerisEventsTable(takeBefore(ephemeris.events, nextEvent, until),
                                           plan.clockOffset, columns.twelveHour)});
        console.print((first > 0 ? L"\n" : L"") + text);
        first = last;
    } while (first < ephemeris.rows.size());
}

} // namespace

void addMoment(Json& object, double julianDay, double clockOffset)
{
    const core::DateTimeRecord record = timing::clockRecord(julianDay, clockOffset);
    object["julianDay"] = julianDay;
    object["date"] = dateJson(record);
    object["hour"] = record.localTime;
}

EphemerisCommand::EphemerisCommand()
    : Command({"ephemeris",
               "Tabulate positions, phases of the Moon, ingresses and stations",
               {},
               {kEphemerisOptions, kSetOptions, kCommonOptions}})
{}

ExitCode EphemerisCommand::run(const Arguments& arguments, Console& console) const
{
    const core::Result<timing::EphemerisPlan> plan = readEphemerisPlan(arguments);
    if (!plan) {
        console.error(plan.error().text());
        return ExitCode::Usage;
    }
    ExitCode code = ExitCode::Done;
    std::optional<CallData> call = openCall(arguments, console, code);
    if (!call) {
        return code;
    }
    if (const core::Result<void> applied = applyZodiac(arguments, call->settings); !applied) {
        console.error(applied.error().text());
        return ExitCode::Usage;
    }
    Ephemeris ephemeris;
    ephemeris.plan = plan.value();
    ephemeris.hasRows = !arguments.has("--no-rows");
    ephemeris.hasEvents = !arguments.has("--no-events");
    timing::SiderealSky sky(call->data.series, call->settings, ephemeris.plan.clockOffset);
    if (!compute(ephemeris, sky)) {
        console.error("stopped before the end of the table");
        return ExitCode::Failed;
    }
    if (!arguments.has("--json")) {
        printText(ephemeris, arguments, call->settings, console);
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["rows"] = ephemeris.hasRows ? rowsJson(ephemeris) : Json();
    object["phases"] = ephemeris.hasEvents ? phasesJson(ephemeris) : Json();
    object["events"] = ephemeris.hasEvents ? eventsJson(ephemeris) : Json();
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
