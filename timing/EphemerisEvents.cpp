#include "timing/EphemerisEvents.h"

#include "core/PointNames.h"
#include "core/SignData.h"
#include "timing/TransitSearch.h"

#include <algorithm>

namespace kestrav::timing
{

namespace
{

constexpr Levels kSigns{0.0, 30.0};

void addIngresses(std::vector<EphemerisEvent>& list, SiderealSky& sky, int body, Span span,
                  const CurveShape& shape)
{
    const auto longitude = [&](double day) {
        return sky.longitude(body, day);
    };
    for (const Crossing& crossing : crossingsIn(longitude, shape, span, kSigns)) {
        // The level of a sign's beginning; backwards the sign before it is entered, at its end.
        const int sign = crossing.rising ? crossing.level + 1 : (crossing.level + 11) % 12 + 1;
        list.push_back({EphemerisEventKind::Ingress, crossing.day, body, sign,
                        30.0 * crossing.level, !crossing.rising});
    }
}

void addStations(std::vector<EphemerisEvent>& list, SiderealSky& sky, int body, Span span,
                 const CurveShape& shape)
{
    const auto tropical = [&](double day) {
        return sky.tropicalLongitude(body, day);
    };
    for (const TurningPoint& turn : turningPointsIn(tropical, shape, span)) {
        const double longitude = sky.longitude(body, turn.day);
        list.push_back({EphemerisEventKind::Station, turn.day, body,
                        core::signOfLongitude(longitude), longitude, turn.highest});
    }
}

} // namespace

std::wstring ephemerisEventText(const EphemerisEvent& event)
{
    std::wstring text(core::PointName(4, event.body));
    while (!text.empty() && text.back() == L' ') {
        text.pop_back(); // some names end in a blank
    }
    if (event.kind == EphemerisEventKind::Ingress) {
        text += event.retrograde ? L" re-enters (R) " : L" enters ";
    } else {
        text += event.retrograde ? L" turns retrograde in " : L" turns direct in ";
    }
    text += core::signNameLong(event.sign);
    return text;
}

std::vector<EphemerisEvent> ephemerisEventsIn(SiderealSky& sky, const std::vector<int>& bodies,
                                              Span span, FunctionRef<bool(std::size_t)> progress)
{
    std::vector<EphemerisEvent> list;
    for (std::size_t done = 0; done < bodies.size() && progress(done); ++done) {
        const int body = bodies[done];
        const CurveShape shape = transitShape(body);
        addIngresses(list, sky, body, span, shape);
        if (!shape.monotone) {
            addStations(list, sky, body, span, shape);
        }
    }
    std::stable_sort(
        list.begin(), list.end(),
        [](const EphemerisEvent& a, const EphemerisEvent& b) { return a.julianDay < b.julianDay; });
    return list;
}

std::vector<EphemerisEvent> ephemerisEventsIn(SiderealSky& sky, const std::vector<int>& bodies,
                                              Span span)
{
    return ephemerisEventsIn(sky, bodies, span, [](std::size_t) { return true; });
}

} // namespace kestrav::timing
