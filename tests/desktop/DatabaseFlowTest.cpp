// Charts and database files in the window.
#include "app/desktop/database/ChartListModel.h"
#include "app/desktop/database/ChartListPane.h"
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenFirst.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/database/ResearchActions.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/start/ProgramOptions.h"
#include "data/FileStamp.h"
#include "data/ResearchDatabase.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTreeView>
#include <QTreeWidget>
#include <QUrl>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace kestrav::desktop
{
namespace
{

using core::Answer;

class DatabaseFlowTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        list_ = find<QTreeView>("ChartList");
        filter_ = find<QLineEdit>("FilterEdit");
        ASSERT_NE(list_, nullptr);
        ASSERT_NE(filter_, nullptr);
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    OpenDatabase& database()
    {
        return workspace().database();
    }

    [[nodiscard]] std::vector<std::string> fileLines(const std::filesystem::path& file) const
    {
        std::ifstream stream(file, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    void writeFile(const std::filesystem::path& file, const std::vector<std::string>& lines) const
    {
        std::ofstream stream(file, std::ios::binary);
        for (const std::string& line : lines) {
            stream << line << '\n';
        }
    }

    std::filesystem::path inHome(const char* name)
    {
        return toPath(home_.filePath(QLatin1String(name)));
    }

    void type(const QString& filter)
    {
        filter_->clear();
        filter_->setFocus();
        QTest::keyClicks(filter_, filter);
    }

    QString nameAt(int row)
    {
        return list_->model()->index(row, ChartListModel::NameColumn).data().toString();
    }

    std::vector<QString> takeTexts()
    {
        std::vector<QString> texts;
        for (const ShownMessage& message : TMessages::takeShown()) {
            texts.push_back(message.caption + QLatin1Char('|') + message.text);
        }
        return texts;
    }

    void expectMessages(const std::vector<QString>& expected)
    {
        const std::vector<QString> texts = takeTexts();
        ASSERT_EQ(texts.size(), expected.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            EXPECT_EQ(texts[i].toStdString(), expected[i].toStdString());
        }
    }

    QTreeView* list_ = nullptr;
    QLineEdit* filter_ = nullptr;
};

TEST_F(DatabaseFlowTest, FilterOpenRenameTagDeleteUndoAndSave)
{
    const QAbstractItemModelTester tester(list_->model());
    const std::vector<std::string> before = fileLines(sample_);
    const std::size_t newton = *database().charts().find(L"Isaac Newton");
    command("FilterAction");
    type(QStringLiteral("1643 newt"));
    ASSERT_EQ(list_->model()->rowCount(), 1);
    EXPECT_EQ(list_->model()->index(0, ChartListModel::DateColumn).data().toString(),
              QStringLiteral(" 4/ 1/1643"));
    QTest::keyClick(filter_, Qt::Key_Return);
    EXPECT_EQ(workspace().chartLine(), newton);
    EXPECT_EQ(workspace().chart()->chart.name, L"Isaac Newton");
    type(QString());

    // Renaming in place moves the row and renames the shown chart.
    list_->setFocus();
    command("RenameChartAction");
    auto* const editor = list_->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->setText(QStringLiteral("  Aaron   \"Newton\"\t"));
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_EQ(nameAt(0), QStringLiteral("Aaron 'Newton'"));
    EXPECT_EQ(workspace().chart()->chart.name, L"Aaron 'Newton'");
    EXPECT_TRUE(window().isWindowModified());

    // Tags are written to the file at once.
    list_->setCurrentIndex(list_->model()->index(0, 0));
    TMessages::prepare(Answer::Yes);
    command("SetGroupAAction");
    expectMessages({QStringLiteral("Notice|Change A group tags and update file?")});
    EXPECT_FALSE(database().modified());
    EXPECT_EQ(fileLines(sample_)[newton].substr(0, 2), "A\t");
    EXPECT_EQ(fileLines(inHome("Sample.BAK")), before);
    TMessages::prepare(Answer::No);
    command("SetGroupBAction");
    expectMessages({QStringLiteral("Notice|Change B group tags and update file?")});
    EXPECT_EQ(database().charts().line(newton).substr(0, 2), "A\t");

    TMessages::prepare(Answer::No);
    QTest::keyClick(list_, Qt::Key_Delete);
    expectMessages({QStringLiteral("Notice|Delete 'Aaron 'Newton'' from file?")});
    EXPECT_EQ(database().charts().size(), before.size());
    TMessages::prepare(Answer::Yes);
    QTest::keyClick(list_, Qt::Key_Delete);
    expectMessages({QStringLiteral("Notice|Delete 'Aaron 'Newton'' from file?")});
    EXPECT_EQ(database().charts().size(), before.size() - 1);
    EXPECT_EQ(list_->model()->rowCount(), int(before.size()) - 1);
    EXPECT_FALSE(workspace().chartLine().has_value()) << "the shown chart is in no file any more";
    EXPECT_EQ(find<QAction>("UndoAction")->text(), QStringLiteral("&Undo Delete Aaron 'Newton'"));

    command("UndoAction");
    EXPECT_EQ(workspace().chartLine(), newton);
    command("UndoAction");
    EXPECT_EQ(database().charts().line(newton).substr(0, 2), " \t");
    command("UndoAction");
    EXPECT_EQ(database().charts().line(newton), before[newton]);
    EXPECT_EQ(workspace().chart()->chart.name, L"Isaac Newton");
    EXPECT_FALSE(find<QAction>("UndoAction")->isEnabled());
    command("RedoAction");
    EXPECT_EQ(nameAt(0), QStringLiteral("Aaron 'Newton'"));
    command("SaveAction");
    EXPECT_FALSE(window().isWindowModified());
    std::vector<std::string> expected = before;
    expected[newton] = std::string(database().charts().line(newton));
    EXPECT_NE(expected[newton].find("\"Aaron 'Newton'\""), std::string::npos);
    EXPECT_EQ(fileLines(sample_), expected);
    EXPECT_EQ(fileLines(inHome("Sample.BAK"))[newton].substr(0, 2), "A\t");
}

TEST_F(DatabaseFlowTest, NotesTypedInThePanelAreNotLost)
{
    auto* const notes = find<QPlainTextEdit>("NotesEdit", &window().pages());
    auto* const keep = find<QPushButton>("KeepButton", &window().pages());
    ASSERT_TRUE(notes != nullptr && keep != nullptr);
    const std::string before(database().charts().line(0));
    const std::string second(database().charts().line(1));

    // Another chart is opened before the notes were kept.
    notes->setPlainText(QStringLiteral("First \"line\"\nsecond line"));
    notes->document()->setModified(true);
    EXPECT_TRUE(keep->isEnabled());
    ASSERT_TRUE(workspace().showLine(1));
    settle();
    EXPECT_EQ(database().record(0)->identity.notes, L"First 'line'\r\nsecond line");
    EXPECT_EQ(database().charts().line(1), second);
    command("UndoAction");
    EXPECT_EQ(database().charts().line(0), before);

    // A bar is refused in words; a file that is saved holds what was typed all the same.
    notes->setPlainText(QStringLiteral("one|two"));
    notes->document()->setModified(true);
    EXPECT_FALSE(keep->isEnabled());
    EXPECT_EQ(find<QLabel>("NotesNoteLabel", &window().pages())->text(),
              QStringLiteral("Notes cannot hold the character | because it stands for a line break "
                             "in the file."));
    command("SaveAction");
    EXPECT_EQ(database().record(1)->identity.notes, L"one/two");
    EXPECT_EQ(fileLines(sample_)[1], database().charts().line(1));
    EXPECT_EQ(workspace().chart()->chart.identity.notes, L"one/two");
}

TEST_F(DatabaseFlowTest, QuestionsCanBeSwitchedOff)
{
    for (const char* const name : {"ConfirmDeleteAction", "ConfirmGroupsAction",
                                   "ConfirmNowRecordAction", "ConfirmLeaveAction"}) {
        ASSERT_TRUE(find<QAction>(name)->isChecked());
        command(name);
        EXPECT_FALSE(find<QAction>(name)->isChecked());
    }
    EXPECT_FALSE(workspace().settings().confirmDelete);
    const std::size_t size = database().charts().size();
    find<ChartListPane>("ChartListPane")->selectLine(2);
    command("SetGroupBAction");
    EXPECT_EQ(database().charts().line(2).substr(0, 2), "B\t");
    list_->setFocus();
    QTest::keyClick(list_, Qt::Key_Delete);
    TMessages messages;
    EXPECT_TRUE(database().saveRecord(workspace().nowRecord(), messages).has_value());
    EXPECT_EQ(database().charts().size(), size);

    // What is not saved is asked about all the same.
    EXPECT_FALSE(window().close());
    expectMessages(
        {QStringLiteral("Warning|Sample.ksc has changes that are not saved. Save them?")});
    command("ConfirmLeaveAction");
    EXPECT_FALSE(window().close());
    expectMessages({QStringLiteral("Quit|Leave Kestrav?")});
    TMessages::prepare(Answer::Yes);
    TMessages::prepare(Answer::Yes);
    EXPECT_TRUE(window().close());
    EXPECT_EQ(takeTexts().size(), 2U);
    EXPECT_EQ(fileLines(sample_).size(), size);
}

TEST_F(DatabaseFlowTest, ListIsSortedGroupedAndDragged)
{
    QAbstractItemModel& model = *list_->model();
    EXPECT_EQ(nameAt(0), QStringLiteral("Abraham Lincoln"));
    auto* const sort = find<QComboBox>("SortComboBox");
    const auto choose = [&](int order) {
        sort->setCurrentIndex(order);
        emit sort->activated(order);
    };
    choose(int(data::SortOrder::FileOrder));
    EXPECT_EQ(nameAt(0), QStringLiteral("Albert Einstein"));
    choose(int(data::SortOrder::Female));
    const int women = model.rowCount();
    EXPECT_EQ(nameAt(0), QStringLiteral("Elizabeth I"));
    type(QStringLiteral("vict"));
    ASSERT_EQ(model.rowCount(), 1) << "Victor Hugo is no woman";

    // Space shows the chart and stays in the list.
    list_->setFocus();
    list_->setCurrentIndex(model.index(0, 0));
    const int opened = find<QTreeWidget>("SectionsTree")->topLevelItem(1)->childCount();
    QTest::keyClick(list_, Qt::Key_Space);
    EXPECT_EQ(workspace().chart()->chart.name, L"Victoria");
    EXPECT_EQ(find<QTreeWidget>("SectionsTree")->topLevelItem(1)->childCount(), opened);
    QTest::keyClick(list_, Qt::Key_Return);
    EXPECT_EQ(find<QTreeWidget>("SectionsTree")->topLevelItem(1)->child(0)->text(0),
              QStringLiteral("Victoria"));
    EXPECT_GT(women, 1);

    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(0, 0)}));
    const std::size_t line = *workspace().chartLine();
    const std::string text(database().charts().line(line));
    EXPECT_EQ(dragged->text().toStdString(), text + "\n");

    // Dropped on a window whose database has another chart of that name, the line is added.
    ASSERT_TRUE(database().deleteRecord(line));
    const std::size_t size = database().charts().size();
    for (int i = 0; i < 2; ++i) {
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, dragged.get(), Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&window(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, dragged.get(), Qt::LeftButton,
                        Qt::NoModifier);
        QApplication::sendEvent(&window(), &drop);
        settle();
        EXPECT_EQ(database().charts().size(), size + 1) << "what is there is not added again";
    }
    EXPECT_EQ(database().charts().line(size), text);
}

