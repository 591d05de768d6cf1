// The tables of the catalogue for charts of odd places and times.
#include "app/present/TableCatalogue.h"
#include "core/FileText.h"
#include "core/Points.h"
#include "core/Varga.h"
#include "tests/astro/SeriesForTests.h"
#include "tests/present/VariedCharts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace kestrav::present
{

namespace
{

ComputedChart computed(const tests::Birth& birth)
{
    ComputedChart chart;
    chart.chart = tests::recordOf(birth);
    chart.hasPlace = true;
    astro::EphemerisContext context(tests::seriesForTests());
    computeFromBirthData(chart, context);
    return chart;
}

bool leadsSomewhere(const Link& link)
{
    switch (link.subject) {
    case Subject::None:
        return true;
    case Subject::Point:
        return link.index >= 0 && link.index < core::kPointCount && link.varga >= 0 &&
               link.varga < core::kVargaCount;
    case Subject::Sign:
    case Subject::House:
        return link.index >= 1 && link.index <= 12 && link.varga >= 0 &&
               link.varga < core::kVargaCount;
    case Subject::Varga:
        return link.index >= 0 && link.index < core::kVargaCount;
    case Subject::Nakshatra:
        return link.index >= 0 && link.index < 27;
    case Subject::Moment:
        return std::isfinite(link.moment);
    }
    return false;
}

void expectWhole(const Table& table, const std::string& where)
{
    for (const Row& row : table.rows) {
        ASSERT_EQ(row.size(), table.columns.size()) << where;
        for (const Cell& cell : row) {
            const std::string text = core::toUtf8(cell.text);
            EXPECT_TRUE(!cell.sortKey || std::isfinite(*cell.sortKey)) << where << ": " << text;
            EXPECT_TRUE(leadsSomewhere(cell.link)) << where << ": " << text;
            for (const char* const number : {"nan", "inf", "-nan", "-inf"}) {
                EXPECT_NE(text, number) << where;
            }
            for (const wchar_t character : cell.text) {
                EXPECT_GE(character, L' ') << where << ": " << text;
            }
        }
    }
}

// What cannot be computed without a second chart or yogas, and what has no day or no night.
const std::set<std::string_view> kNeedMore = {"kutas", "doshas", "compare", "compare-back",
                                              "yogas"};

} // namespace

TEST(Catalogue, TablesAreWholeAtEveryPlaceAndTime)
{
    for (const tests::Birth& birth : tests::kBirths) {
        const ComputedChart chart = computed(birth);
        TableSource source{chart, tests::seriesForTests()};
        // Some forty years later, in the evening.
        source.moment = chart.chart.integerJulianDay + 14610.25;
        for (const TableInfo& info : allTables()) {
            const std::string where =
                core::toUtf8(std::wstring(birth.name)) + ", " + std::string(info.id);
            const core::Result<Table> table = info.make(source);
            ASSERT_EQ(table.ok(), kNeedMore.count(info.id) == 0)
                << where << (table.ok() ? "" : table.error().text());
            if (table.ok()) {
                EXPECT_EQ(table.value().id, info.id);
                EXPECT_FALSE(table.value().columns.empty()) << where;
                expectWhole(table.value(), where);
            }
        }
    }
}

TEST(Catalogue, TheSameChartGivesTheSameTablesAndAnotherHasOthers)
{
    // A table that forgets its chart would be the same for both; lists of the program are meant to.
    const std::set<std::string_view> lists = {"varga-list", "natural-relationships",
                                              "dasha-systems", "contact", "planetary-war"};
    const ComputedChart one = computed(tests::kBirths[0]);
    const ComputedChart other = computed(tests::kBirths[2]);
    for (const TableInfo& info : allTables()) {
        const auto made = [&](const ComputedChart& chart) {
            TableSource source{chart, tests::seriesForTests()};
            source.moment = 2461055.5;
            std::wstring text;
            if (const auto table = info.make(source)) {
                for (const Row& row : table.value().rows) {
                    for (const Cell& cell : row) {
                        text += cell.text + L"|";
                    }
                }
            }
            return text;
        };
        const std::wstring first = made(one);
        EXPECT_EQ(first, made(one)) << info.id;
        if (kNeedMore.count(info.id) == 0 && lists.count(info.id) == 0) {
            EXPECT_NE(first, made(other)) << info.id;
        }
    }
}

} // namespace kestrav::present
