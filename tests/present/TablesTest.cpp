// Tables and documents: the order of cells, and what writers do with awkward texts.
#include "app/present/ChartTables.h"
#include "app/present/Document.h"
#include "app/present/Markup.h"
#include "app/present/SpecialPointTables.h"
#include "app/present/TableWriters.h"
#include "core/FileText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrav::present
{

namespace
{

Table smallTable()
{
    Table table = {"small", L"A & B", {{L"Name"}, {L"Value", Align::Right}}};
    table.add({L"one", Cell(L"-0.52", -0.52)});
    table.add({L"=1+2", Cell(L"--")});
    table.add({L"a \"b\", c", Cell(L"7", 7.0, {Subject::Moment, 0, 0, 2450424.5})});
    table.notes.push_back(L"x < y");
    return table;
}

const std::wstring kDevanagari = L"\u0926\u0947\u0935\u0940";
const std::wstring kBeyond(1, wchar_t{0x1F319});

} // namespace

TEST(Tables, CellsAreOrderedByKeyAndThenByText)
{
    const Cell two(L"2", 2.0);
    const Cell ten(L"10", 10.0);
    const Cell text(L"--");
    const Cell other(L"later");
    EXPECT_LT(compareCells(two, ten), 0);
    EXPECT_GT(compareCells(ten, two), 0);
    // What has no number comes last in either order of asking.
    EXPECT_LT(compareCells(ten, text), 0);
    EXPECT_GT(compareCells(text, ten), 0);
    EXPECT_LT(compareCells(text, other), 0);
    EXPECT_EQ(compareCells(two, Cell(L"2", 2.0)), 0);
    EXPECT_LT(compareCells(Cell(L"a", 1.0), Cell(L"b", 1.0)), 0);
}

TEST(Tables, SideBySideKeepsEveryRow)
{
    for (int count = 0; count <= 5; ++count) {
        Table table = {"t", L"", {{L"A"}, {L"B", Align::Right}}};
        for (int i = 0; i < count; ++i) {
            table.add({std::to_wstring(i), L"b"});
        }
        const Table wide = sideBySide(table);
        ASSERT_EQ(wide.columns.size(), 5U);
        ASSERT_EQ(wide.rows.size(), std::size_t(count + 1) / 2);
        std::vector<std::wstring> down;
        for (const std::size_t column : {0U, 3U}) {
            for (const Row& row : wide.rows) {
                ASSERT_EQ(row.size(), 5U);
                if (!row[column].text.empty()) {
                    down.push_back(row[column].text);
                }
            }
        }
        ASSERT_EQ(down.size(), std::size_t(count));
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(down[std::size_t(i)], std::to_wstring(i));
        }
    }
}

TEST(Tables, MagnitudesHaveColumnsWhereTheyAreComputed)
{
    ComputedChart computed;
    for (const int point : core::kBodies) {
        core::at(computed.chart.degreeInSign, point) = 1.0;
    }
    computed.chart.degreeInSign[core::kPluto] = core::kNotComputed;
    computed.chart.magnitude[core::kVenus] = -4.42;
    computed.chart.phase[core::kVenus] = 0.254;
    EXPECT_EQ(positionsTable(computed).columns.size(), 9U);
    computed.settings.magnitudes = true;
    const Table table = positionsTable(computed);
    ASSERT_EQ(table.columns.size(), 11U);
    for (const Row& row : table.rows) {
        ASSERT_EQ(row.size(), 11U);
        EXPECT_EQ(row[9].text.empty(),
                  row[0].link.index <= core::kMoon || row[0].link.index == core::kRahu ||
                      row[0].link.index == core::kKetu || row[0].link.index == core::kPluto);
    }
    EXPECT_EQ(table.rows[5][9].text, L"-4.4");
    EXPECT_EQ(table.rows[5][10].text, L"25");
    computed.chart.hasMoment = false;
    EXPECT_EQ(positionsTable(computed).columns.size(), 9U);
}

TEST(TableWriters, CsvQuotesAndHoldsFormulasBackButNotNumbers)
{
    EXPECT_EQ(tableCsv(smallTable()), "Name,Value\r\n"
                                      "one,-0.52\r\n"
                                      "'=1+2,'--\r\n"
                                      "\"a \"\"b\"\", c\",7\r\n");
    Table labelled = labelledTable("l", L"Title");
    labelled.add({L"@A", L"two\nlines"});
    EXPECT_EQ(tableCsv(labelled), "'@A,\"two\nlines\"\r\n");
}

