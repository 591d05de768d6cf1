#include "analysis/Aspects.h"

#include "core/Angles.h"

#include <cmath>

namespace kestrav::analysis
{

namespace
{

constexpr double kFullValue = 60.0;

bool isNode(int planet)
{
    return planet == core::kRahu || planet == core::kKetu;
}

double generalValue(double k)
{
    if (k < 30.0 || k >= 300.0) {
        return 0.0;
    }
    if (k < 60.0) {
        return (k - 30.0) / 2.0;
    }
    if (k < 90.0) {
        return k - 45.0;
    }
    if (k < 120.0) {
        return 30.0 + (120.0 - k) / 2.0;
    }
    if (k < 150.0) {
        return 150.0 - k;
    }
    if (k < 180.0) {
        return 2.0 * (k - 150.0);
    }
    return (300.0 - k) / 2.0;
}

double specialValue(int planet, double k)
{
    const auto inside = [k](double low, double high) {
        return k >= low && k < high;
    };
    switch (planet) {
    case core::kSaturn:
        return inside(60.0, 90.0) || inside(270.0, 300.0) ? 45.0 : 0.0;
    case core::kJupiter:
        return inside(120.0, 150.0) || inside(240.0, 270.0) ? 30.0 : 0.0;
    case core::kMars:
        return inside(90.0, 120.0) || inside(210.0, 240.0) ? 15.0 : 0.0;
    default:
        return 0.0;
    }
}

} // namespace

bool fullGrahaAspect(int planet, int house, const core::Settings& settings)
{
    if (isNode(planet)) {
        return house == 5 || house == 9 || (house == 2 && settings.nodeAspectOption == 1) ||
               (house == 12 && settings.nodeAspectOption == 2);
    }
    switch (house) {
    case 7:
        return true;
    case 4:
    case 8:
        return planet == core::kMars;
    case 5:
    case 9:
        return planet == core::kJupiter;
    case 3:
    case 10:
        return planet == core::kSaturn;
    default:
        return false;
    }
}

double grahaAspectShare(int planet, int house, const core::Settings& settings)
{
    if (fullGrahaAspect(planet, house, settings)) {
        return 1.0;
    }
    if (isNode(planet)) {
        return 0.0;
    }
    switch (house) {
    case 3:
    case 10:
        return 0.25;
    case 5:
    case 9:
        return 0.5;
    case 4:
    case 8:
        return 0.75;
    default:
        return 0.0;
    }
}

bool fullyAspects(const core::Chart& chart, int planet, int sign, const core::Settings& settings)
{
    if (!chart.computed(planet)) {
        return false;
    }
    const int house = core::norm12(sign - core::at(chart.rashi, planet) + 1);
    return fullGrahaAspect(planet, house, settings);
}

double aspectValue(int planet, double k)
{
    return std::fmin(generalValue(k) + specialValue(planet, k), kFullValue);
}

double aspectValueOn(const core::Chart& chart, int planet, double longitude)
{
    if (!chart.computed(planet)) {
        return 0.0;
    }
    return aspectValue(planet, core::Normalize360(longitude - core::at(chart.longitude, planet)));
}

} // namespace kestrav::analysis
