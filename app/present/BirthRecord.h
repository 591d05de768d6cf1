// Birth data of a record: what is wrong with them, how they read, and the moment they stand for.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"
#include "data/DateOrder.h"

#include <string>
#include <vector>

namespace kestrav::present
{

/// The date order that the settings put in force.
[[nodiscard]] data::DateOrder dateOrder(const core::Settings& settings);

/// Why a chart cannot be computed: a date that does not exist, saving time out of range. Empty when
/// it can.
[[nodiscard]] std::string birthProblem(const core::Chart& chart);

/// The texts of time, zone, longitude and latitude that are not understood, in words.
[[nodiscard]] std::vector<std::string> unreadTexts(const core::Chart& chart);

/// "Portland, Oregon": the place with its country or state.
[[nodiscard]] std::wstring placeLabel(const core::Chart& chart);

/// Sets date and clock time from a moment in seconds since 1970 and the chart's zone.
void setLocalMoment(core::Chart& chart, double unixSeconds);

} // namespace kestrav::present
