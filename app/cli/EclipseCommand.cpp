#include "app/cli/EclipseCommand.h"

#include "app/cli/ChartSource.h"
#include "app/cli/ChartText.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/EphemerisCommand.h"
#include "app/cli/EphemerisCommandOptions.h"
#include "app/cli/Progress.h"
#include "app/cli/SharedOptions.h"
#include "app/present/EclipseTables.h"
#include "app/present/TextValues.h"
#include "core/SignData.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 11> kEclipseOptions = {{
    {"--from", "YYYY-MM-DD", "first date, in historical years"},
    {"--to", "YYYY-MM-DD", "last date; ten years after --from when not given"},
    {"--kind", "NAME", "only solar or only lunar eclipses"},
    {"--no-penumbral", "", "leave out the penumbral eclipses of the Moon"},
    {"--visible", "", "only eclipses that the place sees"},
    {"--lon", "77E13[:SS]", "geographic longitude; decimal degrees too, negative in the west"},
    {"--lat", "28N39[:SS]", "geographic latitude; decimal degrees too, negative in the south"},
    {"--place", "TEXT",
     "city and country, from which coordinates and zone, but no saving time, are taken where they "
     "are not given"},
    {"--zone", "+H:MM[:SS]",
     "zone of the clock in hours east of Greenwich; Universal Time when neither it nor --place is "
     "given"},
    {"--dst", "N", "whole hours of saving time that the clock shows, 0 to 3; 0 when not given"},
    {"--db", "FILE", "database that has the second chart"},
}};

struct EclipseRequest
{
    core::DateTimeRecord first;
    core::DateTimeRecord last;
    timing::EclipseFilter filter;
    bool onlyVisible = false;
    BirthData place;                 ///< the place and the clock of the list
    std::optional<BirthData> native; ///< the second chart
};

core::Result<timing::EclipseFilter> readFilter(const Arguments& arguments)
{
    timing::EclipseFilter filter;
    filter.penumbral = !arguments.has("--no-penumbral");
    if (const std::optional<std::string> kind = arguments.value("--kind")) {
        filter.solar = *kind == "solar";
        filter.lunar = *kind == "lunar";
        if (!filter.solar && !filter.lunar) {
            return core::Error{"--kind '" + *kind + "' is neither solar nor lunar"};
        }
    }
    return filter;
}

core::Result<void> readDates(const Arguments& arguments, EclipseRequest& request)
{
    const core::Result<core::DateTimeRecord> first = readTableDate(arguments, "--from");
    if (!first) {
        return first.error();
    }
    request.first = first.value();
    if (!arguments.has("--to")) {
        constexpr int kUsualYears = 10;
        request.last = request.first;
        request.last.year += kUsualYears;
        request.last.year += request.first.year < 0 && request.last.year >= 0 ? 1 : 0;
        return {};
    }
    const core::Result<core::DateTimeRecord> last = readTableDate(arguments, "--to");
    if (!last) {
        return last.error();
    }
    request.last = last.value();
    if (core::DateToJulianDay(request.last) < core::DateToJulianDay(request.first)) {
        return core::Error{"--to " + *arguments.value("--to") + " lies before --from " +
                           *arguments.value("--from")};
    }
    return {};
}

core::Result<BirthData> readPlace(const Arguments& arguments, const core::DateTimeRecord& date)
{
    core::Chart chart;
    chart.time = date;
    core::Result<BirthData> place = changeBirthData(arguments, chart);
    if (!place) {
        return place.error();
    }
    const bool longitude = arguments.has("--lon");
    const bool latitude = arguments.has("--lat");
    place.value().hasPlace = (longitude && latitude) || arguments.has("--place");
    if (longitude != latitude && !arguments.has("--place")) {
        return core::Error{std::string(longitude ? "--lat" : "--lon") + " is missing beside " +
                           (longitude ? "--lon" : "--lat")};
    }
    if (place.value().placeToFind) {
        // One clock serves the whole list, and it is that of no season.
        place.value().placeToFind->daylightSaving = false;
    }
    if (arguments.has("--visible") && !place.value().hasPlace) {
        return core::Error{"--visible needs --lon and --lat or --place"};
    }
    return place;
}

