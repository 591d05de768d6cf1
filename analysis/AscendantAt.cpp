#include "analysis/AscendantAt.h"

#include "astro/Houses.h"
#include "astro/SiderealTime.h"

namespace kestrav::analysis
{

double ascendantAt(core::Chart& chart, double localHour)
{
    const double hours = localHour - chart.time.localTime;
    const double siderealTime = astro::siderealTimeHours(
        chart.time.dayCount + hours / 24.0, chart.time.utHours + hours, chart.geoLongitude);
    return astro::Ascendant(chart, siderealTime, 0);
}

} // namespace kestrav::analysis
