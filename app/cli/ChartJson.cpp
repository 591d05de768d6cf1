#include "app/cli/ChartJson.h"

#include "app/cli/TextValues.h"
#include "astro/Ayanamsa.h"
#include "astro/SiderealTime.h"
#include "core/FileText.h"
#include "core/numeric.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kestrav::cli
{

namespace
{

using core::at;
using core::kDegreesPerRadian;

Json number(double value)
{
    return std::isfinite(value) ? Json(value) : Json();
}

Json number(const std::optional<double>& value)
{
    return value ? number(*value) : Json();
}

Json textOrNull(const std::wstring& text)
{
    return text.empty() ? Json() : Json(core::toUtf8(text));
}

bool isBody(int point)
{
    return std::find(core::kBodies.begin(), core::kBodies.end(), point) != core::kBodies.end();
}

Json pointJson(const core::Chart& chart, int point)
{
    Json object;
    object["index"] = point;
    object["name"] = core::toUtf8(pointLabel(point));
    for (const char* const key :
         {"longitude", "speed", "latitude", "declination", "rashi", "degreeInSign", "navamshaSign",
          "nakshatraPosition", "nakshatra", "pada", "retrograde", "motionCode", "combust"}) {
        object[key] = nullptr;
    }
    if (!chart.computed(point)) {
        return object;
    }
    const double position = at(chart.nakshatraPosition, point);
    object["longitude"] = number(at(chart.longitude, point));
    object["rashi"] = at(chart.rashi, point);
    object["degreeInSign"] = number(at(chart.degreeInSign, point));
    object["navamshaSign"] = at(chart.navamshaSign, point);
    object["nakshatraPosition"] = number(position);
    object["nakshatra"] = nakshatraOf(position);
    object["pada"] = padaOf(position);
    object["motionCode"] = int(at(chart.motion, point));
    if (isBody(point)) {
        object["speed"] = number(at(chart.speed, point));
        object["latitude"] = number(at(chart.latitude, point) * kDegreesPerRadian);
        object["declination"] =
            number(at(chart.declination, astro::declinationSlot(point)) * kDegreesPerRadian);
        object["retrograde"] = at(chart.retrograde, point);
    }
    return object;
}

Json housesArray(const core::HouseArray& longitudes)
{
    Json list = Json::array();
    for (const double longitude : longitudes) {
        list.push_back(longitude >= 0.0 ? number(longitude) : Json());
    }
    return list;
}

} // namespace

Json commandObject(std::string_view command)
{
    Json object;
    object["program"]["name"] = "Kestrav";
    object["program"]["version"] = KESTRAV_VERSION;
    object["command"] = std::string(command);
    return object;
}

std::string jsonText(const Json& object)
{
    return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

Json inputJson(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    Json object;
    object["name"] = textOrNull(chart.name);
    object["year"] = chart.time.year;
    object["month"] = chart.time.month;
    object["day"] = chart.time.day;
    object["localTime"] = number(chart.time.localTime);
    object["zone"] = number(chart.zone);
    object["daylightSaving"] = chart.daylightSaving;
    object["longitude"] = computed.hasPlace ? number(chart.geoLongitude) : Json();
    object["latitude"] = computed.hasPlace ? number(chart.geoLatitude) : Json();
    object["place"] = textOrNull(chart.place);
    return object;
}

Json timeJson(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    Json object;
    object["julianDay0h"] = number(core::DateToJulianDay(chart.time));
    object["dayCount"] = number(chart.time.dayCount);
    object["utHours"] = number(chart.time.utHours);
    object["deltaTDays"] = number(chart.time.deltaTDays);
    object["T"] = number(chart.T);
    object["decimalYear"] = number(astro::DecimalYear(chart.time));
    object["weekday"] = chart.weekday;
    object["localSiderealTime"] = computed.hasPlace ? number(chart.localSiderealTime) : Json();
    return object;
}

Json ayanamsaJson(const ComputedChart& computed)
{
    Json object;
    object["row"] = computed.settings.ayanamsaRow;
    object["name"] = std::string(astro::selectedRow(computed.settings).nameText());
    object["degrees"] = number(computed.chart.ayanamsa);
    object["nutation"] = number(computed.chart.nutation);
    return object;
}

Json housesJson(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    core::HouseArray cusps{};
    for (int house = 1; house <= 12; ++house) {
        const int point = core::cuspPoint(house);
        at(cusps, house - 1) =
            chart.computed(point) ? at(chart.longitude, point) : core::kNotComputed;
    }
    Json object;
    object["system"] = chart.houseSystem;
    object["obliquity"] = number(chart.obliquity() * kDegreesPerRadian);
    object["ascendant"] = number(chart.longitude[core::kAscendant]);
    object["midheaven"] = number(chart.midheaven);
    object["cusps"] = housesArray(cusps);
    object["sandhis"] = chart.hasSandhis ? housesArray(chart.sandhis) : Json();
    return object;
}

Json sunJson(const ComputedChart& computed)
{
    const std::optional<core::VedicDay>& day = computed.day;
    Json running;
    running["sunrise"] = day ? number(day->sunrise) : Json();
    running["sunset"] = day ? number(day->sunset) : Json();
    running["nextSunrise"] = day ? number(day->nextSunrise) : Json();
    Json object;
    object["sunrise"] = number(computed.chart.sunrise);
    object["sunset"] = number(computed.chart.sunset);
    object["vedicDay"] = std::move(running);
    return object;
}

Json pointsJson(const ComputedChart& computed)
{
    Json list = Json::array();
    for (int point = 0; point < core::kPointCount; ++point) {
        list.push_back(pointJson(computed.chart, point));
    }
    return list;
}

} // namespace kestrav::cli
