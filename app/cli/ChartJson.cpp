#include "app/cli/ChartJson.h"

#include "app/present/TextValues.h"
#include "app/present/TransitChoices.h"
#include "astro/Ayanamsa.h"
#include "astro/SiderealTime.h"
#include "core/numeric.h"

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <optional>

namespace kestrav::cli
{

namespace
{

using core::at;
using core::kDegreesPerRadian;

// An object whose keys are all null.
Json nulls(std::initializer_list<const char*> keys)
{
    Json object;
    for (const char* const key : keys) {
        object[key] = nullptr;
    }
    return object;
}

void addBodyData(Json& object, const core::Chart& chart, int point)
{
    object["retrograde"] = at(chart.retrograde, point);
    object["combust"] = at(chart.combust, point);
    if (!chart.hasMoment) {
        return;
    }
    object["speed"] = numberJson(at(chart.speed, point));
    object["latitude"] = numberJson(at(chart.latitude, point) * kDegreesPerRadian);
    object["declination"] =
        numberJson(at(chart.declination, astro::declinationSlot(point)) * kDegreesPerRadian);
    object["motionCode"] = int(at(chart.motion, point));
}

Json pointJson(const core::Chart& chart, int point)
{
    Json object;
    object["index"] = point;
    object["name"] = textJson(present::pointLabel(point));
    for (const char* const key :
         {"longitude", "speed", "latitude", "declination", "rashi", "degreeInSign", "navamshaSign",
          "nakshatraPosition", "nakshatra", "pada", "retrograde", "motionCode", "combust"}) {
        object[key] = nullptr;
    }
    if (!chart.computed(point)) {
        return object;
    }
    const double position = at(chart.nakshatraPosition, point);
    object["longitude"] = numberJson(at(chart.longitude, point));
    object["rashi"] = at(chart.rashi, point);
    object["degreeInSign"] = numberJson(at(chart.degreeInSign, point));
    object["navamshaSign"] = at(chart.navamshaSign, point);
    object["nakshatraPosition"] = numberJson(position);
    object["nakshatra"] = present::nakshatraOf(position);
    object["pada"] = present::padaOf(position);
    if (present::movesByItself(point)) {
        addBodyData(object, chart, point);
    } else {
        object["motionCode"] = int(core::Motion::None);
    }
    return object;
}

Json housesArray(const core::HouseArray& longitudes)
{
    Json list = Json::array();
    for (const double longitude : longitudes) {
        list.push_back(longitude >= 0.0 ? numberJson(longitude) : Json());
    }
    return list;
}

} // namespace

Json inputJson(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    Json object = nulls({"name", "year", "month", "day", "localTime", "zone", "daylightSaving",
                         "longitude", "latitude", "place"});
    object["name"] = textOrNull(chart.name);
    if (!chart.hasMoment) {
        return object;
    }
    object["year"] = chart.time.year;
    object["month"] = chart.time.month;
    object["day"] = chart.time.day;
    object["localTime"] = numberJson(chart.time.localTime);
    object["zone"] = numberJson(chart.zone);
    object["daylightSaving"] = chart.daylightSaving;
    object["longitude"] = computed.hasPlace ? numberJson(chart.geoLongitude) : Json();
    object["latitude"] = computed.hasPlace ? numberJson(chart.geoLatitude) : Json();
    object["place"] = textOrNull(chart.place);
    return object;
}

Json timeJson(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    if (!chart.hasMoment) {
        return nulls({"julianDay0h", "dayCount", "utHours", "deltaTDays", "T", "decimalYear",
                      "weekday", "localSiderealTime"});
    }
    Json object;
    object["julianDay0h"] = numberJson(core::DateToJulianDay(chart.time));
    object["dayCount"] = numberJson(chart.time.dayCount);
    object["utHours"] = numberJson(chart.time.utHours);
    object["deltaTDays"] = numberJson(chart.time.deltaTDays);
    object["T"] = numberJson(chart.T);
    object["decimalYear"] = numberJson(astro::DecimalYear(chart.time));
    object["weekday"] = chart.weekday;
    object["localSiderealTime"] = computed.hasPlace ? numberJson(chart.localSiderealTime) : Json();
    return object;
}

Json ayanamsaJson(const ComputedChart& computed)
{
    if (!computed.chart.hasMoment) {
        return nulls({"row", "name", "degrees", "nutation"});
    }
    Json object;
    object["row"] = computed.settings.ayanamsaRow;
    object["name"] = std::string(astro::selectedRow(computed.settings).nameText());
    object["degrees"] = numberJson(computed.chart.ayanamsa);
    object["nutation"] = numberJson(computed.chart.nutation);
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
    object["system"] = chart.houseSystem >= 0 ? Json(chart.houseSystem) : Json();
    object["obliquity"] =
        chart.hasMoment ? numberJson(chart.obliquity() * kDegreesPerRadian) : Json();
    object["ascendant"] = numberJson(chart.longitude[core::kAscendant]);
    object["midheaven"] = chart.hasMoment ? numberJson(chart.midheaven) : Json();
    object["cusps"] = housesArray(cusps);
    object["sandhis"] = chart.hasSandhis ? housesArray(chart.sandhis) : Json();
    return object;
}

Json sunJson(const ComputedChart& computed)
{
    const std::optional<core::VedicDay>& day = computed.day;
    Json running;
    running["sunrise"] = day ? numberJson(day->sunrise) : Json();
    running["sunset"] = day ? numberJson(day->sunset) : Json();
    running["nextSunrise"] = day ? numberJson(day->nextSunrise) : Json();
    Json object;
    object["sunrise"] = numberJson(computed.chart.sunrise);
    object["sunset"] = numberJson(computed.chart.sunset);
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
