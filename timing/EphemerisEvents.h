// What stands below an ephemeris table: the bodies that enter a sign or turn.
#pragma once

#include "timing/EventSearch.h"
#include "timing/FunctionRef.h"
#include "timing/SiderealSky.h"

#include <string>
#include <vector>

namespace kestrav::timing
{

enum class EphemerisEventKind
{
    Ingress,
    Station,
};

struct EphemerisEvent
{
    EphemerisEventKind kind = EphemerisEventKind::Ingress;
    double julianDay = 0.0; ///< Universal Time
    int body = 0;
    int sign = 0;            ///< 1 to 12: the one entered, or the one of the station
    double longitude = 0.0;  ///< degrees in the zodiac of the sky
    bool retrograde = false; ///< moving backwards after the event
};

/// "Mars enters Leo", "Mars re-enters (R) Leo", "Mars turns retrograde in Leo", "Mars turns direct
/// in Leo". A sign that is entered backwards counts as entered again, also by the nodes.
[[nodiscard]] std::wstring ephemerisEventText(const EphemerisEvent& event);

/// The ingresses into signs and the stations of bodies (Sun to Ketu, Uranus to Pluto) in a span, in
/// order of time, to a tenth of a second. Signs are those of the zodiac of the sky; a body stands
/// when its tropical longitude does. Sun, Moon and the mean nodes have no stations. `progress` is
/// called before each body with the number of bodies done; when it returns false the list ends
/// there.
[[nodiscard]] std::vector<EphemerisEvent>
ephemerisEventsIn(SiderealSky& sky, const std::vector<int>& bodies, Span span,
                  FunctionRef<bool(std::size_t)> progress);

/// The same without interruption.
[[nodiscard]] std::vector<EphemerisEvent>
ephemerisEventsIn(SiderealSky& sky, const std::vector<int>& bodies, Span span);

} // namespace kestrav::timing