bool hasSecondChart(const Arguments& arguments)
{
    return arguments.has("--db") ||
           std::any_of(kSecondChartOptions.begin(), kSecondChartOptions.end(),
                       [&](const OptionInfo& option) { return arguments.has(option.name); });
}

core::Result<EclipseRequest> readRequest(const Arguments& arguments)
{
    EclipseRequest request;
    if (const core::Result<void> dates = readDates(arguments, request); !dates) {
        return dates.error();
    }
    const core::Result<timing::EclipseFilter> filter = readFilter(arguments);
    if (!filter) {
        return filter.error();
    }
    request.filter = filter.value();
    request.onlyVisible = arguments.has("--visible");
    core::Result<BirthData> place = readPlace(arguments, request.first);
    if (!place) {
        return place.error();
    }
    request.place = std::move(place.value());
    if (hasSecondChart(arguments)) {
        core::Result<BirthData> native =
            readBirthData(arguments, PlaceNeed::Optional, kSecondChart);
        if (!native) {
            return native.error();
        }
        request.native = std::move(native.value());
    }
    return request;
}

// Nothing when the user stopped the work.
std::optional<std::vector<present::ShownEclipse>>
findEclipses(const EclipseRequest& request, const std::optional<ComputedChart>& native,
             timing::SiderealSky& sky)
{
    const astro::Observer observer = astro::observerOf(request.place.chart);
    const double from = timing::julianDayOf(request.first, observer.clockOffset);
    const double to = timing::julianDayOf(request.last, observer.clockOffset) + 1.0;
    Progress progress(L"Days");
    std::vector<present::ShownEclipse> found;
    const auto visit = [&](const timing::Eclipse& eclipse) {
        present::ShownEclipse shown{eclipse, {}, {}};
        if (request.place.hasPlace) {
            shown.seen = timing::eclipseAtPlace(sky, eclipse, observer);
        }
        if (native) {
            shown.points = timing::eclipsedPoints(eclipse, native->chart);
        }
        if (!request.onlyVisible || shown.seen->visible) {
            found.push_back(std::move(shown));
        }
        progress.show(std::size_t(eclipse.julianDay - from), std::size_t(to - from));
        return !Progress::cancelled();
    };
    if (!timing::forEachEclipse(sky, {from, to}, request.filter, visit)) {
        return std::nullopt;
    }
    return found;
}

std::string_view contactKey(timing::ContactKind kind)
{
    using timing::ContactKind;
    switch (kind) {
    case ContactKind::PenumbralBegin:
        return "penumbral-begin";
    case ContactKind::PartialBegin:
        return "partial-begin";
    case ContactKind::TotalBegin:
        return "total-begin";
    case ContactKind::Greatest:
        return "greatest";
    case ContactKind::TotalEnd:
        return "total-end";
    case ContactKind::PartialEnd:
        return "partial-end";
    case ContactKind::PenumbralEnd:
        break;
    }
    return "penumbral-end";
}

Json contactsJson(const present::ShownEclipse& shown, double clockOffset)
{
    Json list = Json::array();
    const auto add = [&](timing::ContactKind kind, double julianDay, Json altitude, Json up) {
        Json object;
        object["contact"] = std::string(contactKey(kind));
        addMoment(object, julianDay, clockOffset);
        object["altitude"] = std::move(altitude);
        object["visible"] = std::move(up);
        list.push_back(std::move(object));
    };
    if (shown.seen) {
        for (const timing::ContactAtPlace& contact : shown.seen->contacts) {
            add(contact.kind, contact.julianDay, numberJson(contact.altitude), contact.up);
        }
    } else {
        for (const timing::EclipseContact& contact : timing::lunarContacts(shown.eclipse)) {
            add(contact.kind, contact.julianDay, nullptr, nullptr);
        }
    }
    return list;
}

// What the place sees; null without one, and where the Moon's shadow does not come.
Json localJson(const present::ShownEclipse& shown)
{
    if (!shown.seen || !shown.seen->type) {
        return {};
    }
    Json object;
    object["type"] = textJson(timing::eclipseTypeName(*shown.seen->type));
    object["magnitude"] = numberJson(shown.seen->magnitude);
    const std::optional<timing::Span>& seen = shown.seen->seen;
    object["seenType"] = seen ? textJson(timing::eclipseTypeName(*shown.seen->seenType)) : Json();
    object["seenFrom"] = seen ? Json(seen->from) : Json();
    object["seenTo"] = seen ? Json(seen->to) : Json();
    return object;
}

