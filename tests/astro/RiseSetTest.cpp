#include "astro/RiseSet.h"
#include "astro/Bodies.h"
#include "core/numeric.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <erfa.h>

#include <cmath>
#include <optional>
#include <random>
#include <vector>

namespace kestrav::astro
{
namespace
{

constexpr double kDegree = core::kRadiansPerDegree;

core::DateTimeRecord dateOf(int year, int month, int day, double localTime = 12.0)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    record.localTime = localTime;
    record.deltaTDays = 69.0 / 86400.0;
    return record;
}

class RiseSet : public testing::Test
{
protected:
    std::optional<double> sun(const core::DateTimeRecord& date, const Observer& observer,
                              HorizonEvent event)
    {
        return sunEvent(context, date, observer, event);
    }

    EphemerisContext context{tests::seriesForTests()};
};

// Geocentric altitude in degrees of a direction of the celestial reference system, without
// refraction: precession by the IAU 2006 matrix, mean sidereal time of 1982.
double altitudeOf(const double direction[3], double dayUt, double dayTt, const Observer& observer)
{
    double rotation[3][3];
    double c[3] = {direction[0], direction[1], direction[2]};
    double turned[3];
    double rightAscension = 0.0;
    double declination = 0.0;
    eraPmat06(core::kEpoch1900, dayTt, rotation);
    eraRxp(rotation, c, turned);
    eraC2s(turned, &rightAscension, &declination);
    double azimuth = 0.0;
    double altitude = 0.0;
    const double sidereal = eraGmst82(core::kEpoch1900, dayUt) + observer.geoLongitude * kDegree;
    eraHd2ae(sidereal - rightAscension, declination, observer.geoLatitude * kDegree, &azimuth,
             &altitude);
    return altitude / kDegree;
}

double dayOf(const core::DateTimeRecord& date, double hour, const Observer& observer)
{
    return core::DateToJulianDay(date) - core::kEpoch1900 + (hour - observer.clockOffset) / 24.0;
}

double sunAltitude(const core::DateTimeRecord& date, double hour, const Observer& observer)
{
    const double dayUt = dayOf(date, hour, observer);
    double earth[2][3];
    double barycentric[2][3];
    // Seen from where the Earth was one light time, 499 seconds, ago.
    eraEpv00(core::kEpoch1900, dayUt + date.deltaTDays - 499.0 / 86400.0, earth, barycentric);
    const double direction[3] = {-earth[0][0], -earth[0][1], -earth[0][2]};
    return altitudeOf(direction, dayUt, dayUt + date.deltaTDays, observer);
}

TEST_F(RiseSet, GivesThePublishedTimes)
{
    const auto clock = [](int hours, int minutes, int seconds) {
        return hours + minutes / 60.0 + seconds / 3600.0;
    };
    constexpr double kSeconds = 15.0 / 3600.0;
    const Observer delhi{77.209, 28.6139, 5.5};
    const core::DateTimeRecord january = dateOf(2022, 1, 24);
    EXPECT_NEAR(*sun(january, delhi, HorizonEvent::Rise), clock(7, 14, 11), kSeconds);
    EXPECT_NEAR(*sun(january, delhi, HorizonEvent::Set), clock(17, 52, 25), kSeconds);
    const Observer chennai{80.2785, 13.0878, 5.5};
    const core::DateTimeRecord july = dateOf(2024, 7, 17);
    EXPECT_NEAR(*sun(july, chennai, HorizonEvent::Rise), clock(5, 51, 53), kSeconds);
    EXPECT_NEAR(*sun(july, chennai, HorizonEvent::Set), clock(18, 38, 14), kSeconds);
}

TEST_F(RiseSet, PutsTheSunAtItsAltitudeOnAnyClock)
{
    std::mt19937 random(68);
    std::uniform_real_distribution<double> longitudes(-180.0, 180.0);
    std::uniform_real_distribution<double> latitudes(-64.0, 64.0);
    std::uniform_int_distribution<int> zones(-12, 15);
    for (int i = 0; i < 400; ++i) {
        // The zone has nothing to do with the place: the clock may be far from local time.
        const Observer observer{longitudes(random), latitudes(random), double(zones(random))};
        core::DateTimeRecord date = dateOf(2021, 1, 1);
        core::addDays(date, i);
        const double noon = 12.0 - observer.geoLongitude / 15.0 + observer.clockOffset;
        const double rise = *sun(date, observer, HorizonEvent::Rise);
        const double set = *sun(date, observer, HorizonEvent::Set);
        ASSERT_NEAR(sunAltitude(date, rise, observer), -0.5833333, 5e-4) << i;
        ASSERT_NEAR(sunAltitude(date, set, observer), -0.5833333, 5e-4) << i;
        ASSERT_TRUE(noon - 12.0 < rise && rise < noon && noon < set && set < noon + 12.0) << i;
        const double culmination = *sun(date, observer, HorizonEvent::UpperCulmination);
        ASSERT_GT(sunAltitude(date, culmination, observer),
                  sunAltitude(date, culmination - 0.25, observer));
        ASSERT_GT(sunAltitude(date, culmination, observer),
                  sunAltitude(date, culmination + 0.25, observer));
        // The midnight that follows, whatever the equation of time.
        ASSERT_NEAR(*sun(date, observer, HorizonEvent::LowerCulmination), culmination + 12.0, 0.02);
    }
}

TEST_F(RiseSet, HasNoSunriseNearThePoles)
{
    for (const double latitude : {69.0, 80.0, -72.0, 89.9}) {
        const Observer observer{25.0, latitude, 2.0};
        for (const int month : {6, 12}) {
            for (const HorizonEvent event : {HorizonEvent::Rise, HorizonEvent::Set}) {
                EXPECT_FALSE(sun(dateOf(2021, month, 21), observer, event)) << latitude;
            }
            EXPECT_FALSE(vedicDay(context, dateOf(2021, month, 21), observer)) << latitude;
        }
    }
    // On the equator the day is 12 hours and twice 2.3 minutes (0.5833 degrees) long all year, a
    // little longer when the Sun is far from the equator and sets at a slant.
    for (int month = 1; month <= 12; ++month) {
        const Observer observer{0.0, 0.0, 0.0};
        const core::DateTimeRecord date = dateOf(2021, month, 21);
        const double length =
            *sun(date, observer, HorizonEvent::Set) - *sun(date, observer, HorizonEvent::Rise);
        EXPECT_NEAR(length * 60.0, 725.0, 0.9) << month;
    }
}

// The rising of every day of a stretch, in hours from its first day, with the days that have none.
struct Risings
{
    std::vector<double> hours;
    int missing = 0;
};

Risings risings(EphemerisContext& context, int point, const Observer& observer, int days)
{
    Risings result;
    for (int day = 0; day < days; ++day) {
        core::DateTimeRecord date = dateOf(2022, 1, 1);
        core::addDays(date, day);
        const std::optional<double> hour =
            bodyEvent(context, date, observer, point, HorizonEvent::Rise);
        if (!hour) {
            ++result.missing;
            continue;
        }
        EXPECT_TRUE(*hour >= 0.0 && *hour < 24.0) << day;
        result.hours.push_back(*hour + 24.0 * day);
    }
    return result;
}

TEST_F(RiseSet, MoonSkipsADayOnceAMonth)
{
    const core::DateTimeRecord first = dateOf(2022, 1, 1);
    for (const double clockOffset : {5.5, -9.0}) {
        const Observer delhi{77.209, 28.6139, clockOffset};
        const Risings moonrises = risings(context, core::kMoon, delhi, 59);
        EXPECT_EQ(moonrises.missing, 2);
        for (std::size_t i = 0; i < moonrises.hours.size(); ++i) {
            if (i > 0) {
                EXPECT_NEAR(moonrises.hours[i] - moonrises.hours[i - 1], 24.84, 0.6) << i;
            }
            // The centre stands at 0.7275 of the parallax less the refraction of 34 minutes.
            const double dayUt = dayOf(first, moonrises.hours[i], delhi);
            const double dayTt = dayUt + first.deltaTDays;
            double moon[2][3];
            eraMoon98(core::kEpoch1900, dayTt, moon);
            const double parallax = std::asin(6378.14 / (eraPm(moon[0]) * 149597870.7)) / kDegree;
            // The approximate Moon is off by up to 18 arc seconds.
            EXPECT_NEAR(altitudeOf(moon[0], dayUt, dayTt, delhi), 0.7275 * parallax - 0.5667,
                        0.006);
        }
    }
}

TEST_F(RiseSet, PlanetsGiveTheEarlierOfTwoRisings)
{
    // Saturn rises 3.9 minutes earlier every day, so once a year it rises twice on one date.
    for (const double clockOffset : {5.5, -9.0}) {
        const Risings saturn =
            risings(context, core::kSaturn, Observer{77.209, 28.6139, clockOffset}, 370);
        EXPECT_EQ(saturn.missing, 0);
        int twice = 0;
        for (std::size_t i = 1; i < saturn.hours.size(); ++i) {
            const double between = saturn.hours[i] - saturn.hours[i - 1];
            twice += between > 40.0;
            EXPECT_NEAR(between, between > 40.0 ? 47.87 : 23.935, 0.05) << i;
        }
        EXPECT_EQ(twice, 1);
    }
}

TEST_F(RiseSet, PutsPlanetsAtTheAltitudeOfRefraction)
{
    const Observer delhi{77.209, 28.6139, 5.5};
    const core::DateTimeRecord date = dateOf(2022, 5, 4);
    for (const int point : {core::kVenus, core::kSaturn, core::kPluto}) {
        for (const HorizonEvent event : {HorizonEvent::Rise, HorizonEvent::Set}) {
            const std::optional<double> hour = bodyEvent(context, date, delhi, point, event);
            ASSERT_TRUE(hour) << point;
            ASSERT_TRUE(*hour >= 0.0 && *hour < 24.0) << point;
            const double dayUt = dayOf(date, *hour, delhi);
            const double dayTt = dayUt + date.deltaTDays;
            context.setTime(core::timeArguments(dayTt / core::kDaysPerCentury));
            PlanetPosition(context, codeOfPoint(point));
            double ecliptic[3];
            double rotation[3][3];
            double direction[3];
            eraS2c(context.result.longitude * kDegree, context.result.latitude, ecliptic);
            eraEcm06(core::kEpoch1900, dayTt, rotation);
            eraTrxp(rotation, ecliptic, direction);
            EXPECT_NEAR(altitudeOf(direction, dayUt, dayTt, delhi), -0.5667, 1e-3) << point;
        }
    }
}

TEST_F(RiseSet, DayRunsFromTheLastSunrise)
{
    for (const Observer& observer : {Observer{77.209, 28.6139, 5.5}, Observer{179.0, -40.0, -11.0},
                                     Observer{-179.0, 55.0, 14.0}, Observer{0.0, 65.5, 0.0}}) {
        for (int month = 1; month <= 12; ++month) {
            for (double hour = 0.0; hour < 24.0; hour += 0.5) {
                const core::DateTimeRecord moment = dateOf(2021, month, 15, hour);
                const std::optional<core::VedicDay> day = vedicDay(context, moment, observer);
                ASSERT_TRUE(day) << observer.geoLongitude << " " << month << " " << hour;
                EXPECT_LE(day->sunrise, hour);
                EXPECT_GT(day->nextSunrise, hour);
                EXPECT_GT(day->sunset, day->sunrise);
                EXPECT_LT(day->sunset, day->nextSunrise);
                EXPECT_NEAR(day->nextSunrise - day->sunrise, 24.0, 0.2);
                for (const double rise : {day->sunrise, day->nextSunrise}) {
                    EXPECT_NEAR(sunAltitude(moment, rise, observer), -0.5833333, 1e-3);
                }
                EXPECT_NEAR(sunAltitude(moment, day->sunset, observer), -0.5833333, 1e-3);
            }
        }
    }
}

TEST_F(RiseSet, DayBeforeAPolarNightLastsUntilItsLastSunrise)
{
    // At this latitude the Sun rises for the last time on 2021 December 16.
    const Observer observer{30.0, 67.25, 2.0};
    EXPECT_TRUE(sun(dateOf(2021, 12, 16), observer, HorizonEvent::Rise));
    EXPECT_FALSE(sun(dateOf(2021, 12, 17), observer, HorizonEvent::Rise));
    // Before that sunrise the day of the 15th runs, which is complete; after it none does.
    const std::optional<core::VedicDay> day =
        vedicDay(context, dateOf(2021, 12, 16, 2.0), observer);
    ASSERT_TRUE(day);
    EXPECT_NEAR(day->sunrise, -12.0, 1.5);
    EXPECT_FALSE(vedicDay(context, dateOf(2021, 12, 16, 20.0), observer));
    EXPECT_FALSE(vedicDay(context, dateOf(2021, 12, 17, 2.0), observer));
}

} // namespace
} // namespace kestrav::astro
