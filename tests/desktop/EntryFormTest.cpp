// Charts entered, edited, kept as drafts, and their places looked up.
#include "app/desktop/entry/EntryDraft.h"
#include "app/desktop/entry/TDataEntryForm.h"
#include "app/desktop/entry/WorldMapView.h"
#include "core/TextForms.h"
#include "data/ChartDatabase.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>
#include <QTreeView>
#include <QWheelEvent>

#include <functional>

namespace kestrav::desktop
{
namespace
{

class EntryTest : public WindowTest
{
protected:
    QDialog* form()
    {
        return find<QDialog>("TDataEntryForm");
    }
    QLineEdit* edit(const char* name)
    {
        return find<QLineEdit>(name, form());
    }
    QString label(const char* name)
    {
        return find<QLabel>(name, form())->text();
    }
    static QPushButton* ok(QDialog* dialog)
    {
        return dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }

    /// Types into a field, whatever it held, and leaves it with Tab.
    static void type(QLineEdit* field, const char* text)
    {
        // Without an active window a field never learns that it is left.
        field->window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(field->window()));
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QString::fromUtf8(text));
        QTest::keyClick(field, Qt::Key_Tab);
        settle();
    }

    /// Does something with the modal dialog of that name as soon as it is open.
    static void answerDialog(const char* name, std::function<void(QDialog&)> answer)
    {
        auto* const timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, name, answer] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr && dialog->objectName() == QLatin1String(name)) {
                timer->stop();
                timer->deleteLater();
                answer(*dialog);
            }
        });
        timer->start(1);
    }

    void typeBirth(const char* name, const char* date, const char* time)
    {
        command("NewChartAction");
        type(edit("NameEdit"), name);
        type(edit("DateEdit"), date);
        type(edit("TimeEdit"), time);
    }
};

TEST_F(EntryTest, AChartIsTypedFoundOnTheMapSavedAndReadAgain)
{
    typeBirth("Test Person", "31/4/1960", "14:30:15");
    EXPECT_EQ(label("DateNoteLabel"), "April 1960 has no day 31.");
    EXPECT_FALSE(ok(form())->isEnabled());
    type(edit("DateEdit"), "15/6/1990");
    EXPECT_EQ(label("DateNoteLabel"), "");
    EXPECT_EQ(label("StateLabel"), "Still missing: time zone, longitude, latitude");
    type(edit("TimeEdit"), "24:61");
    EXPECT_FALSE(label("TimeNoteLabel").isEmpty());
    type(edit("TimeEdit"), "2:30:15 pm");
    type(edit("CityEdit"), "Portland");
    bool several = false;
    answerDialog("TAtlasCitiesDlg", [&](QDialog& dialog) {
        auto* const list = dialog.findChild<QListWidget*>();
        const auto maine = list->findItems(QStringLiteral("Maine"), Qt::MatchContains);
        several = list->count() > 3 && maine.size() == 1;
        EXPECT_TRUE(maine.value(0)->text().startsWith("43N39'27\"    Portland"));
        list->setCurrentItem(maine.value(0));
        dialog.accept();
    });
    type(edit("CountryEdit"), "United States");
    EXPECT_TRUE(several);
    EXPECT_EQ(edit("CountryEdit")->text(), "Maine");
    EXPECT_EQ(edit("ZoneEdit")->text() + edit("ZoneLetterEdit")->text(), "5:00W");
    EXPECT_EQ(find<QSpinBox>("DstSpinBox", form())->value(), 1);
    EXPECT_EQ(edit("LongitudeEdit")->text() + edit("LongitudeLetterEdit")->text(), "70:15:32W");
    EXPECT_EQ(edit("LatitudeEdit")->text() + edit("LatitudeLetterEdit")->text(), "43:39:27N");

    // Winter has no saving time; the form follows the date.
    type(edit("DateEdit"), "15/1/1990");
    EXPECT_EQ(find<QSpinBox>("DstSpinBox", form())->value(), 0);
    type(edit("DateEdit"), "15/6/1990");
    EXPECT_EQ(find<QSpinBox>("DstSpinBox", form())->value(), 1);

    find<QComboBox>("SoundComboBox", form())->setEditText("kh");
    EXPECT_EQ(label("SoundGroupLabel"), "group 2");
    find<QLineEdit>("EmailEdit", form())->setText("test@example.org");
    QTest::qWait(200);
    const QString ascendant = label("PreviewAscendantLabel");
    ASSERT_TRUE(ok(form())->isEnabled()) << label("StateLabel").toStdString();
    ok(form())->click();
    settle();
    ASSERT_NE(workspace().chart(), nullptr);
    const core::Chart& shown = workspace().chart()->chart;
    EXPECT_EQ(shown.name, L"Test Person");
    EXPECT_TRUE(ascendant.startsWith(
        toQt(core::FormatSignPosition(shown.longitude[core::kAscendant])).simplified()))
        << ascendant.toStdString();

    command("SaveAction");
    data::ChartDatabase file;
    ASSERT_TRUE(file.load(sample_).ok());
    const auto line = file.find(L"Test Person");
    ASSERT_TRUE(line.has_value());
    core::Chart read;
    file.read(*line, read);
    EXPECT_EQ(read.time.year, 1990);
    EXPECT_EQ(read.time.month, 6);
    EXPECT_EQ(read.time.day, 15);
    EXPECT_NEAR(read.time.localTime, 14.0 + 30.0 / 60.0 + 15.0 / 3600.0, 1e-9);
    EXPECT_EQ(read.zone, -5.0);
    EXPECT_EQ(read.daylightSaving, 1);
    EXPECT_NEAR(read.geoLongitude, -(70.0 + 15.0 / 60.0 + 32.0 / 3600.0), 1e-9);
    EXPECT_EQ(read.place, L"Portland");
    EXPECT_EQ(read.identity.sound, L"kh");
    EXPECT_EQ(read.identity.contact.email, L"test@example.org");
}

