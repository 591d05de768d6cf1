// The pages of dashas, panchanga, transits and events.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelFactory.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/timing/DashaTreeModel.h"
#include "app/desktop/timing/StripView.h"
#include "tests/desktop/DesktopForTests.h"
#include "timing/DashaTable.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <cmath>

namespace kestrav::desktop
{
namespace
{

// The birth of the first sample chart: 1879 March 14, 11:30 on the clock of Ulm.
constexpr double kBirth = 2407422.5 + (11.5 - 2398.0 / 3600.0) / 24.0;
constexpr double kYear = 365.256364;

class TimingPageTest : public WindowTest
{
protected:
    void showPage(const char* name)
    {
        ASSERT_TRUE(window().pages().show(QLatin1String(name)));
        settle();
    }

    // Several pages may have the same panel.
    template <typename Widget>
    Widget* shown(const char* name)
    {
        return find<Widget>(name, window().pages().page());
    }

    static std::vector<QString> columnOf(const QAbstractItemView& view, int column)
    {
        std::vector<QString> texts;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            texts.push_back(view.model()->index(row, column).data().toString());
        }
        return texts;
    }

    static void clickRow(QAbstractItemView& view, int row, int column)
    {
        const QModelIndex index = view.model()->index(row, column);
        view.scrollTo(index);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
        settle();
    }
};

TEST_F(TimingPageTest, DashaTreeOpensAtTheSharedDate)
{
    workspace().setMoment(kBirth + 26.0 * kYear);
    showPage("Dashas");
    auto* const tree = shown<QTreeView>("DashaTree");
    auto* const model = qobject_cast<DashaTreeModel*>(tree->model());
    ASSERT_NE(model, nullptr);
    QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    // While the model is reset the tester would ask for branches itself.
    tester.setUseFetchMore(false);
    // Every level that is open has one period that runs, and it holds the age.
    const QModelIndex running = tree->currentIndex();
    ASSERT_TRUE(running.isValid());
    EXPECT_EQ(model->period(running).level, 2);
    EXPECT_LE(model->period(running).startAge, 26.0 + 1e-6);
    EXPECT_GT(model->period(running).endAge(), 26.0 - 1e-6);
    EXPECT_TRUE(running.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(tree->isExpanded(running.parent()));
    // The years of Vimshottari are fixed, and its mahadashas follow in one order.
    const std::vector<QString> names = columnOf(*tree, 0);
    const auto mercury = std::find(names.begin(), names.end(), "Mercury");
    ASSERT_LT(mercury + 1, names.end());
    EXPECT_EQ(*(mercury + 1), "Ketu");
    EXPECT_EQ(shown<QLabel>("BalanceLabel")->text().toStdString(),
              "Balance of Mercury Dasha 9Y 9M 0D");

    // Branches come when they are opened, and fill their parent to the fifth level.
    QModelIndex index = running;
    while (model->hasChildren(index)) {
        tree->expand(index);
        const timing::DashaPeriod parent = model->period(index);
        ASSERT_EQ(model->rowCount(index), 9);
        double sum = 0.0;
        for (int row = 0; row < 9; ++row) {
            sum += model->period(model->index(row, 0, index)).length;
        }
        EXPECT_NEAR(sum, parent.length, 1e-9);
        EXPECT_EQ(model->period(model->index(0, 0, index)).lord(), parent.lord());
        index = model->index(8, 0, index);
    }
    EXPECT_EQ(model->period(index).level, 5);

    tree->setFocus();
    tree->setCurrentIndex(running);
    shown<QAction>("SetToEndAction")->trigger();
    EXPECT_NEAR(workspace().moment(), kBirth + model->period(running).endAge() * kYear, 0.01);
    settle();
    EXPECT_EQ(tree->currentIndex(), running) << "the place in the tree was lost";

    workspace().setMoment(kBirth + 26.0 * kYear);
    settle();
    tree->setCurrentIndex(model->index(0, 0, {}));
    shown<QAction>("ShowRunningAction")->trigger();
    EXPECT_EQ(tree->currentIndex(), running);

    // Another system for looking leaves the settings, until it is made the standard.
    auto* const system = shown<QComboBox>("DashaSystemComboBox");
    ASSERT_EQ(system->count(), timing::kNamedDashaSystems);
    system->setCurrentIndex(timing::kYogini);
    emit system->activated(timing::kYogini);
    settle();
    EXPECT_EQ(workspace().settings().dashaSystem, timing::kVimshottari);
    EXPECT_EQ(model->rowCount(tree->currentIndex().parent()), 8);
    auto* const standard = shown<QToolButton>("MakeStandardButton");
    ASSERT_TRUE(standard->isVisible());
    standard->click();
    settle();
    EXPECT_EQ(workspace().settings().dashaSystem, timing::kYogini);
    EXPECT_FALSE(standard->isVisible());

    // All systems can be shown, signs and houses too.
    for (int other = 0; other < timing::kNamedDashaSystems; ++other) {
        emit system->activated(other);
        settle();
        EXPECT_TRUE(tree->currentIndex().isValid()) << other;
    }
}

TEST_F(TimingPageTest, LifeBarBringsTheSharedDateWhereItIsClicked)
{
    showPage("Dashas");
    auto* const bar = find<StripView>("StripView", shown<QWidget>("StripPanel-life-bar"));
    const double wanted = kBirth + 40.0 * kYear;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->placeOf(wanted));
    settle();
    const double days = kYear * 100.0 / (bar->width() - 100);
    EXPECT_NEAR(workspace().moment(), wanted, 2.0 * days);
    const double clicked = workspace().moment();
    QTest::keyClick(bar, Qt::Key_Right);
    settle();
    EXPECT_GT(workspace().moment(), clicked);
    EXPECT_LT(workspace().moment(), clicked + 4.0 * kYear);
    // His marriage stands on the bar with its date.
    const auto& regions = bar->drawing().list.regions;
    EXPECT_TRUE(std::any_of(regions.begin(), regions.end(), [](const present::Region& region) {
        return region.tip.find(L"Married Mileva Maric\n1903-01-06") != std::wstring::npos;
    }));
}

TEST_F(TimingPageTest, PanchangaFollowsTheSharedDay)
{
    showPage("Panchanga");
    auto* const day = shown<QLabel>("DayLabel");
    EXPECT_EQ(day->text().toStdString(), "Thursday, 2026-01-15, Ulm, Germany");
    auto* const report = shown<QPlainTextEdit>("ReportMemo");
    // Dwadashi of the waning half runs on that day in Europe.
    EXPECT_TRUE(
        report->toPlainText().contains("Tithi: Dwadashami, Fortunate 12 of the Waning Moon"))
        << report->toPlainText().toStdString();
    EXPECT_TRUE(report->toPlainText().contains("Choghadia", Qt::CaseInsensitive));
    // The Moon of the day stands in Jyeshtha as that of the birth.
    EXPECT_EQ(shown<QLabel>("TaraBalaLabel")->text().toStdString(),
              "Birth Star, mainly favourable");
    const double before = workspace().moment();
    shown<QToolButton>("DayForwardButton")->click();
    settle();
    EXPECT_EQ(workspace().moment(), before + 1.0);
    EXPECT_EQ(day->text().toStdString(), "Friday, 2026-01-16, Ulm, Germany");

    // The strips have the same day; a click on their axis sets the time of day.
    auto* const strips =
        find<StripView>("StripView", shown<QWidget>("StripPanel-panchanga-strips"));
    const double evening = before + 1.0 + 0.2;
    QTest::mouseClick(strips, Qt::LeftButton, {}, strips->placeOf(evening));
    EXPECT_NEAR(workspace().moment(), evening, 0.01);

    workspace().closeChart();
    settle();
    EXPECT_EQ(find<QLabel>("NoteLabel", shown<QWidget>("TPanchangForm"))->text().toStdString(),
              "Not computed: a panchanga needs a place: choose the Now location");
}

TEST_F(TimingPageTest, TransitsAreListedFilteredAndChosen)
{
    showPage("Transits");
    auto* const panel = shown<QWidget>("TransitListingPanel");
    auto* const table = find<TableView>("TransitTable", panel);
    EXPECT_EQ(find<QLabel>("DaysLabel", panel)->text().toStdString(), "2026-01-15 to 2026-02-13");
    const int all = table->model()->rowCount();
    ASSERT_GT(all, 20);
    // The Sun enters Aquarius on February 12 or 13.
    const std::vector<QString> events = columnOf(*table, 3);
    EXPECT_TRUE(std::any_of(events.begin(), events.end(), [](const QString& event) {
        return event.startsWith("Tr. Sun     enters Aquarius");
    }));
    auto* const body = find<QComboBox>("BodyComboBox", panel);
    body->setCurrentIndex(body->findText("Mars"));
    ASSERT_GT(table->model()->rowCount(), 0);
    EXPECT_LT(table->model()->rowCount(), all);
    for (const QString& event : columnOf(*table, 3)) {
        EXPECT_TRUE(event.startsWith("Tr. Mars    ")) << event.toStdString();
    }
    find<QLineEdit>("FilterEdit", panel)->setText("orb of");
    const std::vector<QString> orbs = columnOf(*table, 3);
    EXPECT_TRUE(std::all_of(orbs.begin(), orbs.end(),
                            [](const QString& event) { return event.contains("orb of"); }));
    find<QLineEdit>("FilterEdit", panel)->clear();

    // A click anywhere in a row brings the shared date there, and the list stays.
    clickRow(*table, 2, 3);
    const QString clicked = table->model()->index(2, 0).data().toString();
    EXPECT_TRUE(find<QLabel>("DaysLabel", panel)->text().startsWith("2026-01-15"));
    EXPECT_GT(workspace().moment(), 2461055.5);
    find<QToolButton>("DaysForwardButton", panel)->click();
    settle();
    EXPECT_TRUE(find<QLabel>("DaysLabel", panel)->text().startsWith("2026-02-14"))
        << clicked.toStdString();

    // What is copied is the table that is seen.
    auto* const tabs = find<QTabWidget>("TransitTabs", panel);
    for (const auto& [index, name] : {std::pair(1, "KakshyaTable"), std::pair(0, "TransitTable")}) {
        tabs->setCurrentIndex(index);
        find<QAction>("CopyTableAction", panel)->trigger();
        QStringList headings;
        for (const present::Column& column : find<TableView>(name, panel)->table().columns) {
            headings += toQt(column.heading).trimmed();
        }
        EXPECT_EQ(QApplication::clipboard()->text().section('\n', 0, 0).toStdString(),
                  headings.join('\t').toStdString());
    }

    command("TransitChoicesAction");
    auto* const dialog = find<QDialog>("TTransitChoicesDlg");
    auto* const bodies = find<QListWidget>("BodiesListBox", dialog);
    auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    for (int row = 0; row < bodies->count(); ++row) {
        bodies->item(row)->setCheckState(Qt::Unchecked);
    }
    EXPECT_EQ(find<QLabel>("ProblemLabel", dialog)->text().toStdString(),
              "Tick at least one transiting body.");
    EXPECT_FALSE(ok->isEnabled());
    bodies->item(1)->setCheckState(Qt::Checked); // the Moon
    ok->click();
    settle();
    body->setCurrentIndex(0);
    const std::vector<QString> moons = columnOf(*table, 3);
    ASSERT_GT(moons.size(), 50U);
    EXPECT_TRUE(std::all_of(moons.begin(), moons.end(),
                            [](const QString& event) { return event.startsWith("Tr. Moon    "); }));
}

TEST_F(TimingPageTest, EphemerisStripIsDrawnForTheYear)
{
    showPage("Transits");
    auto* const panel = shown<QWidget>("EphemerisStripPanel");
    auto* const strip = find<StripView>("StripView", panel);
    EXPECT_GE(strip->drawing().list.regions.size(), 10U);
    const double july = workspace().moment() + 180.0;
    QTest::mouseClick(strip, Qt::LeftButton, {}, strip->placeOf(july));
    EXPECT_NEAR(workspace().moment(), july, 3.0);
}

TEST_F(TimingPageTest, EphemerisTakesStepsAndZodiacs)
{
    present::Panel panel;
    panel.kind = present::PanelKind::View;
    panel.content = "ephemeris";
    const std::unique_ptr<PanelWidget> made(makePanel(workspace(), panel, nullptr));
    made->show();
    settle();
    auto* const table = find<TableView>("PositionsTable", made.get());
    ASSERT_EQ(table->model()->rowCount(), 31);
    EXPECT_EQ(table->model()->index(0, 0).data().toString().toStdString(), "2026-01-15");
    // The Sun had entered sidereal Capricorn on the 14th; tropically it stood at 24 degrees of it.
    EXPECT_TRUE(table->model()->index(0, 2).data().toString().endsWith("Cp"));
    find<QCheckBox>("TropicalCheckBox", made.get())->click();
    settle();
    EXPECT_TRUE(table->model()->index(0, 2).data().toString().trimmed().startsWith("24"))
        << table->model()->index(0, 2).data().toString().toStdString();
    auto* const step = find<QComboBox>("StepComboBox", made.get());
    step->setCurrentIndex(0);
    emit step->activated(0);
    settle();
    EXPECT_EQ(table->model()->rowCount(), 31 * 144);
    auto* const span = find<QComboBox>("SpanComboBox", made.get());
    span->setCurrentIndex(span->count() - 1);
    emit span->activated(span->currentIndex());
    settle();
    EXPECT_EQ(find<QLabel>("NoteLabel", made.get())->text().toStdString(),
              "The table would be too long: choose a longer step or fewer days.");
    find<QCheckBox>("TropicalCheckBox", made.get())->click();
}

TEST_F(TimingPageTest, EventsAndTrialTimesShowWhatChanges)
{
    showPage("Events");
    auto* const events = find<TableView>("EventsTable", shown<QWidget>("EventsPanel"));
    ASSERT_EQ(events->model()->rowCount(), 3);
    clickRow(*events, 1, 1);
    // 1933 October 17, noon on the clock of Ulm.
    EXPECT_NEAR(workspace().moment(), 2427362.5 + 0.5 - 2398.0 / 86400.0, 1e-4);

    auto* const panel = shown<QWidget>("TrialTimesPanel");
    auto* const trials = find<TableView>("AscendantsTable", panel);
    ASSERT_EQ(trials->model()->rowCount(), 21);
    EXPECT_EQ(trials->model()->index(10, 0).data().toString().toStdString(), "0:00");
    EXPECT_EQ(trials->model()->index(0, 0).data().toString().toStdString(), "-10:00");
    auto* const unit = find<QComboBox>("TrialUnitComboBox", panel);
    unit->setCurrentIndex(0);
    emit unit->activated(0);
    settle();
    EXPECT_EQ(trials->model()->index(0, 0).data().toString().toStdString(), "-0:10");
    EXPECT_EQ(trials->model()->index(20, 1).data().toString().toStdString(), "11:30:10");

    // The time of a row goes into the data entry, which has the last word; the chart stays.
    trials->setCurrentIndex(trials->model()->index(13, 0));
    find<QToolButton>("TakeOverButton", panel)->click();
    settle();
    auto* const form = find<QWidget>("TDataEntryForm");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(find<QLineEdit>("TimeEdit", form)->text().toStdString(), "11:30:03");
    EXPECT_NEAR(workspace().chart()->chart.time.localTime, 11.5, 1e-9);
    find<QAction>("EventsAction");
    find<QAction>("CompareAction");
}

} // namespace
} // namespace kestrav::desktop
