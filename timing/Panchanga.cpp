#include "timing/Panchanga.h"

#include "core/DeltaT.h"
#include "core/SignData.h"
#include "timing/PanchangaNames.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

using astro::HorizonEvent;

double dayBegin(const PanchangaDay& day)
{
    return day.sunrise.value_or(0.0);
}

double dayEnd(const PanchangaDay& day)
{
    return std::fmax(dayBegin(day), day.nextSunrise.value_or(24.0));
}

// The Julian day of Universal Time at an hour of the day's clock.
double momentOf(const PanchangaDay& day, double hour)
{
    return day.julianDay0h + (hour - day.clockOffset) / 24.0;
}

double hourOf(const PanchangaDay& day, double julianDay)
{
    return (julianDay - day.julianDay0h) * 24.0 + day.clockOffset;
}

DayHalves halvesOf(const PanchangaDay& day)
{
    DayHalves halves;
    if (day.sunrise && day.sunset) {
        halves.day = analysis::HalfDay{false, *day.sunrise, *day.sunset};
    }
    if (day.sunset && day.nextSunrise) {
        halves.night = analysis::HalfDay{true, *day.sunset, *day.nextSunrise};
    }
    return halves;
}

// The kalams of the day's nakshatras that overlap the day.
template <typename KalamOf>
std::vector<NakshatraKalam> kalamsOf(const PanchangaDay& day, KalamOf kalamOf)
{
    std::vector<NakshatraKalam> list;
    for (const DayElement& nakshatra : day.nakshatras) {
        const HourSpan hours = kalamOf(nakshatra.number, nakshatra.hours);
        if (hours.end > dayBegin(day) && hours.start < dayEnd(day)) {
            list.push_back({nakshatra.number, hours});
        }
    }
    return list;
}

} // namespace

Panchanga::Panchanga(const astro::Series& series, const core::Settings& settings)
    : context_(series), sky_(series, settings)
{}

void Panchanga::setNative(std::optional<double> moonLongitude)
{
    nativeMoon_ = moonLongitude;
}

core::DateTimeRecord Panchanga::recordWithDeltaT(double julianDay0h) const
{
    core::DateTimeRecord record = recordOfDay(julianDay0h);
    core::DeltaT(record, sky_.settings().deltaTOn);
    return record;
}

void Panchanga::storeSun(PanchangaDay& day, const astro::Observer& observer)
{
    const core::DateTimeRecord next = recordWithDeltaT(day.julianDay0h + 1.0);
    const astro::SunTrack sun = astro::sunTrack(context_, day.date, observer);
    day.sunrise = astro::sunEvent(sun, day.date, observer, HorizonEvent::Rise);
    day.sunset = astro::sunEvent(sun, day.date, observer, HorizonEvent::Set);
    day.nextSunrise = astro::sunEvent(context_, next, observer, HorizonEvent::Rise);
    if (day.nextSunrise) {
        *day.nextSunrise += 24.0;
    }
    if (!day.sunrise || !day.sunset) {
        const double noon = 12.0 - observer.geoLongitude / 15.0 + observer.clockOffset;
        const double declination = sky_.position(core::kSun, momentOf(day, noon)).declination;
        day.sun =
            declination * observer.geoLatitude > 0.0 ? SunCourse::StaysUp : SunCourse::StaysDown;
    }
}

void Panchanga::storeMoon(PanchangaDay& day, const astro::Observer& observer)
{
    const auto event = [&](HorizonEvent which) {
        return astro::bodyEvent(context_, day.date, observer, core::kMoon, which);
    };
    day.moonrise = event(HorizonEvent::Rise);
    day.moonset = event(HorizonEvent::Set);
}

std::vector<DayElement> Panchanga::elementsOfDay(const PanchangaDay& day, Element element)
{
    std::vector<DayElement> list;
    const Span span{momentOf(day, dayBegin(day)), momentOf(day, dayEnd(day))};
    for (const ElementPeriod& period : elementsIn(sky_, element, span)) {
        list.push_back({period.number, {hourOf(day, period.begin), hourOf(day, period.end)}});
    }
    return list;
}