TEST_F(EntryTest, LookedUpValuesComeWithTheWarningAndSpareWhatWasTyped)
{
    typeBirth("Old", "1/7/1950", "6:00");
    type(edit("LongitudeEdit"), "123 5 W");
    EXPECT_EQ(edit("LongitudeEdit")->text() + edit("LongitudeLetterEdit")->text(), "123:05W");
    type(edit("CityEdit"), "Eugene");
    type(edit("CountryEdit"), "Oregon");
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].caption, "Warning");
    EXPECT_EQ(shown[0].text,
              "Some of the Atlas values may not be correct (Longitude, Latitude, Time Zone, "
              "Daylight Saving (DST)).\nPlease check or you could possibly get a wrong Ascendant, "
              "etc.\nGetting this message does not mean they are certainly wrong and not getting "
              "it does not guarantee\nthat they are right. Always check carefully.");
    EXPECT_EQ(edit("LongitudeEdit")->text(), "123:05");
    EXPECT_EQ(edit("ZoneEdit")->text(), "8:00");

    core::Settings settings = workspace().settings();
    settings.warnAtlasValues = false;
    workspace().changeSettings(settings);
    type(edit("CityEdit"), "Salem");
    type(edit("CountryEdit"), "OR");
    EXPECT_TRUE(TMessages::takeShown().empty());
    EXPECT_EQ(edit("CountryEdit")->text(), "Oregon");

    type(edit("CountryEdit"), "ORE");
    shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, "State abbreviation > 2 chars\n");
    type(edit("CountryEdit"), "USA");
    EXPECT_EQ(label("AtlasLabel"), "Enter USA State, not 'USA'.");
    EXPECT_EQ(edit("CountryEdit")->toolTip(),
              "PC Atlas (if available) will calculate when you leave here (press 'Tab' ). Enter "
              "USA State, not 'USA'.");
    // Only the letters of the sides can be typed.
    type(edit("LatitudeLetterEdit"), "xEs");
    EXPECT_EQ(edit("LatitudeLetterEdit")->text(), "S");
}

TEST_F(EntryTest, EditingNothingChangesNoByteOfALine)
{
    const std::size_t count = workspace().database().charts().size();
    ASSERT_GT(count, 3U);
    for (std::size_t line = 0; line < count; line += 4) {
        const std::string before(workspace().database().charts().line(line));
        ASSERT_TRUE(workspace().showLine(line));
        command("EditChartAction");
        ASSERT_TRUE(ok(form())->isEnabled()) << label("StateLabel").toStdString();
        TMessages::prepare(core::Answer::Yes);
        ok(form())->click();
        settle();
        const auto shown = TMessages::takeShown();
        ASSERT_EQ(shown.size(), 1U) << before;
        EXPECT_EQ(shown[0].text, "Name already exists, update? Click [No] to save as Nnnnnn~");
        EXPECT_EQ(workspace().database().charts().line(line), before);
    }
    EXPECT_EQ(workspace().database().charts().size(), count);
}

