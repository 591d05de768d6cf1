// The table of the charts of a database.
#include "app/present/ChartListTable.h"

#include <gtest/gtest.h>

namespace kestrav::present
{

TEST(ChartList, HasTheRowsOfTheOrderAndSortsThemByDate)
{
    data::ChooserList list;
    const core::PlainDate dates[] = {{1990, 1, 31}, {1990, 2, 1}, {-44, 3, 15}};
    for (std::size_t i = 0; i < 3; ++i) {
        data::ChooserRow row;
        row.line = 10 * i;
        row.name = i == 1 ? "\xC3\x89lodie" : "N";
        row.date.year = dates[i].year;
        row.date.month = dates[i].month;
        row.date.day = dates[i].day;
        row.tag = i == 1 ? L'P' : L' ';
        list.rows.push_back(row);
    }
    const Table table = chartListTable(list, {1, 0, 2});
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_EQ(table.rows[0][0].text, L"11");
    EXPECT_EQ(table.rows[0][1].text, L"\u00C9lodie");
    EXPECT_EQ(table.rows[0][4].text, L"P");
    EXPECT_EQ(table.rows[1][4].text, L"");
    EXPECT_GT(compareCells(table.rows[0][2], table.rows[1][2]), 0);
    EXPECT_GT(compareCells(table.rows[1][2], table.rows[2][2]), 0);
}

} // namespace kestrav::present
