// Ages in dasha years and the moments that belong to them.
#pragma once

#include "astro/Series.h"
#include "core/Chart.h"
#include "core/DateTime.h"
#include "core/Settings.h"
#include "timing/DashaOptions.h"
#include "timing/SunAndMoonAt.h"

#include <optional>

namespace kestrav::timing
{

/// Turns an age in years into a Julian day and back, with years of a fixed number of days or with
/// the true years of the Sun. Ages before birth are negative. Every conversion of something that is
/// no number, and every one of a calendar without a beginning, gives not-a-number.
class DashaCalendar
{
public:
    /// Counts from no moment, for charts of bare positions.
    DashaCalendar() = default;

    /// Years of `daysOfYear` days from a Julian day (Universal Time); the clock is `zone` hours
    /// before Universal Time.
    DashaCalendar(double firstJulianDay, double daysOfYear, double zone);

    /// Years from a chart's birth as the options ask for. The series must outlive it.
    [[nodiscard]] static DashaCalendar ofBirth(const core::Chart& chart,
                                               const core::Settings& settings,
                                               const DashaOptions& options,
                                               const astro::Series& series);

    /// The Julian day (Universal Time) of an age. A true solar age a is the moment at which the Sun
    /// has gone 360 a degrees from its place at birth, to well below a second.
    [[nodiscard]] double julianDayOf(double age) const;

    /// The age at a Julian day.
    [[nodiscard]] double ageAt(double julianDay) const;

    /// The civil date and time in the zone of the birth. Saving time is never in force, so a birth
    /// in saving time reads an hour earlier here.
    [[nodiscard]] core::DateTimeRecord dateOf(double julianDay) const;

private:
    struct SolarYears
    {
        SunAndMoonAt sky;
        double sunAtFirst; ///< sidereal degrees
    };

    bool known_ = false;
    double first_ = 0.0; ///< Julian day
    double daysOfYear_ = kMeanSiderealYear;
    double zone_ = 0.0;
    std::optional<SolarYears> solar_;
};

} // namespace kestrav::timing
