#include "analysis/Shadbala.h"
#include "tests/analysis/PrintedCharts.h"

#include <gtest/gtest.h>

namespace kestrav::analysis
{
namespace
{

using core::at;

constexpr double kNone = core::kNotComputed;

TEST(PlanetaryWar, FollowsThePrintedHoroscope)
{
    const ShadbalaTable table = computeShadbala(chartJ(), inputsJ());
    ASSERT_EQ(table.wars.size(), 1u);
    EXPECT_EQ(table.wars[0].winner, core::kJupiter);
    EXPECT_EQ(table.wars[0].loser, core::kMercury);
    EXPECT_NEAR(table.wars[0].bala.value(), 0.757, 0.001);
    // The book prints 0.80.
    EXPECT_NEAR(table.wars[0].bala.value(), 0.80, 0.05);
    EXPECT_NEAR(table.planets[core::kJupiter].kala.yuddha.value(), 0.757, 0.001);
    EXPECT_NEAR(table.planets[core::kMercury].kala.yuddha.value(), -0.757, 0.001);
    EXPECT_DOUBLE_EQ(table.planets[core::kSaturn].kala.yuddha.value(), 0.0);
    EXPECT_TRUE(computeShadbala(chartR(), inputsR()).wars.empty());
}

TEST(PlanetaryWar, WithoutLatitudesHasNoWinner)
{
    StrengthInputs inputs = inputsJ();
    inputs.latitude.reset();
    const ShadbalaTable table = computeShadbala(chartJ(), inputs);
    ASSERT_EQ(table.wars.size(), 1u);
    EXPECT_EQ(table.wars[0].first, core::kMercury);
    EXPECT_EQ(table.wars[0].second, core::kJupiter);
    EXPECT_FALSE(table.wars[0].winner.has_value());
    EXPECT_FALSE(table.wars[0].bala.has_value());
    // Nobody knows what the two gain or lose; the others are untouched.
    EXPECT_FALSE(table.planets[core::kMercury].total.has_value());
    EXPECT_TRUE(table.planets[core::kSaturn].total.has_value());
}

TEST(PlanetaryWar, IsFoughtBelowOneDegreeBetweenMarsAndSaturnOnly)
{
    StrengthInputs inputs;
    inputs.latitude = PlanetArray<double>{};
    const auto wars = [&](const std::vector<double>& longitudes) {
        return planetaryWars(chartOf(longitudes), inputs, {});
    };
    // Sun, Moon and Rahu do not fight, nor do planets exactly a degree apart.
    EXPECT_TRUE(wars({0, 10, 10, 10.5 + 1.0, 200, 300, 250, 100, 100}).empty());
    EXPECT_TRUE(wars({0, 0, 0, 10, 11, 300, 250, 100}).empty());
    // Across 0 degrees Aries, on equal latitudes: the smaller longitude is that of Venus.
    const auto across = wars({0, 0, 0, 100, 200, 300, 0.25, 359.5});
    ASSERT_EQ(across.size(), 1u);
    EXPECT_EQ(across[0].winner, core::kVenus);
    EXPECT_FALSE(across[0].bala.has_value());
    EXPECT_TRUE(wars({0, 0, 0, 100, kNone, kNone}).empty());
}

TEST(PlanetaryWar, CountsEveryPairByItself)
{
    StrengthInputs inputs;
    inputs.latitude = PlanetArray<double>{0, 0, 0, 1.0, 0.5, -1.0, 0, 0};
    PlanetArray<Strength> strengths;
    strengths[core::kMars] = 300.0;
    strengths[core::kMercury] = 272.0;
    strengths[core::kJupiter] = 119.0;
    const core::Chart chart = chartOf({0, 0, 0, 50.0, 50.4, 50.8, 250, 100});
    const auto wars = planetaryWars(chart, inputs, strengths);
    ASSERT_EQ(wars.size(), 3u);
    // 28 / 2.8, 181 / 181 and 153 / 183.8.
    EXPECT_NEAR(yuddhaBala(wars, core::kMars).value(), 10.0 + 1.0, 1e-12);
    EXPECT_NEAR(yuddhaBala(wars, core::kMercury).value(), -10.0 + 153.0 / 183.8, 1e-12);
    EXPECT_NEAR(yuddhaBala(wars, core::kJupiter).value(), -1.0 - 153.0 / 183.8, 1e-12);
}

} // namespace
} // namespace kestrav::analysis
