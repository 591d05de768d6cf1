// Delta T, the difference between the astronomical time scale and Universal Time.
#pragma once

#include "core/DateTime.h"

namespace kestrav::core
{

/// Delta T in seconds for a year (historical numbering) and month. Formulas before 1620 and from
/// 2013 on, between them the biennial table of Astronomical Algorithms (first edition, chapter 9),
/// continued by estimates from 2000 on. From 2002 on the values lie above the observed ones, by
/// 23 seconds in 2024; this is meant, so positions of today are compared at equal TT.
[[nodiscard]] double deltaTSeconds(int year, int month);

/// Fills the record's Delta T in days; 0 when the correction is switched off.
void DeltaT(DateTimeRecord& record, bool on);

} // namespace kestrav::core
