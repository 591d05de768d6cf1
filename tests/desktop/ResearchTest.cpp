// The research table, and the columns of tables.
#include "app/desktop/database/ResearchActions.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/panels/ShownColumns.h"
#include "app/desktop/panels/TColumnsDlg.h"
#include "app/desktop/panels/TableModel.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/research/BarChartView.h"
#include "app/desktop/research/ResearchDesk.h"
#include "data/ResearchDatabase.h"
#include "tests/desktop/DesktopForTests.h"
#include "yoga/ResearchColumns.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <filesystem>
#include <fstream>
#include <numeric>

namespace kestrav::desktop
{
namespace
{

void activate(QComboBox* box, int index)
{
    box->setCurrentIndex(index);
    emit box->activated(index);
}

TEST_F(WindowTest, ResearchTableListsGroupsAndDraws)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Research")));
    settle();
    EXPECT_EQ(find<QLabel>("PurposeTitle")->text(),
              toQt(data::researchStateText(data::ResearchState::Missing)));
    EXPECT_TRUE(find<QLabel>("PurposeLabel")->text().contains(QStringLiteral("Sample.txt")));
    EXPECT_FALSE(find<QComboBox>("ShowComboBox")->isVisible()) << "there is nothing to choose from";
    auto* const make = find<QPushButton>("MakeResearchButton");
    ASSERT_TRUE(make->isVisible());
    QTest::mouseClick(make, Qt::LeftButton);
    settle();
    settle();
    EXPECT_FALSE(make->isVisible());
    const std::size_t count = workspace().database().charts().size();
    auto* const table = find<TableView>("ResearchView");
    ASSERT_EQ(table->table().rows.size(), count);

    // Sorted by name; Enter opens the chart of the row.
    table->sortByColumn(1, Qt::DescendingOrder);
    const auto* const model = static_cast<const TableModel*>(table->model());
    const std::wstring first = model->cell(model->index(0, 1))->text;
    EXPECT_GE(first, model->cell(model->index(int(count) - 1, 1))->text);
    table->setCurrentIndex(model->index(0, 1));
    QTest::keyClick(table, Qt::Key_Return);
    settle();
    EXPECT_EQ(workspace().chart()->chart.name, first);

    // Columns are chosen and kept.
    QTimer::singleShot(0, [this] {
        auto* const dialog = qobject_cast<TColumnsDlg*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* const shown = find<QListWidget>("ShownList", dialog);
        shown->selectAll();
        find<QToolButton>("RemoveButton", dialog)->click();
        EXPECT_EQ(shown->count(), 0);
        find<QLineEdit>("FilterEdit", dialog)->setText(QStringLiteral("venus sign"));
        auto* const available = find<QListWidget>("AvailableList", dialog);
        ASSERT_EQ(available->count(), 1);
        available->selectAll();
        find<QToolButton>("AddButton", dialog)->click();
        dialog->accept();
    });
    find<QToolButton>("ColumnsButton")->click();
    settle();
    ASSERT_EQ(table->table().columns.size(), 2U);
    EXPECT_EQ(
        table->table().columns[1].heading,
        yoga::columnHeading(yoga::researchColumns()[*yoga::findResearchColumn("venus.sign")]));

    // The counts of the groups and of the bars are the charts.
    auto* const by = find<QComboBox>("GroupComboBox");
    by->setCurrentIndex(by->findData(qulonglong(*yoga::findResearchColumn("moon.sign"))));
    activate(find<QComboBox>("ShowComboBox"), 1);
    settle();
    double charts = 0.0;
    for (const present::Row& row : table->table().rows) {
        charts += *row[1].sortKey;
    }
    EXPECT_EQ(charts, double(count));
    activate(find<QComboBox>("ShowComboBox"), 2);
    settle();
    const auto& bars = find<BarChartView>("BarChartView")->model().bars;
    ASSERT_EQ(bars.size(), 12U);
    EXPECT_EQ(std::accumulate(bars.begin(), bars.end(), std::size_t{0},
                              [](std::size_t sum, const auto& bar) { return sum + bar.count; }),
              count);

