#include "analysis/ComputeChart.h"
#include "astro/Bodies.h"
#include "astro/Moon.h"
#include "astro/Nutation.h"
#include "astro/PreciseMoon.h"
#include "core/Angles.h"
#include "core/numeric.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <thread>
#include <utility>
#include <vector>

namespace kestrav::analysis
{
namespace
{

core::Chart birthOf(int year, int month, int day, double localTime, double zone, double latitude,
                    double longitude)
{
    core::Chart chart;
    chart.time.year = year;
    chart.time.month = month;
    chart.time.day = day;
    chart.time.localTime = localTime;
    chart.zone = zone;
    chart.geoLatitude = latitude;
    chart.geoLongitude = longitude;
    return chart;
}

core::Chart exampleBirth()
{
    return birthOf(1996, 12, 7, 10.0 + 34.0 / 60.0, 5.5, 13.0878, 80.2785);
}

core::Chart computed(core::Chart chart, const core::Settings& settings = core::Settings())
{
    astro::EphemerisContext context(tests::seriesForTests());
    ComputeChart(chart, settings, context);
    return chart;
}

// Every number that the driver leaves in a chart, for comparing bytes and for finding what is no
// number.
std::vector<double> numbersOf(const core::Chart& chart)
{
    const auto number = [](const auto& value) {
        return double(value);
    };
    std::vector<double> numbers = {chart.time.ayanamsa,
                                   chart.time.dayCount,
                                   chart.time.utHours,
                                   chart.time.deltaTDays,
                                   chart.T,
                                   chart.sunrise.value_or(-99.0),
                                   chart.nutation,
                                   chart.sunset.value_or(-99.0),
                                   chart.ayanamsa,
                                   chart.cosObliquity,
                                   chart.sinObliquity,
                                   chart.localSiderealTime,
                                   chart.midheaven,
                                   chart.ascendantRate,
                                   number(chart.weekday),
                                   number(chart.integerJulianDay),
                                   number(chart.houseSystem),
                                   number(chart.cuspsComplete),
                                   number(chart.hasSandhis)};
    const core::VedicDay day = chart.vedicDay.value_or(core::VedicDay{-99.0, -99.0, -99.0});
    const auto append = [&](const auto& values) {
        for (const auto& value : values) {
            numbers.push_back(number(value));
        }
    };
    append(std::array{day.sunrise, day.sunset, day.nextSunrise});
    append(chart.quadrantArcs);
    append(chart.quadrantFactors);
    append(chart.sandhis);
    append(chart.longitude);
    append(chart.speed);
    append(chart.latitude);
    append(chart.distance);
    append(chart.magnitude);
    append(chart.phase);
    append(chart.declination);
    append(chart.motion);
    append(chart.retrograde);
    append(chart.rashi);
    append(chart.degreeInSign);
    append(chart.navamshaSign);
    append(chart.nakshatraPosition);
    return numbers;
}

std::vector<std::uint64_t> bytesOf(const core::Chart& chart)
{
    std::vector<std::uint64_t> bytes;
    for (const double value : numbersOf(chart)) {
        bytes.push_back(std::bit_cast<std::uint64_t>(value));
    }
    return bytes;
}

// Births of any year, place, clock and settings.
class RandomBirths
{
public:
    explicit RandomBirths(unsigned seed) : random_(seed)
    {}

    std::pair<core::Chart, core::Settings> next()
    {
        const int year = whole(-5000, 5000);
        core::Chart chart =
            birthOf(year == 0 ? 1 : year, whole(1, 12), whole(1, 28), real(0.0, 24.0),
                    whole(-24, 28) / 2.0, 0.0, real(-180.0, 180.0));
        chart.daylightSaving = whole(0, 2);
        // Every tenth stands at a pole, the equator or a polar circle.
        constexpr std::array<double, 5> kLatitudes = {90.0, -90.0, 0.0, 66.5607, -66.5607};
        chart.geoLatitude =
            whole(0, 9) == 0 ? kLatitudes[std::size_t(whole(0, 4))] : real(-90.0, 90.0);
        core::Settings settings;
        settings.houseSystem = whole(0, 4);
        settings.ayanamsaRow = whole(0, 9);
        settings.preciseMoon = whole(0, 1) == 1;
        settings.magnitudes = whole(0, 1) == 1;
        settings.deltaTOn = whole(0, 1) == 1;
        return {chart, settings};
    }

private:
    int whole(int lowest, int highest)
    {
        return std::uniform_int_distribution<int>(lowest, highest)(random_);
    }
    double real(double from, double to)
    {
        return std::uniform_real_distribution<double>(from, to)(random_);
    }

