// The sphutas: sums of longitudes.
#pragma once

#include "core/Chart.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kestrav::analysis
{

struct Sphuta
{
    std::wstring_view name;
    std::optional<double> longitude; ///< sidereal degrees; none when a point of the sum is missing
};

/// A point that enters a sphuta, with its factor.
struct SphutaAddend
{
    int point = 0;
    int factor = 0;
};

/// The addends of a sphuta, by its place 0 to 9 in the fixed order.
[[nodiscard]] std::span<const SphutaAddend> sphutaAddends(int sphuta);

/// The ten sphutas in their fixed order: Beeja, Kshetra, Tithi, Yoga, Tri, Chatur, Pancha, Prana,
/// Deha, Mrityu. Those with Gulika are missing where no day runs.
[[nodiscard]] std::array<Sphuta, 10> sphutas(const core::Chart& chart);

} // namespace kestrav::analysis
