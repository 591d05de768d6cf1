#include "timing/BodyTrack.h"
#include "analysis/ComputeChart.h"
#include "astro/Bodies.h"
#include "astro/Moon.h"
#include "astro/PreciseMoon.h"
#include "core/numeric.h"
#include "tests/astro/SeriesForTests.h"
#include "timing/SiderealSky.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace kestrav::timing
{
namespace
{

struct Place
{
    double longitude;
    double latitude;
};

// What the series themselves give, in degrees.
Place fromSeries(int point, double day, bool preciseMoon)
{
    const core::TimeArguments time = core::timeArguments(day / core::kDaysPerCentury);
    if (point == core::kRahu || point == core::kKetu) {
        return {astro::shortMoon(time).node + (point == core::kKetu ? 180.0 : 0.0), 0.0};
    }
    if (point == core::kMoon && preciseMoon) {
        const astro::MoonPosition moon = astro::preciseMoon(time.T);
        return {moon.longitude, moon.latitude * core::kDegreesPerRadian};
    }
    if (point == core::kMoon) {
        const astro::ShortMoon moon = astro::shortMoon(time);
        return {moon.longitude, moon.latitude * core::kDegreesPerRadian};
    }
    astro::EphemerisContext context(tests::seriesForTests());
    context.setTime(time);
    astro::PlanetPosition(context, astro::codeOfPoint(point));
    return {context.result.longitude, context.result.latitude * core::kDegreesPerRadian};
}

double apart(double a, double b)
{
    return std::fabs(std::remainder(a - b, 360.0));
}

TEST(BodyTrack, agreesWithTheSeriesAtRandomDates)
{
    std::mt19937 random(41);
    std::uniform_real_distribution<double> near(-36525.0, 2.0 * 36525.0);
    std::uniform_real_distribution<double> far(-4900.0 * 365.25, 1100.0 * 365.25);
    for (const bool preciseMoon : {true, false}) {
        BodyTrack track(tests::seriesForTests(), preciseMoon);
        for (const int point : core::kBodies) {
            double longitude = 0.0;
            double latitude = 0.0;
            double speed = 0.0;
            for (int i = 0; i < 400; ++i) {
                const double day = i % 4 == 0 ? far(random) : near(random);
                const Place wanted = fromSeries(point, day, preciseMoon);
                const TrackedPosition found = track.position(point, day);
                longitude = std::fmax(longitude, apart(found.longitude, wanted.longitude));
                latitude = std::fmax(latitude, std::fabs(found.latitude - wanted.latitude));
                EXPECT_EQ(track.longitude(point, day), found.longitude);
                const double after = fromSeries(point, day + 0.02, preciseMoon).longitude;
                const double before = fromSeries(point, day - 0.02, preciseMoon).longitude;
                const double wantedSpeed = std::remainder(after - before, 360.0) / 0.04;
                speed = std::fmax(speed, std::fabs(found.speed - wantedSpeed));
            }
            EXPECT_LT(longitude * 3600.0, 0.001) << "point " << point;
            EXPECT_LT(latitude * 3600.0, 0.001) << "point " << point;
            // The difference quotient itself is off by 0.00003 degrees a day for the Moon.
            EXPECT_LT(speed, 1e-4) << "point " << point;
        }
    }
}

TEST(BodyTrack, piecesMeetAndTheirOrderDoesNotMatter)
{
    BodyTrack forward(tests::seriesForTests(), true);
    BodyTrack backward(tests::seriesForTests(), true);
    std::vector<double> values;
    // More pieces of the node than are kept.
    const auto dayOf = [](int i) {
        return i * 128.0 + 3.3;
    };
    for (int i = 0; i < 2100; ++i) {
        values.push_back(forward.longitude(core::kRahu, dayOf(i)));
    }
    for (int i = 2099; i >= 0; --i) {
        EXPECT_EQ(backward.longitude(core::kRahu, dayOf(i)), values[std::size_t(i)]);
    }
    EXPECT_EQ(forward.longitude(core::kRahu, dayOf(0)), values[0]);
    for (const double day : {-128.0, 0.0, 64.0, 36480.0}) {
        for (const int point : core::kBodies) {
            const double jump = apart(forward.longitude(point, std::nextafter(day, -1e9)),
                                      forward.longitude(point, day));
            EXPECT_LT(jump, 1e-9) << "point " << point << " day " << day;
        }
    }
}

TEST(BodyTrack, refusesWhatItDoesNotKnow)
{
    BodyTrack track(tests::seriesForTests(), true);
    for (const int point : {-1, 0, 10, 31, 35, 62, 1000}) {
        EXPECT_TRUE(std::isnan(track.longitude(point, 0.0))) << point;
    }
    for (const double day : {core::kNotANumber, 1e300, -1e300, 1e9}) {
        EXPECT_TRUE(std::isnan(track.position(core::kSun, day).speed)) << day;
    }
}

// A chart of the moment is the yardstick: the same clock, Delta T and ayanamsa.
TEST(SiderealSky, agreesWithChartsOfTheSameMoment)
{
    std::mt19937 random(43);
    const auto number = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    astro::EphemerisContext context(tests::seriesForTests());
    for (const int row : {1, 3, 9}) {
        core::Settings settings;
        settings.ayanamsaRow = row;
        settings.preciseMoon = row != 3;
        settings.deltaTOn = row != 3;
        for (int i = 0; i < 60; ++i) {
            core::Chart chart;
            chart.zone = number(-11, 13) + 0.5;
            chart.time.year = i % 3 == 0 ? number(-1000, -1) : number(1, 2200);
            chart.time.month = number(1, 12);
            chart.time.day = number(1, 28);
            chart.time.localTime = number(0, 86399) / 3600.0;
            analysis::computePositions(chart, settings, context);
            SiderealSky sky(tests::seriesForTests(), settings, chart.zone);
            const double day = julianDayOf(chart.time, chart.zone) + chart.time.localTime / 24.0;
            for (const int point : core::kBodies) {
                const SkyPosition body = sky.position(point, day);
                EXPECT_LT(apart(body.longitude, core::at(chart.longitude, point)) * 3600.0, 0.002)
                    << "point " << point << " year " << chart.time.year;
                EXPECT_LT(apart(sky.longitude(point, day), body.longitude), 1e-12);
            }
            const SkyPosition mars = sky.position(core::kMars, day);
            EXPECT_NEAR(mars.declination * core::kRadiansPerDegree, chart.declination[core::kMars],
                        1e-8);
            EXPECT_NEAR(mars.distance, chart.distance[core::kMars], 1e-9);
        }
    }
}

TEST(SiderealSky, datesOfDaysGiveTheirDayBack)
{
    std::mt19937 random(47);
    std::uniform_int_distribution<int> days(-2000000, 900000);
    for (int i = 0; i < 2000; ++i) {
        const double day = 2451544.5 + days(random);
        EXPECT_EQ(core::DateToJulianDay(recordOfDay(day)), day);
    }
    for (double day = 2299150.5; day < 2299175.0; day += 1.0) {
        EXPECT_EQ(core::DateToJulianDay(recordOfDay(day)), day);
    }
    const core::DateTimeRecord changed = recordOfDay(2299160.5);
    EXPECT_EQ(changed.day, 5);
}

} // namespace
} // namespace kestrav::timing