TEST_F(DatabaseFlowTest, ASwitchOfChartsRepaintsTheirTwoRowsOnly)
{
    QAbstractItemModel& model = *list_->model();
    const auto boldRows = [&] {
        std::set<int> rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data(Qt::FontRole).value<QFont>().bold()) {
                rows.insert(row);
            }
        }
        return rows;
    };
    for (const int order : {int(data::SortOrder::Alphabetical), int(data::SortOrder::FileOrder)}) {
        auto* const sort = find<QComboBox>("SortComboBox");
        sort->setCurrentIndex(order);
        emit sort->activated(order);
        const std::set<int> before = boldRows();
        const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        workspace().showLine(*workspace().chartLine() + 3);
        settle();
        std::set<int> told;
        for (const QList<QVariant>& change : changes) {
            for (int row = change[0].toModelIndex().row(); row <= change[1].toModelIndex().row();
                 ++row) {
                told.insert(row);
            }
        }
        std::set<int> expected = boldRows();
        EXPECT_EQ(expected.size(), 1U);
        expected.insert(before.begin(), before.end());
        EXPECT_EQ(expected.size(), 2U);
        EXPECT_EQ(told, expected);
    }
}

TEST_F(DatabaseFlowTest, MergeShowsWhatItWouldDoFirst)
{
    std::vector<std::string> lines = fileLines(sample_);
    const std::size_t size = lines.size();
    std::string changed = lines[1];
    changed.replace(changed.find("22:00"), 5, "23:00");
    std::string added = lines[2];
    added.replace(added.find("Michelangelo Buonarroti"), 23, "Somebody New");
    const std::filesystem::path other = inHome("Other.ksc");
    writeFile(other, {lines[0], changed, added, "short"});
    for (const char* const choice : {"SkipRadioButton", "ReplaceRadioButton", "BothRadioButton"}) {
        SCOPED_TRACE(choice);
        TMessages::prepare(toQt(other));
        command("MergeAction");
        EXPECT_EQ(takeTexts().size(), 1U);
        auto* const dialog = find<QDialog>("TMergePreviewDlg");
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(find<QLabel>("SummaryLabel", dialog)->text(),
                  QStringLiteral("Other.ksc has 1 charts that are new in Sample.ksc, 1 changed, "
                                 "1 equal and 1 damaged ones."));
        const QAbstractItemModel& table = *find<QAbstractItemView>("PreviewTable", dialog)->model();
        ASSERT_EQ(table.rowCount(), 4);
        EXPECT_EQ(table.index(0, 2).data().toString(), QStringLiteral("Somebody New"));
        EXPECT_EQ(table.index(1, 1).data().toString(), QStringLiteral("Changed"));
        EXPECT_EQ(table.index(1, 4).data().toString(), QStringLiteral("time"));
        find<QRadioButton>(choice, dialog)->setChecked(true);
        QTest::mouseClick(find<QPushButton>("OkButton", dialog), Qt::LeftButton);
        settle();
        const bool both = QLatin1String(choice) == QLatin1String("BothRadioButton");
        const bool replaced = QLatin1String(choice) == QLatin1String("ReplaceRadioButton");
        EXPECT_EQ(database().charts().size(), size + (both ? 2 : 1));
        EXPECT_EQ(database().charts().line(1), replaced ? changed : lines[1]);
        EXPECT_EQ(database().charts().find(L"Leonardo da Vinci~").has_value(), both);
        EXPECT_EQ(list_->model()->rowCount(), int(database().charts().size()));
        command("UndoAction");
        EXPECT_EQ(database().charts().size(), size);
        EXPECT_EQ(database().charts().line(1), lines[1]);
    }
    EXPECT_FALSE(database().modified());
}

