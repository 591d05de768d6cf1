// The dialogs of the options, and how choices come into force.
#include "app/desktop/options/Ks6customayan.h"
#include "app/desktop/options/OptionNotices.h"
#include "app/desktop/options/SettingRows.h"
#include "app/desktop/options/TOptionsDlg.h"
#include "app/desktop/options/TSelectDashaDlg.h"
#include "astro/Houses.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchDatabase.h"
#include "data/ResearchRebuild.h"
#include "tests/desktop/DesktopForTests.h"
#include "timing/YearLength.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace kestrav::desktop
{
namespace
{

using core::Settings;

class OptionsTest : public WindowTest
{
protected:
    /// Chooses a command that opens a dialog, and does something in the dialog before its end.
    template <typename Dialog>
    void inDialog(const char* name, const std::function<void(Dialog&)>& work)
    {
        bool done = false;
        QTimer::singleShot(0, &window(), [&] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr) << name;
            work(*dialog);
            done = true;
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        command(name);
        EXPECT_TRUE(done);
    }

    void click(const QObject& dialog, const char* button)
    {
        auto* const found = find<QAbstractButton>(button, &dialog);
        ASSERT_NE(found, nullptr);
        found->click();
    }

    void expectNotice(const std::wstring& text)
    {
        const std::vector<ShownMessage> shown = TMessages::takeShown();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].caption, QStringLiteral("Notice"));
        EXPECT_EQ(toWide(shown[0].text), text);
    }

    Settings changed(std::string_view name, std::string_view value)
    {
        Settings settings = workspace().settings();
        EXPECT_TRUE(core::setSetting(settings, name, value).ok()) << name;
        return settings;
    }
};

// The control of a setting in the dialog, changed as a user does it.
bool changeControl(TOptionsDlg& dialog, const core::SettingInfo& info)
{
    auto* const row = dialog.findChild<QWidget*>(QStringLiteral("Row-") + toQt(info.name));
    if (row == nullptr) {
        return false;
    }
    if (auto* const box = row->findChild<QCheckBox*>()) {
        box->click();
    } else if (auto* const chooser = row->findChild<QComboBox*>()) {
        chooser->setCurrentIndex(chooser->currentIndex() == 0 ? 1 : 0);
    } else if (auto* const whole = row->findChild<QSpinBox*>()) {
        whole->setValue(whole->value() == whole->maximum() ? whole->minimum() : whole->value() + 1);
    } else if (auto* const number = row->findChild<QDoubleSpinBox*>()) {
        number->setValue(number->value() + 0.5);
    } else if (auto* const line = row->findChild<QLineEdit*>()) {
        QTest::keyClicks(line, QStringLiteral("x"));
    } else {
        return false;
    }
    return true;
}

TEST_F(OptionsTest, EveryRowOfTheTableHasAnEditorThatChangesThisSettingAlone)
{
    TOptionsDlg dialog(window(), &window());
    Settings expected = workspace().settings();
    for (const core::SettingInfo& info : core::settingsTable()) {
        const std::string before = core::settingText(dialog.settings(), info);
        ASSERT_TRUE(changeControl(dialog, info)) << info.name;
        EXPECT_NE(core::settingText(dialog.settings(), info), before) << info.name;
        core::copySetting(expected, dialog.settings(), info);
        EXPECT_EQ(dialog.settings(), expected) << info.name << " changed another setting";
    }
    EXPECT_EQ(settingRows().size(), core::settingsTable().size());
    // The circle of signs does not go together with Placidus (KP); this is not its test.
    ASSERT_NE(expected.houseSystem, int(astro::HouseSystem::PlacidusKp));
    click(dialog, "OkButton");
    settle();
    const auto stored =
        core::readSettingsFile(toPath(home_.filePath(QStringLiteral("kestrav/KESTRAV6.ENV"))));
    ASSERT_TRUE(stored.ok());
    EXPECT_EQ(stored.value().settings, expected);
}

