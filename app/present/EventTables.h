// The events of a life under the dashas and the sky of their moments, and the birth time tried out
// on them.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "astro/Engine.h"
#include "data/LongWork.h"

namespace kestrav::present
{

/// The bodies at a moment (Julian day of Universal Time) with their houses from the ascendant and
/// the Moon of the chart.
[[nodiscard]] Table skyTable(const ComputedChart& computed, const astro::Series& series,
                             double moment);

/// Every usable event: its dasha lords down to the third level, and the signs of the bodies at its
/// moment with their houses from the ascendant and from the Moon, "Leo 6/12". Charts of bare
/// positions have no dates and get a note.
[[nodiscard]] Table eventTransitsTable(const ComputedChart& computed, const astro::Series& series);

/// Which other birth times are tried: so many steps of so many seconds to both sides.
struct TrialTimes
{
    int steps = 10;        ///< 0 to 500
    double seconds = 60.0; ///< above 0
    int levels = 3;        ///< of the dasha, 1 to 5
};

/// What a shift of the birth time changes. The charts are computed anew for every time.
struct TrialTables
{
    Table ascendants; ///< one row for each time, one column for each divisional chart
    Table lords;      ///< one row for each time, one column for each usable event
};

/// The tables of a chart with a moment and a place; without them they have only notes. Cells that
/// differ from those of the given time are marked with "*". Without rows when the work was
/// cancelled.
[[nodiscard]] TrialTables trialTables(const ComputedChart& computed, const astro::Series& series,
                                      const TrialTimes& times, const data::LongWork& work = {});

} // namespace kestrav::present