TEST_F(DatabaseFlowTest, ImportsAskAndReport)
{
    const std::filesystem::path file = inHome("list.QCK");
    writeFile(file, {"Ada Example            12/10,1815 12:00:00 PM GMT+00:00 000W07'39 51N30'26 "
                     "London, England          ",
                     "Bad Example            13/45,1815 12:00:00 PM GMT+00:00 000W07'39 51N30'26 "
                     "London, England          "});
    const std::size_t size = database().charts().size();
    auto* const actions = window().findChild<DatabaseActions*>();
    ASSERT_NE(actions, nullptr);
    actions->open(file);
    expectMessages({QStringLiteral("Notice|Add list.QCK to Sample.ksc?")});
    EXPECT_EQ(database().charts().size(), size);
    TMessages::prepare(toQt(inHome("none.QCK")));
    command("ImportFileAction");
    EXPECT_EQ(takeTexts().back(), QStringLiteral("Error|Can't find the file"));

    const std::filesystem::path exported = inHome("mine.QCK");
    TMessages::prepare(toQt(exported));
    command("ExportQckAction");
    EXPECT_EQ(takeTexts().front().section(QLatin1Char('|'), 0, 0),
              QStringLiteral("Give the QCK file you are creating a name"));
    EXPECT_EQ(fileLines(exported).size(), size);
    if (auto* const losses = window().findChild<QDialog*>(QStringLiteral("TImportReportDlg"))) {
        losses->close();
        settle();
    }
    // Coming back they are charts of their own, as the columns lose notes and seconds.
    TMessages::prepare(Answer::Yes);
    actions->open(exported);
    settle();
    expectMessages({QStringLiteral("Notice|Add mine.QCK to Sample.ksc?")});
    auto* const report = find<QDialog>("TImportReportDlg");
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(database().charts().size(), 2 * size);
    EXPECT_EQ(find<QLabel>("SummaryLabel", report)->text(),
              QStringLiteral("mine.QCK (QCK chart list): %1 added, 0 refused").arg(size));
    QTest::keyClick(report, Qt::Key_Escape);
    command("UndoAction");
    EXPECT_EQ(database().charts().size(), size);
}

