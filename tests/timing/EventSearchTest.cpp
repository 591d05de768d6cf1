#include "timing/EventSearch.h"
#include "core/Angles.h"
#include "core/Points.h"
#include "tests/astro/SeriesForTests.h"
#include "timing/SiderealSky.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace kestrav::timing
{
namespace
{

constexpr double kSecond = 1.0 / 86400.0;

// A planet that turns back every 50 days: -0.8 to 1.8 degrees a day.
constexpr auto loops = [](double day) {
    return core::Normalize360(0.5 * day + 10.0 * std::sin(day * 0.13) + 200.0);
};

constexpr CurveShape kLoopShape{360.0, 6.0, false, 1e-6};

// Crossings by walking in tiny steps and looking at nothing but the interval that holds the value.
std::vector<Crossing> walked(Curve curve, Span span, double first, double spacing, double step)
{
    std::vector<Crossing> found;
    const int count = int(std::lround(360.0 / spacing));
    const auto interval = [&](double day) {
        return int(std::floor(core::Normalize360(curve(day) - first) / spacing));
    };
    int before = interval(span.from);
    for (double day = span.from + step; day <= span.to; day += step) {
        const int now = interval(day);
        if (now != before) {
            const bool rising = (now - before + count) % count == 1;
            found.push_back({day - step / 2.0, rising ? now : before, rising});
        }
        before = now;
    }
    return found;
}

void expectSame(const std::vector<Crossing>& found, const std::vector<Crossing>& wanted,
                double tolerance)
{
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_NEAR(found[i].day, wanted[i].day, tolerance);
        EXPECT_EQ(found[i].level, wanted[i].level) << "day " << found[i].day;
        EXPECT_EQ(found[i].rising, wanted[i].rising) << "day " << found[i].day;
    }
}

TEST(EventSearch, findsEveryCrossingOfARetrogradeCurve)
{
    for (const double spacing : {1.0, 7.5, 30.0, 120.0}) {
        for (const double first : {0.0, 13.7}) {
            const Span span{-700.0, 900.0};
            const auto found = crossingsIn(loops, kLoopShape, span, {first, spacing});
            expectSame(found, walked(loops, span, first, spacing, 1e-3), 1e-3);
            for (const Crossing& crossing : found) {
                const double value = first + crossing.level * spacing;
                EXPECT_LT(std::fabs(std::remainder(loops(crossing.day) - value, 360.0)), 3e-6);
            }
        }
    }
}

TEST(EventSearch, separatesTheTwoCrossingsNextToAStation)
{
    const auto hill = [](double day) {
        return 100.0 - (day - 3.21) * (day - 3.21);
    };
    const auto valley = [](double day) {
        return (day - 3.21) * (day - 3.21) - 100.0;
    };
    const CurveShape shape{0.0, 5.0, false, 1e-9};
    for (const double depth : {1e-10, 1e-6, 0.3, 20.0}) {
        const double half = std::sqrt(depth);
        const auto above = crossingsIn(hill, shape, {-12.0, 18.0}, {100.0 - depth, 0.0});
        ASSERT_EQ(above.size(), 2U) << depth;
        EXPECT_NEAR(above[0].day, 3.21 - half, 1e-8);
        EXPECT_NEAR(above[1].day, 3.21 + half, 1e-8);
        EXPECT_TRUE(above[0].rising);
        EXPECT_FALSE(above[1].rising);
        EXPECT_TRUE(crossingsIn(hill, shape, {-12.0, 18.0}, {100.0 + depth, 0.0}).empty());
        EXPECT_EQ(crossingsIn(valley, shape, {-12.0, 18.0}, {depth - 100.0, 0.0}).size(), 2U);
        EXPECT_TRUE(crossingsIn(valley, shape, {-12.0, 18.0}, {-100.0 - depth, 0.0}).empty());
    }
}

TEST(EventSearch, spansEndToEndFindEverythingOnce)
{
    const Span whole{0.0, 400.0};
    const Levels levels{0.0, 5.0};
    const auto wanted = crossingsIn(loops, kLoopShape, whole, levels);
    std::mt19937 random(53);
    std::uniform_real_distribution<double> length(0.01, 9.0);
    std::vector<Crossing> found;
    for (double from = 0.0; from < 400.0;) {
        const double to = std::fmin(400.0, from + length(random));
        for (const Crossing& crossing : crossingsIn(loops, kLoopShape, {from, to}, levels)) {
            found.push_back(crossing);
        }
        from = to;
    }
    expectSame(found, wanted, 2e-6);

    // A span may begin and end in the very moment of a crossing.
    const auto line = [](double day) {
        return day;
    };
    const auto back = [](double day) {
        return -day;
    };
    const CurveShape shape{0.0, 1.0, true, 1e-9};
    EXPECT_EQ(crossingsIn(line, shape, {2.0, 5.0}, {0.0, 1.0}).size(), 3U); // 3, 4, 5
    EXPECT_EQ(crossingsIn(back, shape, {2.0, 5.0}, {0.0, 1.0}).size(), 3U); // 2, 3, 4
    EXPECT_DOUBLE_EQ(crossingsIn(back, shape, {2.0, 5.0}, {0.0, 1.0})[0].day, 2.0);
    EXPECT_DOUBLE_EQ(lastCrossing(line, shape, {2.0, 5.0}, {0.0, 1.0})->day, 5.0);
}

TEST(EventSearch, firstAndLastAreThoseOfTheList)
{
    std::mt19937 random(59);
    std::uniform_real_distribution<double> day(-300.0, 300.0);
    for (int i = 0; i < 200; ++i) {
        const double from = day(random);
        const Span span{from, from + std::fabs(day(random)) / 3.0};
        const Levels levels{4.0, 12.0};
        const auto all = crossingsIn(loops, kLoopShape, span, levels);
        const auto first = firstCrossing(loops, kLoopShape, span, levels);
        const auto last = lastCrossing(loops, kLoopShape, span, levels);
        ASSERT_EQ(first.has_value(), !all.empty());
        ASSERT_EQ(last.has_value(), !all.empty());
        if (!all.empty()) {
            expectSame({*first, *last}, {all.front(), all.back()}, 2e-6);
        }
    }
}

TEST(EventSearch, findsTurningPoints)
{
    const Span span{-500.0, 500.0};
    const auto found = turningPointsIn(loops, kLoopShape, span);
    // The derivative 0.5 + 1.3 cos(0.13 day) vanishes at these phases.
    std::vector<double> wanted;
    const double phase = std::acos(-0.5 / 1.3) / 0.13;
    const double period = 2.0 * std::acos(-1.0) / 0.13;
    for (int turn = -11; turn <= 11; ++turn) {
        for (const double day : {turn * period - phase, turn * period + phase}) {
            if (day >= span.from && day < span.to) {
                wanted.push_back(day);
            }
        }
    }
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_NEAR(found[i].day, wanted[i], kSecond);
        EXPECT_EQ(found[i].highest, std::sin(found[i].day * 0.13) > 0.0);
        EXPECT_EQ(found[i].value, loops(found[i].day));
    }
    const auto line = [](double day) {
        return day;
    };
    EXPECT_TRUE(turningPointsIn(line, {0.0, 1.0, false, 1e-6}, span).empty());
}

