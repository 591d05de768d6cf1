#include "data/Chooser.h"

#include "data/ChartLineFields.h"
#include "data/FieldReader.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrav::data
{
namespace
{

TEST(Chooser, ListsWhatTheParserReads)
{
    constexpr unsigned kSeed = 77;
    RandomRecords records(kSeed);
    ChartDatabase database;
    for (int i = 0; i < 300; ++i) {
        database.add(records.record());
    }
    LineParts bare;
    bare.date = "5/13/1960";
    bare.notes = "\"a\"/\"b\"";
    bare.order = "\"\"/0/0/0";
    database.addLine(bare.line());
    bare.name = "\"R\xE9n\xE9\"";
    bare.date = "5/6/1960";
    database.addLine(bare.line());
    bare.name = "\" .. \"";
    database.addLine(bare.line());
    LineParts quoted;
    quoted.second = "\"1\"/2/1990";
    quoted.numbers = "\"1\"/2";
    quoted.order = "\"UN\"/0/0/0";
    database.addLine(quoted.line());
    database.addLine(bare.line().substr(0, 70));

    ChartDatabase copy = database;
    const ChooserList list = listCharts(copy);
    ASSERT_EQ(list.rows.size(), database.size());
    core::Chart chart;
    std::size_t width = 0;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", line " + std::to_string(i));
        const ChooserRow& row = list.rows[i];
        database.read(i, chart);
        EXPECT_EQ(wideField(row.name), chart.name);
        EXPECT_EQ(row.date, (core::PlainDate{chart.time.year, chart.time.month, chart.time.day}));
        EXPECT_EQ(wideField(row.time), chart.timeText);
        EXPECT_EQ(wideField(row.code), chart.identity.code);
        EXPECT_EQ(row.tag, chart.identity.tag);
        EXPECT_EQ(row.sex, chart.identity.sex.empty() ? ' ' : char(chart.identity.sex[0]));
        width = std::max(width, chart.name.size());
    }
    EXPECT_EQ(list.nameWidth, width);
    EXPECT_EQ(copy.order(), DateOrder::MonthFirst) << "the flip of a line stays";
    EXPECT_EQ(copy.order(), database.order());
    EXPECT_EQ(listCharts(copy, true).rows[300].name, "Mira Example");
}

TEST(Chooser, RowTextAndShortLines)
{
    ChartDatabase database;
    database.addLine(lineOf("Mira"));
    database.addLine("too short");
    database.addLine(lineOf("\u092E\u0940"));
    database.addLine("");
    const ChooserList list = listCharts(database);
    ASSERT_EQ(list.rows.size(), 2U);
    EXPECT_EQ(list.tooShort, (std::vector<std::size_t>{1, 3}));
    EXPECT_EQ(list.rows[1].line, 2U);
    EXPECT_EQ(chooserText(list.rows[0], 6, DateOrder::DayFirst), L"Mira       5/ 3/1975    14:15");
    EXPECT_EQ(chooserText(list.rows[1], 4, DateOrder::MonthFirst),
              L"\u092E\u0940       3/ 5/1975    14:15");
    PreparedMessages messages;
    tellShortLine(list, database, messages);
    messages.expectOne(L"Notice",
                       L"Your database may be corrupted, a very short line was detected.\nTry "
                       L"opening the file with the same name but the extension '.BAK' which will "
                       L"be there if you used the file before.\nLine #2 \"too short\"");
    // Characters count, not bytes, and the line end does not.
    std::string text;
    for (std::size_t i = 0; i < kShortestLine; ++i) {
        EXPECT_TRUE(isShortLine(text));
        text += "\u0916";
    }
    EXPECT_FALSE(isShortLine(text));
    EXPECT_FALSE(isShortLine(std::string(kShortestLine, '\xE9')));
}

TEST(Chooser, SortOrders)
{
    const auto line = [](const char* name, const char* tag, const char* sex, const char* code) {
        LineParts parts;
        parts.head = std::string(tag) + "\t";
        parts.name = "\"" + std::string(name) + "\"";
        parts.sex = "\"" + std::string(sex) + "\"";
        parts.code = "\"" + std::string(code) + "\"";
        return parts.line();
    };
    ChartDatabase database;
    database.addLine(line("b", "A", "F", "x1"));
    database.addLine(line("\u00C4a", "P", "M", "x1"));
    database.addLine(line("C", "N", "", "x2"));
    database.addLine(line("a", "L", "F", ""));
    database.addLine(line("\u092E", "B", "M", "x1"));
    database.addLine(line("aB", "P", "M", ""));
    database.addLine(line("d", " ", "M", "x2"));
    const ChooserList list = listCharts(database);
    const auto sorted = [&](SortOrder order) {
        return sortedRows(list, order);
    };
    using Rows = std::vector<std::size_t>;
    EXPECT_EQ(sorted(SortOrder::Alphabetical), (Rows{3, 1, 5, 0, 2, 6, 4}));
    EXPECT_EQ(sorted(SortOrder::FileOrder), (Rows{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(sorted(SortOrder::NowAndLocation), (Rows{2, 3}));
    EXPECT_EQ(sorted(SortOrder::GroupA), (Rows{0}));
    EXPECT_EQ(sorted(SortOrder::GroupB), (Rows{4}));
    EXPECT_EQ(sorted(SortOrder::Male), (Rows{1, 4, 5, 6}));
    EXPECT_EQ(sorted(SortOrder::Female), (Rows{0, 3}));
    EXPECT_EQ(sorted(SortOrder::LinkedToPrimary), (Rows{1, 0, 4, 5}))
        << "an empty code links nothing, and x2 has no primary";
    EXPECT_EQ(sortOrderText(1), L"Unsorted (chronological)");
    EXPECT_EQ(sortOrderText(8), L"");
}

} // namespace
} // namespace kestrav::data
