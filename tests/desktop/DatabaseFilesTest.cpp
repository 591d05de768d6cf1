// Database files in the window: new, copied, exported, opened in turn, and brought back after a
// kill.
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/start/SingleInstance.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace kestrav::desktop
{
namespace
{

using core::Answer;

class DatabaseFilesTest : public WindowTest
{
protected:
    OpenDatabase& database()
    {
        return workspace().database();
    }

    DatabaseActions& actions()
    {
        return *window().findChild<DatabaseActions*>();
    }

    std::filesystem::path inHome(const char* name)
    {
        return toPath(home_.filePath(QLatin1String(name)));
    }

    static std::string bytesOf(const std::filesystem::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    static void write(const std::filesystem::path& file, const std::string& text)
    {
        std::ofstream(file, std::ios::binary) << text;
    }

    /// One line of a chart list in fixed columns.
    static std::string listLine(const std::string& name)
    {
        return name + std::string(23 - name.size(), ' ') +
               "DEC 10, 181512:00:00 PM    +00:00 000W07'39 51N30'26 London, England          \n";
    }

    static void expectMessages(const std::vector<std::string>& expected)
    {
        std::vector<std::string> texts;
        for (const ShownMessage& shown : TMessages::takeShown()) {
            // Of a prompt for a file the text is its filter.
            const bool prompt = shown.text.contains(QLatin1Char('|'));
            texts.push_back(toUtf8(shown.caption) + '|' + (prompt ? "" : toUtf8(shown.text)));
        }
        EXPECT_EQ(texts, expected);
    }

    /// Closes the dialog of that name, once it is there.
    void closeDialog(const char* name)
    {
        QDialog* dialog = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] {
            dialog = window().findChild<QDialog*>(QLatin1String(name));
            return dialog != nullptr && dialog->isVisible();
        })) << name;
        dialog->close();
        settle();
    }

    std::vector<std::filesystem::path> unsavedCopies()
    {
        std::vector<std::filesystem::path> copies;
        for (const auto& entry : std::filesystem::directory_iterator(stateFolder())) {
            if (entry.path().filename().string().starts_with("unsaved-") &&
                entry.path().extension() == ".ksc") {
                copies.push_back(entry.path());
            }
        }
        return copies;
    }

    bool newsTells(const char* text)
    {
        return find<QLabel>("NewsLabel")->text().contains(QLatin1String(text));
    }
};

