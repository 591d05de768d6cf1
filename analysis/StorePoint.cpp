#include "analysis/StorePoint.h"

#include "analysis/SignPositions.h"

#include <cmath>

namespace kestrav::analysis
{

void storePoint(core::Chart& chart, int point, double longitude)
{
    if (!std::isfinite(longitude)) {
        core::at(chart.degreeInSign, point) = core::kNotComputed;
        return;
    }
    core::at(chart.longitude, point) = longitude;
    computeSignData(chart, point);
}

void storePointInSign(core::Chart& chart, int point, int sign, double degree)
{
    // The sum must not round up into the next sign.
    const double end = std::nextafter(sign * 30.0, 0.0);
    storePoint(chart, point, std::fmin((sign - 1) * 30.0 + degree, end));
}

} // namespace kestrav::analysis
