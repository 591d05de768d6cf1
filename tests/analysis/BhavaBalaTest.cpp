#include "analysis/BhavaBala.h"
#include "tests/analysis/PrintedCharts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace kestrav::analysis
{
namespace
{

using core::at;

TEST(BhavaBala, FollowsTheWorkedExample)
{
    const core::Chart chart = chartR();
    const auto houses = computeBhavaBala(chart, computeShadbala(chart, inputsR()));
    EXPECT_EQ(houses[0].lordPoint, core::kSaturn);
    EXPECT_NEAR(houses[0].lord.value(), 388.84, 0.05);
    EXPECT_DOUBLE_EQ(houses[0].dig.value(), 30.0);
    EXPECT_NEAR(houses[0].drishti.value(), -8.90, 0.05);
    EXPECT_NEAR(houses[0].total.value(), 409.94, 0.05);
    // The tenth house has its middle in Scorpio, though Libra is the tenth sign.
    EXPECT_DOUBLE_EQ(houses[9].dig.value(), 30.0);
    EXPECT_EQ(houses[9].lordPoint, core::kMars);
    EXPECT_EQ(houses[9].house, 10);
}

TEST(BhavaBala, PutsEveryHalfSignIntoItsClass)
{
    const std::pair<double, SignClass> rows[] = {
        {15.0, SignClass::Chatushpada},    {45.0, SignClass::Chatushpada},
        {75.0, SignClass::Nara},           {105.0, SignClass::Jalachara},
        {135.0, SignClass::Chatushpada},   {165.0, SignClass::Nara},
        {195.0, SignClass::Nara},          {225.0, SignClass::Keeta},
        {254.999, SignClass::Nara},        {255.0, SignClass::Chatushpada},
        {284.999, SignClass::Chatushpada}, {285.0, SignClass::Jalachara},
        {315.0, SignClass::Nara},          {345.0, SignClass::Jalachara},
    };
    for (const auto& [longitude, wanted] : rows) {
        EXPECT_EQ(signClassOf(longitude), wanted) << longitude;
    }
}

TEST(BhavaBala, GivesAHouseFullDirectionOppositeToItsWeakPlace)
{
    // Under equal houses from 20 Aries the middles are 20 degrees of every sign.
    core::Chart chart = analysed(chartOf({20, 100, 130, 200, 50, 300, 250, 10}));
    astro::HouseCusps(chart, int(astro::HouseSystem::EqualHouse));
    const auto houses = computeBhavaBala(chart, computeShadbala(chart, {}));
    // Aries 1 and Taurus 2 from house 4, Gemini 3 from 7, Cancer 4 from 10, Leo 5 from 4, Virgo 6
    // and Libra 7 from 7, Scorpio 8 from 1, Sagittarius 9 from 4, Capricorn 10 from 10, and so on.
    const double wanted[] = {30, 20, 40, 60, 10, 10, 0, 50, 50, 0, 40, 20};
    for (int house = 1; house <= 12; ++house) {
        EXPECT_DOUBLE_EQ(at(houses, house - 1).dig.value(), wanted[house - 1]) << house;
        // Without a moment the lord has no total, and so neither has the house.
        EXPECT_FALSE(at(houses, house - 1).total.has_value());
        EXPECT_TRUE(at(houses, house - 1).drishti.has_value());
    }
}

TEST(BhavaBala, FindsTheMiddleOfAHouseInEverySystem)
{
    core::Chart chart = chartOf({10});
    EXPECT_FALSE(houseMiddle(chart, 1).has_value());

    astro::HouseCusps(chart, int(astro::HouseSystem::ByRashi));
    EXPECT_DOUBLE_EQ(houseMiddle(chart, 1).value(), 15.0);

    // Cusps as Placidus leaves them, with the twelfth house across 0 degrees Aries.
    chart.houseSystem = int(astro::HouseSystem::PlacidusVedic);
    place(chart, core::cuspPoint(12), 340.0);
    place(chart, core::cuspPoint(1), 10.0);
    place(chart, core::cuspPoint(2), 44.0);
    EXPECT_DOUBLE_EQ(houseMiddle(chart, 12).value(), 340.0);
    chart.houseSystem = int(astro::HouseSystem::PlacidusKp);
    EXPECT_DOUBLE_EQ(houseMiddle(chart, 12).value(), 355.0);
    EXPECT_DOUBLE_EQ(houseMiddle(chart, 1).value(), 27.0);

    // A cusp that does not exist leaves both houses that it bounds without a middle.
    chart.degreeInSign[std::size_t(core::cuspPoint(1))] = core::kNotComputed;
    EXPECT_FALSE(houseMiddle(chart, 1).has_value());
    EXPECT_FALSE(houseMiddle(chart, 12).has_value());
    const auto houses = computeBhavaBala(chart, ShadbalaTable{});
    EXPECT_EQ(houses[0].lordPoint, 0);
    EXPECT_FALSE(houses[0].dig.has_value());
}

} // namespace
} // namespace kestrav::analysis
