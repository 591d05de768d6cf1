#include "astro/PreciseMoon.h"

#include "astro/BranchFreeTrig.h"
#include "astro/MoonSeriesData.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <array>
#include <cstddef>

namespace kestrav::astro
{

namespace
{

constexpr double kDaysPerCentury = 36525.0;
constexpr double kKilometresPerAu = 149597870.7; // IAU 2012
constexpr double kArcSecondsPerDegree = 3600.0;

// Mean light time from the Moon, in centuries. Planetary aberration comes to this alone, because
// the Moon shares the Earth's motion round the Sun.
constexpr double kLightTime = 1.2822 / (86400.0 * kDaysPerCentury);

// General precession in longitude, arc seconds by power of T. The series counts from the equinox of
// J2000.0.
constexpr std::array<double, 5> kPrecession{0.0, 5028.79695, 1.1120, 0.000077, -0.00002353};

struct SeriesSums
{
    double longitude;     // arc seconds
    double longitudeRate; // arc seconds per century
    double latitude;      // arc seconds
    double distance;      // kilometres
};

struct ValueAndRate
{
    double value;
    double rate;
};

// A polynomial of degree 4 and its derivative.
[[gnu::always_inline]] inline ValueAndRate polynomial(double c0, double c1, double c2, double c3,
                                                      double c4, double t)
{
    double value = c4 * t + c3;
    double rate = c4 * t + value;
    value = value * t + c2;
    rate = rate * t + value;
    value = value * t + c1;
    rate = rate * t + value;
    value = value * t + c0;
    return {value, rate};
}

ValueAndRate polynomial(const std::array<double, 5>& c, double t)
{
    return polynomial(c[0], c[1], c[2], c[3], c[4], t);
}

// The sum of one block of terms. The lanes are added in one fixed order, whatever the instruction
// set.
[[gnu::always_inline]] inline double sumBlock(const double* terms, const MoonSeriesBlock& block)
{
    std::array<double, kMoonLanes> lanes{};
    for (std::size_t i = block.begin; i < block.end; i += kMoonLanes) {
        for (std::size_t lane = 0; lane < kMoonLanes; ++lane) {
            lanes[lane] += terms[i + lane];
        }
    }
    return ((lanes[0] + lanes[4]) + (lanes[2] + lanes[6])) +
           ((lanes[1] + lanes[5]) + (lanes[3] + lanes[7]));
}

// All terms at t centuries from J2000.0: one flat loop that fills an array, then the block sums
// weighted by the powers of t.
KESTRAV_CLONES SeriesSums sumSeries(double t)
{
    alignas(64) std::array<double, kMoonTermCount> terms;
    alignas(64) std::array<double, kMoonLongitudeEnd> rates;
    for (std::size_t i = 0; i < kMoonLongitudeEnd; ++i) {
        const ValueAndRate phase = polynomial(kMoonPhase0[i], kMoonPhase1[i], kMoonPhase2[i],
                                              kMoonPhase3[i], kMoonPhase4[i], t);
        const SineCosine direction = sineCosineBranchFree(phase.value);
        terms[i] = kMoonAmplitude[i] * direction.sine;
        rates[i] = kMoonAmplitude[i] * direction.cosine * phase.rate;
    }
    for (std::size_t i = kMoonLongitudeEnd; i < kMoonTermCount; ++i) {
        const double phase =
            (((kMoonPhase4[i] * t + kMoonPhase3[i]) * t + kMoonPhase2[i]) * t + kMoonPhase1[i]) *
                t +
            kMoonPhase0[i];
        terms[i] = kMoonAmplitude[i] * sineBranchFree(phase);
    }
    SeriesSums sums{};
    for (std::size_t power = kMoonPowers; power-- > 0;) {
        const double longitude = sumBlock(terms.data(), kMoonBlocks[power]);
        const double rate = sumBlock(rates.data(), kMoonBlocks[power]);
        sums.longitudeRate = sums.longitudeRate * t + (sums.longitude + rate);
        sums.longitude = sums.longitude * t + longitude;
        sums.latitude =
            sums.latitude * t + sumBlock(terms.data(), kMoonBlocks[kMoonPowers + power]);
        sums.distance =
            sums.distance * t + sumBlock(terms.data(), kMoonBlocks[2 * kMoonPowers + power]);
    }
    return sums;
}

} // namespace

MoonPosition preciseMoon(double centuriesFrom1900)
{
    const double t = centuriesFrom1900 - 1.0;
    const double retarded = t - kLightTime;
    const SeriesSums sums = sumSeries(retarded);
    const ValueAndRate mean = polynomial(kMoonMeanLongitude, retarded);
    const ValueAndRate precession = polynomial(kPrecession, t);

    const double longitude = mean.value * core::kDegreesPerRadian +
                             (sums.longitude + precession.value) / kArcSecondsPerDegree;
    const double rate = mean.rate * core::kDegreesPerRadian +
                        (sums.longitudeRate + precession.rate) / kArcSecondsPerDegree;
    return {core::Normalize360(longitude),
            sums.latitude / kArcSecondsPerDegree * core::kRadiansPerDegree,
            sums.distance / kKilometresPerAu, rate / kDaysPerCentury};
}

} // namespace kestrav::astro
