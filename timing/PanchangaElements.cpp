#include "timing/PanchangaElements.h"

#include "core/Angles.h"
#include "core/Points.h"
#include "timing/PanchangaNames.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kestrav::timing
{

namespace
{

// An element lasts from 0.8 to 1.2 days, a karana half as long.
constexpr double kLongestElement = 3.0;

int countOf(Element element)
{
    switch (element) {
    case Element::Tithi:
        return kTithis;
    case Element::Karana:
        return kKaranas;
    case Element::Nakshatra:
        return kNakshatras;
    case Element::Yoga:
        return kYogas;
    }
    return 1;
}

int firstNumberOf(Element element)
{
    return element == Element::Karana ? 1 : 0;
}

// The angle that is cut into equal parts.
double angleOf(Element element, double sun, double moon)
{
    switch (element) {
    case Element::Nakshatra:
        return moon;
    case Element::Yoga:
        return core::Normalize360(sun + moon);
    case Element::Tithi:
    case Element::Karana:
        break;
    }
    return core::Normalize360(moon - sun);
}

int numberOf(Element element, double sun, double moon)
{
    const int count = countOf(element);
    const int part = int(std::floor(angleOf(element, sun, moon) * (count / 360.0)));
    return std::clamp(part, 0, count - 1) + firstNumberOf(element);
}

} // namespace

ElementNumbers elementsOf(double sun, double moon)
{
    return {numberOf(Element::Tithi, sun, moon), numberOf(Element::Karana, sun, moon),
            numberOf(Element::Nakshatra, sun, moon), numberOf(Element::Yoga, sun, moon)};
}

ElementNumbers elementsAt(SiderealSky& sky, double julianDay)
{
    return elementsOf(sky.longitude(core::kSun, julianDay), sky.longitude(core::kMoon, julianDay));
}

std::vector<ElementPeriod> elementsIn(SiderealSky& sky, Element element, Span span)
{
    const bool needsSun = element != Element::Nakshatra;
    const auto angle = [&](double day) {
        const double sun = needsSun ? sky.longitude(core::kSun, day) : 0.0;
        return angleOf(element, sun, sky.longitude(core::kMoon, day));
    };
    // The Moon never turns back and moves less than 16 degrees a day.
    const CurveShape shape{360.0, 1.0, true, 1e-6};
    const Levels levels{0.0, 360.0 / countOf(element)};
    std::vector<ElementPeriod> periods;
    const std::optional<Crossing> start =
        lastCrossing(angle, shape, {span.from - kLongestElement, span.from}, levels);
    if (!start) {
        return periods;
    }
    ElementPeriod period{start->level + firstNumberOf(element), start->day, start->day};
    forEachCrossing(
        angle, shape, {span.from, std::fmax(span.from, span.to) + kLongestElement}, levels,
        [&](const Crossing& crossing) {
            period.end = crossing.day;
            periods.push_back(period);
            period = {crossing.level + firstNumberOf(element), crossing.day, crossing.day};
            return crossing.day < span.to;
        });
    return periods;
}

} // namespace kestrav::timing
