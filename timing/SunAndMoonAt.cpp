#include "timing/SunAndMoonAt.h"

#include "astro/Ayanamsa.h"
#include "astro/Engine.h"
#include "astro/Moon.h"
#include "astro/Nutation.h"
#include "astro/PreciseMoon.h"
#include "core/Angles.h"
#include "core/DeltaT.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::timing
{

core::DateTimeRecord dateAt(double julianDay, double clockOffset)
{
    constexpr double kJulianDay2000 = 2451544.5; // 0h of 2000 January 1
    const double days = julianDay - kJulianDay2000 + clockOffset / 24.0;
    const double whole = std::floor(days);
    core::DateTimeRecord record;
    record.year = 2000;
    record.month = 1;
    record.day = 1;
    core::addDays(record, core::truncated(whole));
    record.localTime = (days - whole) * 24.0;
    record.utHours = record.localTime - clockOffset;
    record.dayCount = julianDay - core::kEpoch1900;
    return record;
}

SunAndMoonAt::SunAndMoonAt(const astro::Series& series, const core::Settings& settings,
                           double clockOffset)
    : series_(&series), settings_(settings), clockOffset_(clockOffset)
{}

SunAndMoonAt::Moment SunAndMoonAt::momentOf(double julianDay) const
{
    core::DateTimeRecord record = dateAt(julianDay, clockOffset_);
    core::DeltaT(record, settings_.deltaTOn);
    Moment moment;
    moment.time =
        core::timeArguments((record.dayCount + record.deltaTDays) / core::kDaysPerCentury);
    moment.ayanamsa = astro::isTropical(astro::selectedRow(settings_))
                          ? -astro::Nutation(moment.time).longitude
                          : astro::Ayanamsa(record, settings_);
    return moment;
}

SiderealPlace SunAndMoonAt::sun(double julianDay) const
{
    const Moment moment = momentOf(julianDay);
    astro::EphemerisContext context(*series_);
    context.setTime(moment.time);
    astro::PlanetPosition(context, astro::kCodeSun);
    return {core::Normalize360(context.result.longitude - moment.ayanamsa), context.result.speed};
}

SiderealPlace SunAndMoonAt::moon(double julianDay) const
{
    const Moment moment = momentOf(julianDay);
    if (settings_.preciseMoon) {
        const astro::MoonPosition moon = astro::preciseMoon(moment.time.T);
        return {core::Normalize360(moon.longitude - moment.ayanamsa), moon.speed};
    }
    const astro::ShortMoon moon = astro::shortMoon(moment.time);
    return {core::Normalize360(moon.longitude - moment.ayanamsa), moon.speed};
}

} // namespace kestrav::timing
