#include "app/desktop/timing/MomentSteps.h"

#include "app/desktop/timing/DashaChoice.h"
#include "app/desktop/timing/MomentText.h"
#include "astro/RiseSet.h"
#include "core/Chart.h"
#include "core/Points.h"
#include "timing/DashaQuery.h"
#include "timing/EventSearch.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::desktop
{

namespace
{

constexpr double kSecond = 1.0 / 86400.0;
constexpr double kDegreesOfTithi = 12.0;
constexpr double kLongestTithi = 2.0; ///< days within which one surely ends
// A change found once is not found again from its own moment: a third of a second in years, which
// is less than any period of five levels lasts.
constexpr double kYearsPastChange = 1e-8;
// In the polar night and day no sunrise comes for longer than this at no place but the poles.
constexpr int kLongestNight = 200;

core::Result<double> tithiChange(Workspace& workspace, double moment, int direction)
{
    timing::SiderealSky sky(workspace.data()->series, workspace.settings(),
                            readingOf(workspace, moment).offset);
    const auto between = [&sky](double day) {
        return sky.tropicalLongitude(core::kMoon, day) - sky.tropicalLongitude(core::kSun, day);
    };
    timing::CurveShape shape = timing::transitPairShape(core::kMoon, core::kSun);
    const timing::Levels levels{0.0, kDegreesOfTithi};
    const auto found =
        direction > 0 ? timing::firstCrossing(between, shape,
                                              {moment + kSecond, moment + kLongestTithi}, levels)
                      : timing::lastCrossing(between, shape,
                                             {moment - kLongestTithi, moment - kSecond}, levels);
    if (!found) {
        return core::Error{"no tithi changes within the years of the ephemeris"};
    }
    return found->day;
}

core::Result<double> dashaChange(Workspace& workspace, double moment, int direction)
{
    const ChartPointer& chart = workspace.chart();
    if (!chart || !chart->chart.hasMoment) {
        return core::Error{"a step to a change of dasha needs a chart with a moment of birth"};
    }
    const auto dasha = DashaChoice::of(workspace).dashaOf(chart);
    if (!dasha) {
        return dasha.error();
    }
    const timing::DashaCalendar& calendar = dasha.value().calendar;
    const double age = calendar.ageAt(moment) + direction * kYearsPastChange;
    const auto period = timing::periodAtAge(dasha.value(), age, workspace.settings().dashaLevels);
    if (!period) {
        return core::Error{"no dasha runs at the shared date"};
    }
    return calendar.julianDayOf(direction > 0 ? period->endAge() : period->startAge);
}

} // namespace

core::DateTimeRecord addMonths(core::DateTimeRecord date, int months)
{
    const int year = date.year < 0 ? date.year + 1 : date.year; // counted with a year 0
    const int count = year * 12 + date.month - 1 + months;
    const int newYear = int(std::floor(count / 12.0));
    date.month = count - newYear * 12 + 1;
    date.year = newYear <= 0 ? newYear - 1 : newYear;
    date.day = std::min(date.day, core::daysInMonth(date.year, date.month));
    while (!core::dateExists(date.year, date.month, date.day)) {
        ++date.day; // the days that the change of calendar left out
    }
    return date;
}

QString stepUnitName(StepUnit unit)
{
    static constexpr std::array<const char*, kStepUnits> kNames = {
        QT_TRANSLATE_NOOP("DateBar", "Minute"),      QT_TRANSLATE_NOOP("DateBar", "Hour"),
        QT_TRANSLATE_NOOP("DateBar", "Day"),         QT_TRANSLATE_NOOP("DateBar", "Week"),
        QT_TRANSLATE_NOOP("DateBar", "Month"),       QT_TRANSLATE_NOOP("DateBar", "Year"),
        QT_TRANSLATE_NOOP("DateBar", "Sunrise"),     QT_TRANSLATE_NOOP("DateBar", "Tithi"),
        QT_TRANSLATE_NOOP("DateBar", "Dasha change")};
    return QCoreApplication::translate("DateBar", kNames[std::size_t(unit)]);
}

core::Result<double> sunEventBeside(Workspace& workspace, bool rise, double moment, int direction)
{
    core::Chart here = workspace.recordAt(moment);
    if (here.identity.latitudeText.empty()) {
        return core::Error{"sunrise needs a place: choose the Now location"};
    }
    astro::EphemerisContext context(workspace.data()->series);
    const double offset = here.zone + here.daylightSaving;
    const astro::Observer observer{here.geoLongitude, here.geoLatitude, offset};
    core::TimeArguments arguments;
    core::LocalToUniversal(here, workspace.settings(), arguments); // for Delta T
    // The event of a date may lie on the clock's date before or after it.
    const double today = timing::civilDayOf(moment, offset);
    for (int day = -1; day <= kLongestNight; ++day) {
        const double date0h = today + direction * day;
        core::DateTimeRecord date = timing::recordOfDay(date0h);
        date.deltaTDays = here.time.deltaTDays;
        const auto hours = astro::sunEvent(
            context, date, observer, rise ? astro::HorizonEvent::Rise : astro::HorizonEvent::Set);
        const double found = date0h + (hours.value_or(0.0) - offset) / 24.0;
        if (hours && (found - moment) * direction > kSecond) {
            return found;
        }
    }
    return core::Error{"the Sun neither rises nor sets at this place for long"};
}

core::Result<double> steppedMoment(Workspace& workspace, StepUnit unit, double moment,
                                   int direction)
{
    constexpr std::array<double, 4> kDays = {1.0 / 1440.0, 1.0 / 24.0, 1.0, 7.0};
    switch (unit) {
    case StepUnit::Month:
    case StepUnit::Year: {
        const ClockReading reading = readingOf(workspace, moment);
        return momentAt(workspace,
                        addMonths(reading.date, direction * (unit == StepUnit::Year ? 12 : 1)),
                        reading.date.localTime);
    }
    case StepUnit::Sunrise:
        return sunEventBeside(workspace, true, moment, direction);
    case StepUnit::Tithi:
        return tithiChange(workspace, moment, direction);
    case StepUnit::DashaChange:
        return dashaChange(workspace, moment, direction);
    default:
        return moment + direction * kDays[std::size_t(unit)];
    }
}

} // namespace kestrav::desktop
