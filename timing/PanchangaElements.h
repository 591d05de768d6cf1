// Tithi, karana, nakshatra and yoga: at a moment, and with the times at which they change.
#pragma once

#include "timing/EventSearch.h"
#include "timing/SiderealSky.h"

#include <vector>

namespace kestrav::timing
{

enum class Element
{
    Tithi,
    Karana,
    Nakshatra,
    Yoga,
};

/// The elements of one moment.
struct ElementNumbers
{
    int tithi = 0;     ///< 0 to 29
    int karana = 1;    ///< 1 to 60
    int nakshatra = 0; ///< 0 to 26, of the Moon
    int yoga = 0;      ///< 0 to 26

    bool operator==(const ElementNumbers&) const = default;
};

/// The elements of sidereal longitudes of the Sun and the Moon in degrees, 0 to under 360.
[[nodiscard]] ElementNumbers elementsOf(double sun, double moon);

/// The elements at a Julian day of Universal Time.
[[nodiscard]] ElementNumbers elementsAt(SiderealSky& sky, double julianDay);

/// An element and the Julian days between which it is in force.
struct ElementPeriod
{
    int number = 0; ///< counted as in ElementNumbers
    double begin = 0.0;
    double end = 0.0;
};

/// Every element of a kind that is in force somewhere from `span.from` to before `span.to`, in
/// order, each with its whole period, found to a tenth of a second. The first one begins before the
/// span, the last one ends at its end or after it. Also one that begins and ends inside the span is
/// listed, and for an empty span the one in force at its beginning.
[[nodiscard]] std::vector<ElementPeriod> elementsIn(SiderealSky& sky, Element element, Span span);

} // namespace kestrav::timing
