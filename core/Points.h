// The point index: one index over every computed point of a chart.
#pragma once

#include <array>
#include <cstddef>

namespace kestrav::core
{

/// Every point of a chart in its fixed order. The enumeration is used as an index.
enum Point : int
{
    kAscendant = 0,
    kSun,
    kMoon,
    kMars,
    kMercury,
    kJupiter,
    kVenus,
    kSaturn,
    kRahu,
    kKetu,
    kDhuma,
    kVyatipata,
    kParivesha,
    kIndrachapa,
    kUpaketu,
    kKaala,
    kMrityu,
    kArdhaprahara,
    kYamaghantaka,
    kGulika,
    kPranapada,
    kMandi,
    kMuntha,
    kJanmalagna,
    kBhavaLagna,
    kHoraLagna,
    kGhatiLagna,
    kInduLagna,
    kShriLagna,
    kVarnadaLagna,
    kDivyaLagna,
    kArudhaLagna,
    kUranus,
    kNeptune,
    kPluto,
    kCusp1,
    kCusp12 = kCusp1 + 11,
    kArudhaPada1 = 47,
    kArudhaPada11 = 57,
    kUpapada,
    kYogiPoint,
    kPartOfFortune,
    kSaham2,
    kSaham3,
};

inline constexpr int kPointCount = 63;
static_assert(kUranus == 32 && kCusp1 == 35 && kCusp12 == 46 && kSaham3 == kPointCount - 1);

/// An array with one entry per point.
template <typename Value>
using PointArray = std::array<Value, static_cast<std::size_t>(kPointCount)>;

/// The entry of a point. `point` is inside 0..62.
template <typename Value, std::size_t Size>
[[nodiscard]] constexpr Value& at(std::array<Value, Size>& values, int index)
{
    return values[static_cast<std::size_t>(index)];
}

template <typename Value, std::size_t Size>
[[nodiscard]] constexpr const Value& at(const std::array<Value, Size>& values, int index)
{
    return values[static_cast<std::size_t>(index)];
}

/// House cusp k (1 to 12) as a point.
[[nodiscard]] constexpr int cuspPoint(int house)
{
    return kCusp1 + house - 1;
}

/// The bodies with a speed of their own: Sun to Ketu and Uranus to Pluto.
inline constexpr std::array<int, 12> kBodies = {kSun,    kMoon, kMars, kMercury, kJupiter, kVenus,
                                                kSaturn, kRahu, kKetu, kUranus,  kNeptune, kPluto};

} // namespace kestrav::core
