#include "analysis/Rashmis.h"

#include "analysis/DignityTables.h"

#include <array>

namespace kestrav::analysis
{

namespace
{

using core::at;

// Rays at the deepest exaltation; entry 0 is unused.
constexpr PlanetArray<double> kMostRays = {0, 10, 9, 5, 5, 7, 8, 5};

// By display index, debilitated to exalted. A debilitated planet loses nothing more, because it
// stands near the point where it has no rays.
constexpr std::array<double, 9> kDignityFactors = {1.0,       2.0 / 5.0, 1.0 / 2.0, 1.0, 6.0 / 5.0,
                                                   4.0 / 3.0, 3.0 / 2.0, 2.0,       3.0};

} // namespace

double mostRays(int planet)
{
    return at(kMostRays, planet);
}

double rayFactor(int display)
{
    return at(kDignityFactors, display);
}

Rashmis computeRashmis(const core::Chart& chart, const core::Settings& settings)
{
    Rashmis rashmis;
    rashmis.total = 0.0;
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Strength& rays = at(rashmis.planets, planet);
        if (const std::optional<int> display = rashiDisplay(chart, planet, settings)) {
            const double arc = arcBetween(at(chart.longitude, planet), deepExaltation(planet));
            rays = mostRays(planet) * (180.0 - arc) / 180.0 * rayFactor(*display);
        }
        rashmis.total = sumOf({rashmis.total, rays});
    }
    return rashmis;
}

} // namespace kestrav::analysis