TEST_F(DatabaseFlowTest, AFileChangedByOthersIsOfferedAndNotOverwritten)
{
    std::vector<std::string> lines = fileLines(sample_);
    ASSERT_TRUE(database().deleteRecord(0));
    lines.pop_back();
    writeFile(sample_, lines);
    QTRY_VERIFY_WITH_TIMEOUT(find<QFrame>("ReloadBar")->isVisible(), 5000);
    EXPECT_EQ(find<QLabel>("ReloadLabel")->text(),
              QStringLiteral("Sample.ksc was changed by another program."));
    TMessages::prepare(Answer::No);
    command("SaveAction");
    expectMessages({QStringLiteral(
        "Warning|The file Sample.ksc was changed by another program since it was opened. Saving "
        "replaces what was changed there; it will be kept with the extension '.BAK'.\nSave "
        "anyway?")});
    EXPECT_EQ(fileLines(sample_), lines);
    TMessages::prepare(Answer::No);
    QTest::mouseClick(find<QPushButton>("ReloadButton"), Qt::LeftButton);
    settle();
    expectMessages(
        {QStringLiteral("Warning|Sample.ksc has changes that are not saved. Save them?")});
    EXPECT_EQ(database().charts().size(), lines.size());
    EXPECT_FALSE(database().modified());
    EXPECT_FALSE(find<QFrame>("ReloadBar")->isVisible());
}

