#include "astro/BranchFreeTrig.h"
#include "astro/Engine.h"
#include "core/numeric.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>

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

// Two lanes that stay in a register; every instruction set has such pairs.
using Pair [[gnu::vector_size(16)]] = double;
constexpr std::size_t kPairs = kLanes / 2;

Pair pairAt(const double* values)
{
    Pair pair;
    std::memcpy(&pair, values, sizeof pair);
    return pair;
}

// For every number of terms in the last lanes of a block what lets these through.
constexpr auto kLaneMasks = [] {
    std::array<std::array<double, kLanes>, kLanes> masks = {};
    for (std::size_t count = 0; count < kLanes; ++count) {
        for (std::size_t lane = 0; lane < count; ++lane) {
            masks[count][lane] = 1.0;
        }
    }
    return masks;
}();

// One coordinate: the sum over its blocks of t^k times the terms of block k, from the highest power
// down. The lanes are added up in one fixed order, so every instruction set gives the same bits.
// Up to a whole vector behind the last term is read.
double sumBlocks(const double* values, const SeriesBlock* blocks, std::size_t first, double t)
{
    std::array<Pair, kPairs> lanes = {};
    for (int k = kPowersPerCoordinate; k-- > 0;) {
        const double* block = values + (blocks[k].first - first);
        const double* const rest = block + blocks[k].count / kLanes * kLanes;
        const double* const mask = kLaneMasks[blocks[k].count % kLanes].data();
        std::array<Pair, kPairs> sums;
        for (std::size_t i = 0; i < kPairs; ++i) {
            sums[i] = pairAt(rest + 2 * i) * pairAt(mask + 2 * i);
        }
        for (; block != rest; block += kLanes) {
            for (std::size_t i = 0; i < kPairs; ++i) {
                sums[i] += pairAt(block + 2 * i);
            }
        }
        for (std::size_t i = 0; i < kPairs; ++i) {
            lanes[i] = lanes[i] * t + sums[i];
        }
    }
    const Pair all = (lanes[0] + lanes[2]) + (lanes[1] + lanes[3]);
    return all[0] + all[1];
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
    std::array<double, kLongestEntry + kLanes> values;
    evaluateTerms(series.amplitude.data() + entry.first, series.phase.data() + entry.first,
                  series.frequency.data() + entry.first, context.t, entry.length, values.data());
    std::fill_n(values.begin() + std::ptrdiff_t(entry.length), kLanes, 0.0);

    std::array<double, 3> coordinates = {};
    for (std::size_t i = 0; i < coordinates.size(); ++i) {
        coordinates[i] = sumBlocks(values.data(), &entry.blocks[i * kPowersPerCoordinate],
                                   entry.first, context.t);
    }
    const double L = coordinates[0];
    out = {L - std::floor(L / core::kTwoPi) * core::kTwoPi, coordinates[1], coordinates[2]};
}

} // namespace kestrav::astro
