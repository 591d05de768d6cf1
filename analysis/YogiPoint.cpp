#include "analysis/YogiPoint.h"

#include "analysis/DayParts.h"
#include "analysis/DignityTables.h"
#include "analysis/NakshatraLords.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <optional>

namespace kestrav::analysis
{

namespace
{

using core::Normalize360;

constexpr double kYogiStart = 93.0 + 20.0 / 60.0;
constexpr double kAvayogiFromYogi = 186.0 + 40.0 / 60.0;

int lordOfNakshatraAt(double longitude)
{
    return nakshatraLord(core::nakshatraPositionOf(longitude));
}

} // namespace

Yogi yogiOf(double sun, double moon)
{
    const double point = Normalize360(sun + moon + kYogiStart);
    const double avayogi = Normalize360(point + kAvayogiFromYogi);
    return {point, lordOfNakshatraAt(point), signLord(core::signOfLongitude(point)), avayogi,
            lordOfNakshatraAt(avayogi)};
}

double partOfFortune(double ascendant, double sun, double moon, bool night)
{
    return Normalize360(night ? ascendant + sun - moon : ascendant + moon - sun);
}

void computeYogiAndFortune(core::Chart& chart)
{
    if (!chart.computed(core::kSun) || !chart.computed(core::kMoon)) {
        return;
    }
    const double sun = chart.longitude[core::kSun];
    const double moon = chart.longitude[core::kMoon];
    storePoint(chart, core::kYogiPoint, yogiOf(sun, moon).point);
    const std::optional<bool> night = isNight(chart);
    if (night && chart.computed(core::kAscendant)) {
        const double ascendant = chart.longitude[core::kAscendant];
        storePoint(chart, core::kPartOfFortune, partOfFortune(ascendant, sun, moon, *night));
    }
}

} // namespace kestrav::analysis
