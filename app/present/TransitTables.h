// Tables of transits: the listing, kakshyas, and Saturn's passages around the birth Moon.
#pragma once

#include "app/present/Table.h"
#include "timing/SadeSati.h"
#include "timing/TransitEvent.h"
#include "timing/TransitKakshya.h"

#include <vector>

namespace kestrav::present
{

/// Date, weekday, time to the second and report line of every event, on the clock for which they
/// were listed.
[[nodiscard]] Table transitTable(const std::vector<timing::TransitEvent>& events,
                                 const timing::TransitLineStyle& style);

/// The stays with their bindus, on a clock that is `clockOffset` hours before Universal Time.
[[nodiscard]] Table kakshyaStaysTable(const std::vector<timing::KakshyaStay>& stays,
                                      double clockOffset, bool twelveHour);

/// The phases, on such a clock.
[[nodiscard]] Table sadeSatiTable(const std::vector<timing::SaturnPhase>& phases,
                                  double clockOffset, bool twelveHour);

} // namespace kestrav::present
