// Tables of an ephemeris: positions from step to step, phases of the Moon, ingresses and stations.
#pragma once

#include "app/present/Table.h"
#include "timing/Ephemeris.h"
#include "timing/EphemerisEvents.h"
#include "timing/MoonPhases.h"

#include <vector>

namespace kestrav::present
{

/// Which columns stand beside the longitudes, and how clock times are written.
struct EphemerisColumns
{
    bool clock = false; ///< the clock time of every row
    bool declination = false;
    bool latitude = false;
    bool speed = false;
    bool twelveHour = false;
};

/// One row for each moment: date, weekday and the bodies as positions in their signs, with an R
/// behind a body that moves backwards. All rows have the bodies of the first.
[[nodiscard]] Table ephemerisTable(const std::vector<timing::EphemerisRow>& rows,
                                   const EphemerisColumns& columns);

/// The phases with the places of Sun and Moon, on a clock that is `clockOffset` hours before
/// Universal Time.
[[nodiscard]] Table moonPhasesTable(const std::vector<timing::PhaseMoment>& phases,
                                    double clockOffset, bool twelveHour);

[[nodiscard]] Table ephemerisEventsTable(const std::vector<timing::EphemerisEvent>& events,
                                         double clockOffset, bool twelveHour);

/// A date that leads to its moment.
[[nodiscard]] Cell momentCell(double julianDay, double clockOffset);

/// The date with the clock time to the second, which leads to the moment.
[[nodiscard]] Cell momentCell(double julianDay, double clockOffset, bool twelveHour);

/// The clock time of a moment to the second.
[[nodiscard]] Cell clockCell(double julianDay, double clockOffset, bool twelveHour);

} // namespace kestrav::present