TEST_F(DatabaseFilesTest, NewSavedBackedUpAndRestored)
{
    const std::string sample = bytesOf(sample_);
    const std::filesystem::path other = inHome("Other.ksc");
    write(other, sample);
    TMessages::prepare(toQt(other));
    TMessages::prepare(Answer::No);
    command("NewDatabaseAction");
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].caption, "Enter the Name for your New Data File");
    EXPECT_EQ(shown[1].caption + '|' + shown[1].text, "Warning|File exists. Overwrite?");
    EXPECT_EQ(bytesOf(other), sample);
    EXPECT_EQ(database().path(), sample_);
    TMessages::prepare(toQt(other));
    TMessages::prepare(Answer::Yes);
    command("NewDatabaseAction");
    EXPECT_EQ(TMessages::takeShown().size(), 2U);
    EXPECT_EQ(database().path(), other);
    EXPECT_EQ(database().charts().size(), 0U);
    EXPECT_EQ(bytesOf(inHome("Other.BAK")), sample);
    EXPECT_EQ(workspace().chart() != nullptr && workspace().chartLine().has_value(), false);
    EXPECT_EQ(find<QLabel>("EmptyListLabel")->text(),
              "There are no charts yet. Chart / New Chart enters one.");
    EXPECT_TRUE(find<QLabel>("EmptyListLabel")->isVisible());

    // What is not saved is copied too, and stays unsaved.
    actions().open(sample_);
    ASSERT_TRUE(database().deleteRecord(std::size_t(0)));
    const auto bytes = database().charts().bytes();
    const std::string now(bytes.begin(), bytes.end());
    const std::filesystem::path backup = inHome("stick.ksc");
    TMessages::prepare(toQt(backup));
    command("BackupAction");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].caption + '|' + shown[0].text,
              "Notice|Insert a flash drive, CD or other memory device in a USB port or other spare "
              "drive.\nThen a dialog will open to save the Kestrav data file there.\nIf necessary "
              "navigate to the right device.");
    EXPECT_EQ(bytesOf(backup), now);
    EXPECT_TRUE(database().modified());
    EXPECT_EQ(bytesOf(sample_), sample);

    // A name that cannot be written leaves everything as it was.
    std::filesystem::create_directory(inHome("folder.ksc"));
    TMessages::prepare(toQt(inHome("folder.ksc")));
    TMessages::prepare(Answer::Yes);
    command("SaveAsAction");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[0].caption, "Enter the Name to Save 'Sample.ksc' As");
    EXPECT_EQ(shown[2].caption, "Error");
    EXPECT_TRUE(shown[2].text.startsWith(QLatin1String("Saving File Error :")));
    EXPECT_EQ(database().path(), sample_);
    EXPECT_TRUE(database().modified());
    const std::filesystem::path saved = inHome("Saved.ksc");
    TMessages::prepare(toQt(saved));
    command("SaveAsAction");
    expectMessages({"Enter the Name to Save 'Sample.ksc' As|"});
    EXPECT_EQ(bytesOf(saved), now);
    EXPECT_EQ(bytesOf(sample_), sample);
    EXPECT_EQ(recentFiles().front(), toQt(saved));

    TMessages::prepare(toQt(backup));
    TMessages::prepare(toQt(inHome("Restored.ksc")));
    command("RestoreAction");
    EXPECT_EQ(TMessages::takeShown().size(), 2U);
    EXPECT_EQ(database().path().filename(), "Restored.ksc");
    EXPECT_EQ(bytesOf(inHome("Restored.ksc")), now);
    EXPECT_TRUE(workspace().chartLine().has_value());
}

TEST_F(DatabaseFilesTest, AListThatShowsNothingSaysWhy)
{
    auto* const hint = find<QLabel>("EmptyListLabel");
    EXPECT_FALSE(hint->isVisible());
    find<QLineEdit>("FilterEdit")->setText(QStringLiteral("no such name"));
    settle();
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), "No chart fits the filter and the group chosen above.");
    find<QLineEdit>("FilterEdit")->clear();
    settle();
    EXPECT_FALSE(hint->isVisible());
    write(inHome("damaged.ksc"), "no chart\n");
    actions().open(inHome("damaged.ksc"));
    const auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(
        shown[0].caption + '|' + shown[0].text,
        "Notice|Your database may be corrupted, a very short line was detected.\nTry opening "
        "the file with the same name but the extension '.BAK' which will be there if you used "
        "the file before.\nLine #1 \"no chart\"");
    EXPECT_EQ(hint->text(), "No line of this file is a chart.");
}

TEST_F(DatabaseFilesTest, ExportsWriteBesideTheDatabaseOnly)
{
    const std::string sample = bytesOf(sample_);
    const auto written = [&](const char* command, const char* name) {
        TMessages::prepare(toQt(inHome(name)));
        this->command(command);
        EXPECT_EQ(TMessages::takeShown().size(), 1U) << name;
        return bytesOf(inHome(name));
    };
    const std::string lines = written("ExportCsvAction", "charts.csv");
    EXPECT_NE(lines.find("Albert Einstein"), std::string::npos);
    const std::string json = written("ExportJsonAction", "charts.json");
    EXPECT_EQ(json.substr(0, 1), "{");
    EXPECT_NE(json.find("\"Albert Einstein\""), std::string::npos);
    const std::string contacts = written("ExportContactsAction", "contacts.txt");
    EXPECT_EQ(contacts.substr(0, contacts.find_first_of("\r\n")),
              "Name\tStreet\tCity\tState\tZip/PC\tCountry\tTel1\tTel2\tFax\tEmail\tSortCode");

    TMessages::prepare(toQt(inHome("contacts.JDF")));
    command("ExportContactsAction");
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].caption + '|' + shown[1].text,
              "Error|Can't export to this name, don't use '.jdf' extension");
    EXPECT_FALSE(std::filesystem::exists(inHome("contacts.JDF")));

    TMessages::prepare(toQt(sample_));
    command("ExportCsvAction");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].caption, "Error");
    TMessages::prepare(toQt(inHome("charts.csv")));
    TMessages::prepare(Answer::No);
    command("ExportJsonAction");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].text, "File exists. Overwrite?");
    EXPECT_EQ(bytesOf(inHome("charts.csv")), lines);
    EXPECT_EQ(bytesOf(sample_), sample);
    EXPECT_FALSE(std::filesystem::exists(inHome("Sample.BAK")));
}

