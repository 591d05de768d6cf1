#include "astro/Engine.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::astro
{
namespace
{

struct Figures
{
    double phase;
    double magnitude;
};

Figures magnitudeOf(int code, double r, double distance, double earth)
{
    EphemerisContext context(tests::seriesForTests());
    context.magnitudesOn = true;
    context.earth.R = earth;
    context.result.sunDistance = r;
    context.result.distance = distance;
    Magnitude(context, code);
    return {context.result.phase, context.result.magnitude};
}

// A right angle at the body: i = 90 degrees and k = 1/2, with r Delta = 10 the first term is 5.
TEST(Magnitude, FollowsTheFormulaOfEveryBodyAtARightAngle)
{
    const struct
    {
        int code;
        double wanted;
    } rows[] = {
        {kCodeMars, 5.0 - 1.52 + 1.44},
        {kCodeMercury, 5.0 - 0.42 + 3.42 - 2.2113 + 1.458},
        {kCodeJupiter, 5.0 - 9.4 + 0.45},
        // The cubic term 0.47385 is added.
        {kCodeVenus, 5.0 - 4.4 + 0.081 + 1.9359 + 0.47385},
        {kCodeSaturn, 5.0 - 8.88 + 3.96},
        {kCodeUranus, 5.0 - 7.19},
        {kCodeNeptune, 5.0 - 6.87},
        {kCodePluto, 5.0 - 1.0},
    };
    for (const auto& [code, wanted] : rows) {
        const Figures figures = magnitudeOf(code, 2.0, 5.0, std::sqrt(29.0));
        EXPECT_NEAR(figures.magnitude, wanted, 1e-12) << code;
        EXPECT_NEAR(figures.phase, 0.5, 1e-15) << code;
    }
}

TEST(Magnitude, ClampsThePhaseCosine)
{
    // Distances that make no triangle, on either side.
    const Figures full = magnitudeOf(kCodeVenus, 0.72, 1.8, 1.0);
    EXPECT_EQ(full.phase, 1.0);
    EXPECT_NEAR(full.magnitude, 5.0 * std::log10(0.72 * 1.8) - 4.4, 1e-12);
    const Figures fresh = magnitudeOf(kCodeVenus, 0.72, 0.27, 1.0);
    EXPECT_EQ(fresh.phase, 0.0);
    EXPECT_NEAR(fresh.magnitude,
                5.0 * std::log10(0.72 * 0.27) - 4.4 + 0.162 + 0.000239 * 32400.0 +
                    0.00000065 * 5832000.0,
                1e-11);
}

TEST(Magnitude, IsThatOfJupiterAtItsOpposition)
{
    // 2022 September 26, 3.95 astronomical units away.
    EphemerisContext context(tests::seriesForTests());
    context.setTime(core::timeArguments((2459849.0 - core::kEpoch1900) / core::kDaysPerCentury));
    context.magnitudesOn = true;
    PlanetPosition(context, kCodeJupiter);
    EXPECT_GT(context.result.phase, 0.9999);
    EXPECT_NEAR(context.result.magnitude, -2.9, 0.1);
}

} // namespace
} // namespace kestrav::astro
