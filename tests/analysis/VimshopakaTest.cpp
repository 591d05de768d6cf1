#include "analysis/Vimshopaka.h"

#include "AnalysisCharts.h"
#include "analysis/Ashtakavarga.h"
#include "analysis/FunctionalNature.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace kestrav::analysis
{
namespace
{

using core::at;

constexpr std::array<int, 13> kLord = {0, 3, 6, 4, 2, 1, 4, 6, 3, 5, 7, 7, 5};
constexpr std::array<int, 8> kHigh = {0, 1, 2, 10, 6, 4, 12, 7};
constexpr std::array<int, 8> kRoot = {0, 5, 2, 1, 6, 9, 7, 11};
constexpr std::array<int, 8> kRootEnd = {0, 20, 30, 12, 20, 10, 15, 20};
// The columns Sun to Saturn of natural friendship: f friend, n neutral, e enemy.
constexpr std::array<std::string_view, 8> kNatural = {"",        "-ffnfee", "f-nfnnn", "ff-efnn",
                                                      "fen-nfn", "fffe-en", "eenfn-f", "eeefnf-"};

bool opposite(int a, int b)
{
    return (a - b + 12) % 12 == 6;
}

// Vimshopaka from the placements, without any help of the analysis.
class Naive
{
public:
    Naive(const core::Chart& chart, const core::Settings& settings)
        : chart_(chart), settings_(settings)
    {}

    [[nodiscard]] int factor(int varga, int planet) const
    {
        if (varga == core::kHora && settings_.horaMethod == 0) {
            constexpr std::array<int, 3> kByScore = {50, 75, 90};
            return at(kByScore, horaScore(planet));
        }
        const int sign = at(at(chart_.vargas, varga), planet).sign;
        const bool high = raised(varga, planet, sign);
        const bool low = opposite(sign, at(kHigh, planet));
        if (settings_.exaltedCountsAsOwn && varga != core::kTrimshamsa && (high || low)) {
            return high ? 100 : 25;
        }
        return byRelationship(varga, planet, at(kLord, sign));
    }

private:
    // Exalted, and in the rashi moolatrikona too.
    [[nodiscard]] bool raised(int varga, int planet, int sign) const
    {
        if (varga != core::kRashi) {
            return sign == at(kHigh, planet);
        }
        const double degree = at(chart_.degreeInSign, planet);
        const bool root = sign == at(kRoot, planet) && degree <= at(kRootEnd, planet);
        return root || (sign == at(kHigh, planet) && planet != core::kMercury);
    }

    [[nodiscard]] int byRelationship(int varga, int planet, int lord) const
    {
        if (lord == planet) {
            return 100;
        }
        const char natural = at(kNatural, planet)[std::size_t(lord - 1)];
        int degree = natural == 'f' ? 1 : natural == 'n' ? 0 : -1;
        const int in = settings_.vargaCompoundRelationships ? varga : int(core::kRashi);
        const auto& placements = at(chart_.vargas, in);
        const int apart = (at(placements, lord).sign - at(placements, planet).sign + 12) % 12;
        if (!settings_.naturalRelationshipsOnly) {
            degree += (apart >= 1 && apart <= 3) || apart >= 9 ? 1 : -1;
        }
        const std::map<int, int> factors = {{-2, 25}, {-1, 35}, {0, 50}, {1, 75}, {2, 90}};
        return factors.at(degree);
    }

    [[nodiscard]] int horaScore(int planet) const
    {
        const bool even = at(chart_.rashi, planet) % 2 == 0;
        const bool sun = (at(chart_.degreeInSign, planet) >= 15.0) == even;
        if (planet == core::kMercury) {
            return sun ? 2 : 1;
        }
        const bool male = planet == core::kSun || planet == core::kMars || planet == core::kJupiter;
        if (male != sun) {
            return 0;
        }
        return even != male ? 2 : 1;
    }

    const core::Chart& chart_;
    const core::Settings& settings_;
};

TEST(Vimshopaka, AgreesWithANaiveComputation)
{
    std::mt19937 random(20000);
    for (int round = 0; round < 640; ++round) {
        core::Settings settings;
        settings.horaMethod = round % 4;
        settings.exaltedCountsAsOwn = (round >> 2) % 2 != 0;
        settings.vargaCompoundRelationships = (round >> 3) % 2 != 0;
        settings.naturalRelationshipsOnly = (round >> 4) % 2 != 0;
        settings.nodeDignityScheme = round % 3;
        core::Chart chart = randomChart(random);
        if (round % 5 == 0) {
            // Where exaltation, moolatrikona and own sign share a sign.
            place(chart, core::kMoon, 30.0 + 0.25 * (round % 24));
            place(chart, core::kMercury, 150.0 + round % 30);
        }
        analyse(chart, settings);
        const Naive naive(chart, settings);
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            std::array<int, 4> totals{};
            std::array<int, 4> positional{};
            for (int varga = 0; varga < core::kScoredVargas; ++varga) {
                const int factor = naive.factor(varga, planet);
                const core::VargaPlacement& placement = at(at(chart.vargas, varga), planet);
                for (int set = 0; set < kVimshopakaSets; ++set) {
                    at(totals, set) += vimshopakaWeight(set, varga) * factor;
                    at(positional, set) +=
                        placement.strengthStep * vimshopakaWeight(set, varga) * factor;
                }
                ASSERT_EQ(vimshopakaScore(chart, varga, planet, settings).factor, factor)
                    << "round " << round << " varga " << varga << " planet " << planet;
                const std::map<int, int> codes = {{25, 1}, {35, 2}, {50, 3},
                                                  {75, 4}, {90, 5}, {100, 6}};
                EXPECT_EQ(placement.dignityCode, codes.at(factor));
            }
            EXPECT_EQ(at(chart.vimshopaka, planet), totals);
            EXPECT_EQ(at(chart.vimshopakaPositional, planet), positional);
        }
        for (const int point : {core::kAscendant, core::kRahu, core::kKetu}) {
            const core::VargaPlacement& placement =
                chart.vargas[core::kNavamsha][std::size_t(point)];
            EXPECT_EQ(placement.dignityCode - 3,
                      vargaDignity(chart, point, placement.sign, core::kNavamsha, settings));
            EXPECT_EQ(at(chart.vimshopaka, point), (std::array<int, 4>{}));
        }
    }
}

TEST(Vimshopaka, PointsAndWords)
{
    EXPECT_EQ(vimshopakaPoints(kFullVimshopaka), 20.0);
    EXPECT_EQ(vimshopakaWord(4999), L"weak");
    EXPECT_EQ(vimshopakaWord(5000), L"small");
    EXPECT_EQ(vimshopakaWord(10000), L"middling");
    EXPECT_EQ(vimshopakaWord(15000), L"full");
}

// What lies in the arrays of a point without a position must not show anywhere.
TEST(Vimshopaka, UncomputedPointsEnterNothing)
{
    std::mt19937 random(5);
    std::bernoulli_distribution missing(0.3);
    std::uniform_int_distribution<int> sign(1, 12);
    for (int round = 0; round < 200; ++round) {
        core::Chart clean = randomChart(random);
        for (int point = core::kAscendant; point <= core::kKetu; ++point) {
            if (missing(random)) {
                at(clean.degreeInSign, point) = core::kNotComputed;
                at(clean.rashi, point) = 0;
                at(clean.longitude, point) = 0.0;
            }
        }
        core::Chart stale = clean;
        for (int point = 0; point < core::kPartOfFortune; ++point) {
            if (!stale.computed(point)) {
                at(stale.rashi, point) = sign(random);
                at(stale.longitude, point) = 30.0 * sign(random) - 7.0;
                for (auto& placements : stale.vargas) {
                    at(placements, point).sign = sign(random);
                }
            }
        }
        core::Settings settings;
        settings.coLords = round % 2 != 0;
        analyse(clean, settings);
        analyse(stale, settings);
        EXPECT_EQ(clean.compound, stale.compound);
        EXPECT_EQ(clean.combust, stale.combust);
        EXPECT_EQ(clean.vimshopaka, stale.vimshopaka);
        EXPECT_EQ(chartNatures(clean), chartNatures(stale));
        for (int point = 0; point < core::kPartOfFortune; ++point) {
            EXPECT_EQ(clean.computed(point), stale.computed(point)) << point;
            for (int varga = 0; varga < core::kVargaCount; ++varga) {
                const core::VargaPlacement& placement = at(at(clean.vargas, varga), point);
                EXPECT_EQ(placement.sign, at(at(stale.vargas, varga), point).sign);
                EXPECT_EQ(placement.dignityCode, at(at(stale.vargas, varga), point).dignityCode);
                EXPECT_EQ(placement.sign != 0, clean.computed(point));
            }
        }
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            if (!clean.computed(planet)) {
                EXPECT_EQ(at(clean.vimshopaka, planet), (std::array<int, 4>{}));
                continue;
            }
            EXPECT_EQ(reportDignity(clean, planet, settings),
                      reportDignity(stale, planet, settings));
        }
        for (const int varga : {int(core::kRashi), int(core::kNavamsha)}) {
            const Ashtakavarga one = computeAshtakavarga(clean, varga, true);
            const Ashtakavarga other = computeAshtakavarga(stale, varga, true);
            EXPECT_EQ(one.bindus, other.bindus);
            EXPECT_EQ(one.ekadhipatya, other.ekadhipatya);
            EXPECT_EQ(one.pinda[1].graha, other.pinda[1].graha);
        }
    }
}

} // namespace
} // namespace kestrav::analysis
