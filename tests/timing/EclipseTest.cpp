#include "core/Angles.h"
#include "core/numeric.h"
#include "tests/astro/SeriesForTests.h"
#include "timing/EclipseAtPlace.h"
#include "timing/EclipseElements.h"
#include "timing/Eclipses.h"
#include "timing/MoonPhases.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace kestrav::timing
{
namespace
{

constexpr double kMinute = 1.0 / 1440.0; // days

double utDay(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    return julianDayOf(record, 0.0) + (hour + minute / 60.0 + second / 3600.0) / 24.0;
}

class EclipseSearch : public testing::Test
{
protected:
    Eclipse onlyOne(double julianDay, bool solar)
    {
        const std::vector<Eclipse> found =
            eclipsesIn(sky, {julianDay - 2.0, julianDay + 2.0}, {solar, !solar, true});
        EXPECT_EQ(found.size(), 1U);
        return found.empty() ? Eclipse{} : found.front();
    }

    std::map<EclipseType, int> countsOf(int firstYear, int lastYear, bool solar)
    {
        std::map<EclipseType, int> counts;
        for (const Eclipse& eclipse : eclipsesIn(
                 sky, {utDay(firstYear, 1, 1), utDay(lastYear + 1, 1, 1)}, {solar, !solar, true})) {
            ++counts[eclipse.type];
        }
        return counts;
    }

    SiderealSky sky{tests::seriesForTests(), core::Settings{}};
};

struct Published
{
    int year;
    int month;
    int day;
    int hour;
    int minute;
    EclipseType type;
    double gamma;
    double magnitude;
};

// The catalogues of the National Aeronautics and Space Administration: greatest eclipse in
// Universal Time, gamma, magnitude.
TEST_F(EclipseSearch, publishedEclipsesOfTheSun)
{
    using enum EclipseType;
    const std::vector<Published> published = {
        {1999, 8, 11, 11, 3, Total, 0.5062, 1.0286},
        {2002, 6, 10, 23, 44, Annular, 0.1993, 0.9962},
        {2003, 5, 31, 4, 8, Annular, 0.9960, 0.9384},
        {2005, 4, 8, 20, 36, Hybrid, -0.3473, 1.0074},
        {2009, 7, 22, 2, 35, Total, 0.0698, 1.0799},
        {2010, 1, 15, 7, 7, Annular, 0.4002, 0.9190},
        {2011, 1, 4, 8, 51, Partial, 1.0627, 0.8576},
        {2013, 11, 3, 12, 46, Hybrid, 0.3272, 1.0159},
        {2014, 4, 29, 6, 3, Annular, -1.0000, 0.9868},
        {2015, 3, 20, 9, 46, Total, 0.9454, 1.0446},
        {2017, 8, 21, 18, 26, Total, 0.4367, 1.0306},
        {2018, 2, 15, 20, 51, Partial, -1.2117, 0.5991},
        {2019, 12, 26, 5, 18, Annular, 0.4135, 0.9701},
        {2021, 12, 4, 7, 33, Total, -0.9526, 1.0367},
        {2022, 10, 25, 11, 0, Partial, 1.0701, 0.8619},
        {2023, 4, 20, 4, 17, Hybrid, -0.3952, 1.0132},
        {2024, 4, 8, 18, 17, Total, 0.3431, 1.0566},
    };
    for (const Published& known : published) {
        SCOPED_TRACE(known.year * 100 + known.month);
        const double day = utDay(known.year, known.month, known.day, known.hour, known.minute);
        const Eclipse eclipse = onlyOne(day, true);
        EXPECT_EQ(eclipse.kind, EclipseKind::Solar);
        EXPECT_EQ(eclipse.type, known.type);
        EXPECT_NEAR(eclipse.julianDay, day, 2.0 * kMinute);
        // The series are good to 0.008; this is what they reach here.
        EXPECT_NEAR(eclipse.gamma, known.gamma, 0.005);
        EXPECT_NEAR(eclipse.magnitude, known.magnitude, 0.003);
        EXPECT_EQ(eclipse.central, std::fabs(known.gamma) < 0.9972);
    }
}

TEST_F(EclipseSearch, publishedEclipsesOfTheMoon)
{
    using enum EclipseType;
    const std::vector<Published> published = {
        {2000, 1, 21, 4, 44, Total, -0.2957, 1.3246},
        {2003, 11, 9, 1, 19, Total, -0.4319, 1.0178},
        {2011, 6, 15, 20, 13, Total, 0.0897, 1.6999},
        {2018, 7, 27, 20, 22, Total, 0.1168, 1.6087},
        {2019, 7, 16, 21, 31, Partial, -0.6430, 0.6531},
        {2020, 1, 10, 19, 10, Penumbral, 1.0727, 0.8956},
        {2021, 11, 19, 9, 3, Partial, -0.4553, 0.9742},
        {2023, 10, 28, 20, 14, Partial, 0.9472, 0.1220},
    };
    for (const Published& known : published) {
        SCOPED_TRACE(known.year * 100 + known.month);
        const double day = utDay(known.year, known.month, known.day, known.hour, known.minute);
        const Eclipse eclipse = onlyOne(day, false);
        EXPECT_EQ(eclipse.kind, EclipseKind::Lunar);
        EXPECT_EQ(eclipse.type, known.type);
        EXPECT_NEAR(eclipse.julianDay, day, 2.0 * kMinute);
        EXPECT_NEAR(eclipse.gamma, known.gamma, 0.005);
        // The catalogue takes a shadow that is some kilometres smaller.
        EXPECT_NEAR(eclipse.magnitude, known.magnitude, 0.025);
        EXPECT_FALSE(eclipse.central);
    }
}

// The worked examples that are printed with the series.
TEST_F(EclipseSearch, workedExamples)
{
    struct Example
    {
        double lunation;
        double greatest;
        double gamma;
        double u;
    };
    const std::vector<Example> examples = {{-82.0, 2449129.0979, 1.1348, 0.0097},
                                           {118.0, 2455034.6088, 0.0695, -0.0157},
                                           {-328.5, 2441849.3687, -1.3249, 0.0197},
                                           {-28.5, 2450708.2835, -0.3791, -0.0131}};
    for (const Example& example : examples) {
        const auto elements = eclipseElements(example.lunation);
        ASSERT_TRUE(elements);
        EXPECT_NEAR(elements->greatest, example.greatest, 1e-4);
        EXPECT_NEAR(elements->gamma, example.gamma, 1e-4);
        EXPECT_NEAR(elements->u, example.u, 1e-4);
    }
    EXPECT_FALSE(eclipseElements(121.0));
}

// Eclipses and their places in the zodiac.
TEST_F(EclipseSearch, whereTheyStand)
{
    const Eclipse moon = onlyOne(utDay(1997, 9, 16, 18, 47), false);
    EXPECT_EQ(moon.type, EclipseType::Total);
    EXPECT_NEAR(moon.magnitude, 1.19, 0.01);
    EXPECT_NEAR(std::fabs(core::Wrap180(moon.moonLongitude - moon.sunLongitude)), 180.0, 0.2);
    EXPECT_EQ(moon.longitude(), moon.moonLongitude);
    EXPECT_NEAR(moon.moonLongitude, 330.0, 1.0); // 23 Pisces tropical less 23 degrees 49
    const Eclipse sun = onlyOne(utDay(1996, 10, 12, 14, 2), true);
    EXPECT_EQ(sun.type, EclipseType::Partial);
    EXPECT_NEAR(sun.magnitude, 0.76, 0.01);
    EXPECT_NEAR(core::Wrap180(sun.moonLongitude - sun.sunLongitude), 0.0, 0.6);

    core::Chart chart;
    for (int point = 0; point < core::kPointCount; ++point) {
        core::at(chart.degreeInSign, point) = core::kNotComputed;
    }
    const auto place = [&](int point, double longitude) {
        chart.longitude[std::size_t(point)] = core::Normalize360(longitude);
        chart.degreeInSign[std::size_t(point)] = std::fmod(core::Normalize360(longitude), 30.0);
    };
    place(core::kVenus, moon.sunLongitude + 2.5);
    place(core::kMars, moon.moonLongitude - 2.99);
    place(core::kSaturn, moon.moonLongitude + 3.01);
    place(core::kCusp1, moon.moonLongitude);
    const std::vector<EclipsedPoint> points = eclipsedPoints(moon, chart);
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[0].point, core::kMars);
    EXPECT_EQ(points[0].body, core::kMoon);
    EXPECT_NEAR(points[0].distance, 2.99, 1e-9);
    EXPECT_EQ(points[1].point, core::kVenus);
    EXPECT_EQ(points[1].body, core::kSun);
}

// The numbers of the catalogues for two centuries; an eclipse at a limit may fall to either side.
TEST_F(EclipseSearch, countsOfTwoCenturies)
{
    using enum EclipseType;
    const auto near = [](std::map<EclipseType, int> found, const std::map<EclipseType, int>& wanted,
                         int allowed) {
        for (const auto& [type, count] : wanted) {
            EXPECT_NEAR(found[type], count, allowed) << int(type);
        }
        EXPECT_EQ(found.size(), wanted.size());
    };
    near(countsOf(1901, 2000, true), {{Partial, 78}, {Annular, 73}, {Total, 71}, {Hybrid, 6}}, 1);
    near(countsOf(2001, 2100, true), {{Partial, 77}, {Annular, 72}, {Total, 68}, {Hybrid, 7}}, 1);
    near(countsOf(1901, 2000, false), {{Penumbral, 83}, {Partial, 65}, {Total, 81}}, 3);
    near(countsOf(2001, 2100, false), {{Penumbral, 86}, {Partial, 57}, {Total, 85}}, 3);
}

// ---- Against the positions themselves ----------------------------------------------------------

using Vector = std::array<double, 3>;

Vector cross(const Vector& a, const Vector& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double length(const Vector& a)
{
    return std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
}

// A body in Earth radii.
Vector placeOf(SiderealSky& sky, int point, double julianDay)
{
    constexpr double kEarthRadiusAu = 6378.14 / 149597870.7;
    const SkyPosition body = sky.position(point, julianDay);
    const double l = body.longitude * core::kRadiansPerDegree;
    const double b = body.latitude * core::kRadiansPerDegree;
    const double r = body.distance / kEarthRadiusAu;
    return {r * std::cos(b) * std::cos(l), r * std::cos(b) * std::sin(l), r * std::sin(b)};
}

// Of the shadow's axis from the Earth's centre at a new moon, of the Moon from the axis of the
// Earth's shadow at a full one.
double axisDistance(SiderealSky& sky, bool solar, double julianDay)
{
    const Vector sun = placeOf(sky, core::kSun, julianDay);
    const Vector moon = placeOf(sky, core::kMoon, julianDay);
    const Vector axis = solar ? Vector{moon[0] - sun[0], moon[1] - sun[1], moon[2] - sun[2]} : sun;
    return length(cross(moon, axis)) / length(axis);
}

struct Closest
{
    double day;
    double distance;
};

Closest closestApproach(SiderealSky& sky, bool solar, double around)
{
    double day = around;
    for (double step = 0.02; step > 1e-5; step /= 2.0) {
        double best = axisDistance(sky, solar, day);
        for (const double direction : {-step, step}) {
            double distance = axisDistance(sky, solar, day + direction);
            while (distance < best) {
                day += direction;
                best = distance;
                distance = axisDistance(sky, solar, day + direction);
            }
        }
    }
    return {day, axisDistance(sky, solar, day)};
}

TEST_F(EclipseSearch, everySyzygyIsAnEclipseOrNotByThePositions)
{
    struct Era
    {
        int first;
        int last;
        double minutes; // to which the series are good there
        double radii;
    };
    const std::vector<Era> eras = {{1950, 2050, 1.4, 0.008},
                                   {1000, 1030, 1.6, 0.008},
                                   {2970, 3000, 1.4, 0.008},
                                   {-530, -500, 9.0, 0.011}};
    for (const Era& era : eras) {
        SCOPED_TRACE(era.first);
        const Span span{utDay(era.first, 1, 1), utDay(era.last, 1, 1)};
        std::size_t next = 0;
        const std::vector<Eclipse> eclipses = eclipsesIn(sky, span);
        for (const PhaseMoment& moment : moonPhasesIn(sky, span)) {
            if (moment.phase != MoonPhase::New && moment.phase != MoonPhase::Full) {
                continue;
            }
            const bool solar = moment.phase == MoonPhase::New;
            const Closest wanted = closestApproach(sky, solar, moment.julianDay);
            const bool found =
                next < eclipses.size() && std::fabs(eclipses[next].julianDay - wanted.day) < 0.5;
            if (!found) {
                // The limits lie above 1.5266 for the Sun and 1.5460 for the Moon.
                EXPECT_GT(wanted.distance, (solar ? 1.526 : 1.546) - era.radii) << moment.julianDay;
                continue;
            }
            const Eclipse& eclipse = eclipses[next++];
            EXPECT_EQ(eclipse.kind == EclipseKind::Solar, solar);
            EXPECT_NEAR(eclipse.julianDay, wanted.day, era.minutes * kMinute);
            EXPECT_NEAR(std::fabs(eclipse.gamma), wanted.distance, era.radii);
        }
        EXPECT_EQ(next, eclipses.size());
        EXPECT_GT(double(next), 4.3 * (era.last - era.first));
    }
}

TEST_F(EclipseSearch, spansEndToEndFindEachOnceAndFiltersOnlyLeaveOut)
{
    const Span whole{utDay(1990, 1, 1), utDay(2010, 1, 1)};
    const std::vector<Eclipse> all = eclipsesIn(sky, whole);
    std::vector<double> joined;
    for (double from = whole.from; from < whole.to; from += 23.7) {
        for (const Eclipse& eclipse : eclipsesIn(sky, {from, std::fmin(whole.to, from + 23.7)})) {
            joined.push_back(eclipse.julianDay);
        }
    }
    ASSERT_EQ(joined.size(), all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(joined[i], all[i].julianDay);
    }
    // The span contains its beginning and not its end.
    const double first = all.front().julianDay;
    EXPECT_EQ(eclipsesIn(sky, {first, first + 1e-6}).size(), 1U);
    EXPECT_TRUE(eclipsesIn(sky, {first - 1.0, first}).empty());
    const std::size_t solar = eclipsesIn(sky, whole, {true, false, true}).size();
    const std::size_t lunar = eclipsesIn(sky, whole, {false, true, true}).size();
    const std::size_t umbral = eclipsesIn(sky, whole, {false, true, false}).size();
    EXPECT_EQ(solar + lunar, all.size());
    EXPECT_LT(umbral, lunar);
    EXPECT_GT(umbral, 0U);
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(eclipsesIn(sky, {-kInfinity, whole.to}).empty());
    EXPECT_TRUE(eclipsesIn(sky, {whole.to, whole.from}).empty());
    int visited = 0;
    EXPECT_FALSE(forEachEclipse(sky, whole, {}, [&](const Eclipse&) { return ++visited < 3; }));
    EXPECT_EQ(visited, 3);
}

TEST_F(EclipseSearch, limitsAreSaid)
{
    // Umbral magnitude 1.0008 in the catalogue; annular with the axis just beside the Earth.
    EXPECT_TRUE(onlyOne(utDay(2015, 4, 4, 12, 0), false).nearLimit);
    EXPECT_TRUE(onlyOne(utDay(2014, 4, 29, 6, 3), true).nearLimit);
    EXPECT_FALSE(onlyOne(utDay(2017, 8, 21, 18, 26), true).nearLimit);
    EXPECT_FALSE(onlyOne(utDay(2018, 7, 27, 20, 22), false).nearLimit);
    int negative = 0;
    for (const Eclipse& eclipse :
         eclipsesIn(sky, {utDay(1600, 1, 1), utDay(2400, 1, 1)}, {false, true, true})) {
        EXPECT_GT(eclipse.penumbralMagnitude, -0.01);
        if (eclipse.penumbralMagnitude < 0.0) {
            ++negative;
            EXPECT_TRUE(eclipse.nearLimit);
            const EclipseAtPlace seen = eclipseAtPlace(sky, eclipse, {0.0, 0.0, 0.0});
            EXPECT_EQ(seen.contacts.size(), 1U);
        }
    }
    EXPECT_GT(negative, 0);
}

// ---- Seen from a place -------------------------------------------------------------------------

const ContactAtPlace* contactOf(const EclipseAtPlace& seen, ContactKind kind)
{
    for (const ContactAtPlace& contact : seen.contacts) {
        if (contact.kind == kind) {
            return &contact;
        }
    }
    return nullptr;
}

// The table printed before the eclipse of 2017 August 21, to the minute.
TEST_F(EclipseSearch, totalEclipseOverTowns)
{
    struct Town
    {
        double longitude;
        double latitude;
        double zone;
        std::array<double, 4> clock; // first contact, totality, its end, last contact
    };
    const auto clock = [](int hour, int minute) {
        return hour + minute / 60.0;
    };
    const std::vector<Town> towns = {
        {-121.13, 44.63, -7.0, {clock(9, 6), clock(10, 19), clock(10, 21), clock(11, 41)}},
        {-106.31, 42.85, -6.0, {clock(10, 22), clock(11, 42), clock(11, 45), clock(13, 9)}},
        {-89.22, 37.73, -5.0, {clock(11, 52), clock(13, 20), clock(13, 22), clock(14, 47)}},
        {-86.78, 36.165, -5.0, {clock(11, 58), clock(13, 27), clock(13, 29), clock(14, 54)}},
    };
    const Eclipse eclipse = onlyOne(utDay(2017, 8, 21, 18, 26), true);
    const std::array<ContactKind, 4> kinds = {ContactKind::PartialBegin, ContactKind::TotalBegin,
                                              ContactKind::TotalEnd, ContactKind::PartialEnd};
    for (const Town& town : towns) {
        SCOPED_TRACE(town.longitude);
        const EclipseAtPlace seen =
            eclipseAtPlace(sky, eclipse, {town.longitude, town.latitude, town.zone});
        ASSERT_EQ(seen.contacts.size(), 5U);
        EXPECT_TRUE(seen.visible);
        EXPECT_EQ(seen.type, EclipseType::Total);
        EXPECT_GT(seen.magnitude, 1.0);
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const ContactAtPlace* const contact = contactOf(seen, kinds[i]);
            ASSERT_NE(contact, nullptr);
            const double wanted = utDay(2017, 8, 21) + (town.clock[i] - town.zone) / 24.0;
            EXPECT_NEAR((contact->julianDay - wanted) / kMinute, 0.0, 1.3) << i;
            EXPECT_TRUE(contact->up);
        }
    }
}

TEST_F(EclipseSearch, partialSetAndUnseenEclipsesOfTheSun)
{
    const astro::Observer delhi{77.209, 28.6139, 5.5};
    const astro::Observer london{-0.1278, 51.5074, 1.0};

    // Partial at Delhi from 10:20 to 13:48, greatest 12:02.
    const EclipseAtPlace partial =
        eclipseAtPlace(sky, onlyOne(utDay(2020, 6, 21, 6, 40), true), delhi);
    EXPECT_EQ(partial.type, EclipseType::Partial);
    ASSERT_EQ(partial.contacts.size(), 3U);
    EXPECT_NEAR(partial.contacts[0].julianDay, utDay(2020, 6, 21, 4, 50), 1.3 * kMinute);
    EXPECT_NEAR(partial.contacts[1].julianDay, utDay(2020, 6, 21, 6, 32), 1.3 * kMinute);
    EXPECT_NEAR(partial.contacts[2].julianDay, utDay(2020, 6, 21, 8, 18), 1.3 * kMinute);
    EXPECT_NEAR(partial.magnitude, 0.953, 0.005);

    // At London the Sun sets in the eclipse of 2017, 20:10 by the clock.
    const Eclipse american = onlyOne(utDay(2017, 8, 21, 18, 26), true);
    const EclipseAtPlace setting = eclipseAtPlace(sky, american, london);
    EXPECT_TRUE(setting.visible);
    ASSERT_TRUE(setting.seen);
    EXPECT_TRUE(setting.contacts.front().up);
    EXPECT_FALSE(setting.contacts.back().up);
    EXPECT_NEAR(setting.seen->from, setting.contacts.front().julianDay, kMinute / 60.0);
    EXPECT_NEAR(setting.seen->to, utDay(2017, 8, 21, 19, 11), 3.0 * kMinute);
    EXPECT_LT(setting.magnitude, 0.1);
    EXPECT_EQ(setting.seenType, EclipseType::Partial);

    // At Delhi it is night, and the shadow never comes to Sydney.
    const EclipseAtPlace night = eclipseAtPlace(sky, american, delhi);
    EXPECT_TRUE(night.type);
    EXPECT_FALSE(night.visible || night.seen);
    const EclipseAtPlace nothing =
        eclipseAtPlace(sky, onlyOne(utDay(2021, 6, 10, 10, 42), true), {151.21, -33.87, 10.0});
    EXPECT_FALSE(nothing.visible || nothing.type || nothing.seen);
    EXPECT_TRUE(nothing.contacts.empty());

    // An annular eclipse seen as such: Male, 2010 January 15, greatest 12:24 by the clock.
    const EclipseAtPlace ring =
        eclipseAtPlace(sky, onlyOne(utDay(2010, 1, 15, 7, 7), true), {73.51, 4.175, 5.0});
    EXPECT_EQ(ring.type, EclipseType::Annular);
    EXPECT_EQ(contactName(ContactKind::TotalBegin, *ring.type), L"annular begins");
    ASSERT_NE(contactOf(ring, ContactKind::TotalBegin), nullptr);
    EXPECT_NEAR((contactOf(ring, ContactKind::TotalEnd)->julianDay -
                 contactOf(ring, ContactKind::TotalBegin)->julianDay) /
                    kMinute,
                10.75, 0.3);
}

// Contacts of the catalogue for 2018 July 27.
TEST_F(EclipseSearch, eclipseOfTheMoonFromPlaces)
{
    const Eclipse eclipse = onlyOne(utDay(2018, 7, 27, 20, 22), false);
    const EclipseAtPlace delhi = eclipseAtPlace(sky, eclipse, {77.209, 28.6139, 5.5});
    const std::vector<double> wanted = {
        utDay(2018, 7, 27, 17, 14, 49), utDay(2018, 7, 27, 18, 24, 27),
        utDay(2018, 7, 27, 19, 30, 15), utDay(2018, 7, 27, 20, 21, 44),
        utDay(2018, 7, 27, 21, 13, 12), utDay(2018, 7, 27, 22, 19, 0),
        utDay(2018, 7, 27, 23, 28, 37)};
    ASSERT_EQ(delhi.contacts.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_NEAR((delhi.contacts[i].julianDay - wanted[i]) / kMinute, 0.0, 2.0) << i;
        EXPECT_TRUE(delhi.contacts[i].up);
    }
    EXPECT_TRUE(delhi.visible);

    // At London the Moon rose eclipsed, about 20:50 by the clock; at New York too late.
    const EclipseAtPlace london = eclipseAtPlace(sky, eclipse, {-0.1278, 51.5074, 1.0});
    ASSERT_TRUE(london.seen);
    EXPECT_FALSE(london.contacts[2].up);
    EXPECT_NEAR(london.seen->from, utDay(2018, 7, 27, 19, 49), 3.0 * kMinute);
    EXPECT_EQ(london.seen->to, london.contacts.back().julianDay);
    EXPECT_EQ(london.seenType, EclipseType::Total);
    const EclipseAtPlace newYork = eclipseAtPlace(sky, eclipse, {-74.006, 40.7128, -4.0});
    EXPECT_FALSE(newYork.visible || newYork.seenType);
    // At Pune only the penumbra of 2024 September 18 was to be seen, before moonset.
    const EclipseAtPlace pune =
        eclipseAtPlace(sky, onlyOne(utDay(2024, 9, 18, 2, 44), false), {73.86, 18.52, 5.5});
    EXPECT_EQ(pune.type, EclipseType::Partial);
    EXPECT_EQ(pune.seenType, EclipseType::Penumbral);
}

TEST_F(EclipseSearch, moonPhases)
{
    // New moon 2000 January 6 18:14, full moon 2000 January 21 4:40, quarters 14 13:34 and 28 7:57.
    const std::vector<PhaseMoment> found =
        moonPhasesIn(sky, {utDay(2000, 1, 1), utDay(2000, 2, 1)});
    ASSERT_EQ(found.size(), 4U);
    const std::vector<double> wanted = {utDay(2000, 1, 6, 18, 14), utDay(2000, 1, 14, 13, 34),
                                        utDay(2000, 1, 21, 4, 40), utDay(2000, 1, 28, 7, 57)};
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].phase, MoonPhase(i));
        EXPECT_NEAR(found[i].julianDay, wanted[i], kMinute);
        EXPECT_NEAR(core::Normalize360(found[i].moonLongitude - found[i].sunLongitude + 1e-3),
                    90.0 * double(i) + 1e-3, 1e-3);
    }
}

} // namespace
} // namespace kestrav::timing
