// The divisional charts: how many there are and where a point stands in one.
#pragma once

#include "core/Points.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kestrav::core
{

/// Index of a divisional chart. The order is not that of the divisions: index 16 divides by 5.
enum Varga : int
{
    kRashi = 0,
    kHora,
    kDrekkana,
    kChaturtamsha,
    kSaptamsha,
    kNavamsha,
    kDashamamsha,
    kDwadashamsha,
    kShodashamsha,
    kVimshamsha,
    kSiddhamsha,
    kBhamsha,
    kTrimshamsa,
    kChatvarimshamsha,
    kAkshaVedamsha,
    kShashtiamsha,
    kTajikPanchamsha,
    kTajikShashtamsha,
    kTajikAshtamamsha,
    kRudramsha,
    kNavaDwadasha,
};

inline constexpr int kVargaCount = 21;
static_assert(kNavaDwadasha == kVargaCount - 1);

/// The divisional charts that have dignities, vimshopaka weights and strengths.
inline constexpr int kScoredVargas = 16;

/// Where a point stands in a divisional chart.
struct VargaPlacement
{
    std::int32_t sign = 0;         ///< 1 to 12; 0 when the point was not computed
    std::int32_t strengthStep = 0; ///< 0 to 6, the step within the part
    std::int32_t dignityCode = 0;  ///< code + 3; means something for vargas 0 to 15, points 0 to 9
    double position = 0.0;         ///< degrees in the sign of the varga; -0.00001 to 30
};

template <typename Value>
using VargaArray = std::array<Value, static_cast<std::size_t>(kVargaCount)>;

} // namespace kestrav::core
