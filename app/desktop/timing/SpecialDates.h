// Searches for the dates that the dialog of special dates describes.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "core/Result.h"
#include "timing/DashaOptions.h"

namespace kestrav::desktop
{

enum class SpecialDate
{
    Date,
    Age,
    SunReturn,
    DashaStart,
    Event,
    SunriseOrSunset,
    Ingress,
    Station,
};
inline constexpr int kSpecialDates = 8;

/// What a search reads; it may run on any thread.
struct SpecialSearch
{
    DataPointer data;
    core::Settings settings;
    ChartPointer chart; ///< needed for everything that begins at a birth; may be null else
    double moment = 0.0;
    double clockOffset = 0.0;
    int direction = 1; ///< 1 for the next after the moment, -1 for the last before it
};

/// The moment at the age in years, months and days of the calendar after birth.
[[nodiscard]] double momentOfAge(const core::Chart& birth, int years, int months, int days);

/// The n-th return of the Sun to its sidereal place at birth, n above 0.
[[nodiscard]] core::Result<double> sunReturn(const SpecialSearch& search, int number);

/// The beginning of a period of a level, of one lord or of any (0).
[[nodiscard]] core::Result<double>
dashaStart(const SpecialSearch& search, const timing::DashaOptions& options, int level, int lord);

/// A body enters a sign 1 to 12, or any (0), in either motion.
[[nodiscard]] core::Result<double> ingressOf(const SpecialSearch& search, int body, int sign);

/// A body turns.
[[nodiscard]] core::Result<double> stationOf(const SpecialSearch& search, int body);

} // namespace kestrav::desktop
