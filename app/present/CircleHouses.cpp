#include "app/present/CircleDiagram.h"
#include "astro/Houses.h"
#include "core/SignData.h"

#include <algorithm>

namespace kestrav::present
{

namespace
{

using core::at;

constexpr std::size_t kHouses = 12;

// Whether every house is longer than nothing and all together are one circle.
bool goesAround(const std::array<double, 12>& starts)
{
    double total = 0.0;
    for (std::size_t i = 0; i < kHouses; ++i) {
        const double length = core::Normalize360(starts[(i + 1) % kHouses] - starts[i]);
        if (length <= 0.0) {
            return false;
        }
        total += length;
    }
    return total < 361.0;
}

void fillFromCusps(const core::Chart& chart, CircleHouses& houses)
{
    for (int i = 0; i < int(kHouses); ++i) {
        at(houses.starts, i) = at(chart.longitude, core::cuspPoint(i + 1));
        at(houses.signs, i) = at(chart.rashi, core::cuspPoint(i + 1));
    }
}

bool hasCusps(const core::Chart& chart)
{
    for (int house = 1; house <= int(kHouses); ++house) {
        if (!chart.computed(core::cuspPoint(house))) {
            return false;
        }
    }
    return true;
}

bool hasSandhis(const core::Chart& chart)
{
    return chart.hasSandhis && hasCusps(chart) &&
           std::all_of(chart.sandhis.begin(), chart.sandhis.end(),
                       [](double sandhi) { return sandhi >= 0.0; });
}

CircleBounds automatic(const core::Chart& chart)
{
    if (hasSandhis(chart)) {
        return CircleBounds::Sandhis;
    }
    const bool kp = chart.houseSystem == int(astro::HouseSystem::PlacidusKp);
    return kp && hasCusps(chart) ? CircleBounds::Cusps : CircleBounds::Signs;
}

void fillWithSigns(int first, CircleHouses& houses)
{
    houses.bounds = CircleBounds::Signs;
    for (int i = 0; i < int(kHouses); ++i) {
        at(houses.signs, i) = core::norm12(first + i);
        at(houses.starts, i) = (at(houses.signs, i) - 1) * 30.0;
    }
}

} // namespace

CircleHouses circleHouses(const DiagramFrame& frame)
{
    const core::Chart& chart = frame.subject.chart;
    const bool own = frame.options.firstSign == 0;
    const bool rashi = frame.subject.varga == core::kRashi && own;
    const CircleBounds asked = frame.options.bounds;
    CircleHouses houses;
    houses.bounds = asked;
    if (asked == CircleBounds::Automatic) {
        houses.bounds = rashi ? automatic(chart) : CircleBounds::Signs;
    }
    bool filled = false;
    if (houses.bounds == CircleBounds::Sandhis && rashi && hasSandhis(chart)) {
        fillFromCusps(chart, houses);
        houses.starts = chart.sandhis;
        filled = goesAround(houses.starts);
    } else if (houses.bounds == CircleBounds::Cusps && rashi && hasCusps(chart)) {
        fillFromCusps(chart, houses);
        filled = goesAround(houses.starts);
    } else if (houses.bounds == CircleBounds::Equal && own) {
        const double ascendant = frame.startOfCircle();
        for (int i = 0; i < int(kHouses); ++i) {
            at(houses.starts, i) = core::Normalize360(ascendant + 30.0 * i);
            at(houses.signs, i) = core::norm12(frame.first + i);
        }
        filled = true;
    }
    if (!filled) {
        houses.replaced = houses.bounds != CircleBounds::Signs;
        fillWithSigns(frame.first, houses);
    }
    return houses;
}

int houseAt(const CircleHouses& houses, double longitude)
{
    for (std::size_t i = 0; i < kHouses; ++i) {
        const double length =
            core::Normalize360(houses.starts[(i + 1) % kHouses] - houses.starts[i]);
        if (core::Normalize360(longitude - houses.starts[i]) < length) {
            return int(i) + 1;
        }
    }
    // Rounding can leave a hair between two houses.
    return 1;
}

} // namespace kestrav::present
