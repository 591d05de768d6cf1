#include "analysis/Rashmis.h"
#include "tests/analysis/PrintedCharts.h"

#include <gtest/gtest.h>

namespace kestrav::analysis
{
namespace
{

using core::at;

Rashmis raysOf(const std::vector<double>& longitudes)
{
    return computeRashmis(analysed(chartOf(longitudes)), core::Settings());
}

TEST(Rashmis, FollowTheWorkedExamples)
{
    const Rashmis r = computeRashmis(chartR(), core::Settings());
    const double wanted[] = {0.51, 2.46, 4.65, 6.05, 2.63, 0.26, 2.90};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        EXPECT_NEAR(at(r.planets, planet).value(), wanted[planet - 1], 0.006) << planet;
    }
    EXPECT_NEAR(r.total.value(), 19.46, 0.02);

    const double none = core::kNotComputed;
    EXPECT_NEAR(raysOf({none, 10}).planets[core::kSun].value(), 30.0, 1e-12);
    EXPECT_NEAR(raysOf({none, 140}).planets[core::kSun].value(), 5.56, 0.005);
    // 21 degrees of Leo are own sign, no longer moolatrikona.
    EXPECT_NEAR(raysOf({none, 141}).planets[core::kSun].value(), 10.0 * 49 / 180 * 1.5, 1e-12);
    EXPECT_NEAR(raysOf({none, 190}).planets[core::kSun].value(), 0.0, 1e-12);
}

TEST(Rashmis, AreEmptyWhereAPlanetOrTheLordOfItsSignIsMissing)
{
    // Sun in Leo and Moon in Pisces, without Jupiter, whose friendship the Moon's rays need.
    const double none = core::kNotComputed;
    const Rashmis rays = raysOf({none, 130, 340, 200, 50, none, 250, 10});
    EXPECT_TRUE(rays.planets[core::kSun].has_value());
    EXPECT_FALSE(rays.planets[core::kMoon].has_value());
    EXPECT_FALSE(rays.planets[core::kJupiter].has_value());
    EXPECT_FALSE(rays.total.has_value());
}

} // namespace
} // namespace kestrav::analysis