TEST_F(EntryTest, ADraftOutlivesTheProgramAndGoesWhenItIsSaved)
{
    auto* const bar = find<QWidget>("DraftBar");
    EXPECT_TRUE(bar->isHidden());
    typeBirth("Half Done", "15/6", "9:05");
    EXPECT_FALSE(ok(form())->isEnabled());
    // Moving the focus keeps it; what follows is an end without closing.
    ASSERT_TRUE(std::filesystem::exists(draftPath()));
    openWindow();
    EXPECT_FALSE(find<QWidget>("DraftBar")->isHidden());
    EXPECT_TRUE(find<QLabel>("DraftLabel")->text().contains("Half Done"));

    // A second entry leaves the first draft alone.
    command("NewChartAction");
    type(edit("NameEdit"), "Other");
    form()->reject();
    EXPECT_EQ(keptDrafts().size(), 2U);
    find<QPushButton>("DiscardDraftButton")->click();

    find<QPushButton>("ContinueDraftButton")->click();
    settle();
    EXPECT_EQ(edit("NameEdit")->text(), "Half Done");
    EXPECT_EQ(edit("DateEdit")->text(), "15/6");
    EXPECT_EQ(edit("TimeEdit")->text(), "9:05");
    type(edit("DateEdit"), "15/6/1990");
    type(edit("ZoneEdit"), "5:30");
    type(edit("LongitudeEdit"), "77E12'32\"");
    type(edit("LatitudeEdit"), "28.65");
    ASSERT_TRUE(ok(form())->isEnabled()) << label("StateLabel").toStdString();
    ok(form())->click();
    settle();
    EXPECT_FALSE(std::filesystem::exists(draftPath()));
    EXPECT_TRUE(find<QWidget>("DraftBar")->isHidden());
    EXPECT_NEAR(workspace().record().geoLatitude, 28.65, 1e-9);

    // An entry without a change leaves nothing behind.
    command("NewChartAction");
    form()->reject();
    EXPECT_FALSE(std::filesystem::exists(draftPath()));
}

TEST_F(EntryTest, EventsAreTypedCheckedAndSaved)
{
    const std::size_t line = *workspace().chartLine();
    answerDialog("TEventsDlg", [&](QDialog& dialog) {
        auto* const table = dialog.findChild<QTableWidget*>();
        EXPECT_EQ(table->rowCount(), 39);
        const int row = 38;
        table->item(row, 0)->setText("Marriage");
        EXPECT_EQ(table->item(row, 3)->text(), "The date is missing.");
        EXPECT_FALSE(ok(&dialog)->isEnabled());
        table->item(row, 1)->setText("30/2/1999");
        EXPECT_EQ(table->item(row, 3)->text(), "February 1999 has no day 30.");
        table->item(row, 1)->setText("28/2/1999");
        table->item(row, 2)->setText("10:20");
        EXPECT_EQ(table->item(row, 3)->text(), "Usable");
        EXPECT_TRUE(ok(&dialog)->isEnabled());
        ok(&dialog)->click();
    });
    command("EventsAction");
    const core::LifeEvent& event = workspace().record().identity.events[38];
    EXPECT_EQ(event.name, L"Marriage");
    EXPECT_EQ(event.date, (core::PlainDate{1999, 2, 28}));
    const auto saved = workspace().database().record(line);
    ASSERT_TRUE(saved.has_value());
    EXPECT_NEAR(saved->identity.events[38].hours, 10.33, 1e-9);
    workspace().database().undoStack().undo();
    EXPECT_TRUE(workspace().database().record(line)->identity.events[38].name.empty());
}

TEST_F(EntryTest, TheNowLocationKeepsItsZoneByName)
{
    answerDialog("TNowLocationDlg", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "'Now' Location Set Up");
        EXPECT_EQ(dialog.findChild<QLabel*>("HintLabel")->text(),
                  "Enter the City/Town and Country or State of the Location you want to use for "
                  "Transits, Prashna (Query charts), etc.\nType the city, hit the [Tab] key (or "
                  "click in the Country field), type the country and end by hitting [Tab].");
        type(dialog.findChild<QLineEdit*>("CityEdit"), "Eugene");
        type(dialog.findChild<QLineEdit*>("CountryEdit"), "Oregon");
        ok(&dialog)->click();
    });
    command("NowLocationAction");
    EXPECT_EQ(workspace().settings().nowZoneName, "America/Los_Angeles");
    EXPECT_EQ(workspace().settings().nowZone, -8.0);

    // 2026-01-15 12:00 Universal Time, and half a year later.
    command("NowChartAction");
    core::Chart record = workspace().record();
    EXPECT_EQ(record.identity.tag, L'N');
    EXPECT_EQ(record.timeText, L"4:00");
    EXPECT_EQ(record.identity.latitudeText, L"44N 3' 8\"");
    record = workspace().recordAt(Workspace::now() + 181.0);
    EXPECT_EQ(record.zone, -8.0);
    EXPECT_EQ(record.daylightSaving, 1);
    EXPECT_EQ(record.timeText, L"5:00");
}

