#include "astro/Engine.h"
#include "core/numeric.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <thread>
#include <vector>

namespace kestrav::astro
{
namespace
{

// The sum as it is defined: every block in table order with the library's cosine.
std::array<double, 3> plainSum(int entry, double t)
{
    const tests::SeriesText& text = tests::seriesText();
    std::size_t next = 0;
    for (int e = 0; e < entry; ++e) {
        for (const int count : text.counts[std::size_t(e)]) {
            next += std::size_t(count);
        }
    }
    std::array<double, 3> coordinates = {};
    for (std::size_t block = 0; block < kSeriesBlocks; ++block) {
        double sum = 0.0;
        for (int i = 0; i < text.counts[std::size_t(entry)][block]; ++i, ++next) {
            const auto& [A, B, C] = text.terms[next];
            sum += A * std::cos(B + C * t);
        }
        coordinates[block / 6] += sum * std::pow(t, double(block % 6));
    }
    return coordinates;
}

struct Answer
{
    double longitude;
    double latitude;
    double speed;
    double distance;

    bool operator==(const Answer&) const = default;
};

Answer answerOf(EphemerisContext& context, int code)
{
    PlanetPosition(context, code);
    return {context.result.longitude, context.result.latitude, context.result.speed,
            context.result.distance};
}

// A fresh context for every single body.
std::vector<Answer> eachAlone(double T, const std::vector<int>& codes)
{
    std::vector<Answer> answers;
    for (const int code : codes) {
        EphemerisContext context(tests::seriesForTests());
        context.setTime(core::timeArguments(T));
        answers.push_back(answerOf(context, code));
    }
    return answers;
}

const std::vector<int> kAnyOrder = {9, 4, 10, 1, 8, 11, 3, 6, 5, 10, 7, 1, 4};

std::vector<Answer> inOneContext(EphemerisContext& context, double T)
{
    context.setTime(core::timeArguments(T));
    std::vector<Answer> answers;
    for (const int code : kAnyOrder) {
        answers.push_back(answerOf(context, code));
    }
    return answers;
}

TEST(SeriesSum, EqualsThePlainOrderedSum)
{
    constexpr unsigned kSeed = 20240615;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> year(-3000.0, 3000.0);
    EphemerisContext context(tests::seriesForTests());
    for (int i = 0; i < 200; ++i) {
        context.t = i == 0 ? 0.0 : (year(random) - 2000.0) / 1000.0;
        for (int entry = 0; entry < kSeriesEntries; ++entry) {
            HeliocentricPosition position;
            // Entry 0 serves code 1, entry k code k + 2.
            SumSeries(context, entry == 0 ? 1 : entry + 2, position);
            const std::array<double, 3> plain = plainSum(entry, context.t);
            const double reduced = plain[0] - std::floor(plain[0] / core::kTwoPi) * core::kTwoPi;
            // Before the reduction the inner planets count up to 1.3e5 radians, of which the order
            // of summation moves the last bits.
            const double lastBit =
                std::nextafter(std::fabs(plain[0]), HUGE_VAL) - std::fabs(plain[0]);
            ASSERT_NEAR(std::remainder(position.L - reduced, core::kTwoPi), 0.0,
                        1e-11 + 4.0 * lastBit)
                << "entry " << entry << " t " << context.t;
            ASSERT_NEAR(position.B, plain[1], 1e-11) << "entry " << entry << " t " << context.t;
            ASSERT_NEAR(position.R, plain[2], 1e-11) << "entry " << entry << " t " << context.t;
            ASSERT_GE(position.L, 0.0);
            ASSERT_LT(position.L, core::kTwoPi);
        }
    }
}

TEST(PlanetPosition, DoesNotDependOnOrderOrOnEarlierMoments)
{
    EphemerisContext context(tests::seriesForTests());
    for (const double T : {1.24, -0.37, 1.2400001, -38.2}) {
        EXPECT_EQ(inOneContext(context, T), eachAlone(T, kAnyOrder)) << "T " << T;
    }
}

TEST(PlanetPosition, ContextsOnTwoThreadsDoNotDisturbEachOther)
{
    constexpr int kMoments = 300;
    const auto timeOf = [](int i, double start) {
        return start + i * 0.00137;
    };
    const auto run = [&](double start, std::vector<std::vector<Answer>>& answers) {
        EphemerisContext context(tests::seriesForTests());
        for (int i = 0; i < kMoments; ++i) {
            answers.push_back(inOneContext(context, timeOf(i, start)));
        }
    };
    std::vector<std::vector<Answer>> first;
    std::vector<std::vector<Answer>> second;
    std::thread other([&] { run(-1.5, second); });
    run(0.9, first);
    other.join();
    for (int i = 0; i < kMoments; i += 37) {
        EXPECT_EQ(first[std::size_t(i)], eachAlone(timeOf(i, 0.9), kAnyOrder));
        EXPECT_EQ(second[std::size_t(i)], eachAlone(timeOf(i, -1.5), kAnyOrder));
    }
}

} // namespace
} // namespace kestrav::astro
