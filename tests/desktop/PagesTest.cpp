// Pages composed, changed, kept and brought back.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/pages/SavedPages.h"
#include "app/desktop/pages/TPageLayoutDlg.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/present/Document.h"
#include "tests/desktop/DesktopForTests.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>

#include <algorithm>
#include <string>
#include <vector>

namespace kestrav::desktop
{
namespace
{

void choose(QComboBox* chooser, int index)
{
    chooser->setCurrentIndex(index);
    emit chooser->activated(index);
}

TEST_F(WindowTest, PageIsComposedFromJoinedCellsAndChecked)
{
    present::PageLayout layout;
    layout.name = "Mine";
    layout.rowWeights = {1};
    layout.columnWeights = {1};
    layout.panels = {present::Panel{present::PanelKind::Diagram, {}, 0, {}, 0, 0, 1, 1}};
    TPageLayoutDlg dialog(layout, &window());
    dialog.show();
    auto* const grid = find<QTableWidget>("PageGrid", &dialog);
    find<QPushButton>("AddRowButton", &dialog)->click();
    find<QPushButton>("AddColumnButton", &dialog)->click();
    ASSERT_EQ(dialog.layoutOfPage().panels.size(), 4U);

    // The lower row becomes one cell with the table of positions.
    grid->clearSelection();
    grid->setCurrentCell(1, 0);
    grid->item(1, 0)->setSelected(true);
    grid->item(1, 1)->setSelected(true);
    find<QPushButton>("JoinButton", &dialog)->click();
    ASSERT_EQ(dialog.layoutOfPage().panels.size(), 3U);
    grid->setCurrentCell(1, 0);
    auto* const content = find<QComboBox>("ContentComboBox", &dialog);
    choose(content, content->findData(
                        QStringList{QString::number(int(present::PanelKind::Table)), "positions"}));
    const present::Panel& joined = dialog.layoutOfPage().panels.back();
    EXPECT_EQ(joined.content, "positions");
    EXPECT_EQ(joined.columns, 2);

    // The sky of the shared date around the diagram of the birth.
    grid->setCurrentCell(0, 1);
    choose(find<QComboBox>("VargaComboBox", &dialog), 5);
    choose(find<QComboBox>("OuterComboBox", &dialog), 3);
    EXPECT_EQ(dialog.layoutOfPage().panels[1].outer, present::PanelChart::Moment);

    // A chart around itself cannot be.
    choose(find<QComboBox>("OuterComboBox", &dialog), 1);
    EXPECT_FALSE(find<QLabel>("ProblemLabel", &dialog)->text().isEmpty());
    auto* const ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    EXPECT_FALSE(ok->isEnabled());
    choose(find<QComboBox>("OuterComboBox", &dialog), 0);
    find<QLineEdit>("NameEdit", &dialog)->clear();
    EXPECT_FALSE(ok->isEnabled());
    QTest::keyClicks(find<QLineEdit>("NameEdit", &dialog), "Mine");
    EXPECT_TRUE(ok->isEnabled());
    EXPECT_TRUE(present::checkPageLayout(dialog.layoutOfPage()).ok());

    // Without its second column the grid has the panels of the first.
    grid->setCurrentCell(0, 1);
    find<QPushButton>("RemoveColumnButton", &dialog)->click();
    EXPECT_EQ(dialog.layoutOfPage().panels.size(), 2U);
    EXPECT_TRUE(present::checkPageLayout(dialog.layoutOfPage()).ok());
}

TEST_F(WindowTest, ChangesOfPagesAreSavedResetUndoneAndKept)
{
    PageStrip& pages = window().pages();
    const int delivered = pages.count();
    ASSERT_TRUE(pages.show(QStringLiteral("Chart")));
    settle();
    PanelCell* const cell = pages.page()->cells().constFirst();
    choose(cell->findChild<QComboBox*>(QStringLiteral("VargaComboBox")), 7);
    EXPECT_EQ(pages.layout(pages.current()).panels.front().varga, 7);

    command("SavePageAction");
    std::vector<std::string> problems;
    auto saved = savedPages(problems);
    ASSERT_EQ(saved.size(), 1U);
    EXPECT_EQ(saved.front().panels.front().varga, 7);

    TMessages::prepare(QStringLiteral("My chart"));
    command("RenamePageAction");
    static_cast<void>(TMessages::takeShown());
    EXPECT_EQ(pages.name(pages.current()), QStringLiteral("My chart"));
    command("UndoPageAction");
    EXPECT_EQ(pages.name(pages.current()), QStringLiteral("Chart"));
    command("RedoPageAction");
    EXPECT_EQ(pages.name(pages.current()), QStringLiteral("My chart"));
    command("ResetPageAction"); // there is no page of that name
    EXPECT_EQ(pages.name(pages.current()), QStringLiteral("My chart"));
    command("ClosePageAction");
    EXPECT_EQ(pages.count(), delivered - 1);
    command("UndoPageAction");
    EXPECT_EQ(pages.count(), delivered);

    // The next run begins with the pages of this one.
    ASSERT_TRUE(pages.show(QStringLiteral("Dashas")));
    settle();
    window().saveSession();
    openWindow();
    window().restoreSession();
    settle();
    EXPECT_EQ(window().pages().name(window().pages().current()), QStringLiteral("Dashas"));
    EXPECT_TRUE(window().pages().show(QStringLiteral("My chart")));
    command("ResetPagesAction");
    EXPECT_FALSE(window().pages().show(QStringLiteral("My chart")));
}

TEST_F(WindowTest, PinnedPanelsKeepTheirChartAndOthersFollow)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    const QString first = toQt(workspace().chart()->chart.name);
    PanelCell* const cell = window().pages().page()->cells()[0];
    cell->panel()->pin(true);
    ASSERT_TRUE(workspace().showLine(3));
    settle();
    EXPECT_TRUE(cell->captionText().contains(first));
    ASSERT_NE(toQt(workspace().chart()->chart.name), first);
    EXPECT_EQ(toQt(cell->panel()->pinnedChart()->chart.name), first);
    cell->panel()->pin(false);
    EXPECT_FALSE(cell->captionText().contains(first));
}

std::vector<std::string> namesOf(const PageStrip& pages)
{
    std::vector<std::string> names;
    for (int i = 0; i < pages.count(); ++i) {
        names.push_back(pages.name(i).toStdString());
    }
    return names;
}

QMenu* submenu(QMenu* menu, const char* title)
{
    for (QAction* const action : menu->actions()) {
        if (action->menu() != nullptr && action->text().remove('&') == QLatin1String(title)) {
            emit action->menu()->aboutToShow();
            return action->menu();
        }
    }
    ADD_FAILURE() << "there is no menu " << title;
    return nullptr;
}

TEST_F(WindowTest, StepsOfPagesAreTakenBackWithoutTouchingOtherPages)
{
    PageStrip& pages = window().pages();
    const std::vector<std::string> before = namesOf(pages);
    ASSERT_TRUE(pages.show(QStringLiteral("Vargas")));
    const int vargas = pages.current();
    command("ClosePageAction");
    EXPECT_EQ(pages.count(), int(before.size()) - 1);
    EXPECT_EQ(pages.current(), vargas) << "the next page takes its place";

    // What is done on another page meanwhile outlives the steps back and forth.
    ASSERT_TRUE(pages.show(QStringLiteral("Chart")));
    settle();
    PanelCell* const cell = pages.page()->cells().constFirst();
    choose(cell->findChild<QComboBox*>(QStringLiteral("VargaComboBox")), 7);
    cell->panel()->pin(true);
    auto* const splitter = pages.page()->findChild<QSplitter*>();
    ASSERT_NE(splitter, nullptr);
    QList<int> sizes = splitter->sizes();
    sizes.front() -= 40;
    sizes.back() += 40;
    splitter->setSizes(sizes);
    sizes = splitter->sizes();
    command("UndoPageAction");
    EXPECT_EQ(namesOf(pages), before);
    EXPECT_EQ(pages.current(), vargas);
    command("RedoPageAction");
    command("UndoPageAction");
    ASSERT_TRUE(pages.show(QStringLiteral("Chart")));
    EXPECT_EQ(pages.page()->cells().constFirst(), cell);
    EXPECT_EQ(cell->panel()->panel().varga, 7);
    EXPECT_NE(cell->panel()->pinnedChart(), nullptr);
    EXPECT_EQ(splitter->sizes(), sizes);

    // The page itself comes back with its sizes.
    command("ResetPageAction");
    EXPECT_EQ(pages.layout(pages.current()).panels.front().varga, 0);
    command("UndoPageAction");
    settle();
    EXPECT_EQ(pages.layout(pages.current()).panels.front().varga, 7);
    EXPECT_EQ(pages.page()->findChild<QSplitter*>()->sizes(), sizes);
}

TEST_F(WindowTest, TheSamePageCanStandTwiceAndBeChangedApart)
{
    PageStrip& pages = window().pages();
    const std::vector<std::string> before = namesOf(pages);
    QMenu* const add = submenu(window().menu(MenuName::Pages), "Add Page");
    ASSERT_NE(add, nullptr);
    EXPECT_EQ(add->actions().constFirst()->text(), QStringLiteral("Chart"));
    add->actions().constFirst()->trigger();
    settle();
    ASSERT_EQ(pages.count(), int(before.size()) + 1);
    EXPECT_EQ(pages.current(), int(before.size()));
    choose(pages.page()->cells().constFirst()->findChild<QComboBox*>("VargaComboBox"), 5);
    EXPECT_EQ(pages.layout(pages.current()).panels.front().varga, 5);
    EXPECT_EQ(pages.layout(0).panels.front().varga, 0);
    command("UndoPageAction");
    EXPECT_EQ(namesOf(pages), before);
    EXPECT_EQ(submenu(window().menu(MenuName::Pages), "Go to Page")->actions().size(),
              int(before.size()));
}

TEST_F(WindowTest, PagesAreDrawnToOtherPlacesInTheStrip)
{
    PageStrip& pages = window().pages();
    std::vector<std::string> expected = namesOf(pages);
    pages.show(0);
    settle();
    const PageView* const first = pages.page();
    auto* const tabs = find<QTabBar>("PageTabs");
    const QPoint from = tabs->tabRect(0).center();
    const QPoint to(tabs->tabRect(2).right() - 2, from.y());
    QTest::mousePress(tabs, Qt::LeftButton, {}, from);
    for (int x = from.x(); x <= to.x(); x += 5) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, from.y()),
                         tabs->mapToGlobal(QPointF(x, from.y())), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(tabs, &move);
    }
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, to);
    settle();
    std::rotate(expected.begin(), expected.begin() + 1, expected.begin() + 3);
    EXPECT_EQ(namesOf(pages), expected);
    EXPECT_EQ(tabs->tabText(2).toStdString(), expected[2]);
    EXPECT_EQ(pages.current(), 2);
    EXPECT_EQ(pages.page(), first) << "the drawn page stays in view";

    command("UndoPageAction"); // the whole way
    EXPECT_EQ(pages.name(0).toStdString(), expected[2]);
    EXPECT_EQ(pages.page(), first);
    command("RedoPageAction");
    EXPECT_EQ(namesOf(pages), expected);
    pages.movePage(2, 0);
    EXPECT_EQ(pages.name(0).toStdString(), expected[2]);
    EXPECT_EQ(pages.name(1).toStdString(), expected[0]);
    EXPECT_EQ(tabs->tabText(1).toStdString(), expected[0]);
}

