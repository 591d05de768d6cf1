#include "timing/ConditionalDashas.h"

#include "tests/analysis/AnalysisCharts.h"
#include "tests/timing/DashaCharts.h"

#include <gtest/gtest.h>

namespace kestrav::timing
{
namespace
{

std::vector<int> applying(const core::Chart& chart, const DashaOptions& options = {})
{
    std::vector<int> systems;
    for (const int system : kConditionalDashas) {
        if (dashaApplies(chart, {}, options, system)) {
            systems.push_back(system);
        }
    }
    return systems;
}

bool applies(const std::vector<double>& longitudes, int system, const DashaOptions& options = {})
{
    core::Chart chart = analysis::chartOf(longitudes);
    chart.hasMoment = false;
    return dashaApplies(chart, {}, options, system);
}

TEST(ConditionalDashas, OfAComputedChart)
{
    EXPECT_EQ(applying(chartE()),
              (std::vector<int>{kAstottari, kChaturashitiSama, kShatTrimshatSama}));
    EXPECT_TRUE(dashaApplies(chartE(), {}, {}, kVimshottari));
    EXPECT_TRUE(applying(core::Chart{}).empty());
}

TEST(ConditionalDashas, RahuFromTheLordOfTheAscendant)
{
    // Ascendant Aries, Mars in Cancer; Rahu through the signs.
    const std::array<bool, 13> wanted = {false, false, false, false, true,  false, false,
                                         true,  true,  false, true,  false, true};
    for (int rahu = 1; rahu <= 12; ++rahu) {
        const double longitude = rahu * 30.0 - 15.0;
        // Aries is the tenth from Cancer, but the ascendant itself.
        EXPECT_EQ(applies({5, 0, 0, 100, 0, 0, 0, 0, longitude}, kAstottari),
                  core::at(wanted, rahu))
            << rahu;
    }
}

TEST(ConditionalDashas, HorasAndHalves)
{
    // Ascendant early in Aries: the Sun's hora; late: the Moon's. Even signs the other way.
    const std::vector<std::pair<double, bool>> sunsHora = {
        {14.9, true}, {15.1, false}, {44.9, false}, {45.1, true}};
    for (const auto& [ascendant, sun] : sunsHora) {
        EXPECT_EQ(applies({ascendant, 0, 10, 0, 0, 0, 0, 0, 0}, kShodsottari), sun);
        EXPECT_EQ(applies({ascendant, 10, 0, 0, 0, 0, 0, 0, 0}, kShodsottari), !sun);
        // A Sun behind the ascendant has risen.
        EXPECT_EQ(applies({ascendant, 350, 0, 0, 0, 0, 0, 0, 0}, kShatTrimshatSama), sun);
        EXPECT_EQ(applies({ascendant, 90, 0, 0, 0, 0, 0, 0, 0}, kShatTrimshatSama), !sun);
    }
}

TEST(ConditionalDashas, OfTheAscendant)
{
    const auto withAscendant = [](double ascendant, int system) {
        return applies({ascendant, 200, 10, 10, 10, 10, 10, 10, 10}, system);
    };
    // The navamshas of Aries are those of Aries, Taurus .. Sagittarius.
    EXPECT_TRUE(withAscendant(5.0, kDwadashottari));
    EXPECT_FALSE(withAscendant(7.0, kDwadashottari));
    EXPECT_TRUE(withAscendant(21.0, kDwadashottari));
    EXPECT_TRUE(withAscendant(2.0, kShatabdika));
    EXPECT_FALSE(withAscendant(5.0, kShatabdika));
    // Two and a half degrees of Cancer are Cancer's dwadashamsha; so are those of Leo at its end.
    EXPECT_TRUE(withAscendant(92.0, kPanchottari));
    EXPECT_FALSE(withAscendant(93.0, kPanchottari));
    EXPECT_FALSE(withAscendant(148.0, kPanchottari));
    EXPECT_TRUE(withAscendant(200.0, kShastihayani));
    EXPECT_FALSE(withAscendant(100.0, kShastihayani));
}

TEST(ConditionalDashas, LordsOfHouses)
{
    // Ascendant Aries. Saturn owns the tenth, Mars the first, Venus the seventh.
    const auto with = [](double mars, double venus, double saturn, int system,
                         const DashaOptions& options = {}) {
        return applies({5, 40, 40, mars, 40, 40, venus, saturn, 40}, system, options);
    };
    EXPECT_TRUE(with(40, 40, 280, kChaturashitiSama));
    EXPECT_FALSE(with(40, 40, 310, kChaturashitiSama));
    EXPECT_TRUE(with(190, 40, 40, kDwisaptatiSama));
    EXPECT_TRUE(with(40, 10, 40, kDwisaptatiSama));
    EXPECT_FALSE(with(10, 40, 40, kDwisaptatiSama));
    DashaOptions options;
    options.dwisaptatiLordInAscendant = true;
    EXPECT_TRUE(with(10, 40, 40, kDwisaptatiSama, options));
}

} // namespace
} // namespace kestrav::timing
