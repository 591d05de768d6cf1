// The Sun and the Moon of any moment, in the zodiac of a chart.
#pragma once

#include "astro/Series.h"
#include "core/DateTime.h"
#include "core/Settings.h"

namespace kestrav::timing
{

/// The civil date and clock time of a Julian day (Universal Time) on a clock that is `clockOffset`
/// hours before Universal Time. The record's day count, Universal Time and calendar are those of
/// the chart record; its ayanamsa and Delta T stay 0. Within three million years of 2000.
[[nodiscard]] core::DateTimeRecord dateAt(double julianDay, double clockOffset);

struct SiderealPlace
{
    double longitude; ///< degrees, 0 to under 360
    double speed;     ///< degrees a day
};

/// Positions as a chart has them at the moment: the same series, Delta T and ayanamsa. Every answer
/// is computed anew from the series, so one object may serve several threads and a dasha can be
/// asked from anywhere; long searches have SiderealSky.
class SunAndMoonAt
{
public:
    /// The series must outlive this.
    SunAndMoonAt(const astro::Series& series, const core::Settings& settings, double clockOffset);

    /// At a Julian day of Universal Time.
    [[nodiscard]] SiderealPlace sun(double julianDay) const;
    [[nodiscard]] SiderealPlace moon(double julianDay) const;

private:
    struct Moment
    {
        core::TimeArguments time;
        double ayanamsa;
    };

    [[nodiscard]] Moment momentOf(double julianDay) const;

    const astro::Series* series_;
    core::Settings settings_;
    double clockOffset_;
};

} // namespace kestrav::timing
