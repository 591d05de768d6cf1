#include "astro/SiderealTime.h"

#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::astro
{

using core::kPi;
using core::kRadiansPerDegree;

double obliquityDegrees(double T)
{
    return 23.452294 - 0.0130125 * T;
}

void Obliquity(core::Chart& chart)
{
    const double obliquity = obliquityDegrees(chart.T) * kRadiansPerDegree;
    // The obliquity lives in the latitude slot of the ascendant, which has no latitude.
    chart.latitude[core::kAscendant] = obliquity;
    chart.cosObliquity = std::cos(obliquity);
    chart.sinObliquity = std::sin(obliquity);
}

double siderealTimeHours(double dayCount, double utHours, double geoLongitude)
{
    const double dayAt0h = std::floor(dayCount - utHours / 24.0) + 0.5;
    const double Tu = dayAt0h / core::kDaysPerCentury - 1.0;
    const double hours = ((-0.0000062 * Tu + 0.093104) * Tu + 8640184.812866) * Tu / 3600.0 +
                         6.697374558333333 + 1.00273790935 * utHours + geoLongitude / 15.0;
    return core::Normalize24(hours);
}

double LocalSiderealTime(const core::Chart& chart, bool useOtherTime)
{
    const double utHours = useOtherTime ? chart.otherLocalTime - chart.zone - chart.daylightSaving
                                        : chart.time.utHours;
    return siderealTimeHours(chart.time.dayCount, utHours, chart.geoLongitude);
}

double declinationOf(double longitude, double latitude, double cosObliquity, double sinObliquity)
{
    return std::asin(std::sin(latitude) * cosObliquity +
                     std::cos(latitude) * sinObliquity * std::sin(longitude));
}

int declinationSlot(int point)
{
    if (point >= core::kSun && point <= core::kKetu) {
        return point;
    }
    return point >= core::kUranus && point <= core::kPluto ? point - 22 : -1;
}

void Declination(core::Chart& chart, int point)
{
    const int slot = declinationSlot(point);
    if (slot < 0) {
        return;
    }
    const double tropical = core::Normalize360(core::at(chart.longitude, point) + chart.ayanamsa);
    core::at(chart.declination, slot) =
        declinationOf(tropical * kRadiansPerDegree, core::at(chart.latitude, point),
                      chart.cosObliquity, chart.sinObliquity);
}

double RightAscensionHours(const core::Chart& chart, double siderealLongitude)
{
    const double longitude =
        core::Normalize360(siderealLongitude + chart.ayanamsa) * kRadiansPerDegree;
    double alpha = std::atan(std::tan(longitude) * chart.cosObliquity);
    if (alpha < 0.0) {
        alpha += kPi;
    }
    const double hours = alpha * 12.0 / kPi;
    return longitude >= kPi ? hours + 12.0 : hours;
}

} // namespace kestrav::astro
