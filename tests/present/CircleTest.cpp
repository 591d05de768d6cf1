// The houses of a circle, and where its points stand.
#include "app/present/CircleDiagram.h"
#include "app/present/DiagramFrame.h"
#include "astro/Houses.h"
#include "tests/present/DiagramCharts.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::present
{

namespace
{

core::Chart chartWithHouses(int system)
{
    core::Chart chart = analysis::chartOf({103.0, 10.0, 150.0});
    chart.houseSystem = system;
    chart.cuspsComplete = true;
    // Houses of 20, 30 and 40 degrees by turns, opposite ones equal.
    const double lengths[] = {20.0, 30.0, 40.0, 40.0, 30.0, 20.0};
    double cusp = 103.0;
    for (int house = 1; house <= 12; ++house) {
        analysis::place(chart, core::cuspPoint(house), std::fmod(cusp, 360.0));
        cusp += lengths[(house - 1) % 6];
    }
    chart.hasSandhis = system == int(astro::HouseSystem::PlacidusVedic);
    for (int i = 0; i < 12 && chart.hasSandhis; ++i) {
        const double back = lengths[(i + 5) % 6] / 2.0;
        core::at(chart.sandhis, i) =
            std::fmod(core::at(chart.longitude, core::cuspPoint(i + 1)) - back + 360.0, 360.0);
    }
    return chart;
}

CircleHouses housesOf(const core::Chart& chart, CircleBounds bounds, int varga = 0)
{
    const core::Settings settings;
    DiagramOptions options;
    options.bounds = bounds;
    const DiagramSubject subject{chart, settings, varga};
    return circleHouses({subject, options, 400.0, 14.0, 1.0, 4, true});
}

} // namespace

TEST(CircleHouses, AreBoundedBySandhisCuspsOrSigns)
{
    const core::Chart vedic = chartWithHouses(int(astro::HouseSystem::PlacidusVedic));
    const CircleHouses sandhis = housesOf(vedic, CircleBounds::Automatic);
    EXPECT_EQ(sandhis.bounds, CircleBounds::Sandhis);
    EXPECT_DOUBLE_EQ(sandhis.starts[0], 93.0);
    // The first cusp is inside the first house, not its beginning.
    EXPECT_EQ(houseAt(sandhis, 103.0), 1);
    EXPECT_EQ(houseAt(sandhis, 94.0), 1);
    EXPECT_EQ(houseAt(sandhis, 92.0), 12);

    const CircleHouses cusps = housesOf(vedic, CircleBounds::Cusps);
    EXPECT_DOUBLE_EQ(cusps.starts[0], 103.0);
    EXPECT_EQ(houseAt(cusps, 102.9), 12);
    EXPECT_EQ(houseAt(cusps, 103.0), 1);
    EXPECT_EQ(houseAt(cusps, 122.9), 1);
    EXPECT_EQ(houseAt(cusps, 123.0), 2);

    const core::Chart kp = chartWithHouses(int(astro::HouseSystem::PlacidusKp));
    EXPECT_EQ(housesOf(kp, CircleBounds::Automatic).bounds, CircleBounds::Cusps);
    const core::Chart rashi = chartWithHouses(int(astro::HouseSystem::ByRashi));
    const CircleHouses signs = housesOf(rashi, CircleBounds::Automatic);
    EXPECT_EQ(signs.bounds, CircleBounds::Signs);
    EXPECT_DOUBLE_EQ(signs.starts[0], 90.0);
    const CircleHouses equal = housesOf(rashi, CircleBounds::Equal);
    EXPECT_DOUBLE_EQ(equal.starts[11], 73.0);
}

TEST(CircleHouses, FallBackToSignsWhereTheirBoundsDoNotExist)
{
    core::Chart kp = chartWithHouses(int(astro::HouseSystem::PlacidusKp));
    EXPECT_TRUE(housesOf(kp, CircleBounds::Sandhis).replaced);
    EXPECT_EQ(housesOf(kp, CircleBounds::Cusps, 5).bounds, CircleBounds::Signs);
    EXPECT_FALSE(housesOf(kp, CircleBounds::Automatic, 5).replaced);
    // A cusp that does not exist near the poles, and one out of its order.
    core::at(kp.degreeInSign, core::cuspPoint(3)) = core::kNotComputed;
    EXPECT_EQ(housesOf(kp, CircleBounds::Cusps).bounds, CircleBounds::Signs);
    analysis::place(kp, core::cuspPoint(3), 20.0);
    EXPECT_EQ(housesOf(kp, CircleBounds::Cusps).bounds, CircleBounds::Signs);
}

TEST(Circle, LeadersBeginAtTheTrueLongitudes)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    for (const int varga : {0, 5}) {
        const DisplayList list =
            layoutDiagram({chart, settings, varga}, DiagramStyle::Circle, DiagramOptions(), 500.0);
        std::vector<double> degrees;
        for (const Line& line : list.lines) {
            if (line.role == ColourRole::Leader) {
                // The angle below the left horizon is counted from the ascendant.
                const double angle = std::atan2(line.from.y - 250.0, 250.0 - line.from.x);
                degrees.push_back(core::Normalize360(angle * 180.0 / 3.14159265358979323846));
            }
        }
        ASSERT_EQ(degrees.size(), 10U);
        std::vector<double> expected;
        const auto longitude = [&](int point) {
            return (diagramSign(chart, varga, point) - 1) * 30.0 +
                   diagramPosition(chart, varga, point);
        };
        for (int point = 0; point <= core::kKetu; ++point) {
            expected.push_back(core::Normalize360(longitude(point) - longitude(0)));
        }
        const auto nearOne = [](double degree) {
            return degree > 359.999999 ? 0.0 : degree;
        };
        std::transform(degrees.begin(), degrees.end(), degrees.begin(), nearOne);
        std::sort(degrees.begin(), degrees.end());
        std::sort(expected.begin(), expected.end());
        for (std::size_t i = 0; i < degrees.size(); ++i) {
            EXPECT_NEAR(degrees[i], expected[i], 1e-6);
        }
    }
}

} // namespace kestrav::present
