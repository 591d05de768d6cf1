// The calendar against the independent conversions of the ERFA library, which knows Gregorian dates
// only and numbers years astronomically.
#include "core/Chart.h"
#include "core/DateTime.h"

#include <erfa.h>
#include <gtest/gtest.h>

#include <random>

namespace kestrav::core
{
namespace
{

constexpr double kFirstGregorianDay = 2299161.5; // 1582 October 16
constexpr double kLastDay = 5373849.5;           // in the year 10000

TEST(CalendarAgainstErfa, GregorianDatesAndJulianDaysAgreeBothWays)
{
    for (int days = 0; kFirstGregorianDay + days < kLastDay; days += 3) {
        const double julianDay = kFirstGregorianDay + days;
        int year = 0;
        int month = 0;
        int day = 0;
        double fraction = 0.0;
        ASSERT_EQ(eraJd2cal(julianDay, 0.0, &year, &month, &day, &fraction), 0);
        Chart chart;
        chart.time.dayCount = julianDay - kEpoch1900;
        JulianDayToDate(chart);
        ASSERT_TRUE(chart.time.year == year && chart.time.month == month && chart.time.day == day)
            << julianDay;
        double zero = 0.0;
        double modified = 0.0;
        ASSERT_EQ(eraCal2jd(year, month, day, &zero, &modified), 0);
        ASSERT_EQ(DateToJulianDay(chart.time), zero + modified);
    }
}

TEST(CalendarAgainstErfa, ClockTimesAgree)
{
    constexpr unsigned kSeed = 1984;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> days(kFirstGregorianDay, kLastDay);
    for (int i = 0; i < 20000; ++i) {
        const double julianDay = days(random);
        int year = 0;
        int month = 0;
        int day = 0;
        double fraction = 0.0;
        eraJd2cal(julianDay, 0.0, &year, &month, &day, &fraction);
        Chart chart;
        chart.time.dayCount = julianDay - kEpoch1900;
        JulianDayToDate(chart);
        ASSERT_EQ(chart.time.day, day) << "seed " << kSeed << " day " << julianDay;
        // A rounding unit of the Julian day is 2.3e-8 hours.
        ASSERT_NEAR(chart.time.localTime, fraction * 24.0, 2.3e-8) << julianDay;
    }
}

} // namespace
} // namespace kestrav::core
