#include "core/Angles.h"
#include "core/SignData.h"
#include "core/TextForms.h"
#include "core/numeric.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace kestrav::core
{
namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr unsigned kSeed = 20240611;

TEST(Angles, NormalizeStaysInRangeAndKeepsTheAngle)
{
    std::mt19937_64 random(kSeed);
    for (const double modulus : {360.0, 24.0, 30.0, 27.0, 0.7, 120.0}) {
        for (const double range : {1.0, 1e3, 1e7}) {
            std::uniform_real_distribution<double> uniform(-range * modulus, range * modulus);
            for (int i = 0; i < 20000; ++i) {
                const double value = uniform(random);
                const double result = NormalizeMod(modulus, value);
                ASSERT_GE(result, 0.0) << "seed " << kSeed << " value " << value;
                ASSERT_LT(result, modulus) << "seed " << kSeed << " value " << value;
                const double turns = std::round((value - result) / modulus);
                ASSERT_NEAR(turns * modulus + result, value, range * modulus * 4e-16) << value;
                ASSERT_EQ(NormalizeMod(modulus, result), result);
            }
        }
    }
}

TEST(Angles, NormalizeOfWholeModuliGivesTheSameBits)
{
    std::mt19937_64 random(kSeed);
    const auto same = [](double value) {
        ASSERT_EQ(Normalize360(value), NormalizeMod(360.0, value)) << value;
        ASSERT_EQ(Normalize24(value), NormalizeMod(24.0, value)) << value;
    };
    for (const double range : {1.0, 1e3, 1e6, 1e9, 1e12}) {
        std::uniform_real_distribution<double> uniform(-range, range);
        for (int i = 0; i < 100000; ++i) {
            same(uniform(random));
        }
    }
    // Beside whole turns the quotient rounds to a whole number.
    for (int turns = -3000000; turns <= 3000000; turns += 7) {
        for (const double modulus : {360.0, 24.0}) {
            const double whole = turns * modulus;
            same(whole);
            same(std::nextafter(whole, kInfinity));
            same(std::nextafter(whole, -kInfinity));
        }
    }
}

TEST(Angles, NormalizeAtTheEdges)
{
    EXPECT_EQ(Normalize360(725.5), 5.5);
    EXPECT_EQ(Normalize24(-49.25), 22.75);
    EXPECT_EQ(Normalize360(360.0), 0.0);
    EXPECT_EQ(Normalize360(-360.0), 0.0);
    EXPECT_EQ(Normalize360(-1e-18), 0.0);
    EXPECT_EQ(Normalize24(-1e-300), 0.0);
    EXPECT_EQ(Normalize360(std::nextafter(360.0, 0.0)), std::nextafter(360.0, 0.0));
    EXPECT_FALSE(std::signbit(Normalize360(-0.0)));
    EXPECT_FALSE(std::signbit(Normalize360(-720.0)));
    for (const double value : {kInfinity, -kInfinity, kNotANumber}) {
        EXPECT_TRUE(std::isnan(Normalize360(value)));
        EXPECT_TRUE(std::isnan(Normalize24(value)));
        EXPECT_TRUE(std::isnan(NormalizeMod(27.0, value)));
    }
}

TEST(Angles, WrapsTakeOneStepWithTheirOwnLowerBound)
{
    EXPECT_EQ(Wrap180(180.0), -180.0);
    EXPECT_EQ(Wrap180(-180.0), -180.0);
    EXPECT_EQ(Wrap180(-180.5), 179.5);
    EXPECT_EQ(Wrap180(-100.0), -100.0);
    EXPECT_EQ(Wrap180(900.0), 540.0);
    EXPECT_EQ(WrapFrom90(-100.0), 260.0);
    EXPECT_EQ(WrapFrom90(-90.0), -90.0);
    EXPECT_EQ(WrapFrom90(180.0), -180.0);
    EXPECT_EQ(WrapFrom90(540.0), 180.0);
}

TEST(Angles, ReflectionFoldsTheSecondHalfCircle)
{
    const auto reflect = [](double degrees) {
        bool reflected = degrees < 180.0;
        const double result = Reflect180(degrees, reflected);
        return std::pair(result, reflected);
    };
    EXPECT_EQ(reflect(10.0), std::pair(10.0, false));
    EXPECT_EQ(reflect(180.0), std::pair(180.0, true));
    EXPECT_EQ(reflect(350.0), std::pair(10.0, true));
    EXPECT_EQ(reflect(-10.0), std::pair(10.0, true));
}

TEST(Angles, SignAndNakshatraCountsWrap)
{
    for (int n = -100; n <= 100; ++n) {
        const int sign = SignOf12(n);
        ASSERT_TRUE(sign >= 1 && sign <= 12 && (sign - n) % 12 == 0) << n;
        ASSERT_EQ(norm12(n), sign);
        const int distance = ModFrom(27, 0, n);
        ASSERT_TRUE(distance >= 0 && distance < 27 && (distance - n) % 27 == 0) << n;
    }
    EXPECT_EQ(norm12(0), 12);
    EXPECT_EQ(SignOf12(-12), 12);
    EXPECT_EQ(ModFrom(12, 1, 24), 12);
    EXPECT_EQ(ModFrom(12, 0, -1), 11);
    // One lift only: the remainder keeps the sign of x.
    EXPECT_EQ(ModFrom(12, 5, 14), 14);
    EXPECT_EQ(ModFrom(12, 5, -11), 1);
}

TEST(Angles, SmallHelpers)
{
    EXPECT_TRUE(IsLeapYear(2000) && IsLeapYear(2024) && IsLeapYear(-4) && IsLeapYear(0));
    EXPECT_FALSE(IsLeapYear(1500) || IsLeapYear(2100) || IsLeapYear(2023) || IsLeapYear(-1));
    EXPECT_EQ(ClampRange(1, 5, 0), 1);
    EXPECT_EQ(ClampRange(1, 5, 6), 5);
    EXPECT_EQ(ClampRange(1.0, 5.0, 3.5), 3.5);
    EXPECT_EQ(truncated(-2.9), -2);
    EXPECT_EQ(truncated(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(truncated(-kInfinity), std::numeric_limits<int>::min());
    EXPECT_EQ(truncated(kNotANumber), 0);
}

TEST(ByteChecksum, CountsEvenPositionsMinusOnceAndOddPositionsThrice)
{
    const std::array<std::uint8_t, 4> bytes = {1, 2, 3, 255};
    EXPECT_EQ(ByteChecksum(bytes.data(), -5), 0U);
    EXPECT_EQ(ByteChecksum(nullptr, 0), 0U);
    EXPECT_EQ(ByteChecksum(bytes.data(), 1), 4294967295U); // 1 - 2
    EXPECT_EQ(ByteChecksum(bytes.data(), 2), 5U);          // 3 + 2 (2 - 1)
    EXPECT_EQ(ByteChecksum(bytes.data(), 3), 2U);          // 6 + 2 (2 - 4)
    EXPECT_EQ(ByteChecksum(bytes.data(), 4), 767U);        // 261 + 2 (257 - 4)
}

TEST(SignData, SignsStartExactlyAtMultiplesOf30)
{
    for (int sign = 1; sign <= 12; ++sign) {
        double longitude = 30.0 * sign;
        if (sign < 12) {
            EXPECT_EQ(signOfLongitude(longitude), sign + 1);
            EXPECT_EQ(FormatSignPosition(longitude).substr(0, 6), L" 0\u00B0  0");
            EXPECT_EQ(degreeInSignOf(longitude), 0.0);
        }
        for (int i = 0; i < 40; ++i) {
            longitude = std::nextafter(longitude, 0.0);
            int printed = 0;
            ASSERT_EQ(FormatSignPosition(longitude, printed).substr(0, 2), L"29");
            ASSERT_EQ(printed, sign) << 30 * sign << " less " << i + 1;
            ASSERT_EQ(signOfLongitude(longitude), sign);
            ASSERT_LT(degreeInSignOf(longitude), 30.0);
        }
    }
    EXPECT_LT(nakshatraPositionOf(std::nextafter(360.0, 0.0)), 27.0);
}

TEST(SignData, NavamshaSignLagsAtTwentyFiveStarts)
{
    int late = 0;
    for (int k = 0; k < 108; ++k) {
        const double start = k * 10.0 / 3.0;
        const int sign = navamshaSignOf(start);
        late += sign == k % 12 + 1 ? 0 : 1;
        ASSERT_TRUE(sign == k % 12 + 1 || sign == norm12(k)) << k;
        ASSERT_EQ(navamshaSignOf(start + 1.0), k % 12 + 1);
    }
    EXPECT_EQ(late, 25);
}

} // namespace
} // namespace kestrav::core
