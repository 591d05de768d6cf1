// Pages and reports on paper: nothing is left out, and texts stay texts.
#include "app/desktop/printing/Printing.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/printing/TPrintPreviewForm.h"
#include "app/present/Report.h"
#include "core/Files.h"
#include "tests/desktop/DesktopForTests.h"

#include <QProcess>
#include <QTimer>

#include <string>

namespace kestrav::desktop
{
namespace
{

// The words of a PDF file as a reader copies them.
std::string wordsOf(const QString& file)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), file, QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is needed";
    return reader.readAllStandardOutput().toStdString();
}

int count(const std::string& text, const std::string& word)
{
    int found = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        ++found;
    }
    return found;
}

present::Table longTable(int rows)
{
    present::Table table;
    table.id = "long";
    table.title = L"A long table";
    table.columns = {{L"Number", present::Align::Right}, {L"Words", present::Align::Wrapped}};
    for (int i = 1; i <= rows; ++i) {
        table.add({L"row" + std::to_wstring(i) + L".", L"some words that stand beside it"});
    }
    return table;
}

TEST_F(WindowTest, PdfOfAPageHoldsItsTextsUnderTheHeadOfItsChart)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    const QString file = home_.filePath(QStringLiteral("page.pdf"));
    ASSERT_TRUE(
        writePdf(paperOfPage(*window().pages().page(), workspace()), chosenPaper(), file).ok());
    const std::string words = wordsOf(file);
    const std::string name = core::toUtf8(workspace().chart()->chart.name);
    EXPECT_EQ(words.find(name) != std::string::npos, true) << words;
    EXPECT_GE(count(words, "Navamsha"), 1);
    EXPECT_GE(count(words, "Ascendant"), 1);
    EXPECT_GE(count(words, "Page 1 of "), 1);
    EXPECT_GE(count(words, "Kestrav " KESTRAV_VERSION), 1);
}

TEST_F(WindowTest, LongTablesGoOnWithTheirHeadingsAndLoseNoRow)
{
    present::Document report;
    report.title = L"Paper";
    report.head = {L"Of nobody"};
    report.blocks = {present::Heading{L"First"}, longTable(200), present::PageBreak{},
                     present::Heading{L"Second"}, present::Paragraph{L"One line\nand another"}};
    const QString file = home_.filePath(QStringLiteral("report.pdf"));
    ASSERT_TRUE(writePdf(paperOfReport(report), chosenPaper(), file).ok());
    const std::string words = wordsOf(file);
    for (int i = 1; i <= 200; ++i) {
        EXPECT_EQ(count(words, " row" + std::to_string(i) + ".") +
                      count(words, "\nrow" + std::to_string(i) + "."),
                  1)
            << i;
    }
    const int sheets = count(words, "\f");
    EXPECT_GE(sheets, 4);
    EXPECT_EQ(count(words, "Of nobody"), sheets) << "the head stands on every sheet";
    EXPECT_EQ(count(words, "Number"), sheets - 1) << "the headings on every sheet of the table";
    EXPECT_EQ(words.find("Second") > words.rfind("row200"), true);

    // In a small cell the rest follows on the next sheets.
    PaperDocument page;
    page.title = L"Paper";
    page.cells = {{QRectF(0.0, 0.0, 0.5, 0.3), L"Small", {longTable(60)}},
                  {QRectF(0.5, 0.0, 0.5, 1.0), L"Other", {longTable(3)}}};
    ASSERT_TRUE(writePdf(page, chosenPaper(), file).ok());
    EXPECT_GE(count(wordsOf(file), "row60."), 1);
}

TEST_F(WindowTest, PreviewSavesThePdfAndAsksBeforeReplacing)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    TPrintPreviewForm preview(paperOfPage(*window().pages().page(), workspace()), workspace(),
                              &window());
    preview.show();
    settle();
    const QString file = home_.filePath(QStringLiteral("preview.pdf"));
    QFile existing(file);
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    existing.close();
    TMessages::prepare(file);
    TMessages::prepare(core::Answer::No);
    auto* const pdf = find<QWidget>("PdfButton", &preview);
    QTest::mouseClick(pdf, Qt::LeftButton);
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].caption, QStringLiteral("Warning"));
    EXPECT_EQ(shown[1].text, QStringLiteral("File exists. Overwrite?"));
    EXPECT_EQ(QFileInfo(file).size(), 0);

    TMessages::prepare(file);
    TMessages::prepare(core::Answer::Yes);
    QTest::mouseClick(pdf, Qt::LeftButton);
    static_cast<void>(TMessages::takeShown());
    EXPECT_GT(QFileInfo(file).size(), 1000);
}

} // namespace
} // namespace kestrav::desktop
