// The entry form by keys alone, charts that share a name, and the steps that can be undone.
#include "app/desktop/database/ChartListPane.h"
#include "app/desktop/entry/TDataEntryForm.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextCursor>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

namespace kestrav::desktop
{
namespace
{

using core::Answer;

class EntryUndoTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    OpenDatabase& database()
    {
        return workspace().database();
    }

    TDataEntryForm& form(const char* name)
    {
        command(name);
        auto* const found = window().findChild<TDataEntryForm*>();
        found->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(found));
        return *found;
    }

    void pressOk(QWidget& form)
    {
        form.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        settle();
    }

    /// The names of what Tab reaches from a field on, up to the buttons.
    static QStringList tabbed(QWidget& from)
    {
        QStringList names;
        from.setFocus();
        for (QWidget* at = &from; at != nullptr && names.size() < 30;
             at = QApplication::focusWidget()) {
            if (qobject_cast<QPushButton*>(at) != nullptr && at->objectName().isEmpty()) {
                break;
            }
            names += at->objectName();
            QTest::keyClick(at, Qt::Key_Tab);
        }
        return names;
    }

    /// Gives the second chart of the file the name of the first.
    void makeNamesakes()
    {
        ASSERT_EQ(database().change(QStringLiteral("x"),
                                    [](data::ChartDatabase& charts) {
                                        core::Chart chart;
                                        charts.read(1, chart);
                                        chart.name = L"Albert Einstein";
                                        charts.replace(1, chart);
                                        return data::Outcome::Done;
                                    }),
                  data::Outcome::Done);
        ASSERT_TRUE(workspace().showLine(1));
        settle();
    }
};

TEST_F(EntryUndoTest, TabWalksTheFieldsAsTheyStand)
{
    TDataEntryForm& entry = form("NewChartAction");
    EXPECT_EQ(tabbed(*find<QLineEdit>("NameEdit", &entry)).join(QLatin1Char(' ')).toStdString(),
              "NameEdit SexComboBox DateEdit TimeEdit CityEdit CountryEdit LookUpButton "
              "WorldMapButton ZoneEdit ZoneLetterEdit DstCheckBox DstSpinBox LongitudeEdit "
              "LongitudeLetterEdit LatitudeEdit LatitudeLetterEdit");
    auto* const tabs = find<QTabWidget>("EntryTabs", &entry);
    tabs->setCurrentIndex(1);
    EXPECT_EQ(tabbed(*find<QWidget>("TagComboBox", &entry)).join(QLatin1Char(' ')).toStdString(),
              "TagComboBox LabelEdit CodeEdit SoundComboBox OccupationEdit StatusEdit FreeTextEdit "
              "SecondDateEdit ThirdDateEdit Number1SpinBox Number2SpinBox");
    // Every page is to be seen as a whole.
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        settle();
        if (const auto* const area = qobject_cast<QScrollArea*>(tabs->widget(i))) {
            EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << i;
        }
    }
    entry.reject();
}

TEST_F(EntryUndoTest, SavingTimeInForceAddsTheHoursOfTheOptions)
{
    TDataEntryForm& entry = form("NewChartAction");
    auto* const inForce = find<QCheckBox>("DstCheckBox", &entry);
    auto* const hours = find<QSpinBox>("DstSpinBox", &entry);
    EXPECT_FALSE(inForce->isChecked());
    inForce->click();
    EXPECT_EQ(hours->value(), 1);
    inForce->click();
    EXPECT_EQ(hours->value(), 0);
    core::Settings settings = workspace().settings();
    settings.daylightSavingHours = 2;
    workspace().changeSettings(settings);
    inForce->click();
    EXPECT_EQ(hours->value(), 2);
    hours->setValue(0);
    EXPECT_FALSE(inForce->isChecked());
    hours->setValue(3);
    EXPECT_TRUE(inForce->isChecked());
    entry.reject();
}

TEST_F(EntryUndoTest, OfChartsWithOneNameTheEditedOneIsReplaced)
{
    makeNamesakes();
    const std::string first(database().charts().line(0));
    const std::string second(database().charts().line(1));
    TDataEntryForm& entry = form("EditChartAction");
    find<QLineEdit>("OccupationEdit", &entry)->setText(QStringLiteral("namesake"));
    TMessages::prepare(Answer::Yes);
    pressOk(entry);
    const auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, "Name already exists, update? Click [No] to save as Nnnnnn~");
    EXPECT_EQ(database().charts().line(0), first);
    EXPECT_EQ(database().record(1)->identity.occupation, L"namesake");
    EXPECT_EQ(workspace().chartLine(), 1U);
    command("UndoAction");
    EXPECT_EQ(database().charts().line(1), second);
    command("RedoAction");
    EXPECT_EQ(database().record(1)->identity.occupation, L"namesake");

    // Lines that moved in the meantime are not mistaken for the edited one.
    form("EditChartAction");
    find<QLineEdit>("OccupationEdit", &entry)->setText(QStringLiteral("third"));
    ASSERT_TRUE(database().deleteRecord(std::size_t(1)));
    const std::string now(database().charts().line(1));
    TMessages::prepare(Answer::No);
    pressOk(entry);
    EXPECT_EQ(TMessages::takeShown().size(), 1U);
    EXPECT_EQ(database().charts().line(0), first);
    EXPECT_EQ(database().charts().line(1), now);
    EXPECT_EQ(workspace().record().name, L"Albert Einstein~");
    EXPECT_EQ(workspace().record().identity.occupation, L"third");
}