TEST(EventSearch, refusesSpansAndStepsThatLeadNowhere)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    for (const Span span :
         {Span{5.0, 5.0}, Span{5.0, 4.0}, Span{0.0, kInfinity}, Span{kNone, 1.0}}) {
        EXPECT_TRUE(crossingsIn(loops, kLoopShape, span, {0.0, 1.0}).empty());
    }
    for (const double step : {0.0, -1.0, kNone}) {
        CurveShape shape = kLoopShape;
        shape.step = step;
        EXPECT_TRUE(crossingsIn(loops, shape, {0.0, 100.0}, {0.0, 1.0}).empty());
    }
}

// ---- The real sky --------------------------------------------------------------------------

constexpr double kIndia = 5.5;

double indianTime(int year, int month, int day, double hours)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    return julianDayOf(record, kIndia) + hours / 24.0;
}

class SkySearch : public testing::Test
{
protected:
    auto longitudeOf(int point)
    {
        return [this, point](double day) {
            return sky.longitude(point, day);
        };
    }

    SiderealSky sky{tests::seriesForTests(), core::Settings{}, kIndia};
};

TEST_F(SkySearch, publishedStations)
{
    struct Station
    {
        int point;
        double day;
        double minutes;
    };
    // Printed ephemeris for India; the slow bodies to the day only.
    const std::vector<Station> stations = {
        {core::kMercury, indianTime(1996, 12, 24, 1.0 + 8.0 / 60.0), 15.0},
        {core::kMars, indianTime(1997, 2, 6, 5.0 + 57.0 / 60.0), 15.0},
        {core::kVenus, indianTime(1997, 12, 27, 2.0 + 47.0 / 60.0), 15.0},
        {core::kJupiter, indianTime(1997, 6, 10, 12.0), 720.0},
        {core::kSaturn, indianTime(1997, 8, 1, 12.0), 1440.0},
    };
    for (const Station& station : stations) {
        const auto tropical = [&](double day) {
            return sky.tropicalLongitude(station.point, day);
        };
        const auto found = turningPointsIn(tropical, {360.0, 3.0, false, 1e-6},
                                           {station.day - 10.0, station.day + 10.0});
        ASSERT_EQ(found.size(), 1U) << station.point;
        EXPECT_NEAR((found[0].day - station.day) * 1440.0, 0.0, station.minutes) << station.point;
        EXPECT_TRUE(found[0].highest);
    }
}

