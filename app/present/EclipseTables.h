// Tables of eclipses: when and where in the zodiac, their contacts, and the points they fall on.
#pragma once

#include "app/present/Table.h"
#include "core/Chart.h"
#include "timing/EclipseAtPlace.h"
#include "timing/Eclipses.h"

#include <optional>
#include <vector>

namespace kestrav::present
{

/// An eclipse with what a place sees of it, when there is a place, and the points of a chart that
/// it falls on, when there is a chart.
struct ShownEclipse
{
    timing::Eclipse eclipse;
    std::optional<timing::EclipseAtPlace> seen;
    std::vector<timing::EclipsedPoint> points;
};

/// How the moments are written.
struct EclipseClock
{
    double offset = 0.0; ///< hours of the clock before Universal Time
    bool twelveHour = false;
};

/// One row for each eclipse: greatest moment, type, magnitude, the places of Sun and Moon, and
/// the phase that is seen where a place is given.
[[nodiscard]] Table eclipsesTable(const std::vector<ShownEclipse>& eclipses,
                                  const EclipseClock& clock);

/// The contacts of the eclipses that are seen; without a place those of the Moon, which are the
/// same everywhere. What happens below the horizon stands in parentheses.
[[nodiscard]] Table eclipseContactsTable(const std::vector<ShownEclipse>& eclipses,
                                         const EclipseClock& clock);

/// The points of the chart within 3 degrees.
[[nodiscard]] Table eclipsedPointsTable(const std::vector<ShownEclipse>& eclipses,
                                        const core::Chart& chart, const EclipseClock& clock);

} // namespace kestrav::present
