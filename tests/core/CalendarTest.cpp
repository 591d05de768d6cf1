#include "core/Chart.h"
#include "core/DateTime.h"
#include "core/Settings.h"
#include "core/numeric.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <tuple>
#include <vector>

namespace kestrav::core
{
namespace
{

using Date = std::tuple<int, int, int>;

DateTimeRecord record(const Date& date)
{
    DateTimeRecord result;
    std::tie(result.year, result.month, result.day) = date;
    return result;
}

bool exists(const Date& date)
{
    return dateExists(std::get<0>(date), std::get<1>(date), std::get<2>(date));
}

double julianDayOf(const Date& date)
{
    return DateToJulianDay(record(date));
}

Date dateOf(const DateTimeRecord& time)
{
    return {time.year, time.month, time.day};
}

// The date of 0h Universal Time of a Julian day.
Chart chartOfJulianDay(double julianDay)
{
    Chart chart;
    chart.time.dayCount = julianDay - kEpoch1900;
    JulianDayToDate(chart);
    return chart;
}

Chart chartOfDate(const Date& date, double localTime = 12.0, double zone = 0.0)
{
    Chart chart;
    chart.time = record(date);
    chart.time.localTime = localTime;
    chart.zone = zone;
    TimeArguments arguments;
    LocalToUniversal(chart, Settings{}, arguments);
    return chart;
}

// A calendar that only counts: one day after the other, with the ten days dropped in 1582.
Date dayAfter(Date date)
{
    auto& [year, month, day] = date;
    if (date == Date{1582, 10, 4}) {
        return {1582, 10, 15};
    }
    const int astronomical = year < 0 ? year + 1 : year;
    const bool leap = astronomical % 4 == 0 &&
                      (astronomical < 1582 || astronomical % 100 != 0 || astronomical % 400 == 0);
    const bool shortMonth = month == 4 || month == 6 || month == 9 || month == 11;
    const int length = month == 2 ? (leap ? 29 : 28) : shortMonth ? 30 : 31;
    if (++day > length) {
        day = 1;
        if (++month > 12) {
            month = 1;
            year += year == -1 ? 2 : 1;
        }
    }
    return date;
}

TEST(Calendar, EveryDayOfSevenThousandYearsKeepsItsNumberDateAndWeekday)
{
    // Julian days begin on a Monday, 366 days before this Wednesday.
    Date date{-4712, 1, 1};
    double expected = 365.5;
    int weekday = 4;
    Chart back;
    for (; std::get<0>(date) < 3000; date = dayAfter(date), expected += 1.0) {
        ASSERT_TRUE(exists(date)) << expected;
        ASSERT_TRUE(date == Date(1582, 10, 15) || julianDayOf(date) == expected) << expected;
        back.time.dayCount = expected - kEpoch1900;
        JulianDayToDate(back);
        ASSERT_TRUE(dateOf(back.time) == date && back.time.localTime == 0.0) << expected;
        ASSERT_TRUE(Weekday(back) == weekday) << expected;
        weekday = weekday % 7 + 1;
    }
    EXPECT_EQ(expected, 2816787.5);
}

TEST(Calendar, AgreesWithPublishedJulianDays)
{
    // Examples of Astronomical Algorithms, chapter 7, the Ides of March and the eclipse of Thales.
    const std::vector<std::pair<Date, double>> published = {
        {{1957, 10, 4}, 2436115.5},  {{1987, 6, 19}, 2446965.5},  {{1600, 1, 1}, 2305447.5},
        {{1600, 12, 31}, 2305812.5}, {{837, 4, 10}, 2026871.5},   {{333, 1, 27}, 1842712.5},
        {{-44, 3, 15}, 1705425.5},   {{-124, 12, 31}, 1676496.5}, {{-123, 1, 1}, 1676497.5},
        {{-585, 5, 28}, 1507899.5},  {{-1001, 2, 29}, 1355866.5}, {{-1001, 7, 12}, 1356000.5},
        {{-4713, 1, 1}, -0.5},       {{-1, 1, 1}, 1721057.5},     {{0, 1, 1}, 1721057.5}};
    for (const auto& [date, julianDay] : published) {
        EXPECT_EQ(julianDayOf(date), julianDay) << std::get<0>(date);
    }
}

TEST(Calendar, FifteenthOfOctober1582IsStillJulian)
{
    EXPECT_EQ(julianDayOf({1582, 10, 4}), 2299159.5);
    EXPECT_EQ(julianDayOf({1582, 10, 15}), 2299170.5);
    EXPECT_EQ(julianDayOf({1582, 10, 16}), 2299161.5);
    EXPECT_EQ(dateOf(chartOfJulianDay(2299170.5).time), Date(1582, 10, 25));
    EXPECT_EQ(dateOf(chartOfJulianDay(2299160.5).time), Date(1582, 10, 15));
    // Days that never existed are read in the Julian calendar too.
    for (int day = 5; day <= 14; ++day) {
        EXPECT_FALSE(exists({1582, 10, day}));
        const Chart back = chartOfJulianDay(julianDayOf({1582, 10, day}));
        EXPECT_EQ(dateOf(back.time), Date(1582, 10, day + 10));
    }
}

TEST(Calendar, KnowsDatesThatDoNotExist)
{
    for (const Date& date :
         {Date{1900, 2, 29}, Date{2023, 2, 29}, Date{2000, 2, 30}, Date{-4, 2, 29}, Date{0, 1, 1},
          Date{2000, 0, 1}, Date{2000, 13, 1}, Date{2000, 4, 31}, Date{2000, 1, 0}}) {
        EXPECT_FALSE(exists(date)) << testing::PrintToString(date);
    }
}

TEST(Weekday, OfDatedEvents)
{
    // Hastings, Magna Carta, Agincourt, fall of Constantinople, landfall of Columbus, the last
    // Julian and the second Gregorian day, Declaration of Independence, Bastille, Waterloo, loss
    // of the Titanic, independence of India, first Moon landing.
    const std::vector<std::pair<Date, int>> events = {
        {{1066, 10, 14}, 7}, {{1215, 6, 15}, 2}, {{1415, 10, 25}, 6}, {{1453, 5, 29}, 3},
        {{1492, 10, 12}, 6}, {{1582, 10, 4}, 5}, {{1582, 10, 16}, 7}, {{1776, 7, 4}, 5},
        {{1789, 7, 14}, 3},  {{1815, 6, 18}, 1}, {{1912, 4, 15}, 2},  {{1947, 8, 15}, 6},
        {{1969, 7, 20}, 1}};
    for (const auto& [date, weekday] : events) {
        EXPECT_EQ(Weekday(chartOfDate(date)), weekday) << std::get<0>(date);
    }
}

TEST(Weekday, BeginsAtSunrise)
{
    Chart chart = chartOfDate({2000, 1, 1});
    chart.sunrise = 7.0;
    EXPECT_EQ(Weekday(chart), 7);
    chart = chartOfDate({2000, 1, 2}, 5.0, 5.5);
    chart.sunrise = 6.0 + 10.0 / 60.0;
    EXPECT_EQ(Weekday(chart), 7);
    chart.time.localTime = *chart.sunrise;
    EXPECT_EQ(Weekday(chart), 1);
    chart.time.localTime = 0.0;
    chart.sunrise.reset();
    EXPECT_EQ(Weekday(chart), 1);
    // The civil date counts, not the date in Greenwich.
    EXPECT_EQ(Weekday(chartOfDate({2000, 1, 2}, 0.5, 14.0)), 1);
    EXPECT_EQ(Weekday(chartOfDate({2000, 1, 2}, 23.5, -11.0)), 1);
}

TEST(TimeArguments, CountCenturiesFrom1900)
{
    Settings settings;
    settings.deltaTOn = false;
    Chart chart;
    chart.time = record({2000, 1, 1});
    TimeArguments arguments;
    LocalToUniversal(chart, settings, arguments);
    EXPECT_EQ(chart.integerJulianDay, 2451544);
    EXPECT_EQ(chart.time.dayCount, 36525.0);
    EXPECT_EQ(chart.time.deltaTDays, 0.0);
    EXPECT_EQ(arguments.T, 1.0);
    EXPECT_EQ(arguments.fromJ2000, 0.0);

    settings.deltaTOn = true;
    chart.zone = 5.5;
    chart.daylightSaving = 1;
    chart.time.localTime = 3.0;
    LocalToUniversal(chart, settings, arguments);
    EXPECT_EQ(chart.time.utHours, -3.5);
    EXPECT_EQ(chart.integerJulianDay, 2451544);
    // The count is summed with the whole Julian day, whose rounding unit is 4.7e-10.
    EXPECT_NEAR(chart.time.dayCount, 36524.5 - 3.5 / 24.0, 2.4e-10);
    // Delta T is in the arguments and not in the stored count.
    EXPECT_NEAR(arguments.T, (36524.5 - 3.5 / 24.0 + 63.86 / 86400.0) / 36525.0, 7e-15);
    EXPECT_EQ(arguments.T2, arguments.T * arguments.T);
}

TEST(JulianDayToDate, BringsEveryLocalTimeBack)
{
    constexpr unsigned kSeed = 19471815;
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<int> years(-2999, 2999);
    std::uniform_int_distribution<int> minutes(0, 1438);
    for (const double zone : {-11.0, -8.0, -3.5, 0.0, 4.5, 5.5, 5.75, 13.0}) {
        for (int i = 0; i < 4000; ++i) {
            const int year = years(random);
            const Date date{year, 1 + int(random() % 12), 1 + int(random() % 28)};
            if (!exists(date) || date == Date(1582, 10, 15)) {
                continue;
            }
            // Many at midnight, where a rounding error would change the date. Below Julian day 2^21
            // it does so in some zones (the day before, 40 microseconds to 24:00), which stays so.
            const double hours = year > 1029 && i % 2 == 0 ? 0.0 : (1 + minutes(random)) / 60.0;
            Chart chart = chartOfDate(date, hours, zone);
            const double ut = chart.time.utHours;
            const int integer = chart.integerJulianDay;
            JulianDayToDate(chart);
            ASSERT_EQ(dateOf(chart.time), date)
                << "seed " << kSeed << " zone " << zone << " hours " << hours;
            // Half a rounding unit of the Julian day is 0.00002 seconds.
            ASSERT_NEAR(chart.time.localTime, hours, 2e-8);
            ASSERT_NEAR(chart.time.utHours, ut, 2e-8);
            ASSERT_EQ(chart.integerJulianDay, integer);
        }
    }
}

class Saving : public SavingTimeRule
{
public:
    explicit Saving(int hours) : hours_(hours)
    {}
    int hoursInForce(const Chart& chart) const override
    {
        asked = dateOf(chart.time);
        return hours_;
    }
    mutable Date asked;

private:
    int hours_;
};

TEST(JulianDayToDate, CarriesSavingTimeIntoTheNextDate)
{
    const std::vector<std::pair<Date, Date>> nights = {
        {{1999, 12, 31}, {2000, 1, 1}}, {{2000, 2, 28}, {2000, 2, 29}},
        {{1900, 2, 28}, {1900, 3, 1}},  {{1500, 2, 28}, {1500, 2, 29}},
        {{-1, 12, 31}, {1, 1, 1}},      {{1582, 10, 4}, {1582, 10, 15}},
        {{2024, 6, 30}, {2024, 7, 1}}};
    const Saving rule(1);
    for (const auto& [before, after] : nights) {
        Chart chart = chartOfDate(before, 23.5, -8.0);
        const double dayCount = chart.time.dayCount;
        const int integer = chart.integerJulianDay;
        JulianDayToDate(chart, &rule);
        EXPECT_EQ(rule.asked, before);
        EXPECT_EQ(dateOf(chart.time), after);
        EXPECT_EQ(chart.daylightSaving, 1);
        EXPECT_NEAR(chart.time.localTime, 0.5, 1e-7);
        EXPECT_NEAR(chart.time.utHours, 0.5 + 8.0 - 1.0, 1e-7);
        EXPECT_EQ(chart.integerJulianDay, integer + 1);
        EXPECT_EQ(chart.time.dayCount, dayCount);
    }
    // October 15 reached from a day count is Gregorian, so its night leads to October 16.
    Chart switchDay;
    switchDay.time.dayCount = 2299160.5 + 23.5 / 24.0 - kEpoch1900;
    JulianDayToDate(switchDay, &rule);
    EXPECT_EQ(dateOf(switchDay.time), Date(1582, 10, 16));

    Chart noon = chartOfDate({2024, 6, 30}, 12.0, 1.0);
    JulianDayToDate(noon, &rule);
    EXPECT_EQ(dateOf(noon.time), Date(2024, 6, 30));
    EXPECT_NEAR(noon.time.localTime, 13.0, 1e-7);
    EXPECT_NEAR(noon.time.utHours, 11.0, 1e-7);
    JulianDayToDate(noon);
    EXPECT_EQ(noon.daylightSaving, 0) << "without a rule";
    noon.daylightSaving = 1;
    const Saving none(0);
    JulianDayToDate(noon, &none);
    EXPECT_EQ(noon.daylightSaving, 0);
    EXPECT_NEAR(noon.time.localTime, 12.0, 1e-7);
}

TEST(Calendar, AddedDaysCrossEveryBoundary)
{
    const std::vector<std::tuple<Date, int, Date>> steps = {{{2023, 12, 31}, 1, {2024, 1, 1}},
                                                            {{2024, 3, 1}, -1, {2024, 2, 29}},
                                                            {{1, 1, 1}, -1, {-1, 12, 31}},
                                                            {{1582, 10, 16}, -2, {1582, 10, 4}}};
    for (const auto& [from, days, to] : steps) {
        DateTimeRecord time = record(from);
        addDays(time, days);
        EXPECT_EQ(dateOf(time), to);
    }
}

TEST(Calendar, AcceptsAnyNumbersWithoutHarm)
{
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t year : {kMost, -kMost - 1, 2'000'000'000, -100'000}) {
        Chart chart = chartOfDate({year, kMost, -kMost});
        EXPECT_TRUE(Weekday(chart) >= 1 && Weekday(chart) <= 7);
        JulianDayToDate(chart);
    }
    for (const double dayCount : {kNotANumber, 1e300, -1e300}) {
        Chart chart;
        chart.time.dayCount = dayCount;
        JulianDayToDate(chart);
        EXPECT_TRUE(Weekday(chart) >= 1 && Weekday(chart) <= 7);
    }
}

} // namespace
} // namespace kestrav::core
