#include "app/cli/TransitCommandOutput.h"

#include "app/cli/ChartText.h"
#include "app/present/TransitTables.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace kestrav::cli
{

namespace
{

using timing::TransitDivision;
using timing::TransitEvent;
using timing::TransitKind;

// A moment on the clock of the listing.
struct LocalMoment
{
    double day0h;
    double hour;
};

LocalMoment localMoment(double julianDay, double clock)
{
    const double day = timing::civilDayOf(julianDay, clock);
    return {day, (julianDay - day) * 24.0 + clock};
}

std::string_view kindName(TransitKind kind)
{
    switch (kind) {
    case TransitKind::Aspect:
        return "aspect";
    case TransitKind::Conjunction:
        return "conjunction";
    case TransitKind::OrbEnter:
        return "orb-enter";
    case TransitKind::OrbLeave:
        return "orb-leave";
    case TransitKind::Ingress:
        return "ingress";
    case TransitKind::Station:
        return "station";
    case TransitKind::CombustEnter:
        return "combust-enter";
    case TransitKind::CombustLeave:
        break;
    }
    return "combust-leave";
}

void addDivision(Json& entry, const TransitEvent& event)
{
    Json& division = entry["division"];
    Json& nakshatra = entry["nakshatra"];
    Json& pada = entry["pada"];
    division = nakshatra = pada = Json();
    switch (event.division) {
    case TransitDivision::None:
        break;
    case TransitDivision::Sign:
        entry["division"] = "sign";
        break;
    case TransitDivision::Nakshatra:
        entry["division"] = "nakshatra";
        entry["nakshatra"] = event.part;
        break;
    case TransitDivision::Pada:
        entry["division"] = "pada";
        entry["nakshatra"] = event.part / 4;
        entry["pada"] = event.part % 4 + 1;
        break;
    }
}

Json eventJson(const TransitEvent& event, const timing::TransitLineStyle& style)
{
    const bool hasTarget = event.target != timing::kNoTarget;
    Json entry;
    entry["julianDay"] = event.julianDay;
    entry["date"] = dateJson(timing::recordOfDay(event.day0h));
    entry["hour"] = event.hour;
    entry["kind"] = kindName(event.kind);
    entry["body"] = event.body;
    entry["target"] = hasTarget ? Json(event.target) : Json();
    entry["houseDistance"] = hasTarget ? Json(event.houseDistance) : Json();
    entry["sign"] = event.sign;
    entry["line"] = textJson(timing::transitLine(event, style));
    entry["longitude"] = event.longitude;
    entry["retrograde"] = event.backward;
    addDivision(entry, event);
    return entry;
}

void addSpan(Json& entry, double begin, double end, double clock)
{
    const LocalMoment start = localMoment(begin, clock);
    const LocalMoment stop = localMoment(end, clock);
    entry["startJulianDay"] = begin;
    entry["startDate"] = dateJson(timing::recordOfDay(start.day0h));
    entry["startHour"] = start.hour;
    entry["endJulianDay"] = end;
    entry["endDate"] = dateJson(timing::recordOfDay(stop.day0h));
    entry["endHour"] = stop.hour;
}

Json kakshyasJson(const TransitResult& result)
{
    Json list = Json::array();
    for (const timing::KakshyaStay& stay : *result.kakshyas) {
        Json entry;
        entry["point"] = stay.planet;
        entry["part"] = stay.kakshya.part;
        entry["lord"] = stay.kakshya.lord;
        entry["bindu"] = stay.bindu;
        entry["sign"] = stay.sign;
        entry["bindusOfSign"] = stay.bindusOfSign;
        entry["return"] = stay.stay.backward;
        addSpan(entry, stay.stay.begin, stay.stay.end, result.clock);
        list.push_back(std::move(entry));
    }
    return list;
}

Json sadeSatiJson(const TransitResult& result)
{
    Json list = Json::array();
    for (const timing::SaturnPhase& phase : *result.sadeSati) {
        Json entry;
        entry["house"] = phase.house;
        entry["sign"] = phase.sign;
        entry["small"] = phase.isSmall();
        entry["return"] = phase.isReturn;
        addSpan(entry, phase.begin, phase.end, result.clock);
        list.push_back(std::move(entry));
    }
    return list;
}

} // namespace

void addTransitJson(Json& object, const TransitResult& result)
{
    Json events = Json::array();
    for (const TransitEvent& event : result.events) {
        events.push_back(eventJson(event, result.style));
    }
    object["events"] = std::move(events);
    object["kakshyas"] = result.kakshyas ? kakshyasJson(result) : Json();
    object["sadeSati"] = result.sadeSati ? sadeSatiJson(result) : Json();
}

std::wstring transitText(const std::wstring& heading, const TransitResult& result)
{
    const bool twelveHour = result.style.twelveHour;
    std::vector<present::Table> tables = {present::transitTable(result.events, result.style)};
    if (result.kakshyas) {
        tables.push_back(present::kakshyaStaysTable(*result.kakshyas, result.clock, twelveHour));
    }
    if (result.sadeSati) {
        tables.push_back(present::sadeSatiTable(*result.sadeSati, result.clock, twelveHour));
    }
    return heading + L"\n\n" + tablesText(tables);
}

} // namespace kestrav::cli
