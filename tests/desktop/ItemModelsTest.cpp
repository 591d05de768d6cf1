// The item models while what they show changes: a strict observer looks on, and in the end they
// have to be what a model made anew is.
#include "app/desktop/database/ChartListModel.h"
#include "app/desktop/panels/TableModel.h"
#include "app/desktop/timing/DashaTreeModel.h"
#include "app/desktop/yogas/YogaTreeModel.h"
#include "app/present/TableCatalogue.h"
#include "core/FileText.h"
#include "tests/desktop/DesktopForTests.h"
#include "tests/present/VariedCharts.h"
#include "timing/DashaQuery.h"

#include <QAbstractItemModelTester>

#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::desktop
{
namespace
{

using tests::kBirths;
using tests::recordOf;

constexpr auto kStrict = QAbstractItemModelTester::FailureReportingMode::Fatal;

/// Every text of a model, branch by branch.
QStringList textsOf(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            texts += model.index(row, column, parent).data().toString();
        }
        texts += textsOf(model, model.index(row, 0, parent));
    }
    return texts;
}

TEST_F(WindowTest, TheChartListKeepsUpWithAThousandEdits)
{
    OpenDatabase& database = workspace().database();
    std::mt19937 random(20260115);
    const auto any = [&random](std::size_t count) {
        return std::size_t(random() % count);
    };
    for (const data::SortOrder order :
         {data::SortOrder::Alphabetical, data::SortOrder::FileOrder, data::SortOrder::GroupA,
          data::SortOrder::LinkedToPrimary}) {
        ChartListModel model(workspace());
        model.setSort(order);
        const QAbstractItemModelTester tester(&model, kStrict);
        for (int edit = 0; edit < 250; ++edit) {
            const std::size_t size = database.charts().size();
            switch (any(8)) {
            case 0: {
                QString problem;
                static_cast<void>(database.renameRecord(
                    any(size), QStringLiteral("Chart %1").arg(any(1000)), problem));
                break;
            }
            case 1:
                static_cast<void>(database.deleteRecord(any(size)));
                break;
            case 2:
                database.deleteRecords({any(size), any(size), size - 1});
                break;
            case 3:
                database.change(QStringLiteral("tags"), [&](data::ChartDatabase& charts) {
                    charts.setTag(any(size), "ABPNL "[any(6)]);
                    charts.setTag(any(size), L'A');
                    return data::Outcome::Done;
                });
                break;
            case 4: {
                TMessages messages;
                core::Chart chart = recordOf(kBirths[any(kBirths.size())]);
                chart.name += std::to_wstring(any(50));
                TMessages::prepare(core::Answer::Yes);
                TMessages::prepare(core::Answer::Yes);
                database.saveRecord(chart, messages);
                static_cast<void>(TMessages::takeShown());
                TMessages::answerFromQueue();
                break;
            }
            case 5:
                model.setFilter(any(3) == 0 ? QStringLiteral("a") : QString());
                break;
            case 6:
                database.undoStack().undo();
                break;
            default:
                database.undoStack().redo();
                break;
            }
            if (database.charts().size() < 20) {
                database.undoStack().setIndex(0);
            }
        }
        model.setFilter(QStringLiteral("a"));
        ChartListModel fresh(workspace());
        fresh.setSort(order);
        fresh.setFilter(QStringLiteral("a"));
        EXPECT_EQ(textsOf(model), textsOf(fresh)) << int(order);
        EXPECT_GT(model.rowCount() + int(order == data::SortOrder::GroupA), 0);
    }
    database.undoStack().setIndex(0);
}

TEST_F(WindowTest, TheTableModelKeepsTrackOfItsRowsWhenItIsSorted)
{
    TableModel model;
    const QAbstractItemModelTester tester(&model, kStrict);
    for (const present::TableInfo& info : present::allTables()) {
        const present::TableSource source{*workspace().chart(), data_->series};
        const auto table = info.make(source);
        if (!table.ok() || table.value().rows.empty()) {
            continue;
        }
        model.setTable(table.value());
        const QStringList given = textsOf(model);
        std::vector<QPersistentModelIndex> rows;
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            rows.emplace_back(model.index(row, model.columnCount() - 1));
            texts += rows.back().data().toString();
        }
        for (int column = 0; column < model.columnCount(); ++column) {
            model.sort(column, column % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            for (int row = 1; row < model.rowCount(); ++row) {
                const int compared =
                    present::compareCells(*model.cell(model.index(row - 1, column)),
                                          *model.cell(model.index(row, column)));
                EXPECT_LE(column % 2 == 0 ? compared : -compared, 0) << info.id;
            }
            QStringList kept;
            for (const QPersistentModelIndex& row : rows) {
                kept += row.data().toString();
            }
            EXPECT_EQ(kept, texts) << info.id;
        }
        model.sort(-1, Qt::AscendingOrder);
        EXPECT_EQ(textsOf(model), given) << info.id;
        model.setTable({});
    }
}

