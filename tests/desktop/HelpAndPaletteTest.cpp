// Help topics, keys of the user's own, the palette, and the words of the command line.
#include "app/desktop/help/HelpActions.h"
#include "app/desktop/help/HelpTopics.h"
#include "app/desktop/help/THelpForm.h"
#include "app/desktop/help/TQuickTipsDlg.h"
#include "app/desktop/help/TShortcutsDlg.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/palette/PaletteMatch.h"
#include "app/desktop/palette/TPaletteDlg.h"
#include "app/desktop/start/ProgramOptions.h"
#include "app/desktop/start/SingleInstance.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabBar>
#include <QTableWidget>
#include <QTextBrowser>

namespace kestrav::desktop
{
namespace
{

TEST_F(WindowTest, HelpOpensAtTheTopicOfWhatHasTheFocus)
{
    EXPECT_EQ(helpPage(QStringLiteral("TOptionsDlg")), QStringLiteral("options.html"));
    EXPECT_EQ(helpPage(QStringLiteral("settings.html#houseSystem")),
              QStringLiteral("settings.html#houseSystem"));
    EXPECT_EQ(helpPage(QStringLiteral("no such thing")), QStringLiteral("index.html"));

    emit workspace().helpWanted(QStringLiteral("settings.html#houseSystem"));
    settle();
    auto* const form = window().findChild<THelpForm*>();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->page(), QStringLiteral("settings.html"));
    emit workspace().helpWanted(QStringLiteral("dashas"));
    EXPECT_EQ(form->page(), QStringLiteral("dashas.html"));
    form->close();
    settle();
    EXPECT_GE(quickTips().size(), 20);

