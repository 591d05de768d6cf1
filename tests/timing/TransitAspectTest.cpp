#include "timing/TransitAspect.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "timing/Interpolator.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <set>

namespace kestrav::timing
{
namespace
{

double solved(double modulus, std::array<double, 3> ys, double step = 12.0)
{
    Interpolator curve;
    curve.setModulus(modulus);
    for (int k = 0; k < 3; ++k) {
        curve.add(step * k, ys[std::size_t(k)]);
    }
    return curve.solve();
}

TEST(Interpolator, findsTheRootOfAnyParabolaAcrossTheWrap)
{
    std::mt19937 random(61);
    std::uniform_real_distribution<double> hour(0.0, 24.0);
    std::uniform_real_distribution<double> slope(0.02, 0.6);
    std::uniform_int_distribution<int> turns(-1, 1);
    for (int i = 0; i < 500; ++i) {
        const double root = hour(random);
        const double rate = (i % 2 == 0 ? 1.0 : -1.0) * slope(random);
        // The other root lies outside the day.
        const double far = i % 4 < 2 ? 300.0 : -200.0;
        const auto y = [&](double x) {
            return rate * (x - root) * (x - far) / (root - far) + 360.0 * turns(random);
        };
        EXPECT_NEAR(solved(360.0, {y(0.0), y(12.0), y(24.0)}), root, 1e-8);
    }
    // The tithi of a paksha: 14.6, 0.1, 0.6 modulo 15.
    EXPECT_NEAR(solved(15.0, {14.6, 0.1, 0.6}), 9.6, 1e-12);
    // What leaves half the modulus behind goes on from there and does not jump back.
    EXPECT_NEAR(solved(15.0, {6.0, 8.0, 10.0}), -36.0, 1e-12);
    // Any three points, in any distance.
    Interpolator curve;
    curve.add(-3.0, 16.0);
    curve.add(0.0, 1.0);
    curve.add(4.0, 9.0); // (x - 1)^2
    EXPECT_NEAR(curve.solve(), 1.0, 1e-12);
}

TEST(Interpolator, chooseBetweenRootsAndFallsBackToTheVertex)
{
    EXPECT_NEAR(solved(360.0, {5.0 * 20.0, -7.0 * 8.0, -19.0 * -4.0}), 5.0, 1e-12); // 5 and 20
    EXPECT_NEAR(solved(360.0, {10.0, 40.0, 70.0}), -4.0, 1e-12); // a line before the day
    EXPECT_NEAR(solved(0.0, {1200.0, 504.0, 96.0}), 30.0, 1e-9); // 30 and 40: the nearer
    EXPECT_NEAR(solved(0.0, {101.0, 5.0, 197.0}), 10.0, 1e-9);   // (x - 10)^2 + 1
    EXPECT_TRUE(std::isnan(solved(360.0, {2.0, 2.0, 2.0})));
    EXPECT_EQ(solved(360.0, {0.0, 0.0, 0.0}), 0.0);
    EXPECT_TRUE(std::isnan(solved(360.0, {1.0, 0.0, -1.0}, 0.0)));
    EXPECT_TRUE(std::isnan(Interpolator().solve()));
}

TEST(TransitMasks, haveTheirValues)
{
    const std::array<int, 11> values = {0, 130, 130, 1026, 130, 674, 130, 1162, 546, 546, 0};
    for (int body = 0; body <= 10; ++body) {
        EXPECT_EQ(AspectMask(body), values[std::size_t(body)]) << body;
    }
    EXPECT_EQ(AspectMask(core::kPluto), 0);
    EXPECT_EQ(AspectMask(core::kKetu, 1), 550);
    EXPECT_EQ(AspectMask(core::kRahu, 2), 4642);
    EXPECT_EQ(AspectMask(core::kSaturn, 1), 1162);
}

TEST(TransitMasks, signsAspectThoseOfAnotherKind)
{
    core::Chart chart;
    EXPECT_EQ(SignAspectMasks(chart, core::kMoon).signs, 0);
    for (int sign = 1; sign <= 12; ++sign) {
        analysis::storePoint(chart, core::kMoon, sign * 30.0 - 15.0);
        // Movable signs see the fixed ones but the next, fixed the movable ones but the one before,
        // dual signs each other; a sign belongs to its own set.
        std::set<int> signs = {sign};
        std::set<int> houses;
        for (int other = 1; other <= 12; ++other) {
            const int distance = core::SignOf12(other - sign + 1);
            const int kind = sign % 3;
            const int otherKind = other % 3;
            if ((kind == 1 && otherKind == 2 && distance != 2) ||
                (kind == 2 && otherKind == 1 && distance != 12) || (kind == 0 && otherKind == 0)) {
                signs.insert(other);
                houses.insert(distance);
            }
        }
        const SignMasks masks = SignAspectMasks(chart, core::kMoon);
        for (int n = 1; n <= 12; ++n) {
            EXPECT_EQ(containsHouse(masks.signs, n), signs.count(n) == 1) << sign << " " << n;
            EXPECT_EQ(containsHouse(masks.houses, n), houses.count(n) == 1) << sign << " " << n;
        }
    }
}

// A day of the transiting sky in which bodies move evenly.
class TransitDay : public testing::Test
{
protected:
    void SetUp() override
    {
        context.native = &native;
        context.samples = {&samples[0], &samples[1], &samples[2]};
    }