TEST_F(DatabaseFilesTest, AFolderIsImportedWithAReportAndInOneStep)
{
    const std::filesystem::path folder = inHome("old");
    std::filesystem::create_directory(folder);
    const std::string rest = "\n1975\n14.150000\n-5.300000\n-77.130000\n28.390000\n0.000000\n";
    write(folder / "Mira Example.jhd", "3\n5" + rest);
    write(folder / "Broken Example.jhd", "13\n45" + rest);
    const std::size_t size = database().charts().size();
    TMessages::prepare(toQt(folder / "Mira Example.jhd"));
    command("ImportFolderAction");
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].caption + '|' + shown[1].text, "Notice|Add old to Sample.ksc?");
    EXPECT_EQ(database().charts().size(), size);

    TMessages::prepare(toQt(folder / "Mira Example.jhd"));
    TMessages::prepare(Answer::Yes);
    command("ImportFolderAction");
    static_cast<void>(TMessages::takeShown());
    closeDialog("TImportReportDlg");
    ASSERT_EQ(database().charts().size(), size + 1);
    const core::Chart mira = *database().record(size);
    EXPECT_EQ(mira.name, L"Mira Example");
    EXPECT_EQ(mira.zone, 5.5);
    EXPECT_NEAR(mira.geoLongitude, 77.0 + 13.0 / 60.0, 1e-9);
    command("UndoAction");
    EXPECT_EQ(database().charts().size(), size);
    EXPECT_FALSE(database().modified());
    command("RedoAction");
    EXPECT_EQ(database().record(size)->name, L"Mira Example");
}

TEST_F(DatabaseFilesTest, ALaterStartAsksOnceAndKeepsWhatIsOpen)
{
    ASSERT_TRUE(database().deleteRecord(std::size_t(0)));
    const std::size_t size = database().charts().size();
    // Another database of the user's, which a later start must not open by itself.
    rememberFile(inHome("Sample.ksc"));
    SingleInstance first;
    ASSERT_FALSE(first.handOver({}));
    QObject::connect(&first, &SingleInstance::asked, &window(), [this](const QStringList& files) {
        for (const QString& file : files) {
            actions().openInTurn(toPath(file));
        }
        // As long as a question would stay open.
        QTest::qWait(50);
    });
    const auto startWith = [&](const std::filesystem::path& file) {
        SingleInstance later;
        EXPECT_TRUE(later.handOver({toQt(file)}));
        QTest::qWait(100);
        settle();
    };
    startWith(inHome("none.ksc"));
    expectMessages({"Warning|Sample.ksc has changes that are not saved. Save them?"});
    EXPECT_EQ(database().charts().size(), size);
    EXPECT_TRUE(database().modified());

    // The open file is open already.
    startWith(sample_);
    expectMessages({});
    EXPECT_TRUE(database().undoStack().canUndo());

    write(inHome("list.QCK"), listLine("Ada Example"));
    TMessages::prepare(Answer::Yes);
    startWith(inHome("list.QCK"));
    expectMessages({"Notice|Add list.QCK to Sample.ksc?"});
    closeDialog("TImportReportDlg");
    EXPECT_EQ(database().charts().size(), size + 1);
    EXPECT_TRUE(database().undoStack().canUndo()) << "the database was not read anew";

    TMessages::prepare(Answer::No);
    startWith(inHome("none.ksc"));
    expectMessages({"Warning|Sample.ksc has changes that are not saved. Save them?",
                    "Error|This file is not found, please use 'File/Open Database' to open it"});
    EXPECT_EQ(database().charts().size(), size + 1);
    EXPECT_TRUE(database().modified());
}

