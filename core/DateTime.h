// The date-time record and the two calendars: day counts, dates, the weekday.
#pragma once

#include <cstdint>

namespace kestrav::core
{

struct Chart;
struct Settings;

/// Julian day of 1900 January 0.5, from which the stored day count runs.
inline constexpr double kEpoch1900 = 2415020.0;
inline constexpr double kDaysPerCentury = 36525.0;

/// One moment in local and in Universal Time.
struct DateTimeRecord
{
    std::int32_t year = 2000; ///< historical numbering: 1 BC is -1, there is no year 0
    std::int32_t month = 1;   ///< 1 to 12
    std::int32_t day = 1;     ///< 1 to 31
    double localTime = 12.0;  ///< local clock hours, 0 to under 24
    double ayanamsa = 0.0;    ///< degrees
    double dayCount = 0.0;    ///< Julian day - 2415020 of the Universal Time
    double utHours = 12.0;    ///< Universal Time in hours, counted from 0h of the local date
    double deltaTDays = 0.0;  ///< days; 0 when the correction is off
};

/// The arguments of the astronomical formulas at one moment. Delta T is contained in them, unlike
/// in the stored day count.
struct TimeArguments
{
    double T = 1.0;         ///< Julian centuries from 1900 January 0.5; J2000.0 is exactly 1
    double T2 = 1.0;        ///< T squared
    double fromJ2000 = 0.0; ///< T - 1, Julian centuries from J2000.0
};

/// The arguments of T centuries from 1900 January 0.5.
[[nodiscard]] TimeArguments timeArguments(double T);

/// Julian day of 0h of the record's date. Dates up to and including 1582 October 15 are read in the
/// Julian calendar, later ones in the Gregorian calendar. No date is rejected.
[[nodiscard]] double DateToJulianDay(const DateTimeRecord& record);

/// Fills the day count from the date and the Universal Time, and the time arguments from it and
/// the record's Delta T. Returns the integer part of the Julian day of 0h, which gives the weekday.
int SetTimeArguments(DateTimeRecord& record, TimeArguments& arguments);

/// Universal Time, Delta T, day count and time arguments of the chart's local time.
void LocalToUniversal(Chart& chart, const Settings& settings, TimeArguments& arguments);

/// Answers how many whole hours of saving time are in force at a chart's local date and time
/// (without saving time) and place; 0 for none.
class SavingTimeRule
{
public:
    virtual ~SavingTimeRule() = default;
    [[nodiscard]] virtual int hoursInForce(const Chart& chart) const = 0;
};

/// Local date, local time and Universal Time from the chart's day count and zone. The hours of
/// saving time that the rule says are in force are added to the local time and carried into the
/// date; without a rule, or when none is in force, the chart's saving time becomes 0. The local
/// time keeps its rounding error, so screens print it with FormatHM, FormatClock or
/// FormatRecordHours.
void JulianDayToDate(Chart& chart, const SavingTimeRule* rule = nullptr);

/// 1 = Sunday to 7 = Saturday. The day begins at sunrise; where the chart has no sunrise, at
/// midnight.
[[nodiscard]] int Weekday(const Chart& chart);

/// The civil date `days` after the record's date, across month and year ends and the change of
/// calendar. The clock time stays. 1582 October 15 counts from its Julian day, as everywhere, so
/// the day before it is October 24; a walk over many days counts days instead of dates.
void addDays(DateTimeRecord& record, int days);

/// Days in a month of the year (historical numbering) in the calendar in force then.
[[nodiscard]] int daysInMonth(int year, int month);

/// Whether the date exists: no year 0, no February 30, no 1582 October 5 to 14.
[[nodiscard]] bool dateExists(int year, int month, int day);

} // namespace kestrav::core