TEST_F(OptionsTest, SearchFiltersRowsAndWhatIsThisNamesTheSetting)
{
    Settings settings = changed("sandhiMinutes", "7");
    settings.nowLongitude = 77.2090123456789;
    workspace().changeSettings(settings);
    inDialog<TOptionsDlg>("OptionsAction", [&](TOptionsDlg& dialog) {
        EXPECT_EQ(dialog.focusWidget(), find<QLineEdit>("SearchEdit", &dialog));
        QTest::keyClicks(find<QLineEdit>("SearchEdit", &dialog), QStringLiteral("BOUNDARY arc"));
        QStringList visible;
        for (const SettingRow& row : settingRows()) {
            const auto name = QStringLiteral("Row-") + toQt(row.name);
            if (dialog.findChild<QWidget*>(name)->isVisible()) {
                visible += toQt(row.name);
            }
        }
        EXPECT_EQ(visible, QStringList{QStringLiteral("sandhiMinutes")});
        QSignalSpy help(&workspace(), &Workspace::helpWanted);
        click(dialog, "WhatIsThis-sandhiMinutes");
        ASSERT_EQ(help.size(), 1);
        EXPECT_EQ(help[0][0].toString(), QStringLiteral("settings.html#sandhiMinutes"));
        click(dialog, "Reset-sandhiMinutes");
        EXPECT_FALSE(find<QWidget>("Reset-sandhiMinutes", &dialog)->isVisible());
        click(dialog, "ApplyButton");
        EXPECT_EQ(workspace().settings().sandhiMinutes, Settings{}.sandhiMinutes);
        // What is shown rounded keeps its digits while it is not edited.
        EXPECT_EQ(workspace().settings().nowLongitude, settings.nowLongitude);
        click(dialog, "ResetAllButton");
    });
    // Reset All was not applied.
    EXPECT_EQ(workspace().settings().nowLongitude, settings.nowLongitude);
}

TEST_F(OptionsTest, NoticesComeWithTheirTextsAndSetOptionsBack)
{
    const std::wstring circle = L"Placidus (KP) doesn't work with the Circle Chart with a North "
                                L"Indian kundali background";
    EXPECT_TRUE(circleNotice().starts_with(circle + L".\n"));
    EXPECT_TRUE(systemsApproachQuestion().starts_with(
        L"Systems Approach uses the Equal House system. Set the house system to Equal House?\n"));
    EXPECT_TRUE(midheavenNotice(L"Ascendant")
                    .starts_with(L"Changing the Ascendant will not work for house systems that use "
                                 L"the MC, house system set to Equal.\n"));

    workspace().changeSettings(changed("circleBounds", "signs"));
    command("houseSystem4Action");
    expectNotice(circleNotice());
    EXPECT_EQ(workspace().settings().circleBounds, 0);
    EXPECT_EQ(workspace().settings().houseSystem, int(astro::HouseSystem::PlacidusKp));

    command("SystemsApproachAction");
    EXPECT_EQ(workspace().settings().houseSystem, int(astro::HouseSystem::PlacidusKp));
    TMessages::takeShown();
    TMessages::prepare(core::Answer::Yes);
    command("SystemsApproachAction");
    expectNotice(systemsApproachQuestion());
    EXPECT_EQ(workspace().settings().houseSystem, int(astro::HouseSystem::EqualHouse));
}