TEST_F(EntryTest, ASecondChartIsChosenByLettersOfItsName)
{
    const data::ChooserRow row = workspace().database().list().rows.back();
    answerDialog("TChooseChartDlg", [&](QDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>("FilterEdit"), "no such name");
        EXPECT_FALSE(ok(&dialog)->isEnabled());
        auto* const filter = dialog.findChild<QLineEdit*>("FilterEdit");
        filter->clear();
        QTest::keyClicks(filter, toQt(row.name).toUpper());
        QTest::keyClick(filter, Qt::Key_Return);
    });
    command("CompareAction");
    ASSERT_NE(workspace().secondChart(), nullptr);
    EXPECT_EQ(core::toUtf8(workspace().secondChart()->chart.name), row.name);
    command("CloseSecondAction");
    EXPECT_EQ(workspace().secondChart(), nullptr);
}

TEST_F(EntryTest, TheMapGivesTheNearestPlaceAlsoWhenItIsZoomed)
{
    QString first;
    QString second;
    answerDialog("TWorldMapForm", [&](QDialog& dialog) {
        auto* const map = dialog.findChild<WorldMapView*>();
        auto* const chosen = dialog.findChild<QLabel*>("PlaceLabel");
        EXPECT_FALSE(ok(&dialog)->isEnabled());
        // 64 N 8', 21 W 54' on the whole map: 360 degrees wide, from 75 N to 60 S.
        const double unit = std::min(double(map->width()), map->height() * 360.0 / 135.0);
        const QPointF at(map->width() / 2.0 + ((-21.9 + 180.0) / 360.0 - 0.5) * unit,
                         map->height() / 2.0 +
                             ((75.0 - 64.13) / 135.0 - 0.5) * unit * 135.0 / 360.0);
        QTest::mouseClick(map, Qt::LeftButton, {}, at.toPoint());
        first = chosen->text();
        QWheelEvent wheel(at.toPoint(), map->mapToGlobal(at.toPoint()), {}, {0, 720}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(map, &wheel);
        QTest::mouseClick(map, Qt::LeftButton, {}, at.toPoint());
        second = chosen->text();
        ok(&dialog)->click();
    });
    command("WorldMapAction");
    EXPECT_TRUE(first.contains("Iceland")) << first.toStdString();
    EXPECT_TRUE(second.contains("Iceland")) << second.toStdString();
    EXPECT_EQ(edit("CountryEdit")->text(), "Iceland");
    EXPECT_EQ(edit("ZoneEdit")->text(), "0:00");
    form()->reject();
}

TEST_F(EntryTest, AnAtlasThatCannotBeReadIsToldAndGivesNoPlaces)
{
    answerDialog("TPcAtlasVersionDlg", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Select and Locate PC Atlas Version");
        dialog.findChild<QAbstractButton*>("IndexedRadioButton")->click();
        TMessages::prepare(home_.filePath("TIMTAB.BIN"));
        dialog.findChild<QPushButton*>("BrowseButton")->click();
        EXPECT_EQ(dialog.findChild<QLineEdit*>("PathEdit")->text(), home_.path());
        dialog.findChild<QAbstractButton*>("PlainRadioButton")->click();
        ok(&dialog)->click();
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    command("PcAtlasVersionAction");
    auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].caption, "PC Atlas path - look for and click on TIMTAB.BIN");
    EXPECT_EQ(shown[1].text, "Unable to open ACSUA.DAT for reading\n");
    EXPECT_TRUE(workspace().settings().atlasPath.empty());

    core::Settings settings = workspace().settings();
    settings.atlasPath = home_.path().toStdString();
    workspace().changeSettings(settings);
    command("NewChartAction");
    EXPECT_EQ(label("AtlasLabel"), "No Atlas");
    form()->reject();
}

} // namespace
} // namespace kestrav::desktop