TEST_F(DatabaseFlowTest, LargeFilesOpenBesideTheWindow)
{
    const std::vector<std::string> lines = fileLines(sample_);
    const std::filesystem::path large = inHome("Large.ksc");
    constexpr int kLines = 100'000;
    {
        std::ofstream stream(large, std::ios::binary);
        for (int i = 0; i < kLines; ++i) {
            std::string line = lines[std::size_t(i) % lines.size()];
            line.insert(line.find("\t\"\"\t\"") + 5, "N" + std::to_string(i) + " ");
            stream << line << '\n';
        }
    }
    auto* const actions = window().findChild<DatabaseActions*>();
    bool opened = false;
    actions->open(large, [&opened](bool done) { opened = done; });
    EXPECT_FALSE(opened) << "reading must not hold the window";
    QTRY_VERIFY_WITH_TIMEOUT(opened, 60000);
    EXPECT_EQ(list_->model()->rowCount(), kLines);
    type(QStringLiteral("N99999"));
    ASSERT_EQ(list_->model()->rowCount(), 1);
    QTest::keyClick(filter_, Qt::Key_Return);
    EXPECT_EQ(workspace().chartLine(), std::size_t(kLines) - 1);
    type(QString());

    // A change of one chart touches its row only.
    int resets = 0;
    QObject::connect(list_->model(), &QAbstractItemModel::modelReset, list_, [&] { ++resets; });
    QString problem;
    EXPECT_TRUE(database().renameRecord(kLines - 1, QStringLiteral("Aa"), problem));
    EXPECT_EQ(nameAt(0), QStringLiteral("Aa"));
    EXPECT_TRUE(database().deleteRecord(std::size_t(5)));
    EXPECT_EQ(workspace().chartLine(), std::size_t(kLines) - 2);
    EXPECT_EQ(list_->model()->rowCount(), kLines - 1);
    EXPECT_EQ(resets, 0);
}

