#include "timing/YearLength.h"

#include "core/numeric.h"
#include "tests/timing/DashaCharts.h"
#include "timing/DashaQuery.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace kestrav::timing
{
namespace
{

constexpr BirthForTests kBirth1967 = {1967, 3, 8, clock(17, 40), 5.5, 26.3, 73.067};

DashaCalendar calendarOf(const core::Chart& chart, YearLength choice)
{
    DashaOptions options;
    options.yearLength = choice;
    return DashaCalendar::ofBirth(chart, {}, options, tests::seriesForTests());
}

TEST(YearLength, CustomDaysAreHeldInTheirRange)
{
    EXPECT_EQ(yearDays(YearLength::Custom, 364.0), 364.0);
    EXPECT_EQ(yearDays(YearLength::Custom, 100.0), 200.0);
    EXPECT_EQ(yearDays(YearLength::Custom, 1e9), 500.0);
    EXPECT_EQ(yearDays(YearLength::Custom, core::kNotANumber), 365.25);
}

TEST(YearLength, TrueSolarReturn)
{
    const core::Chart chart = chartOfBirth(kBirth1967);
    const DashaCalendar calendar = calendarOf(chart, YearLength::TrueSolar);
    const core::DateTimeRecord date = calendar.dateOf(calendar.julianDayOf(33.0));
    EXPECT_EQ(date.year, 2000);
    EXPECT_EQ(date.month, 3);
    EXPECT_EQ(date.day, 8);
    EXPECT_NEAR(date.localTime, clock(4, 41, 21), 1.0 / 60.0);
    const core::DateTimeRecord earlier = calendar.dateOf(calendar.julianDayOf(26.0));
    EXPECT_EQ(earlier.year, 1993);
    EXPECT_EQ(earlier.day, 8);
    EXPECT_NEAR(earlier.localTime, clock(9, 36, 18), 1.0 / 60.0);
}

// An age and its moment belong together in both directions, and the Sun stands where it should.
TEST(YearLength, TrueSolarAgesComeBack)
{
    const core::Chart chart = chartOfBirth(kBirth1967);
    const DashaCalendar calendar = calendarOf(chart, YearLength::TrueSolar);
    const SunAndMoonAt sky(tests::seriesForTests(), {}, 5.5);
    EXPECT_NEAR(calendar.julianDayOf(0.0), chart.time.dayCount + core::kEpoch1900, 1e-8);
    std::mt19937 random(12);
    std::uniform_real_distribution<double> age(-120.0, 200.0);
    double before = calendar.julianDayOf(-121.0);
    for (int i = 0; i < 300; ++i) {
        const double years = i < 20 ? double(i - 10) : age(random);
        const double moment = calendar.julianDayOf(years);
        EXPECT_NEAR(calendar.ageAt(moment), years, 1e-9);
        const double moved = sky.sun(moment).longitude - chart.longitude[core::kSun];
        EXPECT_NEAR(std::remainder(moved - 360.0 * years, 360.0), 0.0, 1e-6);
        // Half a solar year of winter is shorter than one of summer, but never by three days.
        EXPECT_NEAR(moment, calendar.julianDayOf(0.0) + years * kMeanSiderealYear, 4.0);
    }
    for (double years = -120.9; years < 130.0; years += 0.73) {
        const double moment = calendar.julianDayOf(years);
        EXPECT_GT(moment, before);
        before = moment;
    }
}

TEST(YearLength, TrueSolarListsAndQueriesAgree)
{
    const core::Chart chart = chartOfBirth(kBirth1967);
    DashaOptions options;
    options.yearLength = YearLength::TrueSolar;
    const Dasha dasha = dashaFor(chart, options);
    for (const DashaPeriod& period : DashaList(dasha, {3, 0.0, 60.0, 500})) {
        if (period.startAge > 0.0) {
            EXPECT_EQ(lordAtMoment(dasha, period.startJulianDay + 1e-5, period.level),
                      period.lord());
        }
    }
}

TEST(YearLength, AMovedSunHasMeanYears)
{
    const core::Chart chart = chartOfBirth(kBirth1967);
    DashaOptions options;
    options.yearLength = YearLength::TrueSolar;
    options.sunModified = true;
    const DashaCalendar calendar =
        DashaCalendar::ofBirth(chart, {}, options, tests::seriesForTests());
    const DashaCalendar mean = calendarOf(chart, YearLength::MeanSidereal);
    EXPECT_EQ(calendar.julianDayOf(33.25), mean.julianDayOf(33.25));
    EXPECT_EQ(mean.julianDayOf(10.0), chart.time.dayCount + core::kEpoch1900 + 3652.56364);
    EXPECT_TRUE(std::isnan(DashaCalendar().julianDayOf(1.0)));
    EXPECT_TRUE(std::isnan(DashaCalendar().ageAt(2451545.0)));
}

class Recorded : public core::Messages
{
public:
    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override
    {
        captions += caption;
        texts += text;
        EXPECT_EQ(buttons, core::Buttons::Ok);
        return core::Answer::Ok;
    }
    std::wstring captions;
    std::wstring texts;
};

TEST(YearLength, NoticeForAMovedSun)
{
    core::Settings settings;
    settings.dashaYearLength = int(YearLength::TrueSolar);
    Recorded messages;
    EXPECT_FALSE(leaveTrueSolarYear(settings, false, messages));
    EXPECT_EQ(settings.dashaYearLength, int(YearLength::TrueSolar));
    EXPECT_TRUE(leaveTrueSolarYear(settings, true, messages));
    EXPECT_EQ(settings.dashaYearLength, int(YearLength::MeanSidereal));
    EXPECT_EQ(messages.captions, L"Notice");
    EXPECT_EQ(messages.texts, L"If you change the Sun and use the True Solar Year,\nthe dashas may "
                              L"not be calculated properly.\nDashas changed to the Mean Siderial "
                              L"Year.");
    EXPECT_FALSE(leaveTrueSolarYear(settings, true, messages));
}

} // namespace
} // namespace kestrav::timing