TEST_F(SkySearch, publishedIngressesAndAConjunction)
{
    const Levels signs{0.0, 30.0};
    const double start = indianTime(1996, 12, 7, 10.0 + 34.0 / 60.0);
    const auto moon = firstCrossing(longitudeOf(core::kMoon), {360.0, 1.0, true, 1e-6},
                                    {start, start + 4.0}, signs);
    ASSERT_TRUE(moon);
    EXPECT_EQ(moon->level, 7); // Scorpio
    EXPECT_NEAR(moon->day, indianTime(1996, 12, 9, 3.0 + 46.0 / 60.0 + 39.0 / 3600.0),
                60.0 * kSecond);

    const auto sun = firstCrossing(longitudeOf(core::kSun), {360.0, 5.0, true, 1e-6},
                                   {start, start + 20.0}, signs);
    ASSERT_TRUE(sun);
    EXPECT_EQ(sun->level, 8); // Sagittarius
    EXPECT_NEAR(sun->day, indianTime(1996, 12, 15, 17.0 + 42.5 / 60.0), 4.5 / 1440.0);

    const auto rahu = firstCrossing(longitudeOf(core::kRahu), {360.0, 30.0, true, 1e-6},
                                    {start, start + 300.0}, signs);
    ASSERT_TRUE(rahu);
    EXPECT_EQ(rahu->level, 5); // leaves Virgo for Leo
    EXPECT_FALSE(rahu->rising);
    EXPECT_NEAR(rahu->day, indianTime(1997, 6, 24, 12.0), 0.5);

    const auto apart = [&](double day) {
        return core::Normalize360(sky.longitude(core::kJupiter, day) -
                                  sky.longitude(core::kSaturn, day));
    };
    const auto meeting = crossingsIn(apart, {360.0, 10.0, false, 1e-6},
                                     {indianTime(1999, 1, 1, 0), indianTime(2003, 1, 1, 0)}, {});
    ASSERT_EQ(meeting.size(), 1U);
    EXPECT_NEAR(meeting[0].day, indianTime(2000, 5, 28, 21.0 + 25.0 / 60.0), 15.0 / 1440.0);
    EXPECT_NEAR(sky.longitude(core::kSaturn, meeting[0].day), 28.0 + 52.0 / 60.0, 1.0 / 60.0);
}

TEST_F(SkySearch, everyPassOfThePlanetsAgreesWithAWalkInSmallSteps)
{
    const Span span{2451544.5, 2451544.5 + 12.0 * 365.25};
    for (const int point : {core::kMercury, core::kVenus, core::kMars, core::kSaturn}) {
        const auto longitude = longitudeOf(point);
        const auto found = crossingsIn(longitude, {360.0, 4.0, false, 1e-6}, span, {1.25, 2.5});
        expectSame(found, walked(longitude, span, 1.25, 2.5, 0.02), 0.02);
    }
    for (const int point : {core::kMercury, core::kMars, core::kJupiter, core::kPluto}) {
        const auto tropical = [&](double day) {
            return sky.tropicalLongitude(point, day);
        };
        const auto stations = turningPointsIn(tropical, {360.0, 5.0, false, 1e-6}, span);
        std::vector<double> wanted;
        for (double day = span.from; day < span.to; day += 0.05) {
            const double before = sky.position(point, day).speed;
            const double after = sky.position(point, day + 0.05).speed;
            if ((before < 0.0) != (after < 0.0)) {
                wanted.push_back(day + 0.05 * before / (before - after));
            }
        }
        ASSERT_EQ(stations.size(), wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            EXPECT_NEAR(stations[i].day, wanted[i], 10.0 * kSecond) << "point " << point;
        }
    }
}

} // namespace
} // namespace kestrav::timing
