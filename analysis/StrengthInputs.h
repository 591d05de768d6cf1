// What the strengths read besides the sidereal longitudes and signs of a chart.
#pragma once

#include "analysis/StrengthParts.h"
#include "core/Chart.h"

#include <optional>

namespace kestrav::analysis
{

/// The third of the day, or of the night, in which a birth falls.
struct DayThird
{
    bool byDay = true;
    int third = 0; ///< 0 to 2
};

/// Every field is empty where the chart does not have it: a chart of bare positions has none, a
/// chart without sunrise lacks what belongs to the day that begins at sunrise.
struct StrengthInputs
{
    std::optional<double> ayanamsa;          ///< degrees
    std::optional<double> midheaven;         ///< sidereal degrees
    std::optional<double> apparentTime;      ///< apparent solar time from midnight, hours
    std::optional<double> hoursSinceSunrise; ///< from the sunrise that began the day
    std::optional<DayThird> dayThird;
    std::optional<int> weekday;                  ///< of the running day, 1 = Sunday to 7 = Saturday
    std::optional<double> dayJulianDay;          ///< of 0h of the civil date of that sunrise
    std::optional<int> horaLord;                 ///< planet 1 to 7
    std::optional<double> julianDay;             ///< of the moment, Universal Time
    std::optional<PlanetArray<double>> latitude; ///< degrees, north positive
};

/// The inputs of a chart that the engine has computed.
[[nodiscard]] StrengthInputs strengthInputs(const core::Chart& chart);

} // namespace kestrav::analysis
