// The test that decides whether a transiting body comes to an exact aspect with a point in a day.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

#include <array>

namespace kestrav::timing
{

/// What the transiting bodies are compared with.
enum class TransitMode
{
    Native,           ///< the points of a native's chart
    TransitToTransit, ///< the other transiting bodies
};

/// A set of house-distances or of signs 1 to 12; bit n (of value 2^n) stands for n.
using HouseMask = int;

[[nodiscard]] constexpr bool containsHouse(HouseMask mask, int house)
{
    return house >= 1 && house <= 12 && ((mask >> house) & 1) != 0;
}

/// The house-distances, counted from the target, from which a body 1 to 9 aspects it; 0 for every
/// other point. Rahu and Ketu have the second or the twelfth besides by the node-aspect option 1
/// or 2.
[[nodiscard]] HouseMask AspectMask(int transitBody, int nodeAspectOption = 0);

/// What sign aspects allow for a target.
struct SignMasks
{
    HouseMask signs = 0;  ///< the signs from which they come
    HouseMask houses = 0; ///< the house-distances that count besides; bit h stands for distance h
};

/// The sign-aspect set of the sign in which a point of the chart stands, and the second mask; both
/// empty for a point that was not computed.
[[nodiscard]] SignMasks SignAspectMasks(const core::Chart& chart, int point);

/// The same for a sign 1 to 12.
[[nodiscard]] SignMasks signAspectMasksOf(int sign);

/// The aspects that a page of the listing shows.
enum AspectChoice : int
{
    kEveryHouse = 0,
    kGrahaAspects = 1,
    kSignAspects = 2,
    kGrahaAndSignAspects = 3,
    kGrahaAspects4 = 4, ///< the same as 1 for this test
    kGrahaAspects5 = 5, ///< the same as 1 for this test
};
inline constexpr int kLastAspectChoice = kGrahaAspects5;

/// What a listing of transits keeps from one test to the next. The charts outlive it.
struct TransitContext
{
    TransitMode mode = TransitMode::Native;
    const core::Chart* native = nullptr; ///< not needed in the transit-to-transit mode
    /// The transiting sky at 0h, 12h and 24h of the day.
    std::array<const core::Chart*, 3> samples = {};

    int aspectChoice = kEveryHouse; ///< of the current page
    bool excludeUpagrahas = false;  ///< the page setting that drops every body above Ketu
    int nodeOption = 0;             ///< 1 drops Ketu as transiting body, 2 Rahu and Ketu
    int nodeAspectOption = 0;       ///< see AspectMask

    double hour = 0.0;         ///< of exactness, 0 to 24, after a test that returned a distance
    int lastHouseDistance = 0; ///< what the last accepted test returned
};

/// The context of a listing with the node options of the settings.
[[nodiscard]] TransitContext makeTransitContext(const core::Settings& settings, TransitMode mode,
                                                const core::Chart* native);

/// Whether the options of the context drop a transiting body.
[[nodiscard]] bool isExcludedBody(const TransitContext& context, int transitBody);

/// Whether a pair of target and transiting body is never tested.
[[nodiscard]] bool isExcludedTransit(const TransitContext& context, int targetPoint,
                                     int transitBody);

/// Whether the aspect choice of the context lets a body aspect a target in `targetSign` from a
/// house-distance 1 to 12 while it goes from one sign to another (or stays in one).
[[nodiscard]] bool isAspectChosen(const TransitContext& context, int transitBody, int houseDistance,
                                  int targetSign, int bodySignAt0h, int bodySignAt24h);

/// Whether a transiting body comes to an exact aspect with a target between 0h and 24h: the
/// house-distance 1 to 12 of the body from the target, and the hour in the context; 0 when it does
/// not, or when a position is missing. `offsetDegrees` is added to every difference, so that the
/// aspect is exact at target + offset + 30 x (house-distance - 1).
/// The test looks only at bodies that are just behind their exact place at 0h, so with a native it
/// does not find those that come back to it: retrograde planets, and the mean nodes always.
[[nodiscard]] int TransitAspect(TransitContext& context, int targetPoint, int transitBody,
                                int offsetDegrees);

} // namespace kestrav::timing
