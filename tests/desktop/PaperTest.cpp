// What the delivered pages look like on paper: every drawing named, wide and long tables in full.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/printing/Printing.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAbstractButton>
#include <QProcess>

#include <string>

namespace kestrav::desktop
{
namespace
{

class PaperTest : public WindowTest
{
protected:
    // The words of the document as a PDF, with a form feed behind every sheet.
    std::string wordsOf(const PaperDocument& document)
    {
        const QString file = home_.filePath(QStringLiteral("paper.pdf"));
        EXPECT_TRUE(writePdf(document, chosenPaper(), file).ok());
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-layout"), file, QStringLiteral("-")});
        EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is needed";
        return reader.readAllStandardOutput().toStdString();
    }

    std::string wordsOfPage(const char* name)
    {
        EXPECT_TRUE(window().pages().show(QLatin1String(name)));
        settle();
        return wordsOf(paperOfPage(*window().pages().page(), workspace()));
    }
};

int count(const std::string& text, const std::string& word)
{
    int found = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        ++found;
    }
    return found;
}

present::Table tableOf(int columns, int rows)
{
    present::Table table;
    table.title = L"Many";
    for (int column = 0; column < columns; ++column) {
        table.columns.push_back({L"Column" + std::to_wstring(column), present::Align::Left});
    }
    for (int line = 1; line <= rows; ++line) {
        present::Row row;
        for (int column = 0; column < columns; ++column) {
            row.push_back({L"r" + std::to_wstring(line) + L"c" + std::to_wstring(column) + L"."});
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

TEST_F(PaperTest, ManySmallDrawingsFitOneSheetUnderTheirTitles)
{
    const std::string vargas = wordsOfPage("Vargas");
    for (const char* const title : {"D-1 Rashi", "D-9 Navamsha", "D-60", "D-108"}) {
        EXPECT_EQ(count(vargas.substr(0, vargas.find('\f')), title), 1) << title << '\n' << vargas;
    }
    const std::string bindus = wordsOfPage("Ashtakavarga");
    EXPECT_EQ(count(bindus, "Sarvashtakavarga: 337"), 1) << bindus;
    EXPECT_EQ(count(bindus, "Saturn: 39"), 1);
    EXPECT_EQ(count(bindus, "\f"), 1) << bindus;
    EXPECT_EQ(count(bindus, "Pinda"), 1) << "a title beside the same caption";
}

TEST_F(PaperTest, LongNarrowTablesGoOnInColumns)
{
    PaperDocument report;
    report.title = L"Columns";
    report.flow = {tableOf(2, 150), present::Heading{L"Behind"}, tableOf(2, 10)};
    const std::string words = wordsOf(report);
    for (int line = 1; line <= 150; ++line) {
        EXPECT_EQ(count(words, "r" + std::to_string(line) + "c1."), line <= 10 ? 2 : 1) << line;
    }
    EXPECT_LE(count(words, "\f"), 2) << words;
    EXPECT_GE(count(words, "Column1"), 3) << "headings above every column";
    EXPECT_GT(words.find("Behind"), words.find("r150c1."));
}

TEST_F(PaperTest, TablesTooWideForTheirCellFollowInFull)
{
    PaperDocument page;
    page.title = L"Cells";
    page.cells = {{QRectF(0.0, 0.0, 0.3, 0.5), L"Wide", {tableOf(16, 6)}},
                  {QRectF(0.3, 0.0, 0.7, 0.5), L"Narrow", {tableOf(3, 6)}},
                  {QRectF(0.0, 0.5, 1.0, 0.5), L"Long", {tableOf(2, 70)}}};
    const std::string words = wordsOf(page);
    EXPECT_EQ(words.find("\u2026"), std::string::npos) << words;
    EXPECT_EQ(count(words, "In full on the next sheets"), 2) << words;
    EXPECT_EQ(count(words, "r6c15."), 1);
    EXPECT_EQ(count(words, "r70c1."), 1);
    EXPECT_EQ(count(words.substr(0, words.find('\f')), "r6c2."), 1) << "the narrow one stays";
}

TEST_F(PaperTest, HeadAndCaptionsNameTheChartsThatArePrinted)
{
    const std::string first = core::toUtf8(workspace().chart()->chart.name);
    ASSERT_TRUE(window().pages().show(QStringLiteral("Report")));
    settle();
    find<QAbstractButton>("PinButton", window().pages().page())->click();
    ASSERT_TRUE(workspace().showLine(3));
    settle();
    const std::string other = core::toUtf8(workspace().chart()->chart.name);
    const std::string report = wordsOfPage("Report");
    EXPECT_GE(count(report, first), 1);
    EXPECT_EQ(count(report, other), 0) << report.substr(0, 400);

    ASSERT_TRUE(workspace().showSecond(workspace().chart()->chart));
    ASSERT_TRUE(workspace().showLine(0));
    settle();
    EXPECT_EQ(count(wordsOfPage("Compare"), "Rashi (" + other + ")"), 1);
}

TEST_F(PaperTest, EveryDeliveredPageIsPrintedUnderItsChart)
{
    for (int page = 0; page < window().pages().count(); ++page) {
        const std::string name = window().pages().name(page).toStdString();
        const std::string words = wordsOfPage(name.c_str());
        const int sheets = count(words, "\f");
        EXPECT_GE(sheets, 1) << name;
        EXPECT_LE(sheets, 12) << name;
        EXPECT_EQ(count(words, "Ayanamsa Lahiri"), sheets) << name << ": the head of every sheet";
        EXPECT_EQ(count(words, "Page 1 of " + std::to_string(sheets)), 1) << name;
    }
}

} // namespace
} // namespace kestrav::desktop
