#include "analysis/SignPositions.h"

#include "core/SignData.h"

namespace kestrav::analysis
{

void computeSignData(core::Chart& chart, int point)
{
    const double longitude = core::at(chart.longitude, point);
    core::at(chart.rashi, point) = core::signOfLongitude(longitude);
    core::at(chart.degreeInSign, point) = core::degreeInSignOf(longitude);
    core::at(chart.navamshaSign, point) = core::navamshaSignOf(longitude);
    core::at(chart.nakshatraPosition, point) = core::nakshatraPositionOf(longitude);
}

} // namespace kestrav::analysis
