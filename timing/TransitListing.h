// The listing of transits: every event of a span of days, in order of time.
#pragma once

#include "core/Chart.h"
#include "timing/FunctionRef.h"
#include "timing/SiderealSky.h"
#include "timing/TransitEvent.h"

#include <cstddef>
#include <vector>

namespace kestrav::timing
{

/// Which events are listed.
struct TransitKinds
{
    bool aspects = true; ///< and conjunctions
    bool orbs = true;
    bool signs = true; ///< ingresses
    bool nakshatras = false;
    bool padas = false;
    bool stations = true;
    bool combustion = true;
};

struct TransitOptions
{
    TransitMode mode = TransitMode::Native;
    std::vector<int> bodies;  ///< Sun to Ketu and Uranus to Pluto
    std::vector<int> targets; ///< any points of the native; bodies in the transit-to-transit mode
    TransitKinds kinds;
    int aspectChoice = kGrahaAspects;
    int offsetDegrees = 0;
    int orbDegrees = 1; ///< 1 to kWidestOrb
    bool excludeUpagrahas = false;
};

/// The civil days of a listing: Julian days of 0h of the first and the last one. There are none
/// when the last lies before the first.
struct TransitDays
{
    double first = 0.0;
    double last = 0.0;
};

/// Called now and then with the days done and their count; the listing ends when it returns false.
using TransitWatch = FunctionRef<bool(std::size_t done, std::size_t total)>;

/// The events of the days, on a clock that is `clockOffset` hours before Universal Time.
/// Exact aspects and conjunctions come from the event search, every pass on every day, when the
/// setting allPasses is on; else they are those that TransitAspect accepts day by day, in the order
/// of bodies and, for each of them, of targets. Their hours are refined on the positions
/// themselves. All other events come from the event search.
/// A body that the node option or `excludeUpagrahas` drops has no events at all.
/// In the transit-to-transit mode with all passes a conjunction of two bodies stands once in the
/// list, under the faster one, unless an offset sets the two places apart.
/// `native` may be null in the transit-to-transit mode. Targets without a position are passed over.
[[nodiscard]] std::vector<TransitEvent> listTransits(SiderealSky& sky, const core::Chart* native,
                                                     const TransitOptions& options,
                                                     const TransitDays& days, double clockOffset,
                                                     TransitWatch goOn);
[[nodiscard]] std::vector<TransitEvent> listTransits(SiderealSky& sky, const core::Chart* native,
                                                     const TransitOptions& options,
                                                     const TransitDays& days, double clockOffset);

} // namespace kestrav::timing
