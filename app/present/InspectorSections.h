// The sections of the inspector, one function for each kind of thing.
#pragma once

#include "app/present/TableCatalogue.h"

#include <vector>

namespace kestrav::present::inspecting
{

/// A point 0 to 62.
[[nodiscard]] std::vector<Table> pointSections(const TableSource& source, int point);

/// Where a point stands: longitude, nakshatra, house, speed.
[[nodiscard]] Table positionSection(const ComputedChart& computed, int point);

/// The yogas that hold and have a condition that holds and names the point: itself, by a role such
/// as "the lord of the 9th" that leads to it, or as a member of a set. The source has a library.
[[nodiscard]] Table yogaSection(const TableSource& source, int point);

/// A sign 1 to 12 of a divisional chart; with a house above 0 that house, which falls into it.
[[nodiscard]] std::vector<Table> signSections(const TableSource& source, int sign, int varga,
                                              int house);

/// A nakshatra 0 to 26.
[[nodiscard]] std::vector<Table> nakshatraSections(const TableSource& source, int nakshatra);

} // namespace kestrav::present::inspecting