void Panchanga::storeElements(PanchangaDay& day)
{
    day.tithis = elementsOfDay(day, Element::Tithi);
    day.nakshatras = elementsOfDay(day, Element::Nakshatra);
    day.yogas = elementsOfDay(day, Element::Yoga);
    day.karanas = elementsOfDay(day, Element::Karana);
}

void Panchanga::storeDivisions(PanchangaDay& day) const
{
    const DayHalves halves = halvesOf(day);
    day.horas = horasOf(halves, day.weekday);
    day.choghadia = choghadiaOfDay(halves, day.weekday);
    day.kalaVelas = kalaVelasOf(halves, day.weekday);
    day.rahuKalam = rahuKalam(halves, day.weekday);
    day.yamaganda = yamaganda(halves, day.weekday);
    day.gulika = gulikaKalam(halves, day.weekday);
    day.abhijit = abhijit(halves, day.weekday);
    day.durmuhurta = durmuhurtas(halves, day.weekday);
    day.varjyam = kalamsOf(day, varjyamOf);
    day.amritaKalam = kalamsOf(day, amritaKalamOf);
}

void Panchanga::storeMoment(PanchangaDay& day, double hour)
{
    const double moment = momentOf(day, hour);
    day.hour = hour;
    day.sunLongitude = sky_.longitude(core::kSun, moment);
    day.moonLongitude = sky_.longitude(core::kMoon, moment);
    day.elements = elementsOf(day.sunLongitude, day.moonLongitude);
    day.month = lunarMonthAt(sky_, moment);
    day.purnimanta = purnimantaMonth(sky_, day.month, isKrishna(day.elements.tithi));
    day.ritu = rituOf(day.month.number);
    day.ayana = ayanaOf(day.sunLongitude);
    day.tropicalAyana = ayanaOf(sky_.tropicalLongitude(core::kSun, moment));
    const double civilDay = day.julianDay0h + std::floor(hour / 24.0);
    day.year = lunarYearOf(recordOfDay(civilDay), day.month.number);
    if (nativeMoon_) {
        day.taraBala = taraBala(core::nakshatraPositionOf(day.moonLongitude),
                                core::nakshatraPositionOf(*nativeMoon_));
        day.chandraBala = chandraBala(core::signOfLongitude(day.moonLongitude),
                                      core::signOfLongitude(*nativeMoon_));
    }
}

PanchangaDay Panchanga::day(double julianDay0h, const astro::Observer& observer)
{
    PanchangaDay day;
    day.julianDay0h = julianDay0h;
    day.clockOffset = observer.clockOffset;
    day.date = recordWithDeltaT(julianDay0h);
    day.weekday = weekdayOfDay(julianDay0h);
    sky_.setClockOffset(observer.clockOffset);
    storeSun(day, observer);
    storeMoon(day, observer);
    storeElements(day);
    storeDivisions(day);
    storeMoment(day, dayBegin(day));
    return day;
}

PanchangaDay Panchanga::day(const core::DateTimeRecord& date, const astro::Observer& observer)
{
    return day(core::DateToJulianDay(date), observer);
}

PanchangaDay Panchanga::dayOf(const core::Chart& chart)
{
    const astro::Observer observer = astro::observerOf(chart);
    const double date = core::DateToJulianDay(chart.time);
    // With a clock far from local time the day can have begun on either neighbouring date.
    int days = 1;
    for (; days > -2; --days) {
        const std::optional<double> sunrise =
            astro::sunEvent(context_, recordWithDeltaT(date + days), observer, HorizonEvent::Rise);
        if (sunrise.value_or(0.0) + 24.0 * days <= chart.time.localTime) {
            break;
        }
    }
    PanchangaDay running = day(date + days, observer);
    storeMoment(running, chart.time.localTime - 24.0 * days);
    return running;
}

} // namespace kestrav::timing
