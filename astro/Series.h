// The planetary series as they are held in memory: loaded once, shared, never changed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrav::astro
{

inline constexpr int kSeriesEntries = 9;
/// Powers t^0 to t^5 of longitude, latitude and radius, in this order.
inline constexpr int kSeriesBlocks = 18;
inline constexpr int kPowersPerCoordinate = 6;
inline constexpr int kSeriesTerms = 2637;

/// The terms of a block are summed in this many lanes, on every instruction set.
inline constexpr std::size_t kLanes = 8;

/// The longest padded entry that a series file can ask for.
inline constexpr std::size_t kLongestEntry = std::size_t(kSeriesTerms) + kLanes - 1;

/// Terms A cos(B + C t) of one coordinate and power: `count` terms from index `first` on.
struct SeriesBlock
{
    std::uint32_t first = 0;
    std::uint32_t count = 0;
};

/// One entry: entry 0 is the Earth referred to the equinox of date, 1 Mars, 2 Mercury, 3 Jupiter, 4
/// Venus, 5 Saturn, 6 Uranus, 7 Neptune, 8 the Earth referred to J2000.0. The entries are not in
/// the order of distance.
struct SeriesEntry
{
    std::array<SeriesBlock, kSeriesBlocks> blocks = {};
    std::size_t first = 0; ///< index of the entry's first term
    std::size_t length =
        0; ///< number of its terms, padded with terms of amplitude 0 to whole lanes
};

struct Series
{
    std::array<SeriesEntry, kSeriesEntries> entries = {};
    std::vector<double> amplitude; ///< A in radians, or astronomical units for the radius
    std::vector<double> phase;     ///< B in radians
    std::vector<double> frequency; ///< C in radians per Julian millennium
};

/// Lays unpadded terms out for summation. `counts` holds the number of terms of every block of
/// every entry, `terms` A, B and C of all terms in this order; the caller has checked that the
/// counts add up to the number of terms.
[[nodiscard]] Series
makeSeries(const std::array<std::array<int, kSeriesBlocks>, kSeriesEntries>& counts,
           const std::vector<std::array<double, 3>>& terms);

} // namespace kestrav::astro