TEST_F(WindowTest, DashaBranchesDivideTheirPeriodsInEverySystem)
{
    core::Settings settings = workspace().settings();
    const core::SettingInfo& systems = *core::findSetting("dashaSystem");
    DashaTreeModel model(nullptr);
    QAbstractItemModelTester tester(&model, kStrict);
    tester.setUseFetchMore(false);
    for (int system = int(systems.lowest); system <= int(systems.highest); ++system) {
        settings.dashaSystem = system;
        workspace().changeSettings(settings);
        const ChartPointer chart = workspace().chart();
        const auto options = timing::dashaOptions(settings);
        auto dasha = timing::dashaOf(chart->chart, settings, options, data_->series);
        if (!dasha.ok()) {
            model.clear();
            EXPECT_EQ(model.rowCount({}), 0);
            continue;
        }
        const double age = dasha.value().calendar.ageAt(workspace().moment());
        model.setDasha(chart, data_, {options, std::move(dasha.value()), {}, {}, {}, {}});
        while (model.canFetchMore({}) && model.rowCount({}) < 40) {
            model.fetchMore({});
        }
        const QModelIndexList path = model.setAge(age, 3);
        for (const QModelIndex& index : path) {
            const timing::DashaPeriod& period = model.period(index);
            EXPECT_LE(period.startAge, age + 1e-9) << system;
            EXPECT_GE(period.endAge(), age - 1e-9) << system;
            // The parts follow each other without gaps and fill the whole.
            if (model.canFetchMore(index)) {
                model.fetchMore(index);
            }
            const int parts = model.rowCount(index);
            double end = 0.0;
            for (int row = 0; row < parts; ++row) {
                const timing::DashaPeriod& part = model.period(model.index(row, 0, index));
                if (row > 0) {
                    EXPECT_NEAR(part.startAge, end, 1e-6) << system;
                }
                EXPECT_EQ(part.level, period.level + 1) << system;
                end = part.endAge();
            }
            if (parts > 0) {
                EXPECT_NEAR(end, period.endAge(), 1e-6) << system;
            }
        }
    }
}

TEST_F(WindowTest, TheYogaTreeHoldsEveryYogaOnce)
{
    auto library = std::make_shared<yoga::YogaLibrary>();
    std::size_t yogas = 0;
    for (const std::filesystem::path& path : yoga::standardYogaFiles()) {
        ASSERT_TRUE(library->load(path).ok());
    }
    YogaTreeModel model;
    const QAbstractItemModelTester tester(&model, kStrict);
    yoga::Subject subject(workspace().settings(), &data_->series);
    subject.setChart(workspace().chart()->chart);
    const present::YogaTruths truths = present::yogaTruths(*library, subject);
    for (const auto& file : truths) {
        yogas += file.size();
    }
    const auto count = [&model] {
        std::set<std::pair<std::size_t, std::size_t>> places;
        std::size_t found = 0;
        for (int file = 0; file < model.rowCount(); ++file) {
            const QModelIndex fileIndex = model.index(file, 0);
            for (int chapter = 0; chapter < model.rowCount(fileIndex); ++chapter) {
                const QModelIndex chapterIndex = model.index(chapter, 0, fileIndex);
                for (int row = 0; row < model.rowCount(chapterIndex); ++row) {
                    const QModelIndex index = model.index(row, 0, chapterIndex);
                    const auto place = model.placeOf(index);
                    EXPECT_TRUE(place.has_value());
                    EXPECT_EQ(model.indexOf(*place), index);
                    places.insert({place->file, place->yoga});
                    ++found;
                }
            }
        }
        EXPECT_EQ(places.size(), found);
        return found;
    };
    const auto note = [](std::size_t) {
        return QString();
    };
    for (const bool sorted : {false, true}) {
        model.setTree(library, truths, {{}, false, sorted}, note);
        EXPECT_EQ(count(), yogas);
        model.setTree(library, truths, {{}, true, sorted}, note);
        const std::size_t holding = count();
        EXPECT_GT(holding, 0U);
        EXPECT_LT(holding, yogas);
        model.setTree(library, truths, {L"zzzz", false, sorted}, note);
        EXPECT_EQ(count(), 0U);
    }
}

} // namespace
} // namespace kestrav::desktop
