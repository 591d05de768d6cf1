#include "analysis/AspectTable.h"
#include "tests/analysis/PrintedCharts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrav::analysis
{
namespace
{

Aspect find(const std::vector<Aspect>& aspects, int from, int to)
{
    const auto found = std::find_if(aspects.begin(), aspects.end(), [&](const Aspect& aspect) {
        return aspect.from == from && aspect.to == to;
    });
    return found == aspects.end() ? Aspect{} : *found;
}

TEST(AspectTable, HoldsEveryPairOfBodiesOnce)
{
    const auto aspects = bodyAspects(chartR(), core::Settings());
    ASSERT_EQ(aspects.size(), 72u);
    // Jupiter in Gemini: the fifth sign is Libra with the Sun, at k = 96.885: 30 + 11.5575.
    const Aspect onSun = find(aspects, core::kJupiter, core::kSun);
    EXPECT_TRUE(onSun.graha);
    EXPECT_FALSE(onSun.rashi);
    EXPECT_NEAR(onSun.value.value(), 41.5575, 1e-9);
    // Virgo is the other dual sign beside Sagittarius and Pisces: at k = 87.152, 42.152.
    const Aspect onVenus = find(aspects, core::kJupiter, core::kVenus);
    EXPECT_FALSE(onVenus.graha);
    EXPECT_TRUE(onVenus.rashi);
    EXPECT_NEAR(onVenus.value.value(), 42.152, 1e-9);
    // Saturn in Leo: the third sign is Libra, at k = 56.5205, where the 45 do not yet begin.
    const Aspect bySaturn = find(aspects, core::kSaturn, core::kSun);
    EXPECT_TRUE(bySaturn.graha);
    EXPECT_TRUE(bySaturn.rashi);
    EXPECT_NEAR(bySaturn.value.value(), 13.26025, 1e-9);
    // The nodes oppose each other without a graha aspect, and cast no values.
    const Aspect byRahu = find(aspects, core::kRahu, core::kKetu);
    EXPECT_EQ(byRahu.from, core::kRahu);
    EXPECT_FALSE(byRahu.graha);
    EXPECT_FALSE(byRahu.rashi);
    EXPECT_FALSE(byRahu.value.has_value());
    EXPECT_TRUE(find(aspects, core::kSaturn, core::kRahu).value.has_value());
}

TEST(AspectTable, AspectsTheHousesInTheSignsOfTheirMiddles)
{
    const core::Settings settings;
    core::Chart chart = chartR();
    const auto aspects = houseAspects(chart, settings);
    ASSERT_EQ(aspects.size(), 108u);
    // Saturn in Leo and the tenth house in Scorpio, at k = 92.2319: 30 + 13.884.
    const Aspect onTenth = find(aspects, core::kSaturn, core::cuspPoint(10));
    EXPECT_FALSE(onTenth.graha);
    EXPECT_FALSE(onTenth.rashi);
    EXPECT_NEAR(onTenth.value.value(), 43.88405, 1e-9);

    // Without cusps houses are signs from Capricorn: the tenth is Libra, third from Leo.
    chart.houseSystem = -1;
    const Aspect onSign = find(houseAspects(chart, settings), core::kSaturn, core::cuspPoint(10));
    EXPECT_TRUE(onSign.graha);
    EXPECT_TRUE(onSign.rashi);
    EXPECT_FALSE(onSign.value.has_value());

    chart.degreeInSign[core::kAscendant] = core::kNotComputed;
    EXPECT_TRUE(houseAspects(chart, settings).empty());
    EXPECT_EQ(bodyAspects(chartJ(), settings).size(), 42u);
}

} // namespace
} // namespace kestrav::analysis
