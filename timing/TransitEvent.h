// The events of a transit listing and the lines that report them.
#pragma once

#include "timing/TransitAspect.h"

#include <string>

namespace kestrav::timing
{

enum class TransitKind
{
    Aspect,       ///< an exact aspect from a house-distance 2 to 12
    Conjunction,  ///< the same from house-distance 1
    OrbEnter,     ///< a body comes within the orb of an exact place
    OrbLeave,     ///< and leaves it
    Ingress,      ///< a body enters a sign, nakshatra or pada
    Station,      ///< a body turns
    CombustEnter, ///< a planet becomes combust
    CombustLeave, ///< and ends to be
};

/// What an ingress leads into.
enum class TransitDivision
{
    None,
    Sign,
    Nakshatra,
    Pada,
};

inline constexpr int kNoTarget = -1;

struct TransitEvent
{
    double julianDay = 0.0; ///< of Universal Time
    double day0h = 0.0;     ///< Julian day of 0h of the civil date, as a date and not a moment
    double hour = 0.0;      ///< of the clock of the listing, 0 to 24
    TransitKind kind = TransitKind::Aspect;
    int body = 0;
    int target = kNoTarget; ///< of aspects, conjunctions and orbs
    int houseDistance = 0;  ///< of the body from the target, 1 to 12; 0 without target
    double longitude = 0.0; ///< of the body at the moment, sidereal degrees
    int sign = 0;           ///< in which the body is from now on, 1 to 12
    bool backward = false;  ///< moves against the zodiac from now on
    TransitDivision division = TransitDivision::None;
    int part = 0; ///< of an ingress: the nakshatra 0 to 26, or the pada 0 to 107 from 0 Aries
};

/// How lines are written.
struct TransitLineStyle
{
    TransitMode mode = TransitMode::Native;
    int orbDegrees = 1;
    bool twelveHour = false;
};

/// "%d (%d°) aspect at %s" with the house-distance and its degrees, or "conjunction at %s".
[[nodiscard]] std::wstring shortTransitText(const TransitEvent& event, bool twelveHour);

/// The report line of an event, in the names of the display flags. Times are clock texts to the
/// minute. Lines of an orb end in the short form of the aspect with the hour of entry or exit.
[[nodiscard]] std::wstring transitLine(const TransitEvent& event, const TransitLineStyle& style);

} // namespace kestrav::timing