TEST_F(OptionsTest, ChangedPointsAreToldAndEndWhatCannotGoWithThem)
{
    Settings settings = changed("houseSystem", "Sri Pati");
    settings.dashaYearLength = int(timing::YearLength::TrueSolar);
    workspace().changeSettings(settings);
    inDialog<QDialog>("ChangePointAction", [&](QDialog& dialog) {
        find<QComboBox>("PointComboBox", &dialog)->setCurrentIndex(core::kSun);
        find<QComboBox>("SignComboBox", &dialog)->setCurrentIndex(4);
        find<QSpinBox>("DegreesSpinBox", &dialog)->setValue(10);
        find<QSpinBox>("MinutesSpinBox", &dialog)->setValue(30);
        find<QComboBox>("PointComboBox", &dialog)->setCurrentIndex(core::kAscendant);
        find<QSpinBox>("DegreesSpinBox", &dialog)->setValue(1);
        find<QComboBox>("PointComboBox", &dialog)->setCurrentIndex(core::kRahu);
        find<QSpinBox>("MinutesSpinBox", &dialog)->stepUp();
        EXPECT_EQ(find<QLabel>("ChangedLabel", &dialog)->text(),
                  QStringLiteral("changed: Ascendant, Sun, Rahu, Ketu"));
        click(dialog, "ResetButton");
        click(dialog, "OkButton");
    });
    const std::vector<ShownMessage> shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(toWide(shown[0].text), midheavenNotice(L"Ascendant"));
    EXPECT_EQ(shown[1].text, QStringLiteral("If you change the Sun and use the True Solar Year,\n"
                                            "the dashas may not be calculated properly.\n"
                                            "Dashas changed to the Mean Siderial Year."));
    EXPECT_EQ(workspace().settings().houseSystem, int(astro::HouseSystem::EqualHouse));
    EXPECT_EQ(workspace().settings().dashaYearLength, int(timing::YearLength::MeanSidereal));
    EXPECT_NEAR(workspace().chart()->chart.longitude[core::kSun], 130.5, 1e-9);
    EXPECT_EQ(workspace().changedPoints().size(), 2U);
    EXPECT_TRUE(window().windowTitle().contains(QStringLiteral("(changed: Ascendant, Sun)")));
    EXPECT_TRUE(find<QToolButton>("ChangedLamp")->isVisible());
    // Another chart has its own positions.
    ASSERT_TRUE(workspace().showLine(1));
    EXPECT_FALSE(find<QToolButton>("ChangedLamp")->isVisible());
    EXPECT_FALSE(window().windowTitle().contains(QStringLiteral("changed")));
}

TEST_F(OptionsTest, RowsOfTheAyanamsaReadNumbersUpToWhatIsNoPartOfThem)
{
    inDialog<TCustomAyanamsaDlg>("CustomAyanamsaAction", [&](TCustomAyanamsaDlg& dialog) {
        find<QListWidget>("RowList", &dialog)->setCurrentRow(0);
        const auto type = [&](const char* name, const QString& text) {
            auto* const edit = find<QLineEdit>(name, &dialog);
            edit->selectAll();
            QTest::keyClicks(edit, text);
        };
        // A row that is only looked at keeps 22 degrees 27' 37.2167".
        EXPECT_EQ(find<QLineEdit>("SecondsEdit", &dialog)->text(), QStringLiteral("37"));
        EXPECT_EQ(dialog.settings(), workspace().settings());
        find<QListWidget>("RowList", &dialog)->setCurrentRow(1);
        type("NameEdit", QStringLiteral("Mine"));
        type("EpochYearEdit", QStringLiteral("2026 or so"));
        type("DegreesEdit", QStringLiteral("24x"));
        type("MinutesEdit", QStringLiteral("abc"));
        type("SecondsEdit", QStringLiteral("36"));
        type("AnnualRateEdit", QStringLiteral("50.5\""));
        // A field that is left shows what was read of it.
        auto* const minutes = find<QLineEdit>("MinutesEdit", &dialog);
        emit minutes->editingFinished();
        EXPECT_EQ(minutes->text(), QStringLiteral("0"));
        const core::AyanamsaRow& row = dialog.settings().ayanamsaTable[1];
        EXPECT_EQ(row.nameText(), "Mine");
        EXPECT_EQ(row.epochYear, 2026);
        EXPECT_DOUBLE_EQ(row.valueAtEpoch, 24.01);
        EXPECT_DOUBLE_EQ(row.annualRate, 50.5);
        // 2026 January 15.5: (14.5 / 31 / 12) years of 50.5" after 24 degrees 36".
        EXPECT_TRUE(find<QLabel>("TodayLabel", &dialog)->text().contains(QStringLiteral("37")))
            << find<QLabel>("TodayLabel", &dialog)->text().toStdString();
        type("AnnualRateEdit", QStringLiteral("-1"));
        EXPECT_EQ(find<QLabel>("TodayLabel", &dialog)->text(), QStringLiteral("none: tropical"));
        type("AnnualRateEdit", QStringLiteral("50.5"));
        click(dialog, "OkButton");
    });
    EXPECT_EQ(workspace().settings().ayanamsaTable[1].nameText(), "Mine");
    EXPECT_EQ(find<QAction>("ayanamsaRow1Action")->text(), QStringLiteral("Mine"));
    inDialog<TCustomAyanamsaDlg>("CustomAyanamsaAction", [&](TCustomAyanamsaDlg& dialog) {
        click(dialog, "ResetButton");
        click(dialog, "OkButton");
    });
    EXPECT_EQ(workspace().settings().ayanamsaTable, core::factoryAyanamsaTable());
}