TEST_F(DatabaseFilesTest, DroppedFilesAreTakenOneAfterTheOther)
{
    write(inHome("one.QCK"), listLine("One Example"));
    write(inHome("two.QCK"), listLine("Two Example"));
    const std::size_t size = database().charts().size();
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(home_.filePath(QStringLiteral("one.QCK"))),
                  QUrl::fromLocalFile(home_.filePath(QStringLiteral("two.QCK")))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    TMessages::prepare(Answer::Yes);
    QApplication::sendEvent(&window(), &drop);
    settle();
    // The report of the first stands before the question about the second.
    expectMessages({"Notice|Add one.QCK to Sample.ksc?"});
    EXPECT_EQ(database().charts().size(), size + 1);
    TMessages::prepare(Answer::Yes);
    closeDialog("TImportReportDlg");
    QTRY_COMPARE(database().charts().size(), size + 2);
    expectMessages({"Notice|Add two.QCK to Sample.ksc?"});
    closeDialog("TImportReportDlg");

    // A dialog belongs to the database that is open.
    const std::filesystem::path other = inHome("Other.ksc");
    std::filesystem::copy_file(sample_, other);
    command("SaveAction");
    QDialog dialog(&window());
    dialog.open();
    actions().openInTurn(other);
    QTest::qWait(300);
    EXPECT_EQ(database().path(), sample_);
    EXPECT_TRUE(newsTells("Other.ksc is opened when the open dialog is closed."));
    dialog.close();
    QTRY_COMPARE(database().path(), other);
}

TEST_F(DatabaseFilesTest, ACopyIsKeptAsLongAsChangesAreUnsaved)
{
    QString problem;
    ASSERT_TRUE(database().renameRecord(0, QStringLiteral("Albert Example"), problem));
    QTRY_COMPARE(unsavedCopies().size(), 1U);
    command("SaveAction");
    EXPECT_TRUE(unsavedCopies().empty());
    command("UndoAction");
    QTRY_COMPARE(unsavedCopies().size(), 1U);
    command("RedoAction");
    EXPECT_TRUE(unsavedCopies().empty());
    EXPECT_TRUE(find<QWidget>("UnsavedBar")->isHidden());

    // A copy of what is in the file already says nothing new.
    ASSERT_TRUE(database().deleteRecord(std::size_t(1)));
    QTRY_COMPARE(unsavedCopies().size(), 1U);
    std::filesystem::copy_file(unsavedCopies().front(), sample_,
                               std::filesystem::copy_options::overwrite_existing);
    openWindow();
    EXPECT_TRUE(find<QWidget>("UnsavedBar")->isHidden());
    EXPECT_TRUE(unsavedCopies().empty());
}

