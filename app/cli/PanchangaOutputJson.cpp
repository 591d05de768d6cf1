#include "app/cli/PanchangaOutput.h"

#include "core/Names.h"
#include "core/PointNames.h"
#include "timing/PanchangaNames.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

using timing::DayElement;
using timing::DayPart;
using timing::HourSpan;

using NameOf = std::wstring_view (*)(int number);

Json namedJson(int index, std::wstring_view name)
{
    Json object;
    object["index"] = index;
    object["name"] = textJson(name);
    return object;
}

void addHours(Json& object, const HourSpan& hours)
{
    object["start"] = numberJson(hours.start);
    object["end"] = numberJson(hours.end);
}

Json hoursJson(const HourSpan& hours)
{
    Json object;
    addHours(object, hours);
    return object;
}

Json hoursJson(const std::optional<HourSpan>& hours)
{
    return hours ? hoursJson(*hours) : Json();
}

Json elementsJson(const std::vector<DayElement>& elements, NameOf nameOf)
{
    Json list = Json::array();
    for (const DayElement& element : elements) {
        Json object = namedJson(element.number, nameOf(element.number));
        addHours(object, element.hours);
        list.push_back(std::move(object));
    }
    return list;
}

Json monthJson(const timing::PanchangaDay& day)
{
    Json object;
    object["amanta"] = namedJson(day.month.number, core::lunarMonthName(day.month.number));
    object["purnimanta"] = namedJson(day.purnimanta, core::lunarMonthName(day.purnimanta));
    object["adhika"] = day.month.adhika;
    object["kshaya"] = day.month.kshaya;
    return object;
}

Json samvatsaraJson(const timing::LunarYear& year)
{
    Json object;
    object["southern"] =
        namedJson(year.southernSamvatsara, core::samvatsaraName(year.southernSamvatsara));
    object["northern"] =
        namedJson(year.northernSamvatsara, core::samvatsaraName(year.northernSamvatsara));
    return object;
}

Json horasJson(const std::vector<DayPart>& parts)
{
    Json list = Json::array();
    for (const DayPart& part : parts) {
        Json object;
        object["lord"] = part.ruler;
        object["night"] = part.night;
        addHours(object, part.hours);
        list.push_back(std::move(object));
    }
    return list;
}

Json choghadiaJson(const std::vector<DayPart>& parts)
{
    Json list = Json::array();
    for (const DayPart& part : parts) {
        Json object = namedJson(part.ruler, timing::choghadiaName(part.ruler));
        object["night"] = part.night;
        addHours(object, part.hours);
        list.push_back(std::move(object));
    }
    return list;
}

Json kalaVelasJson(const std::vector<DayPart>& parts)
{
    Json list = Json::array();
    for (const DayPart& part : parts) {
        Json object;
        const bool ruled = part.ruler != 0;
        object["lord"] = ruled ? Json(part.ruler) : Json();
        object["name"] = ruled ? textJson(timing::kalaVelaLongName(part.ruler)) : Json();
        object["night"] = part.night;
        addHours(object, part.hours);
        list.push_back(std::move(object));
    }
    return list;
}

Json kalamsJson(const std::vector<timing::NakshatraKalam>& kalams)
{
    Json list = Json::array();
    for (const timing::NakshatraKalam& kalam : kalams) {
        Json object;
        object["nakshatra"] = kalam.nakshatra;
        addHours(object, kalam.hours);
        list.push_back(std::move(object));
    }
    return list;
}

Json taraBalaJson(const std::optional<timing::TaraBala>& tara)
{
    if (!tara) {
        return {};
    }
    Json object;
    object["score"] = tara->score;
    object["text"] = textJson(tara->text);
    return object;
}

} // namespace

Json panchangaDayJson(const timing::PanchangaDay& day)
{
    Json object;
    object["date"] = dateJson(day.date);
    object["weekday"] = day.weekday;
    object["sunrise"] = numberJson(day.sunrise);
    object["sunset"] = numberJson(day.sunset);
    object["nextSunrise"] = numberJson(day.nextSunrise);
    object["moonrise"] = numberJson(day.moonrise);
    object["moonset"] = numberJson(day.moonset);
    object["tithis"] = elementsJson(day.tithis, timing::tithiName);
    object["nakshatras"] = elementsJson(day.nakshatras, core::nakshatraName);
    object["yogas"] = elementsJson(day.yogas, timing::yogaName);
    object["karanas"] = elementsJson(day.karanas, timing::karanaName);
    object["month"] = monthJson(day);
    object["ritu"] = namedJson(day.ritu, core::rituName(day.ritu));
    object["ayana"] = namedJson(day.ayana, core::ayanaName(day.ayana));
    object["samvatsara"] = samvatsaraJson(day.year);
    object["shaka"] = day.year.shaka;
    object["vikrama"] = day.year.vikrama;
    object["horas"] = horasJson(day.horas);
    object["choghadia"] = choghadiaJson(day.choghadia);
    object["kalaVelas"] = kalaVelasJson(day.kalaVelas);
    object["rahuKalam"] = hoursJson(day.rahuKalam);
    object["yamaganda"] = hoursJson(day.yamaganda);
    object["gulika"] = hoursJson(day.gulika);
    object["abhijit"] = hoursJson(day.abhijit);
    Json durmuhurta = Json::array();
    for (const HourSpan& hours : day.durmuhurta) {
        durmuhurta.push_back(hoursJson(hours));
    }
    object["durmuhurta"] = std::move(durmuhurta);
    object["varjyam"] = kalamsJson(day.varjyam);
    object["amritaKalam"] = kalamsJson(day.amritaKalam);
    object["taraBala"] = taraBalaJson(day.taraBala);
    object["chandraBala"] = day.chandraBala ? Json(*day.chandraBala) : Json();
    return object;
}

} // namespace kestrav::cli