TEST_F(OptionsTest, SelectDashaOffersWhatReachesTheChosenSystem)
{
    inDialog<TSelectDashaDlg>("SelectDashaAction", [&](TSelectDashaDlg& dialog) {
        auto* const systems = find<QListWidget>("DashaList", &dialog);
        ASSERT_EQ(systems->count(), 24);
        EXPECT_TRUE(
            find<QLabel>("ConditionalLabel", &dialog)
                ->text()
                .startsWith(QStringLiteral("* Conditional Dashas applying to this native")));
        EXPECT_EQ(find<QComboBox>("DashaTotalLengthComboBox", &dialog)->toolTip(),
                  QStringLiteral("Use for Solar Ingress, etc."));
        EXPECT_EQ(find<QSpinBox>("DashaLevelsUpDown", &dialog)->toolTip(),
                  QStringLiteral("Up to 5 levels of Dashas"));
        EXPECT_TRUE(find<QComboBox>("NakshFracComboBox", &dialog)->isEnabled());
        EXPECT_FALSE(find<QCheckBox>("CharaOwnSignLastCheckBox", &dialog)->isEnabled());
        QTest::keyClicks(systems, QStringLiteral("Jaimini"));
        EXPECT_FALSE(find<QComboBox>("NakshFracComboBox", &dialog)->isEnabled());
        EXPECT_TRUE(find<QCheckBox>("CharaOwnSignLastCheckBox", &dialog)->isEnabled());
        find<QComboBox>("DashaYearLengthComboBox", &dialog)->setCurrentIndex(6);
        find<QDoubleSpinBox>("CustomYearDaysSpinBox", &dialog)->setValue(364.0);
        find<QSpinBox>("DashaLevelsUpDown", &dialog)->setValue(4);
        click(dialog, "OkButton");
    });
    const Settings& settings = workspace().settings();
    EXPECT_EQ(settings.dashaSystem, 13);
    EXPECT_EQ(settings.customYearDays, 364.0);
    EXPECT_EQ(settings.dashaLevels, 4);
}

TEST_F(OptionsTest, RefreshingIsOfferedWherePlanetsMovedInAResearchDatabase)
{
    command("ayanamsaRow3Action");
    EXPECT_TRUE(TMessages::takeShown().empty()) << "there is no research database";
    data::ResearchLines lines;
    ASSERT_TRUE(
        data::saveResearch(workspace().database().charts(), workspace().settings(), lines).ok());
    command("diagramStyle1Action");
    EXPECT_TRUE(TMessages::takeShown().empty());
    command("ayanamsaRow1Action");
    const std::vector<ShownMessage> shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(toWide(shown[0].text), data::kOptionsMovePlanets);
    EXPECT_EQ(workspace().settings().ayanamsaRow, 1);
    settle();
    EXPECT_TRUE(find<QToolButton>("ResearchLamp")->isVisible());
}