TEST(TableWriters, TextKeepsItsLines)
{
    EXPECT_EQ(tableText(smallTable()), L"A & B\n"
                                       L"Name      Value\n"
                                       L"one       -0.52\n"
                                       L"=1+2         --\n"
                                       L"a \"b\", c      7\n"
                                       L"x < y\n");
    // A tab or a line end in a cell would break the columns.
    Table table = {"t", L"", {{L"A"}, {L"B"}}};
    table.add({L"a\tb\nc", L"d"});
    EXPECT_EQ(tableText(table), L"A      B\na b c  d\n");
    // A text that breaks stands beside narrow columns and below wide ones.
    for (const std::size_t width : {10U, 70U}) {
        Table broken = {"b", L"", {{L"A"}, {L"Why", Align::Wrapped}}};
        std::wstring words = L"word";
        for (int i = 0; i < 30; ++i) {
            words += L" word";
        }
        broken.add({std::wstring(width, L'x'), words});
        const std::wstring text = tableText(broken);
        EXPECT_EQ(text.find(L"x  word") != std::wstring::npos, width == 10U);
        EXPECT_EQ(text.find(L"x\n    word word") != std::wstring::npos, width == 70U);
        std::size_t longest = 0;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find(L'\n', start);
            longest = std::max(longest, end - start);
            start = end + 1;
        }
        EXPECT_GT(longest, 90U);
        EXPECT_LE(longest, 100U);
    }
}

TEST(TableWriters, HtmlEscapesEveryText)
{
    const std::string html = tableHtml(smallTable());
    EXPECT_NE(html.find("<caption>A &amp; B</caption>"), std::string::npos);
    EXPECT_NE(html.find("<td>a &quot;b&quot;, c</td>"), std::string::npos);
    EXPECT_NE(html.find("<td class=\"number\">-0.52</td>"), std::string::npos);
    EXPECT_NE(html.find("<p class=\"note\">x &lt; y</p>"), std::string::npos);
    Table labelled = labelledTable("l", L"");
    labelled.add({L"<b>", L"v"});
    EXPECT_NE(tableHtml(labelled).find("<th scope=\"row\">&lt;b&gt;</th><td>v</td>"),
              std::string::npos);
}

TEST(TableWriters, RtfWritesEveryCharacterInAscii)
{
    EXPECT_EQ(rtfText(L"a\\{b}\tc\nd"), "a\\\\\\{b\\}\\tab c\\line d");
    EXPECT_EQ(rtfText(kDevanagari), "\\u2342?\\u2375?\\u2357?\\u2368?");
    // Units from U+8000 are negative numbers; what lies beyond U+FFFF takes two.
    EXPECT_EQ(rtfText(L"\u9F8D"), "\\u-24691?");
    EXPECT_EQ(rtfText(kBeyond), "\\u-10180?\\u-8423?");
    Table awkward = smallTable();
    awkward.title = kDevanagari;
    awkward.notes.push_back(kBeyond);
    for (const char character : tableRtf(awkward, 9000)) {
        EXPECT_EQ(character & 0x80, 0);
    }
    // A table that is too wide is drawn together, and its columns still end in order.
    Table wide = {"w", L"", std::vector<Column>(30, Column{L"Heading of a column"})};
    wide.add(Row(30, Cell(L"1")));
    const std::string drawn = tableRtf(wide, 9000);
    int last = 0;
    std::size_t columns = 0;
    for (std::size_t at = drawn.find("\\cellx"); at != std::string::npos;
         at = drawn.find("\\cellx", at + 1)) {
        const int end = std::atoi(drawn.c_str() + at + 6);
        last = columns % 30 == 0 ? 0 : last;
        EXPECT_GT(end, last);
        EXPECT_LE(end, 9000);
        last = end;
        ++columns;
    }
    EXPECT_EQ(columns, 60U);
}

TEST(TableWriters, JsonTellsWhatCellsAreAbout)
{
    const std::string json = tableJson(smallTable());
    EXPECT_NE(json.find(R"({"text":"-0.52","sortKey":-0.52,"about":null})"), std::string::npos);
    EXPECT_NE(
        json.find(R"("about":{"subject":"moment","index":null,"varga":null,"moment":2450424.5})"),
        std::string::npos);
}

TEST(Documents, EveryKindOfBlockIsWritten)
{
    Document document;
    document.title = L"<" + kDevanagari + L">";
    document.head = {L"head \\ line"};
    document.blocks = {Heading{L"First"}, Paragraph{L"one\n\n two\n", false},
                       PageBreak(),       Heading{L"Second"},
                       smallTable(),      Paragraph{L"a  b\n c\n", true}};
    EXPECT_EQ(documentText(document), document.title +
                                          L"\n======\nhead \\ line\n\nFirst\n-----\n"
                                          L"one\n\n two\n\f"
                                          L"Second\n------\n" +
                                          tableText(smallTable()) + L"\na  b\n c\n");
    const std::string html = documentHtml(document);
    EXPECT_NE(html.find("<title>&lt;" + core::toUtf8(kDevanagari) + "&gt;</title>"),
              std::string::npos);
    EXPECT_NE(html.find("<p>one</p>\n<p> two</p>\n"), std::string::npos);
    EXPECT_NE(html.find("<pre>a  b\n c\n</pre>"), std::string::npos);
    const std::string rtf = documentRtf(document, 215.9, 279.4);
    EXPECT_NE(rtf.find("\\paperw12240\\paperh15840"), std::string::npos);
    EXPECT_NE(rtf.find("head \\\\ line"), std::string::npos);
    EXPECT_NE(rtf.find("a\\~\\~b\\line \\~c}"), std::string::npos);
    EXPECT_EQ(documentCsv(document), "A & B\r\n" + tableCsv(smallTable()));
}

} // namespace kestrav::present
