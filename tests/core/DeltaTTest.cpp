#include "core/DeltaT.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace kestrav::core
{
namespace
{

TEST(DeltaT, HasTheBiennialTable)
{
    // Rows that tell this table from its later revision, and the ones around changes of precision.
    const std::vector<std::pair<int, float>> rows = {
        {1620, 124.0F}, {1622, 115.0F}, {1624, 106.0F}, {1700, 9.0F},   {1732, 11.0F},
        {1734, 12.0F},  {1800, 13.7F},  {1872, -1.0F},  {1892, -6.2F},  {1900, -2.7F},
        {1902, 0.0F},   {1960, 33.1F},  {1978, 48.5F},  {1980, 50.54F}, {1998, 62.97F},
        {2000, 63.86F}, {2002, 66.0F},  {2008, 72.0F},  {2010, 74.0F},  {2012, 76.0F}};
    for (const auto& [year, seconds] : rows) {
        // The values are single-precision numbers.
        EXPECT_EQ(deltaTSeconds(year, 1), static_cast<double>(seconds)) << year;
    }
    double total = 0.0;
    for (int year = 1620; year <= 2012; year += 2) {
        total += deltaTSeconds(year, 1);
    }
    EXPECT_NEAR(total, 4842.2 - 78.0, 1e-4);
}

TEST(DeltaT, InterpolatesByMonthThroughOddYears)
{
    EXPECT_NEAR(deltaTSeconds(1621, 1), 119.5, 1e-12);
    EXPECT_NEAR(deltaTSeconds(1620, 7), 124.0 - 9.0 * 0.25, 1e-12);
    EXPECT_NEAR(deltaTSeconds(1873, 7), -1.0 - 1.7 * 0.75, 1e-6);
    EXPECT_NEAR(deltaTSeconds(2011, 6), 74.0 + 2.0 * (0.5 + 5.0 / 24.0), 1e-12);
    EXPECT_NEAR(deltaTSeconds(2012, 12), 76.0 + 2.0 * 11.0 / 24.0, 1e-12);
    // A month never moves further than a 24th of the largest step between two rows, 9 seconds.
    double previous = deltaTSeconds(1620, 1);
    for (int month = 1; month < 393 * 12; ++month) {
        const double now = deltaTSeconds(1620 + month / 12, month % 12 + 1);
        ASSERT_LE(std::fabs(now - previous), 9.0 / 24.0 + 1e-9) << 1620 + month / 12;
        previous = now;
    }
}

TEST(DeltaT, FollowsItsFormulasOutsideTheTable)
{
    EXPECT_NEAR(deltaTSeconds(-500, 1), 17444.1, 1e-9);    // u = -25
    EXPECT_NEAR(deltaTSeconds(947, 12), 1834.08105, 1e-9); // u = -10.53
    EXPECT_NEAR(deltaTSeconds(948, 1), 1830.584, 1e-9);    // u = -10.52
    EXPECT_NEAR(deltaTSeconds(1619, 12), 120.03725, 1e-9); // u = -3.81
    EXPECT_NEAR(deltaTSeconds(2013, 1), 77.32925, 1e-9);
    EXPECT_EQ(deltaTSeconds(2013, 12), deltaTSeconds(2013, 1));
    EXPECT_NEAR(deltaTSeconds(2110, 6), 235.9, 1e-9); // 300 years after 1810
    EXPECT_TRUE(std::isfinite(deltaTSeconds(-2147483647 - 1, 1)));
}

TEST(DeltaT, IsKeptInDaysAndCanBeSwitchedOff)
{
    DateTimeRecord record;
    record.year = 2010;
    DeltaT(record, true);
    EXPECT_NEAR(record.deltaTDays * 86400.0, 74.0, 1e-11);
    DeltaT(record, false);
    EXPECT_EQ(record.deltaTDays, 0.0);
}

} // namespace
} // namespace kestrav::core