Json pointsJson(const present::ShownEclipse& shown)
{
    Json list = Json::array();
    for (const timing::EclipsedPoint& point : shown.points) {
        Json object;
        object["point"] = point.point;
        object["body"] = point.body;
        object["distance"] = numberJson(point.distance);
        list.push_back(std::move(object));
    }
    return list;
}

Json eclipsesJson(const std::vector<present::ShownEclipse>& eclipses, double clockOffset,
                  bool hasNative)
{
    Json list = Json::array();
    for (const present::ShownEclipse& shown : eclipses) {
        const timing::Eclipse& eclipse = shown.eclipse;
        const bool lunar = eclipse.kind == timing::EclipseKind::Lunar;
        const double longitude = eclipse.longitude();
        Json object;
        object["kind"] = textJson(timing::eclipseKindName(eclipse.kind));
        object["type"] = textJson(timing::eclipseTypeName(eclipse.type));
        addMoment(object, eclipse.julianDay, clockOffset);
        object["magnitude"] = numberJson(eclipse.magnitude);
        object["visible"] = shown.seen ? Json(shown.seen->visible) : Json();
        object["sign"] = core::signOfLongitude(longitude);
        object["nakshatra"] = present::nakshatraOf(core::nakshatraPositionOf(longitude));
        object["sunLongitude"] = numberJson(eclipse.sunLongitude);
        object["moonLongitude"] = numberJson(eclipse.moonLongitude);
        object["gamma"] = numberJson(eclipse.gamma);
        object["central"] = lunar ? Json() : Json(eclipse.central);
        object["nearLimit"] = eclipse.nearLimit;
        object["umbralMagnitude"] = lunar ? numberJson(eclipse.umbralMagnitude) : Json();
        object["penumbralMagnitude"] = lunar ? numberJson(eclipse.penumbralMagnitude) : Json();
        object["local"] = localJson(shown);
        object["contacts"] = contactsJson(shown, clockOffset);
        object["points"] = hasNative ? pointsJson(shown) : Json();
        list.push_back(std::move(object));
    }
    return list;
}

void printText(const std::vector<present::ShownEclipse>& eclipses,
               const std::optional<ComputedChart>& native, const present::EclipseClock& clock,
               Console& console)
{
    std::vector<present::Table> tables = {present::eclipsesTable(eclipses, clock),
                                          present::eclipseContactsTable(eclipses, clock)};
    if (native) {
        tables.push_back(present::eclipsedPointsTable(eclipses, native->chart, clock));
    }
    const std::wstring text = tablesText(tables);
    console.print(eclipses.empty() ? std::wstring(L"There is no such eclipse.\n") : text);
}

} // namespace

EclipsesCommand::EclipsesCommand()
    : Command({"eclipses",
               "List eclipses, what a place sees of them, and the points of a chart that they "
               "fall on",
               {},
               {kEclipseOptions, kSecondChartOptions, kSetOptions, kCommonOptions}})
{}

ExitCode EclipsesCommand::run(const Arguments& arguments, Console& console) const
{
    core::Result<EclipseRequest> request = readRequest(arguments);
    if (!request) {
        console.error(request.error().text());
        return ExitCode::Usage;
    }
    ExitCode code = ExitCode::Done;
    const std::optional<CallData> call = openCall(arguments, console, code);
    if (!call || !completeBirthData(request.value().place, call->settings, console, code)) {
        return code;
    }
    std::optional<ComputedChart> native;
    if (request.value().native) {
        native = computeChart(*call, *request.value().native, console, code);
        if (!native) {
            return code;
        }
    }
    const present::EclipseClock clock{astro::observerOf(request.value().place.chart).clockOffset,
                                      call->settings.twelveHourClock};
    timing::SiderealSky sky(call->data.series, call->settings, clock.offset);
    const auto eclipses = findEclipses(request.value(), native, sky);
    if (!eclipses) {
        console.error("stopped before the end of the list");
        return ExitCode::Failed;
    }
    if (!arguments.has("--json")) {
        printText(*eclipses, native, clock, console);
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["eclipses"] = eclipsesJson(*eclipses, clock.offset, native.has_value());
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
