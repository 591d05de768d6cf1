// The longitudes of bodies over a stretch of time as a graph.
#pragma once

#include "app/present/Strip.h"
#include "core/Chart.h"
#include "timing/SiderealSky.h"

#include <optional>
#include <vector>

namespace kestrav::present
{

struct EphemerisStripSubject
{
    double from = 0.0; ///< Julian days of Universal Time
    double to = 0.0;
    double clockOffset = 0.0;           ///< hours of the clock of the dates before Universal Time
    std::vector<int> bodies;            ///< Sun to Ketu and Uranus to Pluto
    const core::Chart* natal = nullptr; ///< whose positions of these bodies are shown, too
    std::optional<double> cursor;
};

struct EphemerisStrip
{
    DisplayList list; ///< regions of the kind Point at the names; layer 1 those of the natal chart
    TimeAxis axis;
    double top = 0.0;    ///< where 360 degrees are
    double bottom = 0.0; ///< where 0 degrees are

    [[nodiscard]] double yOf(double longitude) const
    {
        return bottom + longitude / 360.0 * (top - bottom);
    }
    /// The longitude of a place, 0 to 360.
    [[nodiscard]] double longitudeAt(double y) const;
};

/// Draws longitudes upwards from 0 to 360 degrees, broken where a body passes 0 degrees. Retrograde
/// stretches, of the nodes too, are thick, natal positions dashed level lines. A body that goes
/// further than a quarter of the circle between two points of the drawing is left out and named in
/// the description.
[[nodiscard]] EphemerisStrip ephemerisStrip(timing::SiderealSky& sky,
                                            const EphemerisStripSubject& subject,
                                            const StripOptions& options);

} // namespace kestrav::present
