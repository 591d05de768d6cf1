// The present moment, the zone of the system, and how a clock is named.
#pragma once

#include "core/Result.h"

#include <string>

namespace kestrav::present
{

/// The environment variable that stands for the system clock, in seconds of Unix time.
inline constexpr char kClockVariable[] = "KESTRAV_CLOCK";

/// The present moment in seconds since 1970-01-01 0h Universal Time: what KESTRAV_CLOCK holds, else
/// the system clock. The error says that the variable holds no usable number.
[[nodiscard]] core::Result<double> presentMoment();

struct SystemZone
{
    double zone = 0.0;      ///< hours east of Greenwich, without saving time
    int daylightSaving = 0; ///< hours of saving time in force
};

/// What the zone of the system is at a moment.
[[nodiscard]] SystemZone systemZoneAt(double unixSeconds);

/// The hours of a clock before Universal Time as "+5:30"; with seconds where there are any, as in
/// local mean time.
[[nodiscard]] std::wstring offsetText(double hours);

} // namespace kestrav::present
