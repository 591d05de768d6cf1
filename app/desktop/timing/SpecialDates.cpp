#include "app/desktop/timing/SpecialDates.h"

#include "app/desktop/timing/MomentSteps.h"
#include "core/Angles.h"
#include "core/Points.h"
#include "timing/Dasha.h"
#include "timing/DashaWalk.h"
#include "timing/EventSearch.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"
#include "timing/YearLength.h"

#include <cmath>
#include <optional>
#include <vector>

namespace kestrav::desktop
{

namespace
{

constexpr double kSecond = 1.0 / 86400.0;
constexpr double kAroundReturn = 6.0; ///< days by which years of the calendar and the Sun differ
// Pluto goes round once in this time, and so does everything else.
constexpr double kLongestSearch = 252.0 * 365.25;
constexpr double kLongestToStation = 3.0 * 365.25; ///< Mars takes a little over two years
constexpr double kLongestCycle = 130.0;            ///< years
constexpr long long kMostPeriods = 2'000'000;
constexpr double kYearsPastStart = 1e-8;

// The sign that a body is in behind a crossing of a sign's limit.
int signBehind(const timing::Crossing& crossing)
{
    return core::norm12(crossing.rising ? crossing.level + 1 : crossing.level);
}

} // namespace

double momentOfAge(const core::Chart& birth, int years, int months, int days)
{
    core::DateTimeRecord date = addMonths(birth.time, years * 12 + months);
    core::addDays(date, days);
    return timing::julianDayOf(date, birth.zone + birth.daylightSaving) +
           birth.time.localTime / 24.0;
}

core::Result<double> sunReturn(const SpecialSearch& search, int number)
{
    const core::Chart& birth = search.chart->chart;
    if (!birth.computed(core::kSun)) {
        return core::Error{"the Sun of the chart has no position"};
    }
    timing::SiderealSky sky(search.data->series, search.settings, birth.zone);
    const auto sun = [&sky](double day) {
        return sky.longitude(core::kSun, day);
    };
    const double expected = momentOfAge(birth, 0, 0, 0) + number * timing::kMeanSiderealYear;
    const auto found = timing::firstCrossing(sun, timing::transitShape(core::kSun),
                                             {expected - kAroundReturn, expected + kAroundReturn},
                                             {core::at(birth.longitude, core::kSun), 0.0});
    if (!found) {
        return core::Error{"the return lies outside the years of the ephemeris"};
    }
    return found->day;
}

core::Result<double> dashaStart(const SpecialSearch& search, const timing::DashaOptions& options,
                                int level, int lord)
{
    const auto dasha =
        timing::dashaOf(search.chart->chart, search.chart->settings, options, search.data->series);
    if (!dasha) {
        return dasha.error();
    }
    const timing::DashaCalendar& calendar = dasha.value().calendar;
    const double age = calendar.ageAt(search.moment);
    const bool forward = search.direction > 0;
    timing::DashaSpan span{level, forward ? age : age - kLongestCycle,
                           forward ? age + kLongestCycle : age, kMostPeriods};
    std::optional<double> found;
    for (const timing::DashaPeriod& period : timing::DashaList(dasha.value(), span)) {
        if (period.level != level || (lord > 0 && period.lord() != lord)) {
            continue;
        }
        if (forward && period.startAge > age + kYearsPastStart) {
            return period.startJulianDay;
        }
        if (!forward && period.startAge < age - kYearsPastStart) {
            found = period.startJulianDay;
        }
    }
    if (!found) {
        return core::Error{"no such period begins within a cycle"};
    }
    return *found;
}

core::Result<double> ingressOf(const SpecialSearch& search, int body, int sign)
{
    timing::SiderealSky sky(search.data->series, search.settings, search.clockOffset);
    const auto longitude = [&sky, body](double day) {
        return sky.longitude(body, day);
    };
    const timing::CurveShape shape = timing::transitShape(body);
    const timing::Levels signs{0.0, 30.0};
    std::optional<double> found;
    if (search.direction > 0) {
        timing::forEachCrossing(longitude, shape,
                                {search.moment + kSecond, search.moment + kLongestSearch}, signs,
                                [&](const timing::Crossing& crossing) {
                                    if (sign == 0 || signBehind(crossing) == sign) {
                                        found = crossing.day;
                                    }
                                    return !found;
                                });
    } else {
        double end = search.moment - kSecond;
        while (!found) {
            const auto last = timing::lastCrossing(longitude, shape,
                                                   {search.moment - kLongestSearch, end}, signs);
            if (!last) {
                break;
            }
            if (sign == 0 || signBehind(*last) == sign) {
                found = last->day;
            }
            end = last->day - kSecond;
        }
    }
    if (!found) {
        return core::Error{"no such ingress lies within the years of the ephemeris"};
    }
    return *found;
}

core::Result<double> stationOf(const SpecialSearch& search, int body)
{
    timing::SiderealSky sky(search.data->series, search.settings, search.clockOffset);
    const bool forward = search.direction > 0;
    const timing::Span span =
        forward ? timing::Span{search.moment + kSecond, search.moment + kLongestToStation}
                : timing::Span{search.moment - kLongestToStation, search.moment - kSecond};
    std::optional<double> found;
    timing::findStations(
        {sky, span, search.clockOffset}, body, [&](const timing::TransitEvent& event) {
            const bool better =
                !found || (forward ? event.julianDay < *found : event.julianDay > *found);
            if (better) {
                found = event.julianDay;
            }
        });
    if (!found) {
        return core::Error{"no station lies within the years of the ephemeris"};
    }
    return *found;
}

} // namespace kestrav::desktop
