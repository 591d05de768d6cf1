#include "analysis/DayParts.h"

#include "analysis/AscendantAt.h"
#include "analysis/NakshatraLords.h"
#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::tests
{

namespace
{

using namespace analysis;

TEST(DayParts, PartsFillTheHalfDayWithoutGaps)
{
    const HalfDay night = {true, -5.75, 6.25};
    EXPECT_DOUBLE_EQ(night.partStart(0, kEighths), -5.75);
    EXPECT_DOUBLE_EQ(night.partStart(2.5, kEighths), -2.0);
    EXPECT_DOUBLE_EQ(night.partStart(8, kEighths), 6.25);
    for (int part = 0; part < kHorasOfHalf; ++part) {
        EXPECT_EQ(night.partAt(night.partStart(part + 0.001, kHorasOfHalf), kHorasOfHalf), part);
        EXPECT_EQ(night.partAt(night.partStart(part + 0.999, kHorasOfHalf), kHorasOfHalf), part);
    }
    EXPECT_EQ(night.partAt(6.25, kMuhurtasOfHalf), kMuhurtasOfHalf - 1);
    EXPECT_EQ(night.partAt(-5.7500001, kMuhurtasOfHalf), 0);
}

TEST(DayParts, KalaVelasBeginWithTheWeekdaysLord)
{
    constexpr int kSunday = 1;
    constexpr int kMonday = 2;
    EXPECT_EQ(kalaVelaPart(kMonday, false, core::kSaturn), 5);
    EXPECT_EQ(kalaVelaPart(kMonday, true, core::kSaturn), 1);
    EXPECT_EQ(kalaVelaPart(kSunday, false, core::kSun), 0);
    EXPECT_EQ(kalaVelaPart(kSunday, false, core::kSaturn), 6);
    EXPECT_EQ(kalaVelaPart(kSunday, true, core::kSaturn), 2);
    for (int weekday = 1; weekday <= 7; ++weekday) {
        EXPECT_EQ(kalaVelaRuler(weekday, false, 0), weekday);
        // The fifth lord from the weekday's, itself counted as the first.
        EXPECT_EQ(kalaVelaRuler(weekday, true, 0), (weekday + 3) % 7 + 1);
        for (const bool night : {false, true}) {
            for (int part = 0; part < 7; ++part) {
                const int ruler = kalaVelaRuler(weekday, night, part);
                EXPECT_EQ(kalaVelaPart(weekday, night, ruler), part);
            }
            EXPECT_EQ(kalaVelaRuler(weekday, night, 7), 0);
        }
    }
}

TEST(DayParts, TheHoraAfterTheLastBelongsToTheNextWeekday)
{
    for (int weekday = 1; weekday <= 7; ++weekday) {
        EXPECT_EQ(horaLord(weekday, 0), weekday);
        EXPECT_EQ(horaLord(weekday, 24), weekday % 7 + 1);
    }
    EXPECT_EQ(horaLord(1, 1), core::kVenus);
    EXPECT_EQ(horaLord(1, 12), core::kJupiter);
}

TEST(DayParts, HoraLordsOfThePrintedHoroscopes)
{
    // Eight hours after sunrise on a Wednesday.
    const core::Chart day = chartAt(kBangalore, 1918, 10, 16, 14.1);
    EXPECT_EQ(day.weekday, 4);
    EXPECT_EQ(runningHoraLord(day), core::kMoon);

    // After midnight: still the night of Saturday.
    const core::Chart night = chartAt(kNewDelhi, 1981, 9, 13, 1.5);
    EXPECT_EQ(night.weekday, 7);
    EXPECT_EQ(runningHora(night), 19);
    EXPECT_EQ(runningHoraLord(night), core::kMercury);
}

TEST(DayParts, TheHalfThatContainsTheMoment)
{
    const core::Chart beforeSunrise = chartAt(kNewDelhi, 2022, 1, 24, 5.0);
    const HalfDay night = *runningHalf(beforeSunrise);
    EXPECT_TRUE(night.night);
    // Sunset of the 23rd and sunrise of the 24th.
    EXPECT_NEAR(night.start, 17.0 + 51.0 / 60.0 - 24.0, 0.02);
    EXPECT_NEAR(night.end, 7.0 + 14.0 / 60.0, 0.01);

    core::Chart chart = chartAt(kNewDelhi, 2022, 1, 24, 12.0);
    EXPECT_FALSE(runningHalf(chart)->night);
    EXPECT_NEAR(runningHalf(chart)->end, 17.0 + 52.4 / 60.0, 0.01);
    chart.time.localTime = chart.vedicDay->sunset;
    EXPECT_TRUE(runningHalf(chart)->night);
    EXPECT_EQ(runningHora(chart), 12);

    chart.hasMoment = false;
    EXPECT_FALSE(runningHalf(chart));
    EXPECT_FALSE(runningHora(chart));
}

TEST(DayParts, DayAndNightWhereNoDayRuns)
{
    EXPECT_EQ(isNight(chartAt(kTromso, 2022, 6, 21, 0.7)), false);
    EXPECT_EQ(isNight(chartAt(kTromso, 2022, 12, 21, 11.7)), true);
    EXPECT_EQ(isNight(printedDayChart()), false);
    EXPECT_EQ(isNight(printedNightChart()), true);
    EXPECT_FALSE(isNight(bareChart({-1.0, 100.0})));
}

TEST(AscendantAt, FollowsTheSunAtItsRisingAndSetting)
{
    core::Chart chart = chartAt(kNewDelhi, 2022, 1, 24, 3.0);
    EXPECT_NEAR(ascendantAt(chart, 3.0), chart.longitude[core::kAscendant], 1e-9);

    // The Sun then stands 0.5833 degrees below the horizon, which is up to 0.95 degrees on an
    // ecliptic that rises at an angle of 38 degrees or more.
    const core::VedicDay day = *chart.vedicDay;
    const auto sunAt = [](double hour) {
        const int date = hour < 0.0 ? 23 : 24;
        return chartAt(kNewDelhi, 2022, 1, date, hour < 0.0 ? hour + 24.0 : hour)
            .longitude[core::kSun];
    };
    const auto aheadOfSun = [&](double hour, double side) {
        return std::remainder(ascendantAt(chart, hour) - sunAt(hour) - side, 360.0);
    };
    for (const double sunrise : {day.sunrise, day.nextSunrise}) {
        EXPECT_LT(aheadOfSun(sunrise, 0.0), -0.583);
        EXPECT_GT(aheadOfSun(sunrise, 0.0), -0.95);
    }
    EXPECT_GT(aheadOfSun(day.sunset, 180.0), 0.583);
    EXPECT_LT(aheadOfSun(day.sunset, 180.0), 0.95);

    // The stars come back 3m55.91s earlier the next day.
    EXPECT_NEAR(ascendantAt(chart, 27.0), ascendantAt(chart, 3.0 + 235.909 / 3600.0), 1e-4);
}

TEST(NakshatraLords, FollowTheVimshottariOrder)
{
    EXPECT_EQ(nakshatraLord(0.0), core::kKetu);
    EXPECT_EQ(nakshatraLord(2.99), core::kSun);   // Krittika
    EXPECT_EQ(nakshatraLord(7.5), core::kSaturn); // Pushya
    EXPECT_EQ(nakshatraLord(9.0), core::kKetu);
    EXPECT_EQ(nakshatraLord(26.999), core::kMercury);
    EXPECT_EQ(nakshatraLord(27.0), core::kKetu);
    EXPECT_EQ(vimshottariYears(core::kVenus), 20.0);
    EXPECT_EQ(vimshottariYears(core::kRahu), 18.0);
    EXPECT_EQ(vimshottariYears(core::kMercury), 17.0);
    EXPECT_EQ(padaOf(4.0), 1);
    EXPECT_EQ(padaOf(4.25), 2);
    EXPECT_EQ(padaOf(4.999), 4);
}

} // namespace

} // namespace kestrav::tests
