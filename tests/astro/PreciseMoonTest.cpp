#include "astro/PreciseMoon.h"

#include "core/Angles.h"
#include "core/numeric.h"
#include "tools/LunarSeriesFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace kestrav::astro
{
namespace
{

constexpr double kArcSecond = 1.0 / 3600.0; // degrees
constexpr double kKilometresPerAu = 149597870.7;
constexpr double kDaysPerCentury = 36525.0;

struct Differences
{
    double longitude = 0.0; // arc seconds
    double latitude = 0.0;  // arc seconds
    double distance = 0.0;  // kilometres
    double speed = 0.0;     // arc seconds per day

    void add(const MoonPosition& a, const MoonPosition& b)
    {
        const auto raise = [](double& worst, double difference) {
            // A difference that is not a number must not pass as small.
            worst = std::isnan(difference) ? HUGE_VAL : std::max(worst, std::fabs(difference));
        };
        raise(longitude, core::Wrap180(a.longitude - b.longitude) / kArcSecond);
        raise(latitude, (a.latitude - b.latitude) * core::kDegreesPerRadian / kArcSecond);
        raise(distance, (a.distance - b.distance) * kKilometresPerAu);
        raise(speed, (a.speed - b.speed) / kArcSecond);
    }
};

double centuriesOfYear(double year)
{
    return (year - 1900.0) / 100.0;
}

// The Moon by the plain ordered sum of library sines; the speed is left at 0.
MoonPosition plainSum(const tools::LunarSeries& series, double centuriesFrom1900)
{
    const double t = centuriesFrom1900 - 1.0;
    const double s = t - 1.2822 / 86400.0 / kDaysPerCentury;
    const auto horner = [](const std::array<double, 5>& c, double x) {
        return c[0] + x * (c[1] + x * (c[2] + x * (c[3] + x * c[4])));
    };
    double longitude = 0.0;
    double latitude = 0.0;
    double distance = 0.0;
    for (const tools::LunarBlock& block : series.blocks) {
        double sum = 0.0;
        for (const tools::LunarTerm& term : block.terms) {
            sum += term.amplitude * std::sin(horner(term.phase, s));
        }
        sum *= std::pow(s, block.power);
        (block.coordinate == 'L'   ? longitude
         : block.coordinate == 'B' ? latitude
                                   : distance) += sum;
    }
    longitude += horner({0.0, 5028.79695, 1.1120, 0.000077, -0.00002353}, t);
    const double meanDegrees = horner(series.meanLongitude, s) * core::kDegreesPerRadian;
    return {core::Normalize360(meanDegrees + longitude * kArcSecond),
            latitude * kArcSecond * core::kRadiansPerDegree, distance / kKilometresPerAu, 0.0};
}

tools::LunarSeries readSeries(const char* name)
{
    tools::LunarSeries series =
        tools::readLunarSeries(std::string(KESTRAV_RESOURCES) + "/series/" + name);
    EXPECT_EQ(series.error, "");
    return series;
}

struct ReferenceMoment
{
    double centuriesFrom1900;
    MoonPosition moon;
};

std::vector<ReferenceMoment> readReference()
{
    std::vector<ReferenceMoment> moments;
    std::ifstream file(std::string(KESTRAV_TEST_DATA) + "/sky.csv");
    for (std::string line; std::getline(file, line);) {
        if (line.find(",Moon,") == std::string::npos) {
            continue;
        }
        line.replace(line.find(",Moon,"), 6, " ");
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        double julianDay = 0.0;
        ReferenceMoment moment{};
        words >> julianDay >> moment.moon.longitude >> moment.moon.latitude >>
            moment.moon.distance >> moment.moon.speed;
        EXPECT_TRUE(words) << line;
        moment.centuriesFrom1900 = (julianDay - 2415020.0) / kDaysPerCentury;
        moment.moon.latitude *= core::kRadiansPerDegree;
        moments.push_back(moment);
    }
    return moments;
}

TEST(PreciseMoon, AgreesWithThePlanetaryEphemeris)
{
    Differences modern;
    Differences far;
    int modernMoments = 0;
    int farMoments = 0;
    for (const ReferenceMoment& moment : readReference()) {
        const MoonPosition moon = preciseMoon(moment.centuriesFrom1900);
        const bool isModern = moment.centuriesFrom1900 >= centuriesOfYear(1800.0) &&
                              moment.centuriesFrom1900 <= centuriesOfYear(2200.0);
        (isModern ? modern : far).add(moon, moment.moon);
        ++(isModern ? modernMoments : farMoments);
    }
    // The ephemeris measures the distance from where the Earth has moved to while the light was on
    // its way, which is up to 38 km.
    EXPECT_GE(modernMoments, 39);
    EXPECT_LT(modern.longitude, 1.0);
    EXPECT_LT(modern.latitude, 1.0);
    EXPECT_LT(modern.distance, 50.0);
    EXPECT_LT(modern.speed, 2.0);
    // Back to -3000 precession and the tidal term leave a few arc seconds more.
    EXPECT_GE(farMoments, 24);
    EXPECT_LT(far.longitude, 20.0);
    EXPECT_LT(far.latitude, 6.0);
    EXPECT_LT(far.distance, 60.0);
    EXPECT_LT(far.speed, 3.0);
}

TEST(PreciseMoon, StaysNearTheCompleteSeries)
{
    const tools::LunarSeries complete = readSeries("elpmpp02-de405.txt");
    std::mt19937_64 random(1800);
    std::uniform_real_distribution<double> years(1800.0, 2200.0);
    Differences worst;
    for (int i = 0; i < 10000; ++i) {
        const double centuries = centuriesOfYear(years(random));
        MoonPosition exact = plainSum(complete, centuries);
        const MoonPosition moon = preciseMoon(centuries);
        exact.speed = moon.speed;
        worst.add(moon, exact);
    }
    EXPECT_LT(worst.longitude, 0.9);
    EXPECT_LT(worst.latitude, 0.9);
    EXPECT_LT(worst.distance, 15.0);
}

TEST(PreciseMoon, EqualsThePlainOrderedSumOfItsOwnTerms)
{
    const tools::LunarSeries own = readSeries("moon.txt");
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> years(1800.0, 2200.0);
    for (int i = 0; i < 2000; ++i) {
        const double centuries = centuriesOfYear(years(random));
        const MoonPosition plain = plainSum(own, centuries);
        const MoonPosition moon = preciseMoon(centuries);
        // 1e-11 radians. The distance in AU is far smaller than 1.
        ASSERT_NEAR(core::Wrap180(moon.longitude - plain.longitude), 0.0,
                    1e-11 * core::kDegreesPerRadian)
            << centuries;
        ASSERT_NEAR(moon.latitude, plain.latitude, 1e-12) << centuries;
        ASSERT_NEAR(moon.distance, plain.distance, 1e-14) << centuries;
    }
}

TEST(PreciseMoon, SpeedIsTheSlopeOfTheLongitude)
{
    std::mt19937_64 random(13);
    std::uniform_real_distribution<double> years(-500.0, 2500.0);
    // At this step the third derivative and the rounding of the longitude are both below 0.005".
    const double step = 0.005 / kDaysPerCentury;
    double worst = 0.0;
    for (int i = 0; i < 5000; ++i) {
        const double centuries = centuriesOfYear(years(random));
        const double after = preciseMoon(centuries + step).longitude;
        const double before = preciseMoon(centuries - step).longitude;
        const double slope = core::Wrap180(after - before) / (2.0 * step * kDaysPerCentury);
        const double difference = (preciseMoon(centuries).speed - slope) / kArcSecond;
        worst = std::max(worst, std::fabs(difference));
    }
    EXPECT_LT(worst, 0.01);
}

TEST(PreciseMoon, StaysALunarOrbitOnFarDates)
{
    for (double year = -3000.0; year <= 3000.0; year += 0.7) {
        const MoonPosition moon = preciseMoon(centuriesOfYear(year));
        ASSERT_TRUE(moon.longitude >= 0.0 && moon.longitude < 360.0) << year;
        ASSERT_LT(std::fabs(moon.latitude) * core::kDegreesPerRadian, 5.4) << year;
        ASSERT_TRUE(moon.distance > 0.00235 && moon.distance < 0.00273) << year;
        ASSERT_TRUE(moon.speed > 11.6 && moon.speed < 15.5) << year;
    }
    const MoonPosition nowhere = preciseMoon(core::kNotANumber);
    EXPECT_TRUE(std::isnan(nowhere.longitude) && std::isnan(nowhere.latitude) &&
                std::isnan(nowhere.distance) && std::isnan(nowhere.speed));
}

} // namespace
} // namespace kestrav::astro
