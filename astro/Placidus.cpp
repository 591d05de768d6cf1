#include "astro/Placidus.h"

#include "astro/BranchFreeTrig.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace kestrav::astro
{

namespace
{

using core::kPi;

constexpr int kRounds = 10;

// Room for ten points and whole vectors.
constexpr std::size_t kLaneCount = 12;
using Lanes = std::array<double, kLaneCount>;

// `a` where the sign bit of `number` is set, otherwise `b`: a choice that every instruction set has
// for whole vectors.
[[gnu::always_inline]] inline double chooseBySign(double number, double a, double b)
{
    const std::uint64_t mask = 0U - (std::bit_cast<std::uint64_t>(number) >> 63);
    return std::bit_cast<double>((std::bit_cast<std::uint64_t>(a) & mask) |
                                 (std::bit_cast<std::uint64_t>(b) & ~mask));
}

// The arc cosine in half turns, 0 to 1, without branches, good to 3e-16. Beyond 1 and -1 it is no
// number. The polynomial is (asin(x) / x - 1) / x^2 in x^2 on 0..0.25, by Chebyshev interpolation,
// in four short chains.
[[gnu::always_inline]] inline double arcCosineInHalfTurns(double x)
{
    const double size = std::fabs(x);
    const double room = 0.5 - size;
    const double half = (1.0 - size) * 0.5;
    const double root = std::sqrt(half);
    const double z = chooseBySign(room, half, x * x);
    const double s = chooseBySign(room, root, size);
    const double z2 = z * z;
    const double z4 = z2 * z2;
    const double low = (0.1666666666666665 + 0.07500000000020764 * z) +
                       (0.044642857103423646 + 0.03038194736709848 * z) * z2;
    const double middle = (0.02237204763174451 + 0.017355259955786323 * z) +
                          (0.013929652902326617 + 0.011875494382637037 * z) * z2;
    const double high = (0.007802949477352803 + 0.016035514349150272 * z) +
                        (0.028169218060883034 * z - 0.010749050339700132) * z2;
    const double sum = low + (middle + high * z4) * z4;
    const double arc = (s + s * (z * sum)) * (1.0 / kPi);
    const double signedArc = std::copysign(arc, x);
    // From the near end of the half turn, or from its middle.
    return chooseBySign(room, chooseBySign(x, 1.0, 0.0) + (signedArc + signedArc), 0.5 - signedArc);
}

// All angles are in half turns.
struct Division
{
    Lanes R = {};    // the right ascension approached
    Lanes sign = {}; // of x: -1 above the horizon, 1 below
    Lanes step = {}; // 1 / F with that sign turned round
    Lanes base = {}; // where the arc is counted from
};

// The rounds of all lanes. H is the arc cosine of x; x of 1 and more is held just below 1, and x
// below -1 gives no number, because there is no such point.
KESTRAV_CLONES
void divideSemiArcs(Division& division, double tangents)
{
    constexpr double kBelowOne = 1.0 - 0x1p-53;
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < kLaneCount; ++i) {
            const double x = division.sign[i] * (sineOfHalfTurns(division.R[i]) * tangents);
            // Whatever its sign bit, not-a-number stays so through the difference.
            const double held = chooseBySign(kBelowOne - x, kBelowOne, x) + (x - x);
            division.R[i] = division.base[i] + arcCosineInHalfTurns(held) * division.step[i];
        }
    }
}

// The right ascension of the upper meridian in half turns.
double ramcOf(const core::Chart& chart)
{
    return chart.localSiderealTime / 12.0;
}

void setLane(Division& division, std::size_t lane, int A, bool below, double ramc)
{
    const int k = A < 90 ? A : 180 - A;
    const double F = 90.0 / (A == 0 ? 90.0 : k);
    division.R[lane] = A / 180.0 + ramc;
    division.sign[lane] = below ? 1.0 : -1.0;
    division.step[lane] = below ? -1.0 / F : 1.0 / F;
    division.base[lane] = below ? ramc + 1.0 : ramc;
}

double tangentsOf(const core::Chart& chart)
{
    const double cosObliquity = chart.cosObliquity == 0.0 ? 1.0 : chart.cosObliquity;
    return std::tan(chart.geoLatitude * core::kRadiansPerDegree) *
           (chart.sinObliquity / cosObliquity);
}

double longitudeOf(const core::Chart& chart, double halfTurns)
{
    const double R = halfTurns * kPi;
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
