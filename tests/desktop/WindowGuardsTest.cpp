// What must hold of every window, page, form and dialog.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/start/Gallery.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QMap>
#include <QMenu>

namespace kestrav::desktop
{
namespace
{

TEST_F(WindowTest, CommandsHaveTextsAndNoTwoHaveTheSameKeys)
{
    QMap<QString, QString> owners;
    for (const QAction* const action : window().commands()) {
        EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
        EXPECT_FALSE(action->objectName().isEmpty()) << action->text().toStdString();
        for (const QKeySequence& keys : action->shortcuts()) {
            const QString text = keys.toString();
            EXPECT_FALSE(owners.contains(text))
                << text.toStdString() << ": " << action->objectName().toStdString() << " and "
                << owners[text].toStdString();
            owners[text] = action->objectName();
        }
    }
}

TEST_F(WindowTest, EveryPageShowsItsPanels)
{
    for (int page = 0; page < window().pages().count(); ++page) {
        window().pages().show(page);
        settle();
        ASSERT_NE(window().pages().page(), nullptr);
        EXPECT_EQ(window().pages().current(), page);
    }
}

} // namespace
} // namespace kestrav::desktop
