// Pages composed, changed, kept and brought back.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/pages/SavedPages.h"
#include "app/desktop/pages/TPageLayoutDlg.h"
#include "app/desktop/panels/PanelWidget.h"
#include "tests/desktop/DesktopForTests.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

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

} // namespace
} // namespace kestrav::desktop