TEST_F(DatabaseFlowTest, ResearchIsRefreshedAndLabelsTheList)
{
    ASSERT_TRUE(database().change(QStringLiteral("x"), [](data::ChartDatabase& charts) {
        charts.addLine("short");
        return data::Outcome::Done;
    }) == data::Outcome::Done);
    command("SaveAction");
    TMessages::prepare(Answer::Ok);
    TMessages::prepare(Answer::Cancel);
    command("RefreshResearchAction");
    const std::vector<QString> asked = takeTexts();
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0],
              QStringLiteral("notice|Your Research Database needs refreshing. Go ahead?"));
    EXPECT_TRUE(asked[1].startsWith(QStringLiteral("Notice|Your database may be corrupted, a very "
                                                   "short line was detected and processing "
                                                   "stopped.")));
    EXPECT_FALSE(std::filesystem::exists(inHome("Sample.txt"))) << "Cancel ends the work";

    command("ConfirmRefreshAction");
    TMessages::prepare(Answer::Ok);
    command("RefreshResearchAction");
    QTRY_VERIFY_WITH_TIMEOUT(data::researchState(database().charts(), workspace().settings()) ==
                                 data::ResearchState::Fresh,
                             30000);
    EXPECT_EQ(takeTexts().size(), 1U);
    auto* const label = find<QComboBox>("LabelComboBox");
    QTRY_VERIFY(!label->isHidden());
    label->setCurrentIndex(1);
    emit label->activated(1);
    // The tropical Sun of 2 April, the first of Aries in the alphabet.
    const QAbstractItemModel& model = *list_->model();
    EXPECT_TRUE(model.index(0, ChartListModel::LabelColumn)
                    .data()
                    .toString()
                    .endsWith(QStringLiteral("  (Trop. Sun)")));
    const auto hits =
        model.match(model.index(0, 0), Qt::DisplayRole, QStringLiteral("Hans Christian Andersen"));
    ASSERT_EQ(hits.size(), 1);
    EXPECT_EQ(hits[0].siblingAtColumn(ChartListModel::LabelColumn).data().toString(),
              QStringLiteral("Aries  (Trop. Sun)"));

    core::Settings moved = workspace().settings();
    moved.ayanamsaRow = (moved.ayanamsaRow + 1) % core::kAyanamsaRows;
    EXPECT_TRUE(optionsMovePlanets(workspace().settings(), moved));
    moved = workspace().settings();
    moved.fontPercent += 10;
    EXPECT_FALSE(optionsMovePlanets(workspace().settings(), moved));
}

TEST_F(DatabaseFlowTest, StartsWithTheLastDatabaseAndSurvivesBrokenOnes)
{
    const std::filesystem::path other = inHome("Other.ksc");
    const std::vector<std::string> lines = fileLines(sample_);
    writeFile(other, {lines[3], "short", lines[4]});
    auto* const actions = window().findChild<DatabaseActions*>();
    actions->open(other);
    const std::vector<QString> told = takeTexts();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].endsWith(QStringLiteral("Line #2 \"short\"")));
    ASSERT_TRUE(workspace().showLine(2));
    EXPECT_EQ(recentFiles().front(), toQt(other));

    openWindow();
    rememberChart(QStringLiteral("John Dee"));
    openFirst(window(), {});
    takeTexts();
    EXPECT_EQ(database().path(), other);
    EXPECT_EQ(workspace().chart()->chart.name, L"John Dee");

    // A file of the command line that is none is told, and the next candidate opened.
    ProgramOptions options;
    options.files = {inHome("none.ksc").string()};
    options.chart = "Isaac Newton";
    openFirst(window(), options);
    expectMessages({QStringLiteral("Error|This file is not found, please use 'File/Open Database' "
                                   "to open it")});
    EXPECT_EQ(database().path().filename(), "Sample.ksc");
    EXPECT_EQ(workspace().chart()->chart.name, L"Isaac Newton");
}

} // namespace
} // namespace kestrav::desktop
