#include "analysis/ComputeChart.h"

#include "analysis/Motion.h"
#include "analysis/SignPositions.h"
#include "astro/Ayanamsa.h"
#include "astro/Bodies.h"
#include "astro/Houses.h"
#include "astro/Moon.h"
#include "astro/Nutation.h"
#include "astro/PreciseMoon.h"
#include "astro/RiseSet.h"
#include "astro/SiderealTime.h"
#include "core/Angles.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

void storeAyanamsa(core::Chart& chart, const core::Settings& settings,
                   const core::TimeArguments& time)
{
    chart.nutation = astro::Nutation(time).longitude;
    chart.ayanamsa = astro::Ayanamsa(chart.time, settings);
    if (astro::isTropical(astro::selectedRow(settings))) {
        // Tropical longitudes are corrected for nutation, so the ascendant and the midheaven get it
        // too, while sidereal time and obliquity stay mean.
        chart.ayanamsa = -chart.nutation;
        chart.time.ayanamsa = chart.ayanamsa;
    }
}

void storePlanets(core::Chart& chart, astro::EphemerisContext& context)
{
    for (const int point : astro::kEnginePoints) {
        astro::PlanetPosition(context, astro::codeOfPoint(point));
        const astro::BodyResult& body = context.result;
        at(chart.longitude, point) = core::Normalize360(body.longitude - chart.ayanamsa);
        at(chart.speed, point) = body.speed;
        at(chart.latitude, point) = body.latitude;
        at(chart.distance, point) = body.distance;
        at(chart.phase, point) = body.phase;
        at(chart.magnitude, point) = body.magnitude;
    }
}

void storeMoonAndNodes(core::Chart& chart, const core::Settings& settings,
                       const core::TimeArguments& time)
{
    if (!settings.preciseMoon) {
        astro::MoonShort(time, chart);
        return;
    }
    const astro::MoonPosition moon = astro::preciseMoon(time.T);
    chart.longitude[core::kMoon] = core::Normalize360(moon.longitude - chart.ayanamsa);
    chart.speed[core::kMoon] = moon.speed;
    chart.latitude[core::kMoon] = moon.latitude;
    chart.distance[core::kMoon] = moon.distance;
    // Rahu stays the mean node.
    astro::storeMeanNodes(time, chart);
}

void storeDay(core::Chart& chart, astro::EphemerisContext& context)
{
    const astro::Observer observer = astro::observerOf(chart);
    const astro::SunTrack sun = astro::sunTrack(context, chart.time, observer);
    chart.sunrise = astro::sunEvent(sun, chart.time, observer, astro::HorizonEvent::Rise);
    chart.sunset = astro::sunEvent(sun, chart.time, observer, astro::HorizonEvent::Set);
    chart.vedicDay = astro::vedicDay(sun, chart.time, observer);
    chart.weekday = core::Weekday(chart);
}

} // namespace

void computePositions(core::Chart& chart, const core::Settings& settings,
                      astro::EphemerisContext& context)
{
    chart.clearPoints();
    core::TimeArguments time;
    core::LocalToUniversal(chart, settings, time);
    chart.T = time.T;
    context.setTime(time);
    context.magnitudesOn = settings.magnitudes;
    storeAyanamsa(chart, settings, time);
    storePlanets(chart, context);
    storeMoonAndNodes(chart, settings, time);
    astro::Obliquity(chart);
    for (const int point : core::kBodies) {
        computeSignData(chart, point);
        astro::Declination(chart, point);
    }
}

void computeHouses(core::Chart& chart, const core::Settings& settings)
{
    astro::Obliquity(chart);
    chart.localSiderealTime = astro::LocalSiderealTime(chart);
    chart.longitude[core::kAscendant] = astro::Ascendant(chart, chart.localSiderealTime, 1);
    computeSignData(chart, core::kAscendant);
    astro::HouseCusps(chart, settings.houseSystem);
    if (settings.houseSystem == int(astro::HouseSystem::ByRashi)) {
        return;
    }
    for (int house = 1; house <= 12; ++house) {
        if (chart.computed(core::cuspPoint(house))) {
            computeSignData(chart, core::cuspPoint(house));
        }
    }
}

void ComputeChart(core::Chart& chart, const core::Settings& settings,
                  astro::EphemerisContext& context)
{
    computePositions(chart, settings, context);
    computeHouses(chart, settings);
    computeMotions(chart, context);
    storeDay(chart, context);
}

} // namespace kestrav::analysis
