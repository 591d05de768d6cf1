#include "analysis/CharaKarakas.h"
#include "analysis/Sphutas.h"
#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>

namespace kestrav::tests
{

namespace
{

using namespace analysis;

double degrees(int whole, int minutes)
{
    return whole + minutes / 60.0;
}

TEST(CharaKarakas, PrintedOrders)
{
    const core::Chart eight =
        bareChart({-1.0, degrees(12, 47), degrees(50, 28), degrees(13, 51), degrees(25, 18),
                   degrees(95, 40), degrees(17, 21), degrees(2, 28), degrees(301, 43)});
    const std::array<int, 8> order = {core::kRahu, core::kMercury, core::kMoon,    core::kVenus,
                                      core::kMars, core::kSun,     core::kJupiter, core::kSaturn};
    EXPECT_EQ(eightKarakas(eight), order);
    const std::array<int, 7> seven = {core::kJupiter, core::kVenus,   core::kMars, core::kMoon,
                                      core::kSaturn,  core::kMercury, core::kSun};
    EXPECT_EQ(sevenKarakas(printedDayChart()), seven);
    EXPECT_EQ(eightKarakaNames()[4], L"Pitri");
    EXPECT_EQ(sevenKarakaNames()[4], L"Putra");
}

TEST(CharaKarakas, EqualDegreesKeepTheOrderOfThePoints)
{
    core::Chart chart = printedDayChart();
    for (int point = core::kSun; point <= core::kRahu; ++point) {
        core::at(chart.degreeInSign, point) = 15.0;
    }
    const std::array<int, 8> order = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(eightKarakas(chart), order);
    chart.degreeInSign[core::kRahu] = core::kNotComputed;
    EXPECT_FALSE(eightKarakas(chart));
    EXPECT_TRUE(sevenKarakas(chart));
}

TEST(Sphutas, AreSumsOfLongitudes)
{
    core::Chart chart = printedDayChart();
    for (const Sphuta& sphuta : sphutas(chart)) {
        // Without the running day there is no Gulika.
        const bool needsGulika = sphuta.name != L"Beeja" && sphuta.name != L"Kshetra" &&
                                 sphuta.name != L"Tithi" && sphuta.name != L"Yoga";
        EXPECT_EQ(sphuta.longitude.has_value(), !needsGulika);
    }
    chart.longitude[core::kGulika] = 100.0;
    analysis::computeSignData(chart, core::kGulika);
    const std::array<double, 10> expected = {76.0778,  264.8115, 130.39, 132.1872, 349.7386,
                                             170.6372, 45.0336,  152.25, 70.3088,  160.8986};
    const std::array<Sphuta, 10> found = sphutas(chart);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(found[i].longitude.value(), expected[i], 1e-4) << i;
    }
}

} // namespace

} // namespace kestrav::tests
