#include "core/DateTime.h"

#include "core/Angles.h"
#include "core/Chart.h"
#include "core/DeltaT.h"
#include "core/Settings.h"
#include "core/numeric.h"

#include <array>
#include <cmath>

namespace kestrav::core
{

namespace
{

// First Julian day that the standard inverse reads in the Gregorian calendar.
constexpr double kGregorianStart = 2299161.0;

// 1582 October 15 itself is still read as a date of the Julian calendar. This is meant: it comes
// back from its day count as October 25.
bool readInGregorianCalendar(const DateTimeRecord& record)
{
    if (record.year != 1582) {
        return record.year > 1582;
    }
    return record.month > 10 || (record.month == 10 && record.day > 15);
}

// Date of a Julian day that carries local time; returns the fraction of the day from local 0h.
double splitJulianDay(double julianDayPlusHalf, DateTimeRecord& record)
{
    const double Z = std::floor(julianDayPlusHalf);
    double A = Z;
    if (Z >= kGregorianStart) {
        const double alpha = std::floor((Z - 1867216.25) / 36524.25);
        A = Z + 1.0 + alpha - std::floor(alpha / 4.0);
    }
    const double B = A + 1524.0;
    const double C = std::floor((B - 122.1) / 365.25);
    const double D = std::floor(365.25 * C);
    const double E = std::floor((B - D) / 30.6001);
    record.day = truncated(B - D - std::floor(30.6001 * E));
    record.month = truncated(E < 14.0 ? E - 1.0 : E - 13.0);
    const double astronomicalYear = record.month > 2 ? C - 4716.0 : C - 4715.0;
    record.year = truncated(astronomicalYear <= 0.0 ? astronomicalYear - 1.0 : astronomicalYear);
    return julianDayPlusHalf - Z;
}

int integerJulianDay(const DateTimeRecord& record)
{
    return truncated(record.dayCount - record.utHours / 24.0 + kEpoch1900);
}

} // namespace

TimeArguments timeArguments(double T)
{
    return {T, T * T, T - 1.0};
}

double DateToJulianDay(const DateTimeRecord& record)
{
    double y = record.year < 0 ? record.year + 1.0 : record.year;
    double m = record.month;
    if (m < 3.0) {
        y -= 1.0;
        m += 12.0;
    }
    double B = 0.0;
    if (readInGregorianCalendar(record)) {
        const double A = std::floor(0.01 * y);
        B = 2.0 - A + std::floor(A / 4.0);
    }
    return std::floor(365.25 * y) + std::floor(30.6001 * (m + 1.0)) + record.day + 1720994.5 + B;
}

int SetTimeArguments(DateTimeRecord& record, TimeArguments& arguments)
{
    const double julianDay = DateToJulianDay(record);
    record.dayCount = record.utHours * (1.0 / 24.0) - kEpoch1900 + julianDay;
    arguments = timeArguments((record.dayCount + record.deltaTDays) * (1.0 / kDaysPerCentury));
    return truncated(julianDay);
}

void LocalToUniversal(Chart& chart, const Settings& settings, TimeArguments& arguments)
{
    DateTimeRecord& time = chart.time;
    time.utHours = time.localTime - chart.zone - chart.daylightSaving;
    DeltaT(time, settings.deltaTOn);
    chart.integerJulianDay = SetTimeArguments(time, arguments);
}

void JulianDayToDate(Chart& chart, const SavingTimeRule* rule)
{
    DateTimeRecord& time = chart.time;
    const double local = time.dayCount + 2415020.5 + chart.zone / 24.0;
    time.localTime = splitJulianDay(local, time) * 24.0;
    chart.daylightSaving = rule != nullptr ? rule->hoursInForce(chart) : 0;
    time.localTime += chart.daylightSaving;
    if (time.localTime >= 24.0) {
        time.localTime -= 24.0;
        splitJulianDay(local + 1.0, time);
    }
    time.utHours = time.localTime - chart.zone - chart.daylightSaving;
    chart.integerJulianDay = integerJulianDay(time);
}

int Weekday(const Chart& chart)
{
    const bool beforeSunrise = chart.sunrise && chart.time.localTime < *chart.sunrise;
    return ModFrom(7, 0, chart.integerJulianDay % 7 + 2 - (beforeSunrise ? 1 : 0)) + 1;
}

void addDays(DateTimeRecord& record, int days)
{
    splitJulianDay(DateToJulianDay(record) + 0.5 + days, record);
}

int daysInMonth(int year, int month)
{
    constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) {
        return 0;
    }
    if (month == 2) {
        const int astronomical = year < 0 ? year + 1 : year;
        const bool leap = year > 1582 ? IsLeapYear(astronomical) : astronomical % 4 == 0;
        return leap ? 29 : 28;
    }
    return kDays[std::size_t(month - 1)];
}

bool dateExists(int year, int month, int day)
{
    const bool dropped = year == 1582 && month == 10 && day >= 5 && day <= 14;
    return year != 0 && day >= 1 && day <= daysInMonth(year, month) && !dropped;
}

} // namespace kestrav::core
