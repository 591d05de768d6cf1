#include "yoga/ResearchTable.h"
#include "data/ResearchLine.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace kestrav::yoga
{

namespace
{

std::string lineOf(const wchar_t* name, double sun, double ascendant, double birthTime,
                   const wchar_t* sex, double ayanamsa)
{
    core::Chart chart;
    for (const int point : data::kResearchPoints) {
        core::at(chart.longitude, point) = 0.5;
    }
    chart.name = name;
    chart.longitude[core::kSun] = sun;
    chart.longitude[core::kAscendant] = ascendant;
    chart.time.localTime = birthTime;
    chart.identity.sex = sex;
    chart.ayanamsa = ayanamsa;
    chart.longitude[core::kGulika] = 100.5;
    chart.degreeInSign[core::kGulika] = 10.5;
    chart.motion[core::kMars] = core::Motion::Retrograde;
    return data::FormatResearchLine(chart);
}

data::LineList someLines()
{
    data::LineList lines;
    lines.append(lineOf(L"Zoe", 355.0, 130.0, 23.0, L"F", 23.0));
    lines.append("");
    lines.append(lineOf(L"adam", 5.0, 10.0, 1.0, L"M", 24.0));
    lines.append(lineOf(L"Eve", 125.0, 125.0, 12.0, L"F", 26.0));
    lines.append(lineOf(L"", 121.0, 245.0, 12.0, L"", 23.0));
    return lines;
}

std::size_t column(const char* key)
{
    const auto found = findResearchColumn(key);
    EXPECT_TRUE(found) << key;
    return found.value_or(0);
}

} // namespace

TEST(ResearchTable, Cells)
{
    const data::LineList lines = someLines();
    const ResearchTable table(lines);
    EXPECT_EQ(table.lines(), (std::vector<std::size_t>{0, 2, 3, 4}));
    EXPECT_EQ(table.text(0, column("name")), L"Zoe");
    EXPECT_EQ(table.text(3, column("name")), L"");
    EXPECT_EQ(table.text(0, column("sun.sign")), L"Pisces");
    EXPECT_EQ(table.text(2, column("sun.nakshatra")), L"Magha");
    EXPECT_EQ(table.number(0, column("sun.house")), 8.0) << "Pisces from Leo";
    EXPECT_EQ(table.number(2, column("ascendant.house")), 1.0);
    EXPECT_EQ(table.number(1, column("sun.longitude")), 5.0);
    EXPECT_EQ(table.number(1, column("gulika.longitude")), 100.5);
    EXPECT_EQ(table.text(1, column("gulika.sign")), L"Cancer");
    EXPECT_EQ(table.text(1, column("mars.motion")), L"R");
    EXPECT_EQ(table.number(1, column("birth-time")), 1.0);
    EXPECT_EQ(table.number(1, column("sunrise")), std::nullopt) << "-1 says that there is none";
    EXPECT_EQ(table.number(1, column("sex")), std::nullopt);
    EXPECT_EQ(table.number(1, column("tropical-sun")), 1.0);
    EXPECT_FALSE(findResearchColumn("sun.moon"));
    EXPECT_EQ(columnHeading(researchColumns()[column("sun.nakshatra")]), L"Sun nakshatra");
    EXPECT_EQ(columnHeading(researchColumns()[column("birth-time")]), L"Birth time");
    // Every column of the line is one of ours or another form of one.
    for (const ResearchColumn& one : researchColumns()) {
        EXPECT_EQ(researchColumns()[column(one.key.c_str())].field, one.field);
    }
}

TEST(ResearchTable, SortsGroupsAndAverages)
{
    const data::LineList lines = someLines();
    const ResearchTable table(lines);
    EXPECT_EQ(table.sortedRows(column("name")), (std::vector<std::size_t>{1, 2, 0, 3}));
    EXPECT_EQ(table.sortedRows(column("sun.sign")), (std::vector<std::size_t>{1, 2, 3, 0}));

    const std::vector<std::size_t> averaged = {column("ayanamsa"), column("birth-time"),
                                               column("sun.longitude"), column("sun.sign")};
    const std::vector<TableGroup> groups = table.groups(column("sex"), averaged);
    ASSERT_EQ(groups.size(), 3U);
    EXPECT_EQ(groups[0].label, L"F");
    EXPECT_EQ(groups[0].count, 2U);
    EXPECT_DOUBLE_EQ(groups[0].averages[0].value(), 24.5);
    EXPECT_NEAR(groups[0].averages[1].value(), 17.5, 1e-9) << "between 12 and 23 hours";
    EXPECT_NEAR(groups[0].averages[2].value(), 60.0, 1e-9) << "between 355 and 125 degrees";
    EXPECT_FALSE(groups[0].averages[3]);
    EXPECT_EQ(groups[1].label, L"M");
    EXPECT_EQ(groups[2].label, L"") << "those without a value come last";

    const std::vector<TableGroup> signs = table.groups(column("sun.sign"), {});
    ASSERT_EQ(signs.size(), 3U);
    EXPECT_EQ(signs[1].label, L"Leo");
    EXPECT_EQ(signs[1].value, 5.0);
    EXPECT_EQ(signs[1].count, 2U);

    // Opposite directions have no average, those about midnight have midnight.
    data::LineList opposite;
    opposite.append(lineOf(L"a", 10.0, 0.0, 23.0, L"", 0.0));
    opposite.append(lineOf(L"b", 190.0, 0.0, 1.0, L"", 0.0));
    const ResearchTable two(opposite);
    EXPECT_FALSE(two.average(column("sun.longitude")));
    const double midnight = two.average(column("birth-time")).value();
    EXPECT_NEAR(std::min(midnight, 24.0 - midnight), 0.0, 1e-9);
}

TEST(ResearchTable, Graphs)
{
    const data::LineList lines = someLines();
    const ResearchTable table(lines);
    const std::vector<GraphBar> signs = table.graph(column("sun.sign"), 3);
    ASSERT_EQ(signs.size(), 12U);
    EXPECT_EQ(signs[0].count, 1U);
    EXPECT_EQ(signs[4].count, 2U);
    EXPECT_EQ(signs[11].count, 1U);
    EXPECT_EQ(signs[4].label, L"Leo");
    EXPECT_EQ(table.graph(column("sun.nakshatra"), 3).size(), 27U);

    const std::vector<GraphBar> hours = table.graph(column("birth-time"), 4);
    ASSERT_EQ(hours.size(), 4U);
    EXPECT_EQ(hours[0].count, 1U);
    EXPECT_EQ(hours[2].count, 2U) << "12 begins the third quarter";
    EXPECT_EQ(hours[3].count, 1U);

    const std::vector<GraphBar> ayanamsas = table.graph(column("ayanamsa"), 3);
    ASSERT_EQ(ayanamsas.size(), 3U);
    EXPECT_EQ(ayanamsas[0].low, 23.0);
    EXPECT_EQ(ayanamsas[2].high, 26.0);
    EXPECT_EQ(ayanamsas[0].count, 2U);
    EXPECT_EQ(ayanamsas[1].count, 1U);
    EXPECT_EQ(ayanamsas[2].count, 1U) << "the highest value belongs to the last bar";

    const std::vector<GraphBar> sexes = table.graph(column("sex"), 3);
    ASSERT_EQ(sexes.size(), 2U);
    EXPECT_EQ(sexes[0].label, L"F");
    EXPECT_EQ(table.graph(column("zone"), 5).size(), 1U) << "equal values make one bar";
    EXPECT_TRUE(table.graph(column("sunset"), 5).empty());
}

TEST(ResearchTable, OfAGroup)
{
    const data::LineList lines = someLines();
    data::ChartDatabase database;
    database.addLine(data::lineOf("Zoe", "A\t"));
    database.addLine("short");
    database.addLine(data::lineOf("adam", "B\t"));
    database.addLine(data::lineOf("Eve", "A\t"));
    const ResearchTable table(lines, database, L'A');
    EXPECT_EQ(table.lines(), (std::vector<std::size_t>{0, 3}));
}

} // namespace kestrav::yoga
