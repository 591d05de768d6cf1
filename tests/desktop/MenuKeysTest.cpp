// Keys with Alt: those of the menus are the menus' own on every page.
#include "app/desktop/pages/PageStrip.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>

#include <map>
#include <string>

namespace kestrav::desktop
{
namespace
{

// The texts that a visible widget offers to Alt and a letter.
QStringList lettered(const QWidget& widget)
{
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        return {button->text()};
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
        return {group->title()};
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        return label->buddy() != nullptr ? QStringList(label->text()) : QStringList();
    }
    QStringList texts;
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            texts += tabs->tabText(tab);
        }
    }
    return texts;
}

// A key that two want only moves the focus, and the menu does not open.
TEST_F(WindowTest, NothingOnAPageTakesTheKeyOfAMenu)
{
    std::map<QString, QString> menus;
    for (const QAction* const menu : window().menuBar()->actions()) {
        menus[QKeySequence::mnemonic(menu->text()).toString()] = menu->text();
    }
    ASSERT_GE(menus.size(), 8U);
    ASSERT_EQ(menus.count(QString()), 0U) << "every menu has a key";
    for (int page = 0; page < window().pages().count(); ++page) {
        window().pages().show(page);
        settle();
        for (const QWidget* const widget : window().findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != &window()) {
                continue;
            }
            for (const QString& text : lettered(*widget)) {
                const auto menu = menus.find(QKeySequence::mnemonic(text).toString());
                EXPECT_TRUE(menu == menus.end())
                    << window().pages().name(page).toStdString() << ": " << text.toStdString()
                    << " of " << widget->objectName().toStdString() << " and the menu "
                    << menu->second.toStdString();
            }
        }
    }
}

} // namespace
} // namespace kestrav::desktop
