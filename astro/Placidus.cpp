#include "astro/Placidus.h"

#include "astro/BranchFreeTrig.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::astro
{

namespace
{

using core::kPi;

constexpr int kRounds = 10;

// Room for ten points and whole vectors.
constexpr std::size_t kLaneCount = 16;
using Lanes = std::array<double, kLaneCount>;

// The arc cosine, 0 to pi, without branches, good to 3e-16. Beyond 1 and -1 it is no number.
// The polynomial is (asin(x) / x - 1) / x^2 in x^2 on 0..0.25, by Chebyshev interpolation.
[[gnu::always_inline]] inline double arcCosineBranchFree(double x)
{
    const double size = std::fabs(x);
    const bool large = size > 0.5;
    const double half = (1.0 - size) * 0.5;
    const double z = large ? half : x * x;
    const double root = std::sqrt(half);
    const double s = large ? root : size;
    double sum = 0.028169218060883034;
    sum = sum * z - 0.010749050339700132;
    sum = sum * z + 0.016035514349150272;
    sum = sum * z + 0.007802949477352803;
    sum = sum * z + 0.011875494382637037;
    sum = sum * z + 0.013929652902326617;
    sum = sum * z + 0.017355259955786323;
    sum = sum * z + 0.02237204763174451;
    sum = sum * z + 0.03038194736709848;
    sum = sum * z + 0.044642857103423646;
    sum = sum * z + 0.07500000000020764;
    sum = sum * z + 0.1666666666666665;
    const double arc = s + s * (z * sum);
    const double fromTop = large ? arc + arc : kPi / 2.0 - arc; // the arc cosine of |x|
    return x < 0.0 ? kPi - fromTop : fromTop;
}

struct Division
{
    Lanes R = {};    // the right ascension approached, radians
    Lanes sign = {}; // of x: -1 above the horizon, 1 below
    Lanes step = {}; // 1 / F with that sign turned round
    Lanes base = {}; // where the arc is counted from, radians
};

// The rounds of all lanes. H is the arc cosine of x; x of 1 and more is held just below 1, and x
// below -1 gives no number, because there is no such point.
KESTRAV_CLONES
void divideSemiArcs(Division& division, double tangents)
{
    constexpr double kBelowOne = 1.0 - 0x1p-53;
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < kLaneCount; ++i) {
            double x = division.sign[i] * (sineBranchFree(division.R[i]) * tangents);
            x = x >= 1.0 ? kBelowOne : x;
            division.R[i] = division.base[i] + arcCosineBranchFree(x) * division.step[i];
        }
    }
}

double ramcOf(const core::Chart& chart)
{
    return chart.localSiderealTime * 15.0 * core::kRadiansPerDegree;
}

void setLane(Division& division, std::size_t lane, int A, bool below, double ramc)
{
    const int k = A < 90 ? A : 180 - A;
    const double F = 90.0 / (A == 0 ? 90.0 : k);
    division.R[lane] = A * kPi / 180.0 + ramc;
    division.sign[lane] = below ? 1.0 : -1.0;
    division.step[lane] = below ? -1.0 / F : 1.0 / F;
    division.base[lane] = below ? ramc + kPi : ramc;
}

double tangentsOf(const core::Chart& chart)
{
    const double cosObliquity = chart.cosObliquity == 0.0 ? 1.0 : chart.cosObliquity;
    return std::tan(chart.geoLatitude * core::kRadiansPerDegree) *
           (chart.sinObliquity / cosObliquity);
}

double longitudeOf(const core::Chart& chart, double R)
{
    const double cosObliquity = chart.cosObliquity == 0.0 ? 1.0 : chart.cosObliquity;
    const double sine = std::sin(R);
    double longitude = std::atan(sine / std::cos(R) / cosObliquity);
    if (longitude < 0.0) {
        longitude += kPi;
    }
    if (sine < 0.0) {
        longitude += kPi;
    }
    return core::Normalize360(longitude * core::kDegreesPerRadian - chart.ayanamsa);
}

} // namespace

double PlacidusPoint(const core::Chart& chart, int A, bool below)
{
    Division division;
    setLane(division, 0, A, below, ramcOf(chart));
    divideSemiArcs(division, tangentsOf(chart));
    return longitudeOf(chart, division.R[0]);
}

std::array<double, kPlacidusAngles.size()> placidusPoints(const core::Chart& chart)
{
    Division division;
    const double ramc = ramcOf(chart);
    for (std::size_t i = 0; i < kPlacidusAngles.size(); ++i) {
        setLane(division, i, kPlacidusAngles[i], kPlacidusAngles[i] > 90, ramc);
    }
    divideSemiArcs(division, tangentsOf(chart));
    std::array<double, kPlacidusAngles.size()> points{};
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = longitudeOf(chart, division.R[i]);
    }
    return points;
}

} // namespace kestrav::astro
