// The keys of the window, pressed.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>
#include <QTreeView>

namespace kestrav::desktop
{
namespace
{

class KeysTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        activate();
    }

    void activate()
    {
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        find<QTreeView>("ChartList")->setFocus();
    }

    void press(const char* keys)
    {
        const int code = QKeySequence(QLatin1String(keys))[0].toCombined();
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &window(),
                        Qt::Key(code & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(code & int(Qt::KeyboardModifierMask)));
        settle();
    }

    /// Presses a key that opens a modal dialog, and closes that again.
    std::string dialogOf(const char* keys)
    {
        activate();
        std::string name;
        int tries = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                return;
            }
            name = toUtf8(dialog->objectName());
            if (++tries < 3) {
                QTest::keyClick(dialog, Qt::Key_Escape);
            } else {
                ADD_FAILURE() << name << " does not close with Esc";
                dialog->reject();
            }
        });
        timer.start(10);
        press(keys);
        return name;
    }

    bool shown(const char* pane)
    {
        return find<QWidget>(pane)->isVisible();
    }

    int cellWithFocus()
    {
        const QList<PanelCell*> cells = window().pages().page()->cells();
        for (int i = 0; i < int(cells.size()); ++i) {
            if (cells[i]->isAncestorOf(QApplication::focusWidget())) {
                return i;
            }
        }
        return -1;
    }
};

TEST_F(KeysTest, PanesPagesAndCells)
{
    for (const auto& [key, pane] : {std::pair("F9", "ChartListPane"), std::pair("F11", "DateBar"),
                                    std::pair("F10", "InspectorPanel")}) {
        press(key);
        EXPECT_FALSE(shown(pane)) << key;
        press(key);
        EXPECT_TRUE(shown(pane)) << key;
    }
    press("Ctrl+3");
    EXPECT_EQ(window().pages().current(), 2);
    press("Ctrl+Tab");
    EXPECT_EQ(window().pages().current(), 3);
    press("Ctrl+Shift+Tab");
    press("Ctrl+1");
    EXPECT_EQ(window().pages().current(), 0);
    press("F6");
    const int first = cellWithFocus();
    press("F6");
    EXPECT_EQ(cellWithFocus(), first + 1);
    press("Shift+F6");
    EXPECT_EQ(cellWithFocus(), first);
    press("Ctrl+F");
    EXPECT_EQ(QApplication::focusWidget(), find<QLineEdit>("FilterEdit"));
}

TEST_F(KeysTest, SharedDateAndLetters)
{
    const double before = workspace().moment();
    press("Alt+Right");
    EXPECT_NEAR(workspace().moment(), before + 1.0, 1e-6);
    press("Alt+Left");
    press("Alt+Left");
    EXPECT_NEAR(workspace().moment(), before - 1.0, 1e-6);
    press("F5");
    EXPECT_NEAR(workspace().moment(), Workspace::now(), 1e-6);
    press("Ctrl++");
    EXPECT_EQ(workspace().settings().fontPercent, 110);
    press("Ctrl+-");
    press("Ctrl+-");
    EXPECT_EQ(workspace().settings().fontPercent, 90);
    press("Ctrl+0");
    EXPECT_EQ(workspace().settings().fontPercent, 100);
}

TEST_F(KeysTest, DialogsOpenAndCloseWithEsc)
{
    EXPECT_EQ(dialogOf("Ctrl+D"), "TSelectDashaDlg");
    EXPECT_EQ(dialogOf("Ctrl+K"), "TPaletteDlg");
    EXPECT_EQ(dialogOf("Ctrl+T"), "TPageLayoutDlg");
    EXPECT_EQ(dialogOf("Ctrl+P"), "TPrintPreviewForm");
    for (const char* const keys : {"Ctrl+N", "Ctrl+E"}) {
        activate();
        press(keys);
        auto* const form = find<QDialog>("TDataEntryForm");
        ASSERT_TRUE(form != nullptr && form->isVisible()) << keys;
        QTest::keyClick(form, Qt::Key_Escape);
        settle();
        EXPECT_FALSE(form->isVisible()) << keys;
    }
    activate();
    press("F1");
    auto* const help = find<QDialog>("THelpForm");
    ASSERT_TRUE(help != nullptr && help->isVisible());
    help->close();
}

} // namespace
} // namespace kestrav::desktop
