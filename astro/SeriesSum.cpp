#include "astro/BranchFreeTrig.h"
#include "astro/Engine.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::astro
{

namespace
{

// One flat loop over all terms of an entry: short blocks would ruin a loop per block.
KESTRAV_CLONES
void evaluateTerms(const double* amplitude, const double* phase, const double* frequency, double t,
                   std::size_t count, double* values)
{
    for (std::size_t i = 0; i < count; ++i) {
        values[i] = amplitude[i] * cosineBranchFree(phase[i] + frequency[i] * t);
    }
}

// The lanes are added up in one fixed order, so every instruction set gives the same bits.
double sumLanes(const double* values, std::size_t count)
{
    std::array<double, kLanes> lanes = {};
    const std::size_t whole = count - count % kLanes;
    for (std::size_t i = 0; i < whole; i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            lanes[lane] += values[i + lane];
        }
    }
    for (std::size_t lane = 0; lane < count - whole; ++lane) {
        lanes[lane] += values[whole + lane];
    }
    return ((lanes[0] + lanes[4]) + (lanes[2] + lanes[6])) +
           ((lanes[1] + lanes[5]) + (lanes[3] + lanes[7]));
}

std::size_t entryOfCode(int code)
{
    if (code < kCodeMars) {
        return 0;
    }
    return code >= kCodePluto ? 8 : std::size_t(code - 2);
}

} // namespace

void SumSeries(const EphemerisContext& context, int code, HeliocentricPosition& out)
{
    const Series& series = context.series();
    const SeriesEntry& entry = series.entries[entryOfCode(code)];
    std::array<double, kLongestEntry> values;
    evaluateTerms(series.amplitude.data() + entry.first, series.phase.data() + entry.first,
                  series.frequency.data() + entry.first, context.t, entry.length, values.data());

    std::array<double, 3> coordinates = {};
    std::size_t block = 0;
    for (double& coordinate : coordinates) {
        double power = 1.0;
        for (int k = 0; k < kPowersPerCoordinate; ++k, ++block) {
            const SeriesBlock& terms = entry.blocks[block];
            coordinate += power * sumLanes(&values[terms.first - entry.first], terms.count);
            power *= context.t;
        }
    }
    const double L = coordinates[0];
    out = {L - std::floor(L / core::kTwoPi) * core::kTwoPi, coordinates[1], coordinates[2]};
}

} // namespace kestrav::astro