TEST_F(DatabaseFilesTest, ChangesOutliveAKilledProgram)
{
    // Killed: the window goes without a question, and the next one opens the same file.
    QString problem;
    ASSERT_TRUE(database().renameRecord(0, QStringLiteral("Albert Example"), problem));
    core::Chart more = *database().record(1);
    more.name = L"More Example";
    TMessages messages;
    ASSERT_TRUE(database().saveRecord(more, messages).has_value());
    QTRY_COMPARE(unsavedCopies().size(), 1U);
    openWindow();
    EXPECT_FALSE(database().charts().find(L"More Example").has_value());
    EXPECT_TRUE(find<QWidget>("UnsavedBar")->isVisible());
    EXPECT_EQ(find<QLabel>("UnsavedLabel")->text(),
              "The program ended before changes of Sample.ksc were saved. They have been kept.");
    // New changes do not touch the copy that is offered.
    ASSERT_TRUE(database().deleteRecord(std::size_t(3)));
    QTRY_COMPARE(unsavedCopies().size(), 2U);
    find<QPushButton>("BringBackButton")->click();
    settle();
    auto* const dialog = find<QDialog>("TMergePreviewDlg");
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(find<QLabel>("SummaryLabel", dialog)
                    ->text()
                    .startsWith(QLatin1String("The unsaved copy of Sample.ksc has 3 charts that "
                                              "are new in Sample.ksc, 0 changed")));
    // The renamed one, the added one, and the one that was deleted since.
    EXPECT_EQ(find<QLabel>("ResultLabel", dialog)->text(), "OK adds 3 charts and replaces 0.");
    find<QPushButton>("OkButton", dialog)->click();
    settle();
    EXPECT_TRUE(database().charts().find(L"More Example").has_value());
    EXPECT_TRUE(find<QWidget>("UnsavedBar")->isHidden());
    QTRY_COMPARE(unsavedCopies().size(), 1U);

    // The user leaves without saving, which is no reason to offer anything.
    TMessages::prepare(Answer::Yes);
    TMessages::prepare(Answer::No);
    EXPECT_TRUE(window().close());
    EXPECT_EQ(TMessages::takeShown().size(), 2U);
    EXPECT_TRUE(unsavedCopies().empty());
}

TEST_F(DatabaseFilesTest, TheWizardImportsIntoChartsOfOnesOwn)
{
    write(inHome("list.QCK"), listLine("Ada Example"));
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &window(), [&] {
        QWidget* const wizard = QApplication::activeModalWidget();
        if (wizard == nullptr || wizard->objectName() != QLatin1String("TOptionWizardForm")) {
            return;
        }
        timer.stop();
        auto* const next = find<QPushButton>("NextButton", wizard);
        for (int step = 1; step < 6; ++step) {
            next->click();
        }
        find<QAbstractButton>("ImportButton", wizard)->click();
        TMessages::prepare(toQt(inHome("list.QCK")));
        TMessages::prepare(Answer::Yes);
        next->click();
    });
    timer.start(1);
    command("OptionWizardAction");
    closeDialog("TImportReportDlg");
    expectMessages({"Import Charts|", "Notice|Add list.QCK to My Charts.ksc?"});
    EXPECT_EQ(database().path().filename(), "My Charts.ksc");
    EXPECT_EQ(database().charts().size(), 1U);
}

TEST_F(DatabaseFilesTest, WhatIsTypedIsInFilesThatCommandsWrite)
{
    const std::string before(database().charts().line(0));
    auto* const notes = find<QPlainTextEdit>("NotesEdit");
    notes->setPlainText(QStringLiteral("typed last"));
    notes->document()->setModified(true);
    command("SaveInOtherOrderAction");
    EXPECT_TRUE(workspace().settings().monthFirst);
    const std::string written = bytesOf(sample_);
    EXPECT_NE(written.find("\"typed last\""), std::string::npos);
    EXPECT_NE(written.find("\t3/14/1879\t"), std::string::npos);
    EXPECT_EQ(written.find("\"EB\""), std::string::npos);
    command("UndoAction");
    command("UndoAction");
    EXPECT_EQ(database().charts().line(0), before);
    EXPECT_EQ(database().record(0)->time.month, 3);
}

TEST_F(DatabaseFilesTest, AFileThatIsTakenAwayIsToldAndWrittenAgain)
{
    const std::string sample = bytesOf(sample_);
    std::filesystem::remove(sample_);
    QTRY_VERIFY_WITH_TIMEOUT(find<QWidget>("ReloadBar")->isVisible(), 5000);
    // Reading it again fails, and what is in memory stays.
    find<QPushButton>("ReloadButton")->click();
    settle();
    expectMessages({"Error|This file is not found, please use 'File/Open Database' to open it"});
    TMessages::prepare(Answer::Yes);
    command("SaveAction");
    EXPECT_EQ(TMessages::takeShown().size(), 1U);
    EXPECT_EQ(bytesOf(sample_), sample);
    EXPECT_FALSE(find<QWidget>("ReloadBar")->isVisible());
}

} // namespace
} // namespace kestrav::desktop
