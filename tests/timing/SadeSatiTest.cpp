#include "timing/SadeSati.h"
#include "core/Points.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrav::timing
{
namespace
{

constexpr double kIndia = 5.5;

double indianDate(int year, int month, int day)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    return julianDayOf(record, kIndia);
}

struct Expected
{
    int house;
    int sign;
    double begin;
    bool isReturn;
};

// Dates on which Indian almanacs have Saturn enter the signs.
TEST(SadeSati, agreesWithAlmanacs)
{
    SiderealSky sky(tests::seriesForTests(), core::Settings{}, kIndia);
    const std::vector<Expected> aquarius = {
        {12, 10, indianDate(2020, 1, 24), false}, {1, 11, indianDate(2022, 4, 29), false},
        {12, 10, indianDate(2022, 7, 12), true},  {1, 11, indianDate(2023, 1, 17), false},
        {2, 12, indianDate(2025, 3, 29), false},  {2, 12, indianDate(2027, 10, 20), true},
    };
    const auto found = sadeSati(sky, 11, {indianDate(2018, 1, 1), indianDate(2028, 6, 1)});
    ASSERT_EQ(found.size(), aquarius.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].house, aquarius[i].house);
        EXPECT_EQ(found[i].sign, aquarius[i].sign);
        EXPECT_EQ(found[i].isReturn, aquarius[i].isReturn);
        EXPECT_FALSE(found[i].isSmall());
        // The date only is printed.
        EXPECT_GT(found[i].begin, aquarius[i].begin - 0.5) << i;
        EXPECT_LT(found[i].begin, aquarius[i].begin + 1.5) << i;
    }
    EXPECT_NEAR(found[4].end, indianDate(2027, 6, 3) + 0.5, 1.0);
    EXPECT_EQ(found[2].end, found[3].begin);

    // A span inside one phase shows the whole of it. For a Moon in Scorpio it is the fourth sign.
    const Span within{indianDate(2024, 1, 1), indianDate(2024, 1, 2)};
    const auto small = sadeSati(sky, 8, within);
    ASSERT_EQ(small.size(), 1U);
    EXPECT_EQ(small[0].house, 4);
    EXPECT_TRUE(small[0].isSmall());
    EXPECT_NEAR(small[0].begin, found[3].begin, 1e-5);
    EXPECT_NEAR(small[0].end, found[3].end, 1e-5);
    EXPECT_EQ(sadeSati(sky, 4, within).at(0).house, 8);
    EXPECT_TRUE(sadeSati(sky, 2, within).empty());
    EXPECT_TRUE(sadeSati(sky, 11, {within.to, within.from}).empty());
}

// Day by day over 90 years: the phases fill exactly the days on which Saturn stands in their signs.
TEST(SadeSati, coversTheDaysOfALife)
{
    SiderealSky sky(tests::seriesForTests(), core::Settings{}, kIndia);
    const Span life{indianDate(1940, 1, 1), indianDate(2030, 1, 1)};
    for (const int moonSign : {1, 6, 12}) {
        const auto phases = sadeSati(sky, moonSign, life);
        std::size_t next = 0;
        for (double day = life.from; day < life.to; day += 1.0) {
            const int sign = int(sky.longitude(core::kSaturn, day) / 30.0) + 1;
            const int house = (sign - moonSign + 12) % 12 + 1;
            while (next < phases.size() && phases[next].end <= day) {
                ++next;
            }
            const bool inside = next < phases.size() && phases[next].begin <= day;
            const bool wanted = house == 12 || house == 1 || house == 2 || house == 4 || house == 8;
            ASSERT_EQ(inside, wanted) << day;
            if (inside) {
                ASSERT_EQ(phases[next].house, house) << day;
                ASSERT_EQ(phases[next].sign, sign) << day;
            }
        }
    }
}

} // namespace
} // namespace kestrav::timing
