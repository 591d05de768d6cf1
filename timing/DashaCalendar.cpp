#include "timing/DashaCalendar.h"

#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

constexpr int kMostCorrections = 10;
constexpr double kEnoughDays = 1e-6;

// Degrees brought into -180 to under 180 from anywhere.
double signedTurn(double degrees)
{
    return core::Wrap180(core::Normalize360(degrees));
}

} // namespace

DashaCalendar::DashaCalendar(double firstJulianDay, double daysOfYear, double zone)
    : known_(true), first_(firstJulianDay), daysOfYear_(daysOfYear), zone_(zone)
{}

DashaCalendar DashaCalendar::ofBirth(const core::Chart& chart, const core::Settings& settings,
                                     const DashaOptions& options, const astro::Series& series)
{
    if (!chart.hasMoment) {
        return {};
    }
    DashaCalendar calendar(chart.time.dayCount + core::kEpoch1900,
                           yearDays(options.yearLength, options.customYearDays), chart.zone);
    if (options.yearLength == YearLength::TrueSolar && !options.sunModified) {
        const SunAndMoonAt sky(series, settings, chart.zone);
        calendar.solar_ = SolarYears{sky, sky.sun(calendar.first_).longitude};
    }
    return calendar;
}

double DashaCalendar::julianDayOf(double age) const
{
    if (!known_ || !std::isfinite(age)) {
        return core::kNotANumber;
    }
    double julianDay = first_ + age * daysOfYear_;
    if (!solar_) {
        return julianDay;
    }
    const double wanted = solar_->sunAtFirst + 360.0 * (age - std::floor(age));
    for (int i = 0; i < kMostCorrections; ++i) {
        const SiderealPlace sun = solar_->sky.sun(julianDay);
        const double correction = signedTurn(wanted - sun.longitude) / sun.speed;
        julianDay += correction;
        if (std::abs(correction) < kEnoughDays) {
            break;
        }
    }
    return julianDay;
}

double DashaCalendar::ageAt(double julianDay) const
{
    if (!known_ || !std::isfinite(julianDay)) {
        return core::kNotANumber;
    }
    const double age = (julianDay - first_) / daysOfYear_;
    if (!solar_) {
        return age;
    }
    // The Sun's way from its birth place is the fraction; the mean years tell the whole ones.
    const double turn =
        core::Normalize360(solar_->sky.sun(julianDay).longitude - solar_->sunAtFirst) / 360.0;
    return std::round(age - turn) + turn;
}

core::DateTimeRecord DashaCalendar::dateOf(double julianDay) const
{
    return dateAt(julianDay, zone_);
}

} // namespace kestrav::timing
