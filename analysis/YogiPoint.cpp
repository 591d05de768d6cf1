#include "analysis/YogiPoint.h"

#include "analysis/DignityTables.h"
#include "analysis/NakshatraLords.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/SignData.h"

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

void computeYogiAndFortune(core::Chart& chart, bool night)
{
    const double sun = chart.longitude[core::kSun];
    const double moon = chart.longitude[core::kMoon];
    storePoint(chart, core::kYogiPoint, yogiOf(sun, moon).point);
    storePoint(chart, core::kPartOfFortune,
               partOfFortune(chart.longitude[core::kAscendant], sun, moon, night));
}

} // namespace kestrav::analysis
