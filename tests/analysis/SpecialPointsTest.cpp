#include "analysis/SpecialPoints.h"

#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>

#include <set>

namespace kestrav::tests
{

namespace
{

std::set<int> missingPoints(const core::Chart& chart)
{
    std::set<int> missing;
    for (int point = 0; point < core::kPointCount; ++point) {
        if (!chart.computed(point)) {
            missing.insert(point);
            continue;
        }
        const double longitude = core::at(chart.longitude, point);
        EXPECT_TRUE(longitude >= 0.0 && longitude < 360.0) << "point " << point;
        EXPECT_EQ(core::at(chart.rashi, point), int(longitude / 30.0) + 1) << "point " << point;
    }
    return missing;
}

TEST(SpecialPoints, FillThePointTable)
{
    const std::set<int> annualOnly = {core::kMuntha, core::kJanmalagna};
    for (const double hour : {0.0, 5.9, 12.0, 18.5, 23.99}) {
        EXPECT_EQ(missingPoints(chartAt(kNewDelhi, 2022, 1, 24, hour)), annualOnly) << hour;
    }
}

// Where no day runs, and in a chart of bare positions, these have no meaning.
const std::set<int> kOfTheDay = {core::kKaala,        core::kMrityu,    core::kArdhaprahara,
                                 core::kYamaghantaka, core::kGulika,    core::kPranapada,
                                 core::kMandi,        core::kMuntha,    core::kJanmalagna,
                                 core::kBhavaLagna,   core::kHoraLagna, core::kGhatiLagna,
                                 core::kVarnadaLagna};

TEST(SpecialPoints, WhereTheSunDoesNotSet)
{
    EXPECT_EQ(missingPoints(chartAt(kTromso, 2022, 6, 21, 12.0)), kOfTheDay);
    EXPECT_EQ(missingPoints(chartAt(kTromso, 2022, 12, 21, 12.0)), kOfTheDay);
}

TEST(SpecialPoints, OfBarePositions)
{
    core::Chart chart = printedDayChart();
    // What an earlier computation left behind must go.
    chart.degreeInSign[core::kGulika] = 1.0;
    astro::EphemerisContext context(seriesForTests());
    analysis::computeSpecialPoints(chart, {}, context);
    std::set<int> expected = kOfTheDay;
    for (int point = core::kUranus; point <= core::kCusp12; ++point) {
        expected.insert(point);
    }
    EXPECT_EQ(missingPoints(chart), expected);
    EXPECT_EQ(chart.rashi[core::kInduLagna], 6);
    EXPECT_NEAR(chart.degreeInSign[core::kInduLagna], 11.2886, 1e-9);
    EXPECT_NEAR(chart.longitude[core::kDivyaLagna], 166.05, 1e-9);
    EXPECT_NEAR(chart.longitude[core::kYogiPoint], 225.5206, 1e-4);
    EXPECT_EQ(chart.rashi[core::kArudhaLagna], 12);

    core::Chart empty = bareChart({});
    analysis::computeSpecialPoints(empty, {}, context);
    EXPECT_EQ(missingPoints(empty).size(), std::size_t(core::kPointCount));
}

} // namespace

} // namespace kestrav::tests
