#include "timing/TransitCombustion.h"

#include "analysis/Dignities.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <algorithm>
#include <vector>

namespace kestrav::timing
{

namespace
{

// The moments at which the answer can change: the distance passes an orb, a planet turns, which
// changes its orb, or one of the two passes 0 Aries.
std::vector<double> momentsOfChange(const TransitSearch& search, int planet)
{
    SiderealSky& sky = search.sky;
    std::vector<double> moments;
    const auto add = [&](const Crossing& crossing) {
        moments.push_back(crossing.day);
        return true;
    };
    const auto apart = [&](double day) {
        return core::Normalize360(sky.longitude(planet, day) - sky.longitude(core::kSun, day));
    };
    const CurveShape pair = transitPairShape(planet, core::kSun);
    for (const bool retrograde : {false, true}) {
        const double orb = analysis::combustionOrb(planet, retrograde);
        forEachCrossing(apart, pair, search.span, {orb, 0.0}, add);
        forEachCrossing(apart, pair, search.span, {360.0 - orb, 0.0}, add);
    }
    for (const int body : {planet, int(core::kSun)}) {
        const auto longitude = [&](double day) {
            return sky.longitude(body, day);
        };
        forEachCrossing(longitude, transitShape(body), search.span, Levels{}, add);
    }
    findStations(search, planet,
                 [&](const TransitEvent& station) { moments.push_back(station.julianDay); });
    std::sort(moments.begin(), moments.end());
    return moments;
}

} // namespace

bool CombustionSearch::isCombustAt(SiderealSky& sky, int planet, double day)
{
    const SkyPosition position = sky.position(planet, day);
    analysis::storePoint(chart_, planet, position.longitude);
    analysis::storePoint(chart_, core::kSun, sky.longitude(core::kSun, day));
    core::at(chart_.retrograde, planet) = position.speed < 0.0;
    return analysis::isCombust(chart_, chart_, planet, sky.settings());
}

void CombustionSearch::find(const TransitSearch& search, int planet, TransitSink sink)
{
    if (planet < core::kMoon || planet > core::kSaturn || !(search.span.from < search.span.to)) {
        return;
    }
    std::vector<double> moments = momentsOfChange(search, planet);
    moments.insert(moments.begin(), search.span.from);
    // Between two moments the answer is the same; it is asked for in the middle.
    for (std::size_t i = 0; i < moments.size(); ++i) {
        const double end = i + 1 < moments.size() ? moments[i + 1] : search.span.to;
        const bool answer = isCombustAt(search.sky, planet, (moments[i] + end) / 2.0);
        const auto [last, isFirst] = lastAnswer_.try_emplace(planet, answer);
        if (last->second == answer) {
            continue;
        }
        last->second = answer;
        const SkyPosition position = search.sky.position(planet, moments[i]);
        TransitEvent event;
        event.julianDay = moments[i];
        event.kind = answer ? TransitKind::CombustEnter : TransitKind::CombustLeave;
        event.body = planet;
        event.longitude = position.longitude;
        event.sign = core::signOfLongitude(position.longitude);
        event.backward = position.speed < 0.0;
        sink(event);
    }
}

} // namespace kestrav::timing
