// Options after a restart, and what the tree of dashas selects by itself.
#include "app/desktop/options/SettingRows.h"
#include "app/desktop/options/TOptionsDlg.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/present/DiagramOptions.h"
#include "app/present/Table.h"
#include "core/Settings.h"
#include "tests/desktop/DesktopForTests.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTreeView>

namespace kestrav::desktop
{
namespace
{

// Every option is changed in the dialog with the keys of its control, and read again by a new
// start.
TEST_F(WindowTest, EveryOptionIsThereAfterARestart)
{
    const core::Settings before = workspace().settings();
    {
        TOptionsDlg dialog(window(), &window());
        for (const core::SettingInfo& info : core::settingsTable()) {
            auto* const row = find<QWidget>(("Row-" + std::string(info.name)).c_str(), &dialog);
            ASSERT_NE(row, nullptr);
            if (auto* const box = row->findChild<QCheckBox*>()) {
                box->click();
            } else if (auto* const chooser = row->findChild<QComboBox*>()) {
                QTest::keyClick(chooser, chooser->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
            } else if (auto* const number = row->findChild<QAbstractSpinBox*>()) {
                QTest::keyClick(number, Qt::Key_Down);
            } else {
                QTest::keyClicks(row->findChild<QLineEdit*>(), QStringLiteral("x"));
            }
        }
        find<QPushButton>("OkButton", &dialog)->click();
    }
    settle();
    const core::Settings chosen = workspace().settings();
    openWindow();
    for (const core::SettingInfo& info : core::settingsTable()) {
        if (info.name == "wizardDone") { // which every window of the tests has seen
            continue;
        }
        const std::string now = core::settingText(workspace().settings(), info);
        EXPECT_EQ(now, core::settingText(chosen, info)) << info.name;
        EXPECT_NE(now, core::settingText(before, info)) << info.name;
        // The window has names for the values, so it does not explain them by numbers.
        const QString meaning = settingMeaning(info);
        EXPECT_TRUE(meaning.front().isUpper()) << meaning.toStdString();
        EXPECT_FALSE(!settingChoices(info, before).isEmpty() &&
                     meaning.contains(QRegularExpression(QStringLiteral("\\b[0-3]\\b"))))
            << meaning.toStdString();
    }
    TMessages::takeShown();
}

TEST_F(WindowTest, SymbolsStandInDiagramsAndWordsEverywhereElse)
{
    core::Settings settings = workspace().settings();
    settings.displayFlags = int(core::kEnglishNames | core::kGlyphNames);
    workspace().changeSettings(settings);
    settle();
    const auto* const tree = find<QTreeView>("DashaTree");
    EXPECT_EQ(tree->model()->index(0, 0).data().toString(), "Mercury");
    EXPECT_EQ(present::pointCell(core::kSun).text, L"Sun");
    EXPECT_TRUE(present::diagramOptionsOf(workspace().settings()).glyphs);
}

TEST_F(WindowTest, TheTreeOfDashasInspectsOnlyWhatTheUserSelects)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Dashas")));
    settle();
    auto* const tree = find<QTreeView>("DashaTree", window().pages().page());
    window().activateWindow();
    tree->setFocus();
    ASSERT_TRUE(tree->hasFocus());
    const present::Link mars{present::Subject::Point, core::kMars};
    workspace().select(mars);
    ASSERT_TRUE(workspace().showLine(1));
    settle();
    ASSERT_TRUE(tree->currentIndex().isValid()) << "opened at the running period";
    EXPECT_EQ(workspace().selection(), mars);
    QTest::keyClick(tree, Qt::Key_Up);
    EXPECT_FALSE(workspace().selection() == mars);
}

} // namespace
} // namespace kestrav::desktop
