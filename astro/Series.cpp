#include "astro/Series.h"

namespace kestrav::astro
{

Series makeSeries(const std::array<std::array<int, kSeriesBlocks>, kSeriesEntries>& counts,
                  const std::vector<std::array<double, 3>>& terms)
{
    Series series;
    const auto append = [&](double A, double B, double C) {
        series.amplitude.push_back(A);
        series.phase.push_back(B);
        series.frequency.push_back(C);
    };
    std::size_t next = 0;
    for (std::size_t e = 0; e < series.entries.size(); ++e) {
        SeriesEntry& entry = series.entries[e];
        entry.first = series.amplitude.size();
        for (std::size_t b = 0; b < entry.blocks.size(); ++b) {
            entry.blocks[b] = {std::uint32_t(series.amplitude.size()), std::uint32_t(counts[e][b])};
            for (int i = 0; i < counts[e][b]; ++i, ++next) {
                append(terms[next][0], terms[next][1], terms[next][2]);
            }
        }
        while (series.amplitude.size() % kLanes != 0) {
            append(0.0, 0.0, 0.0);
        }
        entry.length = series.amplitude.size() - entry.first;
    }
    return series;
}

} // namespace kestrav::astro