    std::mt19937 random_;
};

// Chennai, 1996 December 7, 10:34, by Lahiri's ayanamsa; its positions are known to the minute.
TEST(ComputeChart, GivesTheKnownChartToTheMinute)
{
    const core::Chart chart = computed(exampleBirth());
    const struct
    {
        int point;
        int sign;
        int degrees;
        int minutes;
    } rows[] = {
        {core::kAscendant, 10, 22, 26}, {core::kSun, 8, 21, 33},    {core::kMoon, 7, 6, 57},
        {core::kMars, 5, 25, 32},       {core::kMercury, 9, 9, 55}, {core::kJupiter, 9, 25, 49},
        {core::kVenus, 7, 23, 42},      {core::kSaturn, 12, 6, 48}, {core::kRahu, 6, 10, 33},
        {core::kKetu, 12, 10, 33},
    };
    for (const auto& [point, sign, degrees, minutes] : rows) {
        EXPECT_EQ(core::at(chart.rashi, point), sign) << point;
        // The printed minutes may be cut or rounded.
        EXPECT_NEAR(core::at(chart.degreeInSign, point) * 60.0, degrees * 60 + minutes + 0.25, 0.75)
            << point;
    }
    EXPECT_EQ(chart.weekday, 7);
    EXPECT_NEAR(*chart.sunrise, 6.3, 0.1);
}

TEST(ComputeChart, HoldsItsLawsForAnyBirth)
{
    constexpr unsigned kSeed = 5000;
    RandomBirths births(kSeed);
    astro::EphemerisContext context(tests::seriesForTests());
    for (int i = 0; i < 3000; ++i) {
        SCOPED_TRACE(i);
        auto [chart, settings] = births.next();
        ComputeChart(chart, settings, context);
        for (const double value : numbersOf(chart)) {
            ASSERT_TRUE(std::isfinite(value));
        }
        bool cuspsComplete = true;
        for (int point = 0; point < core::kPointCount; ++point) {
            const bool cusp = point >= core::kCusp1 && point <= core::kCusp12;
            const bool body = (point >= 1 && point <= 9) || (point >= 32 && point <= 34);
            if (!chart.computed(point)) {
                ASSERT_FALSE(point == 0 || body) << point;
                cuspsComplete = cuspsComplete && !cusp;
                continue;
            }
            ASSERT_TRUE(point == 0 || body || cusp) << point;
            const double longitude = core::at(chart.longitude, point);
            const int sign = core::at(chart.rashi, point);
            const double inSign = core::at(chart.degreeInSign, point);
            ASSERT_TRUE(longitude >= 0.0 && longitude < 360.0) << point;
            ASSERT_TRUE(inSign >= 0.0 && inSign < 30.0) << point;
            ASSERT_NEAR((sign - 1) * 30.0 + inSign, longitude, 1e-12) << point;
            const double nakshatra = core::at(chart.nakshatraPosition, point);
            ASSERT_TRUE(nakshatra >= 0.0 && nakshatra < 27.0) << point;
            ASSERT_NEAR(nakshatra * 40.0 / 3.0, longitude, 1e-12) << point;
            // At the limit of two navamshas either may come out.
            const double navamshas = longitude / (10.0 / 3.0);
            if (std::fabs(navamshas - std::round(navamshas)) > 1e-9) {
                ASSERT_EQ(core::at(chart.navamshaSign, point), int(navamshas) % 12 + 1) << point;
            }
            ASSERT_EQ(core::at(chart.motion, point) != core::Motion::None, body) << point;
            ASSERT_EQ(core::at(chart.retrograde, point), core::at(chart.speed, point) < 0.0);
        }
        ASSERT_EQ(chart.cuspsComplete, cuspsComplete);
        // Only Placidus lacks cusps, near a pole (the obliquity reaches 24.3 degrees).
        ASSERT_TRUE(cuspsComplete ||
                    (settings.houseSystem >= 3 && std::fabs(chart.geoLatitude) > 65.5));
        ASSERT_EQ(chart.ayanamsa, chart.time.ayanamsa);
        ASSERT_NEAR(core::Normalize360(chart.longitude[core::kKetu] - chart.longitude[core::kRahu]),
                    180.0, 1e-12);
        ASSERT_TRUE(chart.weekday >= 1 && chart.weekday <= 7);
        ASSERT_TRUE(!chart.sunrise || !chart.sunset || *chart.sunrise < *chart.sunset);
    }
}

TEST(ComputeChart, TakesTheEnginesPositionsLessTheAyanamsa)
{
    for (const bool precise : {false, true}) {
        core::Settings settings;
        settings.preciseMoon = precise;
        settings.magnitudes = precise;
        const core::Chart chart = computed(exampleBirth(), settings);
        const core::TimeArguments time = core::timeArguments(chart.T);
        const auto expectPoint = [&](int point, double tropical, double speed, double latitude) {
            EXPECT_NEAR(
                std::remainder(core::at(chart.longitude, point) + chart.ayanamsa - tropical, 360.0),
                0.0, 1e-11)
                << point;
            EXPECT_EQ(core::at(chart.speed, point), speed) << point;
            EXPECT_EQ(core::at(chart.latitude, point), latitude) << point;
        };
        astro::EphemerisContext context(tests::seriesForTests());
        context.setTime(time);
        context.magnitudesOn = true;
        for (const int point : astro::kEnginePoints) {
            astro::PlanetPosition(context, astro::codeOfPoint(point));
            const astro::BodyResult& body = context.result;
            expectPoint(point, body.longitude, body.speed, body.latitude);
            EXPECT_EQ(core::at(chart.distance, point), body.distance);
            // Phase and magnitude only when they are switched on.
            EXPECT_EQ(core::at(chart.phase, point), precise ? body.phase : 0.0) << point;
            EXPECT_EQ(core::at(chart.magnitude, point), precise ? body.magnitude : 0.0) << point;
        }
        const astro::ShortMoon shortMoon = astro::shortMoon(time);
        const astro::MoonPosition moon = astro::preciseMoon(chart.T);
        if (precise) {
            expectPoint(core::kMoon, moon.longitude, moon.speed, moon.latitude);
        } else {
            expectPoint(core::kMoon, shortMoon.longitude, shortMoon.speed, shortMoon.latitude);
        }
        // Rahu is the mean node with either Moon.
        expectPoint(core::kRahu, shortMoon.node, shortMoon.nodeSpeed, 0.0);
        expectPoint(core::kKetu, shortMoon.node + 180.0, shortMoon.nodeSpeed, 0.0);
    }
}

TEST(ComputeChart, TropicalRowsAreCorrectedForNutation)
{
    core::Settings settings;
    const core::Chart lahiri = computed(exampleBirth(), settings);
    EXPECT_NEAR(lahiri.ayanamsa, 23.15888888888889 + 46.93 * 50.27 / 3600.0, 1e-3);
    settings.ayanamsaRow = 9;
    const core::Chart tropical = computed(exampleBirth(), settings);
    const double nutation = astro::Nutation(core::timeArguments(tropical.T)).longitude;
    EXPECT_EQ(tropical.nutation, nutation);
    EXPECT_EQ(tropical.ayanamsa, -nutation);
    // An edited row without a rate is tropical too, whatever its value.
    settings.ayanamsaRow = 2;
    settings.ayanamsaTable[2].annualRate = 0.0;
    EXPECT_EQ(bytesOf(computed(exampleBirth(), settings)), bytesOf(tropical));
    // All points move by the same arc, the ascendant and the midheaven with them.
    const double arc = lahiri.ayanamsa + nutation;
    for (const int point : {core::kAscendant, core::kSun, core::kMoon, core::kRahu, core::kPluto}) {
        EXPECT_NEAR(core::Normalize360(core::at(tropical.longitude, point) -
                                       core::at(lahiri.longitude, point)),
                    arc, 1e-11);
    }
    EXPECT_NEAR(core::Normalize360(tropical.midheaven - lahiri.midheaven), arc, 1e-11);
    EXPECT_EQ(tropical.localSiderealTime, lahiri.localSiderealTime);
    EXPECT_EQ(tropical.obliquity(), lahiri.obliquity());
}

TEST(ComputeChart, TimeCarriesDeltaTOnlyWhenItIsOn)
{
    core::Settings settings;
    const core::Chart with = computed(exampleBirth(), settings);
    settings.deltaTOn = false;
    const core::Chart without = computed(exampleBirth(), settings);
    // Eleven months past the 61.63 seconds of 1996, on the way to 62.97 in 1998.
    EXPECT_NEAR((with.T - without.T) * core::kDaysPerCentury * 86400.0, 62.24, 0.02);
    EXPECT_EQ(with.time.dayCount, without.time.dayCount);
    EXPECT_EQ(with.localSiderealTime, without.localSiderealTime);
}

TEST(ComputeChart, DayBeginsAtSunrise)
{
    // 2021 March 21 was a Sunday; the Sun rises at Delhi at 6:27.
    const std::array<std::pair<double, int>, 4> rows = {{{0.0, 7}, {6.4, 7}, {6.5, 1}, {23.9, 1}}};
    for (const auto& [localTime, weekday] : rows) {
        const core::Chart chart = computed(birthOf(2021, 3, 21, localTime, 5.5, 28.6139, 77.209));
        EXPECT_EQ(chart.weekday, weekday) << localTime;
        EXPECT_NEAR(*chart.sunrise, 6.0 + 27.0 / 60.0, 0.03);
        EXPECT_NEAR(*chart.sunset, 18.0 + 31.0 / 60.0, 0.03);
        ASSERT_TRUE(chart.vedicDay);
        EXPECT_NEAR(chart.vedicDay->sunrise, *chart.sunrise - (weekday == 7 ? 24.0 : 0.0), 0.03);
    }
    // Saving time is on the clock.
    core::Chart summer = birthOf(2021, 3, 21, 7.0, 5.5, 28.6139, 77.209);
    summer.daylightSaving = 1;
    summer = computed(summer);
    EXPECT_NEAR(*summer.sunrise, 7.0 + 27.0 / 60.0, 0.03);
    EXPECT_EQ(summer.time.utHours, 0.5);
    EXPECT_EQ(summer.weekday, 7);
    // In the polar night the civil weekday holds.
    const core::Chart polar = computed(birthOf(2021, 12, 21, 3.0, 1.0, 78.2, 15.6));
    EXPECT_FALSE(polar.sunrise || polar.sunset || polar.vedicDay);
    EXPECT_EQ(polar.weekday, 3);
}

TEST(ComputeChart, GivesTheSameBytesAgainAndOnSeveralThreads)
{
    constexpr std::size_t kCharts = 240;
    RandomBirths births(77);
    std::vector<std::pair<core::Chart, core::Settings>> cases;
    std::vector<std::vector<std::uint64_t>> wanted;
    for (std::size_t i = 0; i < kCharts; ++i) {
        cases.push_back(births.next());
        wanted.push_back(bytesOf(computed(cases[i].first, cases[i].second)));
    }
    // Each thread keeps one context for all of its charts.
    std::vector<std::vector<std::uint64_t>> found(kCharts);
    std::vector<std::thread> threads;
    for (std::size_t first = 0; first < 3; ++first) {
        threads.emplace_back([&, first] {
            astro::EphemerisContext context(tests::seriesForTests());
            for (std::size_t i = first; i < kCharts; i += 3) {
                core::Chart chart = cases[i].first;
                ComputeChart(chart, cases[i].second, context);
                found[i] = bytesOf(chart);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(found, wanted);

    // A chart record used for another birth before keeps nothing of it.
    astro::EphemerisContext context(tests::seriesForTests());
    core::Chart chart = computed(exampleBirth());
    for (std::size_t i = 0; i < kCharts; ++i) {
        const core::Chart& birth = cases[i].first;
        chart.time = birth.time;
        chart.zone = birth.zone;
        chart.daylightSaving = birth.daylightSaving;
        chart.geoLatitude = birth.geoLatitude;
        chart.geoLongitude = birth.geoLongitude;
        ComputeChart(chart, cases[i].second, context);
        ASSERT_EQ(bytesOf(chart), wanted[i]) << i;
    }
}

} // namespace
} // namespace kestrav::analysis
