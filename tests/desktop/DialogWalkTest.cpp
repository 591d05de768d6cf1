// Walking through dialogs and menus by the keyboard alone.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/palette/PaletteMatch.h"
#include "app/desktop/palette/TPaletteDlg.h"
#include "app/desktop/start/Gallery.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kestrav::desktop
{
namespace
{

std::string described(const QWidget* widget)
{
    return widget == nullptr ? "nothing"
                             : std::string(widget->metaObject()->className()) + " '" +
                                   widget->objectName().toStdString() + "'";
}

constexpr int kMostLinks = 200;
constexpr std::size_t kMostColumns = 2;

/// What the Tab key has to reach: of radio buttons that exclude each other the chosen one.
std::set<QWidget*> reachable(const QWidget& form)
{
    std::set<QWidget*> found;
    for (QWidget* const widget : form.findChildren<QWidget*>()) {
        const auto* const radio = qobject_cast<const QRadioButton*>(widget);
        if (widget->isVisible() && widget->isEnabled() && widget->window() == form.window() &&
            (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            widget->focusProxy() == nullptr && (radio == nullptr || radio->isChecked())) {
            found.insert(widget);
        }
    }
    return found;
}

/// Presses Tab until the walk is back where it began.
std::vector<QWidget*> walk(QWidget& form)
{
    std::vector<QWidget*> steps;
    std::set<QWidget*> seen;
    for (QWidget* at = form.focusWidget(); at != nullptr && seen.insert(at).second;) {
        steps.push_back(at);
        // Browsers go through their links before they let the focus go.
        for (int link = 0; link < kMostLinks && form.focusWidget() == steps.back(); ++link) {
            QTest::keyClick(steps.back(), Qt::Key_Tab);
        }
        at = form.focusWidget();
    }
    return steps;
}

QRect placeIn(const QWidget& form, const QWidget* widget)
{
    return {widget->mapTo(&form, QPoint()), widget->size()};
}

void expectWalk(QWidget& form, const std::string& name)
{
    const std::set<QWidget*> expected = reachable(form);
    if (expected.empty()) {
        return;
    }
    if (form.focusWidget() == nullptr) {
        (*expected.begin())->setFocus();
    }
    const std::vector<QWidget*> steps = walk(form);
    const std::set<QWidget*> seen(steps.begin(), steps.end());
    for (const QWidget* const widget : expected) {
        EXPECT_TRUE(seen.contains(const_cast<QWidget*>(widget)))
            << name << ": Tab never comes to " << described(widget) << "; it ends at "
            << described(steps.empty() ? nullptr : steps.back());
    }
    // On the way from field to field one goes down, or to the right; back up only to begin anew
    // or to go on in a column further right.
    std::size_t upwards = 0;
    for (std::size_t i = 0; i + 1 < steps.size(); ++i) {
        const QRect from = placeIn(form, steps[i]);
        const QRect to = placeIn(form, steps[i + 1]);
        if (to.bottom() < from.top() && to.left() <= from.left()) {
            ++upwards;
            EXPECT_LE(upwards, kMostColumns) << name << ": Tab goes up from " << described(steps[i])
                                             << " to " << described(steps[i + 1]);
        }
    }
}

void expectOwnLetters(const std::vector<QString>& texts, const std::string& where)
{
    std::map<QString, QString> owners;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty()) {
            continue;
        }
        EXPECT_FALSE(owners.contains(key) && owners[key] != text)
            << where << ": \"" << text.toStdString() << "\" and \"" << owners[key].toStdString()
            << "\" have the same letter";
        owners[key] = text;
    }
}

std::vector<QString> lettersOf(const QWidget& form)
{
    std::vector<QString> texts;
    for (const QWidget* const widget : form.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        if (!widget->isVisible() || widget->window() != &form) {
            continue;
        }
        if (label != nullptr && label->buddy() != nullptr) {
            texts.push_back(label->text());
        } else if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
            texts.push_back(button->text());
        } else if (const auto* const box = qobject_cast<const QGroupBox*>(widget)) {
            texts.push_back(box->title());
        }
    }
    if (const auto* const tabs = form.findChild<QTabBar*>()) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts.push_back(tabs->tabText(i));
        }
    }
    return texts;
}

