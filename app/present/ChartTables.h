// Tables of a chart as the engine fills it: birth data, time, Sun, positions and houses.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"

#include <vector>

namespace kestrav::present
{

/// Name, place, date, time and coordinates; for bare positions the name and their file.
[[nodiscard]] Table birthTable(const ComputedChart& computed);

/// Universal Time, Delta T, Julian day, ayanamsa and sidereal time.
[[nodiscard]] Table timeTable(const ComputedChart& computed);

/// Sunrise and sunset of the civil date, and what does not exist.
[[nodiscard]] Table daylightTable(const ComputedChart& computed);

/// Sunrise, noon and sunset to the second.
[[nodiscard]] Table sunTable(const ComputedChart& computed);

/// The day from sunrise to sunrise that runs at the moment.
[[nodiscard]] Table vedicDayTable(const ComputedChart& computed);

/// The bodies, and the ascendant where it exists: position, nakshatra, navamsha, motion; with the
/// setting `magnitudes` also the visual magnitude and the lit part of the planets.
[[nodiscard]] Table positionsTable(const ComputedChart& computed);

/// House system, ascendant, midheaven and obliquity.
[[nodiscard]] Table housesSummary(const ComputedChart& computed);

/// Cusps, and sandhis where the house system has them. Without rows when there are no cusps.
[[nodiscard]] Table housesTable(const ComputedChart& computed);

/// Adds the sentence that says why values of the table stand as "--", if there is a reason.
void addNotComputedNote(Table& table, const ComputedChart& computed);

} // namespace kestrav::present