TEST_F(WindowTest, ABrokenPageFileIsToldAndTheOthersAreOffered)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Dashas")));
    command("SavePageAction");
    const auto write = [](const char* name, const char* text) {
        QFile file(toQt(savedPagesFolder() / name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    write("broken.txt", "Kestrav page 1\nname \"Broken\"\nrows 1\ncolumns x\n");
    write("noise.txt", "\x01\xff\x00\x7f");
    write("empty.txt", "");
    QSignalSpy news(&workspace(), &Workspace::news);
    QMenu* const add = submenu(window().menu(MenuName::Pages), "Add Page");
    ASSERT_NE(add, nullptr);
    EXPECT_EQ(add->actions().constLast()->text(), QStringLiteral("Dashas"));
    std::string told;
    for (const auto& arguments : news) {
        EXPECT_TRUE(arguments[1].toBool());
        told += arguments[0].toString().toStdString() + "\n";
    }
    EXPECT_EQ(news.size(), 3);
    EXPECT_NE(told.find("broken.txt: "), std::string::npos) << told;
    EXPECT_NE(told.find("'x' is not a whole number 1 to 100"), std::string::npos) << told;
    add->actions().constLast()->trigger();
    settle();
    EXPECT_EQ(window().pages().name(window().pages().current()), QStringLiteral("Dashas"));
}

TEST_F(WindowTest, APinnedPanelStaysThroughDatesAndSecondCharts)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    const QList<PanelCell*> cells = window().pages().page()->cells();
    const auto contents = [](const PanelCell* cell) {
        present::Document document;
        document.blocks = cell->panel()->blocks();
        return present::documentHtml(document);
    };
    const std::string first = contents(cells[0]);
    const std::string beside = contents(cells[1]);
    cells[0]->findChild<QToolButton*>(QStringLiteral("PinButton"))->click();
    ASSERT_TRUE(workspace().showLine(5));
    ASSERT_TRUE(workspace().showSecond(*workspace().database().record(7)));
    workspace().setMoment(workspace().moment() + 1000.0);
    settle();
    EXPECT_EQ(contents(cells[0]), first);
    EXPECT_NE(contents(cells[1]), beside);
    workspace().closeChart();
    settle();
    EXPECT_EQ(contents(cells[0]), first) << "also when no chart is open any more";
    ASSERT_TRUE(workspace().showLine(0));
    cells[0]->findChild<QToolButton*>(QStringLiteral("PinButton"))->click();
    ASSERT_TRUE(workspace().showLine(5));
    settle();
    EXPECT_NE(contents(cells[0]), first);
}

} // namespace
} // namespace kestrav::desktop
