#include "analysis/StrengthParts.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "core/Angles.h"

namespace kestrav::analysis
{

using core::at;

Strength sumOf(std::initializer_list<Strength> parts)
{
    double sum = 0.0;
    for (const Strength& part : parts) {
        if (!part) {
            return std::nullopt;
        }
        sum += *part;
    }
    return sum;
}

double arcBetween(double first, double second)
{
    const double arc = core::Normalize360(first - second);
    return arc > 180.0 ? 360.0 - arc : arc;
}

bool allPlanetsComputed(const core::Chart& chart)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (!chart.computed(planet)) {
            return false;
        }
    }
    return true;
}

std::optional<int> rashiDisplay(const core::Chart& chart, int point, const core::Settings& settings)
{
    if (!chart.computed(point)) {
        return std::nullopt;
    }
    const int sign = at(chart.rashi, point);
    const int display = displayDignity(chart, point, sign, core::kRashi, settings);
    const bool byRelationship = display >= kGreatEnemy + 3 && display <= kGreatFriend + 3;
    if (byRelationship && point <= core::kSaturn && !chart.computed(signLord(sign))) {
        return std::nullopt;
    }
    return display;
}

} // namespace kestrav::analysis
