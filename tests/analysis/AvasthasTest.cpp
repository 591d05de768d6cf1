#include "analysis/Avasthas.h"
#include "analysis/Dignities.h"
#include "tests/analysis/PrintedCharts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace kestrav::analysis
{
namespace
{

using core::at;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr double kNone = core::kNotComputed;

std::array<Avasthas, 10> avasthasOf(const core::Chart& chart, const StrengthInputs& inputs = {})
{
    return computeAvasthas(chart, inputs, 0, core::Settings());
}

std::array<Avasthas, 10> avasthasOf(const std::vector<double>& longitudes)
{
    return avasthasOf(analysed(chartOf(longitudes)));
}

std::array<Avasthas, 10> avasthasOfR()
{
    return avasthasOf(chartR(), inputsR());
}

TEST(Baladi, FollowsTheWorkedExampleAndTurnsRoundInEvenSigns)
{
    const auto r = avasthasOfR();
    const std::array<Baladi, 7> wanted = {Baladi::Bala, Baladi::Kumara, Baladi::Kumara,
                                          Baladi::Bala, Baladi::Mrita,  Baladi::Kumara,
                                          Baladi::Bala};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        EXPECT_EQ(at(r, planet).baladi, at(wanted, planet - 1)) << planet;
    }
    EXPECT_EQ(avasthasOf({kNone, 6.0})[core::kSun].baladi, Baladi::Kumara);
    EXPECT_EQ(avasthasOf({kNone, 30.0})[core::kSun].baladi, Baladi::Mrita);
    EXPECT_EQ(avasthasOf({kNone, 59.999})[core::kSun].baladi, Baladi::Bala);
}

TEST(Deeptadi, NamesTheDignityAndAddsMaleficCompanyAndCombustion)
{
    const auto r = avasthasOfR();
    // Venus debilitated in Virgo, 9.7 degrees from the Sun.
    EXPECT_EQ(r[core::kVenus].jagradadi, Jagradadi::Sushupti);
    EXPECT_EQ(r[core::kVenus].deeptadi->state, Deeptadi::Khala);
    EXPECT_TRUE(r[core::kVenus].deeptadi->kopa);
    EXPECT_FALSE(r[core::kVenus].deeptadi->vikala);
    // Mars in his own Scorpio with Rahu.
    EXPECT_EQ(r[core::kMars].jagradadi, Jagradadi::Jagrat);
    EXPECT_EQ(r[core::kMars].deeptadi->state, Deeptadi::Swastha);
    EXPECT_TRUE(r[core::kMars].deeptadi->vikala);
    EXPECT_FALSE(r[core::kMars].deeptadi->kopa);
    // Mercury with the lord of Libra a natural friend and in the next sign.
    EXPECT_EQ(r[core::kMercury].jagradadi, Jagradadi::Swapna);
    EXPECT_EQ(r[core::kMercury].deeptadi->state, Deeptadi::Pramudita);

    // The Moon is exalted in the first 3 degrees of Taurus and moolatrikona in the rest.
    EXPECT_EQ(avasthasOf({kNone, 100, 32})[core::kMoon].deeptadi->state, Deeptadi::Deepta);
    EXPECT_EQ(avasthasOf({kNone, 100, 40})[core::kMoon].deeptadi->state, Deeptadi::Swastha);
    EXPECT_EQ(avasthasOf({kNone, 100, 40})[core::kMoon].jagradadi, Jagradadi::Jagrat);
}

TEST(Lajjitadi, FollowsTheFriendshipsOfThePrintedChart)
{
    const auto r = avasthasOfR();
    // The Sun in the neutral sign of Venus is aspected by Saturn, his enemy, and Jupiter, his
    // friend.
    EXPECT_THAT(r[core::kSun].lajjitadi, ElementsAre(Lajjitadi::Kshudhita, Lajjitadi::Mudita));
    // Mercury stands with the Sun and Saturn aspects them.
    EXPECT_THAT(r[core::kMercury].lajjitadi, ElementsAre(Lajjitadi::Mudita, Lajjitadi::Kshobhita));
    // Venus in the sign of Mercury, her natural friend in the next sign, unaspected.
    EXPECT_THAT(r[core::kVenus].lajjitadi, ElementsAre(Lajjitadi::Mudita));
    EXPECT_THAT(avasthasOf(chartJ())[core::kVenus].lajjitadi, Contains(Lajjitadi::Garvita));
}

TEST(Lajjitadi, NeedsTheRightCompany)
{
    // Ascendant Aries, Venus in Leo, the fifth: with Ketu there she is ashamed, alone not.
    const std::vector<double> alone = {10, 100, 200, 40, 110, 300, 130, 340, kNone, 20};
    std::vector<double> withKetu = alone;
    withKetu[core::kKetu] = 125.0;
    EXPECT_THAT(avasthasOf(alone)[core::kVenus].lajjitadi, Not(Contains(Lajjitadi::Lajjita)));
    EXPECT_THAT(avasthasOf(withKetu)[core::kVenus].lajjitadi, Contains(Lajjitadi::Lajjita));
    // The Sun alone in the fifth is no company for himself.
    EXPECT_THAT(avasthasOf({10, 130, 200})[core::kSun].lajjitadi,
                Not(Contains(Lajjitadi::Lajjita)));

    // Beside the Sun it takes another malefic to be shaken.
    EXPECT_THAT(avasthasOf({10, 130, 140})[core::kMoon].lajjitadi,
                Not(Contains(Lajjitadi::Kshobhita)));
    EXPECT_THAT(avasthasOf({10, 130, 140, 145})[core::kMoon].lajjitadi,
                Contains(Lajjitadi::Kshobhita));

    // Mercury in Pisces under Saturn in Virgo, first alone, then with Venus beside Saturn.
    const std::vector<double> thirsty = {10, 40, 70, 220, 340, 300, 250, 160};
    std::vector<double> quenched = thirsty;
    quenched[core::kVenus] = 165.0;
    EXPECT_THAT(avasthasOf(thirsty)[core::kMercury].lajjitadi, Contains(Lajjitadi::Trishita));
    EXPECT_THAT(avasthasOf(quenched)[core::kMercury].lajjitadi, Not(Contains(Lajjitadi::Trishita)));
    // A debilitated planet still has its relationship to the lord: Mercury in Pisces is neutral to
    // Jupiter by nature, and two signs away a friend for the time.
    EXPECT_THAT(avasthasOf(thirsty)[core::kMercury].lajjitadi, Contains(Lajjitadi::Mudita));
}

TEST(Shayanadi, FollowsTheWorkedExamples)
{
    const auto r = avasthasOfR();
    EXPECT_EQ(r[core::kSun].shayanadi->state, Shayanadi::Bhojana);
    EXPECT_EQ(r[core::kJupiter].shayanadi->state, Shayanadi::Kautuka);
    EXPECT_FALSE(r[core::kSun].shayanadi->part.has_value());
    EXPECT_EQ(avasthaName(r[core::kJupiter].shayanadi->state), L"Kautuka");

    // Sun in Bhojana with value 1: (81 + 1) mod 12 = 10, and 5, leave 0 of 3; with value 2, 1.
    const auto named = computeAvasthas(chartR(), inputsR(), 1, core::Settings());
    EXPECT_EQ(named[core::kSun].shayanadi->part, ShayanadiPart::Vicheshta);
    EXPECT_EQ(shayanadiPart(Shayanadi::Bhojana, core::kSun, 2), ShayanadiPart::Drishti);
    EXPECT_EQ(avasthaName(ShayanadiPart::Drishti), L"Drishti");
    // Ketu in Nidra with value 5: (144 + 5) mod 12 = 5, and 4, leave 0.
    EXPECT_EQ(shayanadiPart(Shayanadi::Nidra, core::kKetu, 5), ShayanadiPart::Vicheshta);
}

TEST(Avasthas, OfBarePositionsLackTheOccupationOnly)
{
    const auto r = avasthasOf(chartR());
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        EXPECT_EQ(at(r, body).point, body);
        EXPECT_TRUE(at(r, body).deeptadi.has_value());
        EXPECT_FALSE(at(r, body).shayanadi.has_value());
    }
    // The nodes are not printed in the other chart.
    const Avasthas rahu = avasthasOf(chartJ())[core::kRahu];
    EXPECT_FALSE(rahu.baladi.has_value());
    EXPECT_FALSE(rahu.deeptadi.has_value());
    EXPECT_THAT(rahu.lajjitadi, IsEmpty());
    // Venus in Virgo is debilitated whoever is missing; the Moon in Libra needs Venus.
    const auto few = avasthasOf({kNone, kNone, 190, kNone, kNone, kNone, kNone});
    EXPECT_TRUE(few[core::kMoon].baladi.has_value());
    EXPECT_FALSE(few[core::kMoon].deeptadi.has_value());
    EXPECT_EQ(avasthasOf({kNone, kNone, kNone, kNone, kNone, kNone, 160})[core::kVenus].jagradadi,
              Jagradadi::Sushupti);
}

} // namespace
} // namespace kestrav::analysis