TEST_F(EntryUndoTest, NotesGoToTheirChartWhateverItIsCalled)
{
    makeNamesakes();
    const auto type = [&](const char* text) {
        auto* const notes = find<QPlainTextEdit>("NotesEdit", window().centralWidget());
        notes->setPlainText(QLatin1String(text));
        notes->document()->setModified(true);
    };
    const std::string first(database().charts().line(0));
    type("of the second");
    ASSERT_TRUE(workspace().showLine(0));
    settle();
    EXPECT_EQ(database().charts().line(0), first);
    EXPECT_EQ(database().record(1)->identity.notes, L"of the second");

    // A chart that moves up and is renamed takes them along.
    ASSERT_TRUE(workspace().showLine(2));
    settle();
    type("of the third");
    ASSERT_TRUE(database().deleteRecord(std::size_t(0)));
    QString problem;
    ASSERT_TRUE(database().renameRecord(1, QStringLiteral("Renamed Example"), problem));
    settle();
    EXPECT_EQ(database().record(1)->name, L"Renamed Example");
    EXPECT_EQ(database().record(1)->identity.notes, L"of the third");
}

TEST_F(EntryUndoTest, NotesThatAreTypedForLongAreKeptMeanwhile)
{
    auto* const notes = find<QPlainTextEdit>("NotesEdit", window().centralWidget());
    notes->setFocus();
    notes->moveCursor(QTextCursor::Start);
    QTest::keyClicks(notes, QStringLiteral("Typed, "));
    notes->moveCursor(QTextCursor::End);
    QTest::keyClick(notes, Qt::Key_Return);
    auto* const timer = find<QTimer>("KeepTimer", window().centralWidget());
    EXPECT_TRUE(timer->isActive());
    EXPECT_GT(timer->remainingTime(), 0);
    timer->start(0);
    QTRY_VERIFY(database().modified());
    settle();
    EXPECT_TRUE(database().record(0)->identity.notes.starts_with(L"Typed, Birth register"));
    // Typing goes on where it was.
    QTest::keyClicks(notes, QStringLiteral("and more"));
    EXPECT_TRUE(notes->toPlainText().endsWith(QLatin1String("forenoon.\nand more")));
    command("SaveAction");
    EXPECT_TRUE(database().record(0)->identity.notes.ends_with(L"forenoon.\r\nand more"));
}

TEST_F(EntryUndoTest, DeletingGoesOnFromRowToRow)
{
    auto& pane = *window().findChild<ChartListPane*>();
    QTreeView& list = pane.list();
    list.setFocus();
    pane.selectLine(3);
    const int row = list.currentIndex().row();
    const auto nameAt = [&](int at) {
        return list.model()->index(at, 0).data().toString();
    };
    const QString gone = nameAt(row);
    const QString next = nameAt(row + 1);
    const auto question = [](const QString& name) {
        return QStringLiteral("Delete '%1' from file?").arg(name).toStdString();
    };
    TMessages::prepare(Answer::Yes);
    QTest::keyClick(&list, Qt::Key_Delete);
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text.toStdString(), question(gone));
    ASSERT_EQ(pane.selectedLines().size(), 1U);
    QTest::keyClick(&list, Qt::Key_Delete);
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    const QString at = nameAt(list.currentIndex().row());
    EXPECT_EQ(shown[0].text.toStdString(), question(at));
    EXPECT_TRUE(at == next || at == nameAt(row - 1));

    // Where nothing is selected the shown chart is meant, which may be in no file.
    list.clearSelection();
    command("DeleteChartAction");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text.toStdString(), question(toQt(workspace().record().name)));
    command("NowChartAction");
    list.clearSelection();
    command("DeleteChartAction");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, "No need to Delete because not yet saved");
}

TEST_F(EntryUndoTest, EveryStepIsTakenBackToTheFirstByte)
{
    const auto bytes = database().charts().bytes();
    TDataEntryForm& entry = form("EditChartAction");
    find<QLineEdit>("NameEdit", &entry)->setText(QStringLiteral("New Example"));
    pressOk(entry);
    EXPECT_EQ(workspace().record().name, L"New Example");
    EXPECT_EQ(window().findChild<QAction*>("UndoAction")->text(), "&Undo Add New Example");
    form("EditChartAction");
    find<QLineEdit>("TimeEdit", &entry)->setText(QStringLiteral("1:02"));
    TMessages::prepare(Answer::Yes);
    pressOk(entry);
    EXPECT_EQ(TMessages::takeShown().size(), 1U);
    EXPECT_EQ(window().findChild<QAction*>("UndoAction")->text(), "&Undo Change New Example");
    database().deleteRecords({0, 5, 9});
    const auto end = database().charts().bytes();
    // The key that opens a chart may be pressed with Ctrl.
    ASSERT_TRUE(workspace().showLine(2));
    QTest::keyPress(window().windowHandle(), Qt::Key_Control, Qt::ControlModifier);
    ASSERT_EQ(QApplication::keyboardModifiers(), Qt::ControlModifier);
    ASSERT_TRUE(workspace().showLine(4));
    QTest::keyRelease(window().windowHandle(), Qt::Key_Control);
    EXPECT_EQ(window().findChild<ChartListPane*>()->selectedLines(), std::vector<std::size_t>{4});
    int steps = 0;
    for (; database().undoStack().canUndo(); ++steps) {
        command("UndoAction");
    }
    EXPECT_EQ(steps, 3);
    EXPECT_EQ(database().charts().bytes(), bytes);
    EXPECT_FALSE(database().modified());
    for (int i = 0; i < steps; ++i) {
        command("RedoAction");
    }
    EXPECT_EQ(database().charts().bytes(), end);
}

} // namespace
} // namespace kestrav::desktop
