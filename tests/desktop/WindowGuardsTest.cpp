// What must hold of every command, page, form and dialog.
#include "app/desktop/help/HelpTopics.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/start/Gallery.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/present/Colour.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <memory>
#include <string>

namespace kestrav::desktop
{
namespace
{

// What a user can reach and change, without the parts that the toolkit builds its controls from.
bool isControl(const QWidget& widget)
{
    const bool part = qobject_cast<const QHeaderView*>(&widget) != nullptr ||
                      widget.objectName().startsWith(QLatin1String("qt_")) ||
                      qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) != nullptr ||
                      qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
    return !part && widget.isVisible() && widget.focusPolicy() != Qt::NoFocus &&
           (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
            qobject_cast<const QLineEdit*>(&widget) != nullptr ||
            qobject_cast<const QComboBox*>(&widget) != nullptr ||
            qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
            qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
            qobject_cast<const QTextEdit*>(&widget) != nullptr ||
            qobject_cast<const QPlainTextEdit*>(&widget) != nullptr);
}

std::string described(const QWidget& widget)
{
    return std::string(widget.metaObject()->className()) + " '" +
           widget.objectName().toStdString() + "'";
}

void expectAccessibleNames(const QWidget& root, const std::string& where)
{
    for (QWidget* const widget : root.findChildren<QWidget*>()) {
        if (!isControl(*widget)) {
            continue;
        }
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(accessible, nullptr);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
            << where << ": " << described(*widget) << " has no name";
    }
}

// Words that have not the room that they need.
void expectWholeWords(const QWidget& root, const std::string& where)
{
    for (QWidget* const widget : root.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        if (!widget->isVisible() || (label == nullptr && button == nullptr) ||
            widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) {
            continue;
        }
        if (label != nullptr && (label->wordWrap() || label->text().isEmpty())) {
            continue;
        }
        const QSize needed = widget->minimumSizeHint();
        EXPECT_GE(widget->width() + 1, needed.width())
            << where << ": " << described(*widget) << " is cut";
        EXPECT_GE(widget->height() + 1, needed.height())
            << where << ": " << described(*widget) << " is cut";
    }
}

TEST_F(WindowTest, CommandsHaveTextsAndNoTwoHaveTheSameKeys)
{
    QMap<QString, QString> owners;
    for (const QAction* const action : window().findChildren<QAction*>()) {
        for (const QKeySequence& keys : action->shortcuts()) {
            const QString text = keys.toString();
            // Keys of a panel work in that panel only.
            if (action->shortcutContext() != Qt::WindowShortcut) {
                continue;
            }
            EXPECT_FALSE(owners.contains(text))
                << text.toStdString() << ": " << action->objectName().toStdString() << " and "
                << owners[text].toStdString();
            owners[text] = action->objectName();
        }
    }
    for (const QAction* const action : window().commands()) {
        EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
        EXPECT_FALSE(action->objectName().isEmpty()) << action->text().toStdString();
    }
}

TEST_F(WindowTest, PagesShowPanelsWithNamesForScreenReaders)
{
    for (int page = 0; page < window().pages().count(); ++page) {
        window().pages().show(page);
        settle();
        const std::string name = window().pages().name(page).toStdString();
        ASSERT_NE(window().pages().page(), nullptr);
        for (const PanelCell* const cell : window().pages().page()->cells()) {
            EXPECT_NE(QByteArray(cell->panel()->metaObject()->className()),
                      "kestrav::desktop::UnknownPanel")
                << name << ": " << cell->panel()->panel().content;
        }
        expectAccessibleNames(window(), name);
    }
}

TEST_F(WindowTest, FormsHaveNamesAndTopicsAndCloseWithEsc)
{
    for (const GalleryRow& row : gallery()) {
        const std::unique_ptr<QWidget> form(row.make(window()));
        ASSERT_NE(form, nullptr) << row.name;
        form->show();
        settle();
        expectAccessibleNames(*form, row.name);
        EXPECT_FALSE(form->windowTitle().isEmpty()) << row.name;
        const QString page = helpPage(QLatin1Char('T') + QLatin1String(row.name));
        EXPECT_TRUE(page != QLatin1String("index.html") ||
                    QLatin1String(row.name) == QLatin1String("HelpForm") ||
                    QLatin1String(row.name) == QLatin1String("AboutBox"))
            << row.name << " has no help topic";
        // A view that stands on a page has no Esc of its own.
        if (form->isWindow()) {
            QTest::keyClick(form.get(), Qt::Key_Escape);
            settle();
            EXPECT_FALSE(form->isVisible()) << row.name << " stays open after Esc";
        }
        static_cast<void>(TMessages::takeShown());
    }
}

TEST_F(WindowTest, FormsCutNoWordsWithLettersOfDoubleSize)
{
    const QFont before = QApplication::font();
    core::Settings settings = workspace().settings();
    settings.fontPercent = 200;
    workspace().changeSettings(settings);
    for (const GalleryRow& row : gallery()) {
        const std::unique_ptr<QWidget> form(row.make(window()));
        ASSERT_NE(form, nullptr) << row.name;
        form->show();
        settle();
        expectWholeWords(*form, row.name);
        static_cast<void>(TMessages::takeShown());
    }
    QApplication::setFont(before);
}

// The parts of a page that ask for the most width, for the words of a failure.
std::string widestCells(PageView& page)
{
    std::string words;
    for (const PanelCell* const cell : page.cells()) {
        words += "\n  " + cell->panel()->panel().content + " " +
                 std::to_string(cell->minimumSizeHint().width());
    }
    return words;
}

TEST_F(WindowTest, PagesFitASmallScreenWithLettersOfDoubleSize)
{
    constexpr QSize kSmallScreen(1280, 1024);
    const QFont before = QApplication::font();
    core::Settings settings = workspace().settings();
    settings.fontPercent = 200;
    workspace().changeSettings(settings);
    openWindow();
    YogaDesk::of(workspace()).select(yoga::YogaPlace{0, 0});
    for (int page = 0; page < window().pages().count(); ++page) {
        window().pages().show(page);
        settle();
        // With another dasha than that of the options there is one button more.
        if (auto* const system = window().pages().page()->findChild<QComboBox*>(
                QStringLiteral("DashaSystemComboBox"))) {
            system->setCurrentIndex(system->currentIndex() + 1);
            emit system->activated(system->currentIndex());
            settle();
            EXPECT_TRUE(find<QWidget>("MakeStandardButton", window().pages().page())->isVisible());
        }
        const QSize asked = window().minimumSizeHint();
        EXPECT_LE(asked.width(), kSmallScreen.width())
            << window().pages().name(page).toStdString() << " of "
            << window().pages().page()->minimumSizeHint().width()
            << widestCells(*window().pages().page());
        EXPECT_LE(asked.height(), kSmallScreen.height())
            << window().pages().name(page).toStdString();
    }
    QApplication::setFont(before);
}

TEST_F(WindowTest, NarrowCellsKeepTheStyleOfTheDiagramInTheirMenu)
{
    PanelCell* const cell = window().pages().page()->cells().front();
    ASSERT_TRUE(cell->panel()->hasStyle());
    cell->resize(cell->minimumSizeHint());
    EXPECT_FALSE(find<QComboBox>("StyleComboBox", cell)->isVisible());
    QMenu menu;
    cell->fillMenu(menu);
    const QMenu* styles = nullptr;
    for (const QAction* const action : menu.actions()) {
        styles = action->menu() != nullptr ? action->menu() : styles;
    }
    ASSERT_NE(styles, nullptr);
    EXPECT_TRUE(styles->actions().front()->isChecked());
    styles->actions().at(2)->trigger();
    EXPECT_EQ(cell->panel()->panel().style, present::DiagramStyle(1));
    cell->resize(cell->minimumSizeHint() * 2);
    EXPECT_TRUE(find<QComboBox>("StyleComboBox", cell)->isVisible());
}

TEST_F(WindowTest, ColoursOfWordsStandOutAgainstTheirBackgrounds)
{
    const auto present = [](const QColor& colour) {
        return present::Colour{std::uint8_t(colour.red()), std::uint8_t(colour.green()),
                               std::uint8_t(colour.blue())};
    };
    core::Settings settings = workspace().settings();
    for (const int scheme : {1, 2}) {
        settings.colourScheme = scheme;
        applyTheme(settings);
        const QPalette palette = QApplication::palette();
        const auto expect = [&](const QColor& words, QPalette::ColorRole ground) {
            EXPECT_GE(present::contrast(present(words), present(palette.color(ground))), 4.5)
                << scheme << " " << words.name().toStdString() << " on "
                << palette.color(ground).name().toStdString();
        };
        for (const ThemeRole role :
             {ThemeRole::Good, ThemeRole::Bad, ThemeRole::Accent, ThemeRole::Quiet}) {
            expect(themeColour(role), QPalette::Window);
            expect(themeColour(role), QPalette::Base);
        }
        expect(palette.color(QPalette::WindowText), QPalette::Window);
        expect(palette.color(QPalette::Text), QPalette::AlternateBase);
        expect(palette.color(QPalette::ButtonText), QPalette::Button);
        expect(palette.color(QPalette::HighlightedText), QPalette::Highlight);
        expect(palette.color(QPalette::Link), QPalette::Base);
        expect(palette.color(QPalette::PlaceholderText), QPalette::Base);
    }
    applyTheme(workspace().settings());
}

} // namespace
} // namespace kestrav::desktop
