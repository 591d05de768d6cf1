#include "timing/SiderealSky.h"

#include "astro/Ayanamsa.h"
#include "astro/Nutation.h"
#include "astro/SiderealTime.h"
#include "core/Angles.h"
#include "core/DeltaT.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

constexpr double kBaseDay = 2451544.5;   // 2000 January 1
constexpr double kReach = 1e8;           // days from the base that still have a date
constexpr double kHoursOfTwoDays = 48.0; // a stretch that shows the slope of the ayanamsa

} // namespace

double julianDayOf(const core::DateTimeRecord& date, double clockOffset)
{
    return core::DateToJulianDay(date) - clockOffset / 24.0;
}

core::DateTimeRecord recordOfDay(double julianDay0h)
{
    core::DateTimeRecord record;
    record.year = 2000;
    record.month = 1;
    record.day = 1;
    record.localTime = 0.0;
    core::addDays(record, core::truncated(std::round(julianDay0h - kBaseDay)));
    // 1582 October 15 is read in the Julian calendar, ten days later than it was written here.
    record.day += core::truncated(julianDay0h - core::DateToJulianDay(record));
    return record;
}

int weekdayOfDay(double julianDay0h)
{
    return core::ModFrom(7, 0, core::truncated(std::floor(julianDay0h + 1.5)) % 7) + 1;
}

SiderealSky::SiderealSky(const astro::Series& series, const core::Settings& settings,
                         double clockOffset)
    : track_(series, settings.preciseMoon), settings_(settings), clockOffset_(clockOffset),
      tropical_(astro::isTropical(astro::selectedRow(settings)))
{}

void SiderealSky::setClockOffset(double hours)
{
    if (hours != clockOffset_) {
        clockOffset_ = hours;
        month_ = {};
    }
}

const SiderealSky::Month& SiderealSky::monthOf(double julianDay)
{
    if (julianDay >= month_.begin && julianDay < month_.end) {
        return month_;
    }
    month_ = {};
    if (!(std::fabs(julianDay - kBaseDay) < kReach)) {
        month_.deltaTDays = core::kNotANumber;
        return month_;
    }
    const double day0h = std::floor(julianDay + clockOffset_ / 24.0 - 0.5) + 0.5;
    core::DateTimeRecord date = recordOfDay(day0h);
    // The month in which the calendar changed is taken day by day.
    const bool whole = date.year != 1582 || date.month != 10;
    month_.begin = day0h - (whole ? date.day - 1 : 0) - clockOffset_ / 24.0;
    month_.end = month_.begin + (whole ? core::daysInMonth(date.year, date.month) : 1);
    if (whole) {
        date.day = 1;
    }
    core::DeltaT(date, settings_.deltaTOn);
    month_.deltaTDays = date.deltaTDays;
    const core::AyanamsaRow& row = astro::selectedRow(settings_);
    date.utHours = -clockOffset_;
    month_.ayanamsaAtBegin = astro::ayanamsaOfRow(row, astro::DecimalYear(date));
    date.utHours += kHoursOfTwoDays;
    month_.ayanamsaPerDay =
        (astro::ayanamsaOfRow(row, astro::DecimalYear(date)) - month_.ayanamsaAtBegin) /
        (kHoursOfTwoDays / 24.0);
    return month_;
}

double SiderealSky::terrestrialDay(double julianDay)
{
    return julianDay - core::kEpoch1900 + monthOf(julianDay).deltaTDays;
}

double SiderealSky::ayanamsa(double julianDay)
{
    if (tropical_) {
        const double T = terrestrialDay(julianDay) / core::kDaysPerCentury;
        return -astro::Nutation(core::timeArguments(T)).longitude;
    }
    const Month& month = monthOf(julianDay);
    return month.ayanamsaAtBegin + (julianDay - month.begin) * month.ayanamsaPerDay;
}

double SiderealSky::tropicalLongitude(int point, double julianDay)
{
    return track_.longitude(point, terrestrialDay(julianDay));
}

double SiderealSky::longitude(int point, double julianDay)
{
    return core::Normalize360(tropicalLongitude(point, julianDay) - ayanamsa(julianDay));
}

SkyPosition SiderealSky::position(int point, double julianDay)
{
    const double day = terrestrialDay(julianDay);
    const TrackedPosition body = track_.position(point, day);
    const double obliquity =
        astro::obliquityDegrees(day / core::kDaysPerCentury) * core::kRadiansPerDegree;
    const double ayanamsaHere = ayanamsa(julianDay);
    const double declination = astro::declinationOf(body.longitude * core::kRadiansPerDegree,
                                                    body.latitude * core::kRadiansPerDegree,
                                                    std::cos(obliquity), std::sin(obliquity));
    return {core::Normalize360(body.longitude - ayanamsaHere), body.latitude,
            declination * core::kDegreesPerRadian, body.distance, body.speed};
}

} // namespace kestrav::timing
