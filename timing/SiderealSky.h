// The bodies in the zodiac of a chart at any moment of Universal Time.
#pragma once

#include "core/DateTime.h"
#include "core/Settings.h"
#include "timing/BodyTrack.h"

namespace kestrav::timing
{

/// The Julian day of 0h of a record's date on a clock that is `clockOffset` hours before Universal
/// Time, as a Julian day of Universal Time.
[[nodiscard]] double julianDayOf(const core::DateTimeRecord& date, double clockOffset);

/// A record with the civil date that begins at a Julian day (its 0h, a number that ends in .5),
/// such that DateToJulianDay gives that day back. Only 1582 October 15 of the Gregorian calendar is
/// written as October 5 of the Julian one for it. The clock time is 0h.
[[nodiscard]] core::DateTimeRecord recordOfDay(double julianDay0h);

/// The weekday of the civil day that begins at a Julian day, 1 = Sunday to 7 = Saturday.
[[nodiscard]] int weekdayOfDay(double julianDay0h);

/// A body as a chart of the moment shows it.
struct SkyPosition
{
    double longitude = 0.0;   ///< sidereal degrees, 0 to under 360
    double latitude = 0.0;    ///< degrees
    double declination = 0.0; ///< degrees
    double distance = 0.0;    ///< astronomical units; 0 for the nodes and the short Moon
    double speed = 0.0;       ///< degrees a day in tropical longitude, as in a chart
};

/// The Sun, Moon, planets and nodes with the ayanamsa, Delta T and lunar theory of the settings.
/// Moments are Julian days of Universal Time. Everything agrees with a chart cast for the same
/// moment within 0.01 arc seconds; only the speed differs, for it is that of the moment itself and
/// not the mean over the light time. An object belongs to one thread.
class SiderealSky
{
public:
    /// The series must outlive the object. `clockOffset` is the offset in hours of the clock whose
    /// months decide about Delta T and the ayanamsa.
    SiderealSky(const astro::Series& series, const core::Settings& settings,
                double clockOffset = 0.0);

    /// Sidereal longitude of Sun to Ketu and Uranus to Pluto in degrees, 0 to under 360;
    /// not-a-number for other points and moments out of reach.
    [[nodiscard]] double longitude(int point, double julianDay);

    /// The same before the ayanamsa is subtracted.
    [[nodiscard]] double tropicalLongitude(int point, double julianDay);

    [[nodiscard]] SkyPosition position(int point, double julianDay);

    /// Degrees; minus the nutation where the row of the settings is tropical.
    [[nodiscard]] double ayanamsa(double julianDay);

    /// Days since 1900 January 0.5 in Terrestrial Time, which the series run on.
    [[nodiscard]] double terrestrialDay(double julianDay);

    /// The clock of the following moments.
    void setClockOffset(double hours);

    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_;
    }

private:
    // What is constant or linear during one civil month.
    struct Month
    {
        double begin = 0.0; // Julian days between which it holds; begin = end holds nowhere
        double end = 0.0;
        double deltaTDays = 0.0;
        double ayanamsaAtBegin = 0.0;
        double ayanamsaPerDay = 0.0;
    };

    [[nodiscard]] const Month& monthOf(double julianDay);

    BodyTrack track_;
    core::Settings settings_;
    double clockOffset_;
    bool tropical_;
    Month month_;
};

} // namespace kestrav::timing
