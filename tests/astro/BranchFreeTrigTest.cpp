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

// Half rounding units of the result, of the reduced angle and of the polynomial add up to this.
constexpr double kAllowed = 5e-16;

TEST(BranchFreeTrig, AgreesWithTheLibraryOverWideRanges)
{
    std::mt19937_64 random(20250101);
    for (const double range : {1e-3, 4.0, 1e3, 1e6, 1e8}) {
        std::uniform_real_distribution<double> uniform(-range, range);
        double sineError = 0.0;
        double cosineError = 0.0;
        for (int i = 0; i < 200000; ++i) {
            const double angle = uniform(random);
            sineError = std::max(sineError, std::fabs(sineBranchFree(angle) - std::sin(angle)));
            cosineError =
                std::max(cosineError, std::fabs(cosineBranchFree(angle) - std::cos(angle)));
        }
        EXPECT_LT(sineError, kAllowed) << "range " << range;
        EXPECT_LT(cosineError, kAllowed) << "range " << range;
    }
}

TEST(BranchFreeTrig, HoldsAtTheEdgesOfTheReduction)
{
    // Next to odd multiples of pi/2 the reduced angle changes sides and sign.
    for (int multiple = -100001; multiple <= 100001; multiple += 2) {
        const double edge = multiple * (core::kPi / 2.0);
        for (const double angle : {std::nextafter(edge, -1e9), edge, std::nextafter(edge, 1e9)}) {
            const SineCosine both = sineCosineBranchFree(angle);
            ASSERT_NEAR(both.sine, std::sin(angle), kAllowed) << angle;
            ASSERT_NEAR(both.cosine, std::cos(angle), kAllowed) << angle;
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
