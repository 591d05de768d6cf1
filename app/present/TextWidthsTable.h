// The advances of the characters of DejaVu Sans.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kestrav::present
{

/// The unit of the advances: this many are one em.
inline constexpr int kUnitsPerEm = 2048;

/// Neighbouring characters of one width.
struct WidthRun
{
    std::uint16_t first;
    std::uint16_t last;
    std::uint16_t advance;
};

/// The runs in the order of the characters. Characters in no run are not in the table.
[[nodiscard]] std::span<const WidthRun> widthRuns();

/// The sum of the advances of all characters.
template <typename Runs>
[[nodiscard]] constexpr long totalOfWidths(const Runs& runs)
{
    long total = 0;
    for (const WidthRun& run : runs) {
        total += long{run.advance} * (run.last - run.first + 1);
    }
    return total;
}

template <typename Runs>
[[nodiscard]] constexpr bool inAscendingOrder(const Runs& runs)
{
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (runs[i].last < runs[i].first || (i > 0 && runs[i].first <= runs[i - 1].last)) {
            return false;
        }
    }
    return true;
}

} // namespace kestrav::present
