// What can be chosen for a listing of transits, for the window and the command line alike.
#pragma once

#include "timing/TransitListing.h"

#include <array>
#include <string_view>
#include <vector>

namespace kestrav::present
{

/// A kind of events under the name by which it is typed and remembered.
struct TransitKindName
{
    std::string_view name;
    bool timing::TransitKinds::*member;
};

inline constexpr std::array<TransitKindName, 7> kTransitKinds = {{
    {"aspects", &timing::TransitKinds::aspects},
    {"orbs", &timing::TransitKinds::orbs},
    {"signs", &timing::TransitKinds::signs},
    {"nakshatras", &timing::TransitKinds::nakshatras},
    {"padas", &timing::TransitKinds::padas},
    {"stations", &timing::TransitKinds::stations},
    {"combustion", &timing::TransitKinds::combustion},
}};

inline constexpr int kUsualTransitDays = 30;
inline constexpr int kMostTransitDays = 73050; ///< two hundred years
inline constexpr int kNarrowestOrb = 1;        ///< degrees; the widest is timing::kWidestOrb

/// Whether a point is one of the bodies that can transit: Sun to Ketu and Uranus to Pluto.
[[nodiscard]] bool movesByItself(int point);

/// All of them.
[[nodiscard]] std::vector<int> movingBodies();

/// The points of a native from the Ascendant to the last one given, in their order.
[[nodiscard]] std::vector<int> nativePoints(int last);

} // namespace kestrav::present
