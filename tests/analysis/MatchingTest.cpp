#include "analysis/Matching.h"

#include "AnalysisCharts.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace kestrav::analysis
{
namespace
{

using core::at;
using Points = std::array<double, kKutaCount>;

const astro::MatchingTables& tables()
{
    static const astro::LoadResult loaded =
        astro::LoadSeries(std::filesystem::path(KESTRAV_BIN) / astro::kDataFileName);
    return loaded.data->matching;
}

KutaScores scores(double groom, double bride)
{
    return computeKutas(moonPlace(groom), moonPlace(bride), tables());
}

Points points(const KutaScores& kutas)
{
    Points values{};
    for (int kuta = 0; kuta < kKutaCount; ++kuta) {
        at(values, kuta) = at(kutas, kuta).points;
    }
    return values;
}

// The comparison of two charts with nothing but their Moons.
Matching matched(double groom, double bride)
{
    return matchCharts(chartOf({-1, -1, groom}), chartOf({-1, -1, bride}), tables(), {}).value();
}

constexpr double star(int number, int pada = 2)
{
    return (number + (pada - 0.5) / 4.0) * 360.0 / 27.0;
}

TEST(Matching, WorkedExamples)
{
    EXPECT_EQ(points(scores(10, 95)), (Points{0, 1, 1.5, 2, 4, 6, 7, 8}));
    EXPECT_EQ(matched(10, 95).total, 29.5);
    EXPECT_EQ(points(scores(311.29, 186.96)), (Points{1, 2, 3, 0, 5, 0, 0, 8}));
    EXPECT_EQ(matched(311.29, 186.96).total, 19.0);
    const KutaScores kutas = scores(10, 95);
    EXPECT_EQ(kutas[kTaraKuta].why, L"From the bride's Pushya to the groom's Ashwini 21 stars, "
                                    L"remainder 3, bad; back 8 stars, remainder 8, good.");
    EXPECT_EQ(kutas[kMaitriKuta].why, L"Of the lords of Aries and Cancer Moon is a friend to Mars "
                                      L"and Mars is neutral to Moon.");
}

TEST(Matching, LawsOverAllPadas)
{
    std::array<std::map<double, int>, kKutaCount> counts;
    std::map<int, int> doshas;
    for (int groom = 0; groom < 108; ++groom) {
        for (int bride = 0; bride < 108; ++bride) {
            const double his = (groom + 0.5) * 10.0 / 3.0;
            const double hers = (bride + 0.5) * 10.0 / 3.0;
            const Points forth = points(scores(his, hers));
            const Points back = points(scores(hers, his));
            for (const int kuta : {kTaraKuta, kYoniKuta, kMaitriKuta, kBhakutaKuta, kNadiKuta}) {
                ASSERT_EQ(at(forth, kuta), at(back, kuta)) << groom << " " << bride;
            }
            for (int kuta = 0; kuta < kKutaCount; ++kuta) {
                ++at(counts, kuta)[at(forth, kuta)];
            }
            if (groom == bride) {
                EXPECT_EQ(forth, (Points{1, 2, 3, 4, 5, 6, 7, 0}));
            }
            if (groom % 4 == 0 && bride % 4 == 0) {
                const Matching matching = matched(his, hers);
                for (int dosha = 0; dosha < kMatchingDoshas; ++dosha) {
                    doshas[dosha] += at(matching.doshas, dosha).holds ? 1 : 0;
                }
            }
        }
    }
    // Both directions of the tara are never bad at once; a third of all pairs share the nadi, half
    // of all pairs of signs are in a bad bhakuta.
    using Count = std::map<double, int>;
    EXPECT_EQ(counts[kTaraKuta], (Count{{1.5, 7776}, {3, 3888}}));
    EXPECT_EQ(counts[kNadiKuta], (Count{{0, 3888}, {8, 7776}}));
    EXPECT_EQ(counts[kBhakutaKuta], (Count{{0, 5832}, {7, 5832}}));
    EXPECT_EQ(counts[kVarnaKuta], (Count{{0, 4374}, {1, 7290}}));
    // Four rajjus of six stars and one of three; twelve pairs and three stars of vedha.
    EXPECT_EQ(doshas[kRajjuDosha], 4 * 36 + 9);
    EXPECT_EQ(doshas[kVedhaDosha], 24 + 6);
}

TEST(Matching, KutasBySign)
{
    // Vashya: Leo, Scorpio and the halves of Sagittarius and Capricorn. Groom, bride.
    const auto vashya = [](double groom, double bride) {
        return scores(groom, bride)[kVashyaKuta].points;
    };
    EXPECT_EQ(vashya(254.99, 65), 2.0); // both human
    EXPECT_EQ(vashya(255.0, 65), 1.0);  // four-footed
    EXPECT_EQ(vashya(284.99, 5), 2.0);
    EXPECT_EQ(vashya(285.0, 5), 1.0); // living in water
    EXPECT_EQ(vashya(130, 65), 0.0);  // Leo for a human bride
    EXPECT_EQ(vashya(130, 5), 0.5);
    EXPECT_EQ(vashya(65, 345), 0.5);
    EXPECT_EQ(vashya(130, 345), 1.0);
    EXPECT_EQ(vashya(215, 130), 0.0); // Scorpio for Leo

    // Maitri between the lords of two signs.
    const auto maitri = [](int groom, int bride) {
        return scores(groom * 30.0 - 20.0, bride * 30.0 - 20.0)[kMaitriKuta].points;
    };
    EXPECT_EQ(maitri(1, 8), 5.0);  // Mars twice
    EXPECT_EQ(maitri(5, 4), 5.0);  // Sun and Moon are friends
    EXPECT_EQ(maitri(5, 3), 4.0);  // Mercury is neutral to the Sun, who is his friend
    EXPECT_EQ(maitri(1, 2), 3.0);  // Mars and Venus, neutral
    EXPECT_EQ(maitri(4, 6), 1.0);  // the Moon likes Mercury, who does not
    EXPECT_EQ(maitri(1, 10), 0.5); // Mars is neutral to Saturn, who is his enemy
    EXPECT_EQ(maitri(5, 2), 0.0);  // Sun and Venus are enemies

    // Gana is not symmetric: Deva groom and Rakshasa bride, and the reverse.
    EXPECT_EQ(scores(star(0), star(2))[kGanaKuta].points, 1.0);
    EXPECT_EQ(scores(star(2), star(0))[kGanaKuta].points, 0.0);
    EXPECT_EQ(scores(star(1), star(0))[kGanaKuta].points, 6.0);
    EXPECT_EQ(scores(star(0), star(1))[kGanaKuta].points, 5.0);
}

TEST(Matching, DoshasBesideThePoints)
{
    EXPECT_NE(matched(star(4), star(13)).doshas[kRajjuDosha].why.find(L"head, the worst"),
              std::wstring::npos);
    EXPECT_TRUE(matched(star(4), star(22)).doshas[kVedhaDosha].holds);
    EXPECT_FALSE(matched(star(4, 1), star(4, 3)).doshas[kVedhaDosha].holds);

    // 6/8: Aries and Scorpio have one lord; 2/12: Cancer and Leo are ruled by friends; 5/9: Gemini
    // and Aquarius not: Saturn is neutral to Mercury; Cancer and Gemini not: only Mercury is the
    // other's friend.
    struct Case
    {
        int groom;
        int bride;
        bool holds;
        bool cancelled;
    };
    for (const Case& c : {Case{1, 8, true, true},
                          {4, 5, true, true},
                          {3, 11, true, false},
                          {4, 3, true, false},
                          {3, 4, true, false},
                          {1, 4, false, false}}) {
        const Matching matching = matched(c.groom * 30.0 - 20.0, c.bride * 30.0 - 20.0);
        EXPECT_EQ(matching.doshas[kBhakutaDosha].holds, c.holds);
        EXPECT_EQ(matching.doshas[kBhakutaDosha].cancelled, c.cancelled) << c.groom;
        EXPECT_EQ(matching.kutas[kBhakutaKuta].points, c.holds ? 0.0 : 7.0);
    }

    // Nadi: one star, the padas differ or not; one sign with the stars 5 and 6 of Gemini; two
    // signs.
    const auto nadi = [](double groom, double bride) {
        const Matching matching = matched(groom, bride);
        const Dosha& dosha = matching.doshas[kNadiDosha];
        EXPECT_EQ(matching.kutas[kNadiKuta].points, 0.0);
        EXPECT_TRUE(dosha.holds);
        EXPECT_EQ(dosha.why.find(L"void") != std::wstring::npos, dosha.cancelled);
        return dosha.cancelled;
    };
    EXPECT_FALSE(nadi(star(3, 2), star(3, 2)));
    EXPECT_TRUE(nadi(star(3, 2), star(3, 3)));
    EXPECT_TRUE(nadi(star(2, 1), star(2, 2))); // one star in two signs
    EXPECT_TRUE(nadi(star(5), star(6)));
    EXPECT_FALSE(nadi(star(5), star(11)));
}

TEST(Matching, MangalDoshaAndWhatCancelsIt)
{
    // Ascendant, Moon and Venus in Aries but for what a case changes; Jupiter in Aquarius aspects
    // Gemini, Leo and Libra.
    const auto dosha = [](int mars, int jupiter = 11) {
        return mangalDosha(chartOfSigns({1, 1, 1, mars, 1, jupiter, 1, 1}), {});
    };
    for (int sign = 1; sign <= 12; ++sign) {
        const bool harmful = sign <= 2 || sign == 4 || sign == 7 || sign == 8 || sign == 12;
        EXPECT_EQ(dosha(sign).holds(), harmful) << sign;
    }
    EXPECT_TRUE(dosha(8).ownSign && dosha(8).cancelled());
    EXPECT_TRUE(dosha(7).aspectedByJupiter && dosha(7).cancelled());
    EXPECT_TRUE(dosha(2, 2).withJupiter && dosha(2, 2).cancelled());
    EXPECT_FALSE(dosha(2).cancelled());
    EXPECT_FALSE(dosha(3).cancelled()); // aspected, but there is nothing to cancel
    const MangalDosha exalted = mangalDosha(chartOfSigns({10, 1, 1, 10, 1, 11, 1, 1}), {});
    EXPECT_TRUE(exalted.exalted && exalted.cancelled());

    // One count is enough, and a missing reference has none.
    const MangalDosha fromVenus = mangalDosha(chartOfSigns({1, 1, 0, 3, 1, 1, 2, 1}), {});
    EXPECT_EQ(fromVenus.fromAscendant, 3);
    EXPECT_EQ(fromVenus.fromMoon, 0);
    EXPECT_EQ(fromVenus.fromVenus, 2);
    EXPECT_TRUE(fromVenus.holds());
    EXPECT_EQ(fromVenus.why(), L"Mars: house 3 from the ascendant, not known from the Moon, house "
                               L"2 from Venus (dosha).");
    EXPECT_FALSE(mangalDosha(chartOfSigns({1, 1, 1, 0, 1, 1, 1, 1}), {}).holds());

    const core::Chart bad = chartOfSigns({1, 1, 1, 2, 1, 11, 1, 1});
    const core::Chart good = chartOfSigns({1, 1, 1, 3, 1, 3, 1, 1});
    const Matching two = matchCharts(bad, bad, tables(), {}).value();
    EXPECT_TRUE(two.doshas[kGroomMangalDosha].cancelled && two.doshas[kBrideMangalDosha].cancelled);
    const Matching one = matchCharts(good, bad, tables(), {}).value();
    EXPECT_FALSE(one.doshas[kGroomMangalDosha].holds);
    EXPECT_TRUE(one.doshas[kBrideMangalDosha].holds && !one.doshas[kBrideMangalDosha].cancelled);
}

TEST(Matching, NeedsBothMoons)
{
    const core::Chart with = chartOf({-1, -1, 10});
    const core::Chart without = chartOf({10, 10});
    const core::Result<Matching> failed = matchCharts(with, without, tables(), {});
    ASSERT_FALSE(failed.ok());
    EXPECT_EQ(failed.error().message, "the bride's Moon has no position");
    EXPECT_FALSE(matchCharts(without, with, tables(), {}).ok());
}

} // namespace
} // namespace kestrav::analysis