    // From the strip of pages it is the page that is told about, from a caption its cell.
    const auto topicFrom = [this](QWidget& focus) {
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        focus.setFocus();
        EXPECT_EQ(QApplication::focusWidget(), &focus);
        command("HelpAction");
        auto* const opened = window().findChild<THelpForm*>();
        const QString page = opened != nullptr ? opened->page() : QString();
        delete opened;
        return page;
    };
    window().pages().show(QStringLiteral("Dashas"));
    settle();
    EXPECT_EQ(topicFrom(*window().pages().findChild<QTabBar*>()), QStringLiteral("dashas.html"));
    const PanelCell* const diagram = window().pages().page()->cells()[1];
    EXPECT_EQ(topicFrom(*find<QComboBox>("VargaComboBox", diagram)),
              QStringLiteral("diagrams.html"));
}

TEST_F(WindowTest, HelpIsSearchedFromPageToPage)
{
    THelpForm form(&window());
    form.show();
    form.showTopic(QStringLiteral("accuracy.html"));
    auto* const find_ = find<QLineEdit>("FindEdit", &form);
    auto* const missing = find<QLabel>("MissingLabel", &form);
    QTest::keyClicks(find_, "groom");
    QTest::keyClick(find_, Qt::Key_Return);
    EXPECT_EQ(form.page(), QStringLiteral("matching.html"));
    EXPECT_EQ(find<QTextBrowser>("HelpBrowser", &form)->textCursor().selectedText(),
              QStringLiteral("groom"));
    EXPECT_FALSE(missing->isVisible());
    find_->setText(QStringLiteral("no such words anywhere"));
    QTest::keyClick(find_, Qt::Key_Return);
    EXPECT_EQ(form.page(), QStringLiteral("matching.html"));
    EXPECT_TRUE(missing->isVisible());
}

TEST_F(WindowTest, QuickTipsGoOnAndCanBeSwitchedOff)
{
    QString first;
    {
        TQuickTipsDlg dialog(workspace(), &window());
        first = find<QLabel>("TipLabel", &dialog)->text();
        find<QCheckBox>("ShowCheckBox", &dialog)->click();
    }
    EXPECT_FALSE(workspace().settings().quickTips);
    TQuickTipsDlg next(workspace(), &window());
    EXPECT_NE(find<QLabel>("TipLabel", &next)->text(), first);
}

TEST_F(WindowTest, KeysOfTheUserAreKeptAndDoNotClash)
{
    auto* const palette = find<QAction>("PaletteAction");
    const auto giveKeys = [&](const QKeySequence& keys) {
        TShortcutsDlg dialog(window());
        auto* const table = find<QTableWidget>("KeyTable", &dialog);
        const auto row = table->findItems(QStringLiteral("Find Anything"), Qt::MatchExactly);
        EXPECT_EQ(row.size(), 1);
        table->setCurrentItem(row.constFirst());
        auto* const edit = find<QKeySequenceEdit>("KeysEdit", &dialog);
        edit->setKeySequence(keys);
        emit edit->editingFinished();
        return find<QLabel>("ClashLabel", &dialog)->text();
    };
    EXPECT_FALSE(giveKeys(QKeySequence(QStringLiteral("Ctrl+P"))).isEmpty());
    EXPECT_EQ(palette->shortcut(), QKeySequence(QStringLiteral("Ctrl+K")));
    EXPECT_TRUE(giveKeys(QKeySequence(QStringLiteral("Ctrl+Alt+J"))).isEmpty());
    openWindow();
    EXPECT_EQ(find<QAction>("PaletteAction")->shortcut(),
              QKeySequence(QStringLiteral("Ctrl+Alt+J")));
}

TEST_F(WindowTest, PaletteFindsByLettersInTheirOrder)
{
    EXPECT_FALSE(paletteMatch("xyz", "Mars in Navamsha (D-9)"));
    EXPECT_FALSE(paletteMatch("sram", "Mars"));
    EXPECT_TRUE(paletteMatch("mars in d-9", "Mars in Navamsha (D-9)"));
    EXPECT_TRUE(paletteMatch("edith", QStringLiteral("\u00C9dith Piaf")));
    EXPECT_GT(*paletteMatch("sav", "Save"), *paletteMatch("sav", "Special dates average"));
    EXPECT_GT(*paletteMatch("op", "Open Database"), *paletteMatch("op", "Copy"));
    EXPECT_GT(*paletteMatch("quit", "Quit"), *paletteMatch("quit", "Quick Tips"));

    TPaletteDlg dialog(window());
    dialog.show();
    auto* const find_ = find<QLineEdit>("FindEdit", &dialog);
    auto* const list = find<QListWidget>("EntryList", &dialog);
    QTest::keyClicks(find_, "Mars in D-9");
    ASSERT_GT(list->count(), 0);
    EXPECT_TRUE(list->item(0)->text().startsWith(QStringLiteral("Mars in Navamsha")));
    QTest::keyClick(find_, Qt::Key_Return);
    settle();
    EXPECT_EQ(workspace().selection().subject, present::Subject::Point);
    EXPECT_EQ(workspace().selection().index, 3);
    EXPECT_EQ(workspace().selection().varga, 5);
    EXPECT_FALSE(dialog.isVisible());

    TPaletteDlg pages(window());
    pages.show();
    QTest::keyClicks(find<QLineEdit>("FindEdit", &pages), "ashtaka");
    QTest::keyClick(find<QLineEdit>("FindEdit", &pages), Qt::Key_Return);
    settle();
    EXPECT_EQ(window().pages().name(window().pages().current()), QStringLiteral("Ashtakavarga"));
}

TEST(ProgramOptions, AreReadOrRefusedInWords)
{
    const auto parsed = parseOptions({"--page=Vargas", "--scale", "2", "a.ksc", "--", "--odd"});
    ASSERT_TRUE(parsed.ok());
    EXPECT_EQ(parsed.value().page, "Vargas");
    EXPECT_EQ(parsed.value().scale, 2.0);
    EXPECT_EQ(parsed.value().files, (std::vector<std::string>{"a.ksc", "--odd"}));
    const std::pair<std::vector<std::string>, std::string> refused[] = {
        {{"--bogus"}, "unknown option '--bogus'; try --help"},
        {{"--scale", "9"}, "--scale '9' is not a number from 1 to 4"},
        {{"--scheme", "red"}, "--scheme 'red' is not light or dark"},
        {{"--screenshot", "Chart"}, "--screenshot needs the name of a page and a file"},
        {{"--batch=1"}, "--batch takes no value"},
        {{"--page"}, "--page needs a value"}};
    for (const auto& [words, message] : refused) {
        const auto result = parseOptions(words);
        ASSERT_FALSE(result.ok()) << message;
        EXPECT_EQ(result.error().text(), message);
    }
    for (const OptionInfo& option : optionTable()) {
        EXPECT_NE(helpText().find(std::string(option.name)), std::string::npos);
        for (const char* const shell : {"bash", "zsh"}) {
            EXPECT_NE(completionScript(shell).find(std::string(option.name)), std::string::npos)
                << shell << " " << option.name;
        }
    }
    EXPECT_TRUE(completionScript("tcsh").empty());
}

TEST_F(WindowTest, SecondStartHandsItsFilesToTheFirst)
{
    SingleInstance first;
    EXPECT_FALSE(first.handOver({}));
    QSignalSpy asked(&first, &SingleInstance::asked);
    SingleInstance second;
    const QStringList files = {QStringLiteral("/a.ksc"), QStringLiteral("/b.ksy")};
    EXPECT_TRUE(second.handOver(files));
    ASSERT_TRUE(asked.wait());
    EXPECT_EQ(asked.constFirst().constFirst().toStringList(), files);
}

TEST(Filters, OfferBothCasesOfTheirPatterns)
{
    EXPECT_EQ(toolkitFilter(L"Kestrav backup of data files (*.bak)|*.bak"),
              QStringLiteral("Kestrav backup of data files (*.bak *.BAK)"));
    EXPECT_EQ(toolkitFilter(L"A (*.a or *.b)|*.a;*.b|Any (*)|*"),
              QStringLiteral("A (*.a *.b *.A *.B);;Any (*)"));
}

} // namespace
} // namespace kestrav::desktop