TEST_F(OptionsTest, TheWizardGathersChoicesAndEscLeavesThem)
{
    const auto runWizard = [&](const std::function<void(QDialog&)>& work) {
        inDialog<QDialog>("OptionWizardAction", work);
    };
    runWizard([&](QDialog& wizard) {
        click(wizard, "DisplayFlagsEnglishCheckBox");
        click(wizard, "NextButton");
        find<QComboBox>("DiagramStyleComboBox", &wizard)->setCurrentIndex(1);
        QTest::keyClick(&wizard, Qt::Key_Escape);
    });
    EXPECT_TRUE(workspace().english());
    EXPECT_EQ(workspace().settings().diagramStyle, 0);
    EXPECT_TRUE(workspace().settings().wizardDone);
    runWizard([&](QDialog& wizard) {
        click(wizard, "DisplayFlagsEnglishCheckBox");
        click(wizard, "NextButton");
        find<QComboBox>("DiagramStyleComboBox", &wizard)->setCurrentIndex(1);
        click(wizard, "DiagramArudhasCheckBox");
        click(wizard, "DefaultButton");
        EXPECT_EQ(find<QComboBox>("DiagramStyleComboBox", &wizard)->currentIndex(), 0);
        find<QComboBox>("DiagramStyleComboBox", &wizard)->setCurrentIndex(2);
        click(wizard, "NextButton");
        find<QComboBox>("AyanamsaRowComboBox", &wizard)->setCurrentIndex(2);
        EXPECT_TRUE(find<QLabel>("TodayLabel", &wizard)->text().startsWith(QStringLiteral("22")));
        click(wizard, "NextButton");
        // Without a Now location it is the clock of the system, not of the open chart.
        const QDateTime now = QDateTime::fromSecsSinceEpoch(QByteArray(kTestClock).toLongLong());
        EXPECT_EQ(find<QLabel>("ExampleLabel", &wizard)->text(),
                  now.toString(QStringLiteral("d/M/yyyy  h:mm")));
        click(wizard, "TwelveHourClockCheckBox");
        click(wizard, "NextButton");
        click(wizard, "NextButton");
        click(wizard, "OwnChartsButton");
        click(wizard, "NextButton");
    });
    const Settings& settings = workspace().settings();
    EXPECT_FALSE(workspace().english());
    EXPECT_EQ(settings.diagramStyle, 2);
    EXPECT_FALSE(settings.diagramArudhas);
    EXPECT_EQ(settings.ayanamsaRow, 2);
    EXPECT_TRUE(settings.twelveHourClock);
    QTRY_COMPARE(toQt(workspace().database().path().filename()), QStringLiteral("My Charts.ksc"));
    EXPECT_EQ(workspace().database().charts().size(), 0U);
}

TEST_F(OptionsTest, MissingCuspsNearThePolesAreTold)
{
    core::Chart record = workspace().record();
    record.geoLatitude = 78.0;
    workspace().changeSettings(changed("houseSystem", "Placidus (Vedic)"));
    ASSERT_TRUE(workspace().showRecord(record));
    EXPECT_TRUE(find<QLabel>("NewsLabel")
                    ->text()
                    .startsWith(QStringLiteral("Placidus has no cusps at the latitude of ")));
    QSignalSpy told(&workspace(), &Workspace::news);
    workspace().changeSettings(changed("houseSystem", "Equal House"));
    EXPECT_EQ(told.count(), 0);
}

TEST_F(OptionsTest, TheStatusLineTellsTheChartInShort)
{
    const core::Chart& chart = workspace().chart()->chart;
    EXPECT_EQ(find<QLabel>("StatusName")->text(), toQt(chart.name));
    EXPECT_TRUE(find<QLabel>("StatusAyanamsa")->text().startsWith(QStringLiteral("Lahiri 2")));
    const QString running = find<QLabel>("StatusDasha")->text();
    EXPECT_EQ(running.count(QLatin1Char('-')), 2) << running.toStdString();
    workspace().setMoment(workspace().moment() + 365.25 * 12.0);
    settle();
    EXPECT_NE(find<QLabel>("StatusDasha")->text(), running);
    window().resize(window().minimumSizeHint());
    settle();
    EXPECT_GT(find<QLabel>("StatusDasha")->width(), 0);
    workspace().closeChart();
    EXPECT_TRUE(find<QLabel>("StatusName")->text().isEmpty());
}

} // namespace
} // namespace kestrav::desktop