    void move(int body, double at0h, double daily, double bend = 0.0)
    {
        for (int k = 0; k < 3; ++k) {
            const double day = k / 2.0;
            analysis::storePoint(samples[std::size_t(k)], body,
                                 core::Normalize360(at0h + daily * day + bend * day * day));
        }
    }

    int test(int target, int body, int offset = 0)
    {
        return TransitAspect(context, target, body, offset);
    }

    core::Chart native;
    std::array<core::Chart, 3> samples;
    TransitContext context;
};

constexpr int kTarget = core::kAscendant;

TEST_F(TransitDay, housesOfTheGrahaAspects)
{
    context.aspectChoice = kGrahaAspects;
    analysis::storePoint(native, kTarget, 355.0);
    const auto distances = [&](int body) {
        std::set<int> found;
        for (int house = 1; house <= 12; ++house) {
            // 0.4 degrees before the exact place at 0h, there after 16 hours.
            move(body, 355.0 + (house - 1) * 30.0 - 0.4, 0.6);
            const int result = test(kTarget, body);
            EXPECT_TRUE(result == 0 || result == house);
            if (result != 0) {
                EXPECT_NEAR(context.hour, 16.0, 1e-9);
                found.insert(result);
            }
        }
        return found;
    };
    EXPECT_EQ(distances(core::kMars), (std::set<int>{1, 10}));
    EXPECT_EQ(distances(core::kSaturn), (std::set<int>{1, 3, 7, 10}));
    EXPECT_EQ(distances(core::kMoon), (std::set<int>{1, 7}));
    EXPECT_TRUE(distances(core::kUranus).empty());
    context.aspectChoice = kEveryHouse;
    EXPECT_EQ(distances(core::kUranus).size(), 12U);
    for (const int choice : {kGrahaAspects4, kGrahaAspects5}) {
        context.aspectChoice = choice;
        EXPECT_EQ(distances(core::kJupiter), (std::set<int>{1, 5, 7, 9}));
    }
    context.aspectChoice = 6;
    EXPECT_TRUE(distances(core::kJupiter).empty());
}

TEST_F(TransitDay, closenessAtTheBeginningOfTheDay)
{
    analysis::storePoint(native, kTarget, 10.0);
    move(core::kMoon, 356.0, 14.5); // 14 degrees short
    EXPECT_EQ(test(kTarget, core::kMoon), 1);
    EXPECT_NEAR(context.hour, 14.0 / 14.5 * 24.0, 1e-6);
    move(core::kMoon, 355.0, 15.2); // 15 degrees are still close
    EXPECT_EQ(test(kTarget, core::kMoon), 1);
    move(core::kMoon, 354.0, 17.0); // 16 degrees short
    EXPECT_EQ(test(kTarget, core::kMoon), 0);
    move(core::kMercury, 7.0, 4.0); // 3 degrees short
    EXPECT_EQ(test(kTarget, core::kMercury), 0);
    move(core::kMercury, 8.5, 2.0);
    EXPECT_EQ(test(kTarget, core::kMercury), 1);
    // Coming back to the place is not found with a native, between two moving bodies it is.
    move(core::kMercury, 10.5, -1.0);
    EXPECT_EQ(test(kTarget, core::kMercury), 0);
    context.mode = TransitMode::TransitToTransit;
    move(core::kSaturn, 10.0, 0.0);
    EXPECT_EQ(test(core::kSaturn, core::kMercury), 1);
    EXPECT_NEAR(context.hour, 12.0, 1e-9);
}

TEST_F(TransitDay, theEndsOfTheDay)
{
    analysis::storePoint(native, kTarget, 0.0);
    move(core::kSun, 359.0, 1.0); // exact at 24h: that is the next day's
    EXPECT_EQ(test(kTarget, core::kSun), 0);
    move(core::kSun, 0.0, 1.0);
    EXPECT_EQ(test(kTarget, core::kSun), 1);
    EXPECT_EQ(context.hour, 0.0);
    move(core::kSun, 359.5, 0.4); // does not arrive
    EXPECT_EQ(test(kTarget, core::kSun), 0);
}

// Saturn comes within 0.04 degrees of the place and turns back.
TEST_F(TransitDay, aStationCloseToTheExactPlaceIsReportedOnce)
{
    analysis::storePoint(native, kTarget, 100.0);
    int reports = 0;
    for (int day = -10; day <= 10; ++day) {
        const auto longitude = [&](double at) {
            const double apart = at - 0.3;
            return 99.96 - 0.002 * apart * apart;
        };
        for (int k = 0; k < 3; ++k) {
            analysis::storePoint(samples[std::size_t(k)], core::kSaturn, longitude(day + k / 2.0));
        }
        if (test(kTarget, core::kSaturn) != 0) {
            ++reports;
            EXPECT_EQ(day, 0);
            EXPECT_NEAR(context.hour, 7.2, 1e-6);
        }
    }
    EXPECT_EQ(reports, 1);
}

TEST_F(TransitDay, nodeAspectsBetweenTransits)
{
    context.mode = TransitMode::TransitToTransit;
    context.aspectChoice = kGrahaAspects;
    const auto distances = [&](int option) {
        context.nodeAspectOption = option;
        std::set<int> found;
        for (int house = 1; house <= 12; ++house) {
            move(core::kSaturn, 40.0, 0.05);
            move(core::kRahu, 40.03 + (house - 1) * 30.0, -0.053);
            found.insert(test(core::kSaturn, core::kRahu));
        }
        found.erase(0);
        return found;
    };
    EXPECT_EQ(distances(0), (std::set<int>{1, 5, 9}));
    EXPECT_EQ(distances(1), (std::set<int>{1, 2, 5, 9}));
    EXPECT_EQ(distances(2), (std::set<int>{1, 5, 9, 12}));
}

TEST_F(TransitDay, signAspects)
{
    context.aspectChoice = kSignAspects;
    const auto distances = [&](double target, int body) {
        analysis::storePoint(native, kTarget, target);
        std::set<int> found;
        for (int house = 1; house <= 12; ++house) {
            move(body, target + (house - 1) * 30.0 - 0.4, 0.6);
            found.insert(test(kTarget, body));
        }
        found.erase(0);
        return found;
    };
    EXPECT_EQ(distances(15.0, core::kSun), (std::set<int>{5, 8, 11}));
    EXPECT_EQ(distances(45.0, core::kSun), (std::set<int>{3, 6, 9}));
    EXPECT_EQ(distances(75.0, core::kSun), (std::set<int>{1, 4, 7, 10}));
    // The sign at 24h counts as well: at 0h the body stands in the sign before.
    EXPECT_EQ(distances(0.1, core::kSun), (std::set<int>{5, 8, 11}));
    // Aries and Jupiter: 674 + (2340 - 4 + 2) = 3012 holds 2, 6, 7, 8, 9 and 11. Those pass at
    // once; of 5, 8 and 11 the fifth sign is not in the sum, so only 5 is lost.
    context.aspectChoice = kGrahaAndSignAspects;
    EXPECT_EQ(distances(15.0, core::kJupiter), (std::set<int>{2, 6, 7, 8, 9, 11}));
}

TEST_F(TransitDay, exclusions)
{
    analysis::storePoint(native, kTarget, 100.0);
    const auto listed = [&](int body) {
        move(body, 99.5, 1.0);
        return test(kTarget, body) == 1;
    };
    EXPECT_TRUE(listed(core::kRahu) && listed(core::kKetu) && listed(core::kUranus));
    context.nodeOption = 1;
    EXPECT_TRUE(listed(core::kRahu));
    EXPECT_FALSE(listed(core::kKetu));
    context.nodeOption = 2;
    EXPECT_FALSE(listed(core::kRahu) || listed(core::kKetu));
    EXPECT_TRUE(listed(core::kSun));
    context.excludeUpagrahas = true;
    EXPECT_FALSE(listed(core::kUranus) || listed(core::kGulika));
    context.excludeUpagrahas = false;
    context.nodeOption = 0;
    EXPECT_EQ(test(core::kMoon, core::kSun), 0); // the native's Moon is not known

    context.mode = TransitMode::TransitToTransit;
    for (const int body : {int(core::kSun), int(core::kRahu), kTarget}) {
        move(body, 50.0, 0.1);
    }
    move(core::kMoon, 49.0, 13.0);
    move(core::kKetu, 49.9, 0.5);
    EXPECT_EQ(test(core::kAscendant, core::kMoon), 0);
    EXPECT_EQ(test(core::kSun, core::kSun), 0);
    EXPECT_EQ(test(core::kRahu, core::kKetu), 0);
    EXPECT_EQ(test(core::kSun, core::kMoon), 1);
    context = TransitContext{};
    EXPECT_EQ(test(core::kSun, core::kMoon), 0); // nothing to compare with
}

TEST_F(TransitDay, aSeventhHidesTheNodeThatIsTestedNext)
{
    analysis::storePoint(native, core::kRahu, 10.0);
    analysis::storePoint(native, core::kKetu, 190.0);
    analysis::storePoint(native, core::kVenus, 10.0);
    move(core::kSun, 189.5, 1.0);
    EXPECT_EQ(test(core::kRahu, core::kSun), 7);
    EXPECT_EQ(test(core::kKetu, core::kSun), 0);
    EXPECT_EQ(context.lastHouseDistance, 7); // a refusal is not remembered
    move(core::kSun, 9.5, 1.0);
    EXPECT_EQ(test(core::kVenus, core::kSun), 1);
    EXPECT_EQ(test(core::kRahu, core::kSun), 1);
    EXPECT_EQ(test(core::kKetu, core::kSun), 7);
}

TEST_F(TransitDay, offsetsShiftTheExactPlace)
{
    analysis::storePoint(native, kTarget, 100.0);
    for (const int offset : {12, 372, -348}) {
        move(core::kVenus, 111.5, 1.0);
        EXPECT_EQ(test(kTarget, core::kVenus, offset), 1);
        EXPECT_NEAR(context.hour, 12.0, 1e-9);
    }
    EXPECT_EQ(test(kTarget, core::kVenus), 0);
}

} // namespace
} // namespace kestrav::timing
