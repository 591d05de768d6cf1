#include "analysis/Arudhas.h"

#include "AnalysisCharts.h"
#include "core/Angles.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::analysis
{
namespace
{

using core::at;

using Padas = std::array<int, 12>;

SignView viewOf(std::array<int, 10> signs)
{
    SignView view;
    view.sign = signs;
    return view;
}

TEST(Arudhas, PrintedPadas)
{
    EXPECT_EQ(arudhaSigns(signView(printedHoroscope(), core::kRashi, {}), false),
              (Padas{12, 8, 3, 3, 10, 11, 6, 9, 8, 5, 5, 6}));
    // The nodes of this chart follow from the padas of the planets that are printed with it.
    const SignView second = viewOf({6, 12, 3, 1, 12, 1, 12, 1, 4, 10});
    EXPECT_EQ(arudhaSigns(second, false), (Padas{3, 5, 6, 5, 1, 3, 2, 10, 10, 6, 2, 7}));
    std::array<int, 9> planets{};
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        at(planets, planet - 1) = arudhaOfPlanet(second, planet);
    }
    EXPECT_EQ(planets, (std::array<int, 9>{10, 5, 10, 3, 11, 2, 4, 6, 6}));
    // A divisional chart with two lords for Scorpio and Aquarius.
    const SignView third = viewOf({9, 11, 11, 11, 9, 10, 2, 1, 4, 4});
    EXPECT_EQ(arudhaSigns(third, true), (Padas{11, 1, 9, 8, 9, 11, 12, 6, 2, 9, 9, 11}));
    EXPECT_NE(arudhaSigns(third, false), arudhaSigns(third, true));
}

TEST(Arudhas, HouseOfThePadaByHouseOfTheLord)
{
    constexpr Padas kHouses = {10, 3, 5, 4, 9, 11, 10, 3, 5, 4, 9, 11};
    for (int house = 1; house <= 12; ++house) {
        const int sun = core::norm12(5 + house - 1);
        const SignView view = viewOf({5, sun, 1, 1, 1, 1, 1, 1, 1, 7});
        EXPECT_EQ(core::norm12(arudhaSigns(view, false)[0] - 5 + 1), at(kHouses, house - 1));
    }
}

TEST(Arudhas, PointsHaveTheDegreeOfTheAscendant)
{
    core::Chart chart = printedHoroscope();
    computeArudhaPoints(chart, {});
    EXPECT_NEAR(chart.longitude[core::kArudhaLagna], 358.45, 1e-9);
    EXPECT_EQ(chart.longitude[core::kArudhaPada1], chart.longitude[core::kArudhaLagna]);
    EXPECT_NEAR(chart.longitude[core::kUpapada], 178.45, 1e-9);
    EXPECT_EQ(chart.rashi[core::kUpapada], 6);
    // The degree must not lead into the next sign.
    place(chart, core::kAscendant, std::nextafter(30.0, 0.0));
    computeArudhaPoints(chart, {});
    const std::array<int, 12> signs = arudhaSigns(signView(chart, core::kRashi, {}), false);
    for (int house = 0; house < 12; ++house) {
        EXPECT_EQ(at(chart.rashi, core::kArudhaPada1 + house), at(signs, house));
    }
}

// Mars in Aries and Ketu in Cancer, equal in all but the degree: each has one planet in its sign,
// and one of the three helpers (Mars himself; the Moon, who aspects Cancer from Taurus).
struct CoLords
{
    SignView view = viewOf({1, 3, 2, 1, 3, 3, 3, 3, 3, 4});

    CoLords& sign(int planet, int sign)
    {
        at(view.sign, planet) = sign;
        return *this;
    }
    CoLords& degrees(double mars, double ketu)
    {
        view.degree[core::kMars] = mars;
        view.degree[core::kKetu] = ketu;
        return *this;
    }
    [[nodiscard]] int lord(const CoLordRule& rule = {}) const
    {
        return lordOfSign(view, 8, true, rule);
    }
};

TEST(Arudhas, StrongerOfTwoLords)
{
    constexpr int kMars = core::kMars;
    constexpr int kKetu = core::kKetu;
    EXPECT_EQ(CoLords().degrees(12, 20).lord(), kMars);
    EXPECT_EQ(CoLords().degrees(12, 10).lord(), kKetu); // counts 20
    EXPECT_EQ(CoLords().degrees(12, 18).lord(), kMars); // a tie
    // The one that is not in the sign, however strong the other.
    EXPECT_EQ(CoLords().sign(kMars, 8).sign(core::kSun, 8).degrees(29, 29).lord(), kKetu);
    EXPECT_EQ(CoLords().sign(kKetu, 8).degrees(1, 1).lord(), kMars);
    EXPECT_EQ(CoLords().sign(core::kSun, 4).degrees(29, 29).lord(), kKetu);
    // Jupiter in Leo aspects Aries, in Taurus Cancer.
    EXPECT_EQ(CoLords().sign(core::kJupiter, 5).degrees(1, 1).lord(), kMars);
    EXPECT_EQ(CoLords().sign(core::kJupiter, 2).degrees(29, 29).lord(), kKetu);
    // Mars exalted; Saturn in Taurus is his lord's help.
    EXPECT_EQ(CoLords().sign(kMars, 10).sign(core::kSaturn, 2).degrees(1, 1).lord(), kMars);
    // Ketu in a fixed sign; the Sun in Libra is his lord's help.
    EXPECT_EQ(CoLords().sign(kKetu, 5).sign(core::kSun, 7).degrees(29, 29).lord(), kKetu);
    // A rule of the dashas stands before the degree only.
    const auto second = [](int, int) {
        return -1;
    };
    EXPECT_EQ(CoLords().degrees(29, 29).lord(second), kKetu);
    EXPECT_EQ(CoLords().sign(core::kJupiter, 5).lord(second), kMars);
    EXPECT_EQ(lordOfSign(CoLords().degrees(12, 10).view, 8, false), kMars);
}

TEST(Arudhas, StrongerOfTwoSigns)
{
    // Mars rules Aries and Scorpio; in Gemini he helps neither.
    const auto stronger = [](std::array<int, 10> signs) {
        return strongerSign(viewOf(signs), 1, 8);
    };
    EXPECT_EQ(stronger({1, 3, 3, 6, 3, 3, 3, 3, 8, 3}), 8);  // a planet more
    EXPECT_EQ(stronger({1, 3, 3, 3, 3, 11, 3, 3, 3, 3}), 1); // aspected by Jupiter
    EXPECT_EQ(stronger({1, 1, 3, 3, 3, 3, 3, 3, 8, 3}), 1);  // the Sun is exalted
    // The lord in a sign of the other parity: in Gemini for Scorpio, in Virgo for Aries.
    EXPECT_EQ(stronger({1, 3, 3, 3, 3, 3, 3, 3, 3, 3}), 8);
    EXPECT_EQ(stronger({1, 3, 3, 6, 3, 3, 3, 3, 3, 3}), 1);
    // All planets in Gemini: Leo is fixed; Aries and Libra differ in the degrees of their
    // lords.
    SignView view = viewOf({1, 3, 3, 3, 3, 3, 3, 3, 3, 3});
    EXPECT_EQ(strongerSign(view, 1, 7), 1);
    view.degree[core::kMars] = 4.0;
    EXPECT_EQ(strongerSign(view, 1, 5), 5);
    view.degree[core::kVenus] = 5.0;
    EXPECT_EQ(strongerSign(view, 1, 7), 7);
}

} // namespace
} // namespace kestrav::analysis
