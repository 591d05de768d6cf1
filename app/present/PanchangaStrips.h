// The panchanga of a day as strips on one axis of time.
#pragma once

#include "app/present/Strip.h"
#include "timing/Panchanga.h"

namespace kestrav::present
{

/// The lanes of a day from its sunrise to the next: day and night, tithi, nakshatra, yoga, karana,
/// horas, choghadia, kala velas, and the stretches that are avoided or sought. Where a sunrise is
/// missing the day runs from or to midnight, as everywhere. Tips have the whole time of an element
/// with the marks of FormatClock; names end in "-" where the panchanga has it so. `cursor` is a
/// Julian day of Universal Time.
[[nodiscard]] StripModel panchangaStrips(const timing::PanchangaDay& day, bool twelveHour,
                                         std::optional<double> cursor = {});

} // namespace kestrav::present
