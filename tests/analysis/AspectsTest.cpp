#include "analysis/Aspects.h"

#include "AnalysisCharts.h"
#include "analysis/SignStrength.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

namespace kestrav::analysis
{
namespace
{

using Houses = std::set<int>;

TEST(Aspects, FullAspectsOfThePlanets)
{
    const auto houses = [](int planet, int option) {
        core::Settings settings;
        settings.nodeAspectOption = option;
        Houses full;
        for (int house = 1; house <= 12; ++house) {
            const bool aspects = fullGrahaAspect(planet, house, settings);
            EXPECT_EQ(grahaAspectShare(planet, house, settings) == 1.0, aspects);
            if (aspects) {
                full.insert(house);
            }
        }
        return full;
    };
    for (const int planet : {core::kSun, core::kMoon, core::kMercury, core::kVenus}) {
        EXPECT_EQ(houses(planet, 2), Houses{7});
    }
    EXPECT_EQ(houses(core::kMars, 1), (Houses{4, 7, 8}));
    EXPECT_EQ(houses(core::kJupiter, 0), (Houses{5, 7, 9}));
    EXPECT_EQ(houses(core::kSaturn, 0), (Houses{3, 7, 10}));
    EXPECT_EQ(houses(core::kRahu, 0), (Houses{5, 9}));
    EXPECT_EQ(houses(core::kKetu, 1), (Houses{2, 5, 9}));
    EXPECT_EQ(houses(core::kRahu, 2), (Houses{5, 9, 12}));
}

TEST(Aspects, PartialAspects)
{
    constexpr std::array<double, 12> kSun = {0, 0, 0.25, 0.75, 0.5, 0, 1, 0.75, 0.5, 0.25, 0, 0};
    for (int house = 1; house <= 12; ++house) {
        EXPECT_EQ(grahaAspectShare(core::kSun, house, {}), core::at(kSun, house - 1)) << house;
    }
    EXPECT_EQ(grahaAspectShare(core::kRahu, 7, {}), 0.0);
    EXPECT_TRUE(fullyAspects(chartOfSigns({1, 10}), core::kSun, 4, {}));
}

TEST(Aspects, SignsAspectEachOther)
{
    const auto aspected = [](int from) {
        Houses signs;
        for (int to = 1; to <= 12; ++to) {
            EXPECT_EQ(signAspects(from, to), signAspects(to, from));
            if (signAspects(from, to)) {
                signs.insert(to);
            }
        }
        return signs;
    };
    EXPECT_EQ(aspected(1), (Houses{5, 8, 11}));
    EXPECT_EQ(aspected(8), (Houses{1, 4, 10}));
    EXPECT_EQ(aspected(3), (Houses{6, 9, 12}));
    EXPECT_EQ(aspected(10), (Houses{2, 5, 8}));
    EXPECT_EQ(aspected(2), (Houses{4, 7, 10}));
    EXPECT_EQ(aspected(0), Houses{});
}

TEST(Aspects, ValuesByDegree)
{
    EXPECT_DOUBLE_EQ(aspectValue(core::kMoon, 200.0), 50.0);
    EXPECT_DOUBLE_EQ(aspectValue(core::kMars, 95.0), 57.5);
    EXPECT_DOUBLE_EQ(aspectValue(core::kJupiter, 125.0), 55.0);
    EXPECT_DOUBLE_EQ(aspectValue(core::kSaturn, 65.0), 60.0); // 20 + 45, capped

    // The corners of the curve; between two of them it is straight.
    constexpr std::array<double, 9> kKnots = {0, 30, 60, 90, 120, 150, 180, 300, 359.9};
    constexpr std::array<double, 9> kValues = {0, 0, 15, 45, 30, 0, 60, 0, 0};
    for (std::size_t i = 0; i < kKnots.size(); ++i) {
        EXPECT_DOUBLE_EQ(aspectValue(core::kSun, kKnots[i]), kValues[i]) << kKnots[i];
        const std::size_t before = i == 0 ? 0 : i - 1;
        EXPECT_NEAR(aspectValue(core::kSun, 0.5 * (kKnots[before] + kKnots[i])),
                    0.5 * (kValues[before] + kValues[i]), 1e-12);
    }
    // The additions begin at their lower bound and end before the upper one.
    struct Extra
    {
        int planet;
        double low;
        double high;
        double value;
    };
    constexpr double kHair = 1e-7;
    for (const Extra& extra : {Extra{core::kSaturn, 60, 90, 45},
                               {core::kSaturn, 270, 300, 45},
                               {core::kJupiter, 120, 150, 30},
                               {core::kJupiter, 240, 270, 30},
                               {core::kMars, 90, 120, 15},
                               {core::kMars, 210, 240, 15}}) {
        const auto added = [&](double k) {
            return aspectValue(extra.planet, k) - aspectValue(core::kVenus, k);
        };
        EXPECT_DOUBLE_EQ(added(extra.low), std::min(extra.value, 60 - aspectValue(1, extra.low)));
        EXPECT_GT(added(extra.high - kHair), 0.0);
        EXPECT_EQ(added(extra.low - kHair), 0.0);
        EXPECT_EQ(added(extra.high), 0.0);
    }
    // From the aspecting to the aspected, across 0 Aries.
    core::Chart chart = chartOf({0.0, 350.0});
    EXPECT_DOUBLE_EQ(aspectValueOn(chart, core::kSun, 170.0), 60.0);
    EXPECT_DOUBLE_EQ(aspectValueOn(chart, core::kSun, 35.0), 7.5);
}

} // namespace
} // namespace kestrav::analysis
