// The moments at which transiting bodies reach places, pass boundaries and turn.
#pragma once

#include "timing/EventSearch.h"
#include "timing/FunctionRef.h"
#include "timing/SiderealSky.h"
#include "timing/TransitEvent.h"

#include <vector>

namespace kestrav::timing
{

/// How the longitude of a body is walked so that no pass and no station is missed.
[[nodiscard]] CurveShape transitShape(int body);

/// The same for the difference of two bodies.
[[nodiscard]] CurveShape transitPairShape(int body, int other);

/// Receives the events that a search finds. Day, hour and clock are filled by the listing.
using TransitSink = FunctionRef<void(const TransitEvent&)>;

/// What is searched: a span of Julian days of Universal Time in the sky.
struct TransitSearch
{
    SiderealSky& sky;
    Span span;
    double clockOffset = 0.0; ///< hours of the clock whose civil days the aspect choice looks at
};

/// Signs, nakshatras or padas that a body enters, forward or backward.
void findIngresses(const TransitSearch& search, int body, TransitDivision division,
                   TransitSink sink);

/// Stations of a body; Sun, Moon and the mean nodes have none.
void findStations(const TransitSearch& search, int body, TransitSink sink);

/// Every exact aspect of a body to a target that the context allows: each pass, in every motion.
/// In the transit-to-transit mode the target is a body, too.
void findAspects(const TransitSearch& search, const TransitContext& context, int target, int body,
                 int offsetDegrees, TransitSink sink);

/// Entry into and exit from the orb (degrees above 0, at most kWidestOrb) of the same exact places.
/// The aspect choice looks at the sign of the exact place.
void findOrbs(const TransitSearch& search, const TransitContext& context, int target, int body,
              int offsetDegrees, int orbDegrees, TransitSink sink);

/// Orbs of neighbouring house-distances do not touch.
inline constexpr int kWidestOrb = 14;

/// A stay of a body in one of the equal parts of the zodiac.
struct TransitStay
{
    int part = 0; ///< counted from 0 Aries
    double begin = 0.0;
    double end = 0.0;
    bool backward = false; ///< whether the body came in against the zodiac
};

/// The stays in parts of `degrees` (a divisor of 360, at most 30) that overlap the span, each with
/// its whole length.
[[nodiscard]] std::vector<TransitStay> staysIn(SiderealSky& sky, int body, double degrees,
                                               Span span);

/// 0h of the civil day of a moment on a clock, as a Julian day of the date.
[[nodiscard]] double civilDayOf(double julianDay, double clockOffset);

} // namespace kestrav::timing
