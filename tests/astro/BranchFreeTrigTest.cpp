#include "astro/BranchFreeTrig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace kestrav::astro
{
namespace
{

constexpr std::size_t kAngles = 1000;

using Angles = std::array<double, kAngles>;

KESTRAV_CLONES void evaluateLoop(const Angles& angles, Angles& sines, Angles& cosines)
{
    for (std::size_t i = 0; i < kAngles; ++i) {
        sines[i] = sineBranchFree(angles[i]);
        cosines[i] = cosineBranchFree(angles[i]);
    }
}

// Half rounding units of the result and of the reduced angle and the error of the polynomial add up
// to this.
constexpr double kSineAllowed = 1e-15;
constexpr double kCosineAllowed = 3e-15;

// What rounding the half turns of an angle in radians adds.
double conversion(double angle)
{
    return 2e-16 * std::fabs(angle);
}

TEST(BranchFreeTrig, AgreesWithTheLibraryOverWideRanges)
{
    std::mt19937_64 random(20250101);
    for (const double range : {1e-3, 4.0, 1e3, 1e6, 1e8}) {
        std::uniform_real_distribution<double> uniform(-range, range);
        for (int i = 0; i < 200000; ++i) {
            const double angle = uniform(random);
            ASSERT_NEAR(sineBranchFree(angle), std::sin(angle), kSineAllowed + conversion(angle));
            ASSERT_NEAR(cosineBranchFree(angle), std::cos(angle),
                        kCosineAllowed + conversion(angle));
        }
    }
}

TEST(BranchFreeTrig, AddsNoErrorForWholeHalfTurns)
{
    std::mt19937_64 random(3);
    // A grid of 2^-20 keeps the sum of the part and the whole half turns exact.
    std::uniform_int_distribution<int> part(-(1 << 19), 1 << 19);
    std::uniform_int_distribution<int> whole(-1000000000, 1000000000);
    for (int i = 0; i < 200000; ++i) {
        const double angle = std::ldexp(part(random), -20);
        const int taken = whole(random);
        const double sign = taken % 2 == 0 ? 1.0 : -1.0;
        ASSERT_NEAR(sineOfHalfTurns(angle + taken), sign * std::sin(core::kPi * angle),
                    kSineAllowed);
        ASSERT_NEAR(cosineOfHalfTurns(angle + taken), sign * std::cos(core::kPi * angle),
                    kCosineAllowed);
    }
    // The constant terms of the series depend on this, the largest one with 26088 t radians.
    EXPECT_EQ(cosineBranchFree(0.0), 1.0);
    EXPECT_EQ(cosineBranchFree(core::kPi), -1.0);
}

TEST(BranchFreeTrig, HoldsAtTheEdgesOfTheReduction)
{
    // Next to odd multiples of pi/2 the reduced angle changes sides and sign.
    for (int multiple = -100001; multiple <= 100001; multiple += 2) {
        const double edge = multiple * (core::kPi / 2.0);
        for (const double angle : {std::nextafter(edge, -1e9), edge, std::nextafter(edge, 1e9)}) {
            const SineCosine both = sineCosineBranchFree(angle);
            ASSERT_NEAR(both.sine, std::sin(angle), kSineAllowed + conversion(angle)) << angle;
            ASSERT_NEAR(both.cosine, std::cos(angle), kCosineAllowed + conversion(angle)) << angle;
        }
    }
}

TEST(BranchFreeTrig, GivesTheSameBitsInALoopForAnyInstructionSet)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> uniform(-1e6, 1e6);
    Angles angles;
    std::generate(angles.begin(), angles.end(), [&] { return uniform(random); });
    Angles sines;
    Angles cosines;
    evaluateLoop(angles, sines, cosines);
    for (std::size_t i = 0; i < kAngles; ++i) {
        const SineCosine single = sineCosineBranchFree(angles[i]);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(sines[i]), std::bit_cast<std::uint64_t>(single.sine))
            << angles[i];
        ASSERT_EQ(std::bit_cast<std::uint64_t>(cosines[i]),
                  std::bit_cast<std::uint64_t>(single.cosine))
            << angles[i];
    }
}

TEST(BranchFreeTrig, GivesNotANumberForWhatIsNotFinite)
{
    for (const double angle : {core::kNotANumber, std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity()}) {
        EXPECT_TRUE(std::isnan(sineBranchFree(angle)));
        EXPECT_TRUE(std::isnan(cosineBranchFree(angle)));
    }
}

} // namespace
} // namespace kestrav::astro