TEST_F(WindowTest, TabWalksThroughEveryFormAndLettersChooseOneThing)
{
    for (const GalleryRow& row : gallery()) {
        const std::unique_ptr<QWidget> form(row.make(window()));
        ASSERT_NE(form, nullptr) << row.name;
        form->show();
        // A view that stands on a page has the focus of its page.
        if (!form->isWindow()) {
            continue;
        }
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get())) << row.name;
        settle();
        auto* const tabs = form->findChild<QTabWidget*>();
        const int pages = tabs != nullptr ? tabs->count() : 1;
        for (int page = 0; page < pages; ++page) {
            if (tabs != nullptr) {
                tabs->setCurrentIndex(page);
                settle();
            }
            const std::string name = row.name + std::string(", ") +
                                     (tabs != nullptr ? tabs->tabText(page).toStdString() : "");
            expectOwnLetters(lettersOf(*form), name);
            expectWalk(*form, name);
        }
        static_cast<void>(TMessages::takeShown());
    }
}

TEST_F(WindowTest, TabComesToEveryControlOfEveryPage)
{
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    for (int page = 0; page < window().pages().count(); ++page) {
        window().pages().show(page);
        settle();
        find<QTreeView>("ChartList")->setFocus();
        const std::vector<QWidget*> steps = walk(window());
        const std::set<QWidget*> seen(steps.begin(), steps.end());
        for (QWidget* const widget : reachable(*window().pages().page())) {
            EXPECT_TRUE(seen.contains(widget))
                << window().pages().name(page).toStdString() << ": Tab never comes to "
                << described(widget) << " of " << described(widget->parentWidget());
        }
    }
}

TEST_F(WindowTest, NoTwoCommandsOfAMenuShareALetter)
{
    const std::function<void(QMenu&, const std::string&)> look = [&](QMenu& menu,
                                                                     const std::string& where) {
        emit menu.aboutToShow();
        std::vector<QString> texts;
        for (const QAction* const action : menu.actions()) {
            if (action->isVisible() && !action->isSeparator()) {
                texts.push_back(action->text());
                EXPECT_FALSE(action->text().isEmpty()) << where;
            }
            if (action->menu() != nullptr) {
                look(*action->menu(), where + action->text().toStdString() + "/");
            }
        }
        expectOwnLetters(texts, where);
    };
    std::vector<QString> titles;
    for (const QAction* const action : window().menuBar()->actions()) {
        titles.push_back(action->text());
        EXPECT_FALSE(QKeySequence::mnemonic(action->text()).isEmpty())
            << action->text().toStdString();
        ASSERT_NE(action->menu(), nullptr);
        look(*action->menu(), action->text().toStdString() + "/");
    }
    expectOwnLetters(titles, "menu bar");
}

TEST_F(WindowTest, ThePaletteFindsEveryEntryByItsNameAndByItsFirstLetters)
{
    const std::vector<PaletteEntry> entries = paletteEntries(window());
    std::set<std::string> kinds;
    for (const PaletteEntry& entry : entries) {
        kinds.insert(entry.kind.toStdString());
        const auto best = [&](const QString& typed) {
            const PaletteEntry* first = nullptr;
            std::optional<int> worth;
            for (const PaletteEntry& other : entries) {
                const auto match = paletteMatch(typed, other.text);
                if (match && (!worth || *match > *worth)) {
                    worth = match;
                    first = &other;
                }
            }
            return first;
        };
        const PaletteEntry* const found = best(entry.text.toLower());
        ASSERT_NE(found, nullptr) << entry.text.toStdString();
        EXPECT_EQ(found->text.toStdString(), entry.text.toStdString());
        QString initials;
        for (const QString& word : entry.text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (word.front().isLetterOrNumber()) {
                initials += word.left(2);
            }
        }
        EXPECT_TRUE(paletteMatch(initials.toUpper(), entry.text).has_value())
            << initials.toStdString() << " in " << entry.text.toStdString();
    }
    EXPECT_EQ(kinds, (std::set<std::string>{"Chart", "Command", "Page", "Point", "Setting"}));
}

} // namespace
} // namespace kestrav::desktop