    // A group nobody belongs to is empty, and other settings make the lines stale.
    activate(find<QComboBox>("ShowComboBox"), 0);
    activate(find<QComboBox>("ChartsComboBox"), 3);
    settle();
    EXPECT_TRUE(table->table().rows.empty());
    EXPECT_EQ(find<QLabel>("ResearchLabel")->text(), "No yoga was searched yet.");
    core::Settings settings = workspace().settings();
    settings.ayanamsaRow = settings.ayanamsaRow == 1 ? 2 : 1;
    workspace().changeSettings(settings);
    settle();
    EXPECT_EQ(ResearchDesk::of(workspace()).research()->state,
              data::ResearchState::SettingsChanged);
}

// Both ways to refresh are one: it shows on the page and labels the list of charts.
TEST_F(WindowTest, ResearchMadeAnywhereIsSeenEverywhere)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Research")));
    settle();
    auto* const actions = window().findChild<ResearchActions*>();
    ASSERT_NE(actions, nullptr);
    int told = 0;
    QObject::connect(actions, &ResearchActions::refreshed, actions, [&told] { ++told; });
    QTest::mouseClick(find<QPushButton>("MakeResearchButton"), Qt::LeftButton);
    settle();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(std::filesystem::exists(data::researchPath(sample_)));

    TMessages::prepare(core::Answer::Ok);
    command("RefreshResearchAction");
    settle();
    EXPECT_EQ(TMessages::takeShown().size(), 1U);
    EXPECT_EQ(told, 2);
    EXPECT_EQ(find<TableView>("ResearchView")->table().rows.size(),
              workspace().database().charts().size());
    EXPECT_EQ(ResearchDesk::of(workspace()).research()->state, data::ResearchState::Fresh);

    // A text file of the user's own is never written over, and no button offers it.
    std::ofstream(data::researchPath(sample_)) << "a letter\n";
    ResearchDesk::of(workspace()).read();
    settle();
    EXPECT_TRUE(find<QLabel>("PurposeTitle")->isVisible());
    EXPECT_FALSE(find<QPushButton>("MakeResearchButton")->isVisible());
}

TEST_F(WindowTest, RefreshingNamesChartsButNotOverWhatWasDoneMeanwhile)
{
    OpenDatabase& database = workspace().database();
    const std::size_t line = *database.charts().find(L"Albert Einstein");
    const auto rename = [&](std::size_t at, const std::string& from, const std::string& to) {
        database.change(QStringLiteral("rename"), [&](data::ChartDatabase& charts) {
            std::string text(charts.line(at));
            text.replace(text.find(from), from.size(), to);
            charts.replaceLine(at, text);
            return data::Outcome::Done;
        });
    };
    rename(line, "\"Albert Einstein\"", "\"\"");
    for (const bool meanwhile : {true, false}) {
        TMessages::prepare(core::Answer::Ok);
        ResearchDesk::of(workspace()).refresh();
        if (meanwhile) {
            rename(line, "\"Physicist\"", "\"Violinist\"");
        }
        settle();
        const auto told = TMessages::takeShown();
        ASSERT_EQ(told.size(), 1U);
        EXPECT_TRUE(told[0].text.contains(QStringLiteral("a record seems to have no name")));
        const std::string text(database.charts().line(line));
        EXPECT_NE(text.find("\"Violinist\""), std::string::npos) << text;
        EXPECT_EQ(text.find("\"No Name\"") == std::string::npos, meanwhile) << text;
    }
}

TEST_F(WindowTest, TablesShowTheChosenColumns)
{
    present::Table table = {"sample", L"Sample", {{L"A"}, {L"B"}, {L"C"}}};
    table.add({L"a", L"b", L"c"});
    EXPECT_EQ(shownColumns("sample", 3).size(), 3U);
    keepShownColumns("sample", 3, {2, 0});
    const present::Table chosen = withColumns(table, shownColumns("sample", 3));
    ASSERT_EQ(chosen.columns.size(), 2U);
    EXPECT_EQ(chosen.columns[0].heading, L"C");
    EXPECT_EQ(chosen.rows[0][1].text, L"a");
    EXPECT_EQ(shownColumns("sample", 4).size(), 4U) << "a table with other columns is another one";
    keepShownColumns("sample", 3, {0, 1, 2});
    EXPECT_EQ(withColumns(table, shownColumns("sample", 3)).columns.size(), 3U);
}

} // namespace
} // namespace kestrav::desktop
