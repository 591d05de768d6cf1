// The shared date: typed, stepped, and found by a description.
#include "app/desktop/shell/DateBar.h"
#include "app/desktop/timing/MomentSteps.h"
#include "app/desktop/timing/MomentText.h"
#include "core/Angles.h"
#include "core/Points.h"
#include "tests/desktop/DesktopForTests.h"
#include "timing/DashaQuery.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <cmath>

namespace kestrav::desktop
{
namespace
{

constexpr double kMinute = 1.0 / 1440.0;

// Julian days of Universal Time at 0h, counted independently of the program.
constexpr double kJanuary15 = 2461055.5; // 2026
constexpr double kMarch1 = 2461100.5;
constexpr double kFebruary26 = 2461097.5;
constexpr double kApril14 = 2461144.5;

void type(QLineEdit* field, const char* text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QLatin1String(text));
    QTest::keyClick(field, Qt::Key_Return);
}

void chooseText(QComboBox* box, const char* text)
{
    const int index = box->findText(QLatin1String(text));
    ASSERT_GE(index, 0) << text;
    box->setCurrentIndex(index);
    emit box->activated(index);
}

TEST_F(WindowTest, DateBarTakesDatesAndKeepsWhatItCannotRead)
{
    auto* const date = find<QLineEdit>("DateEdit");
    auto* const time = find<QLineEdit>("TimeEdit");
    auto* const problem = find<QLabel>("DateProblemLabel");
    // Ulm was 39 minutes 58 seconds before Greenwich; there is no Now location.
    EXPECT_EQ(date->text().toStdString(), "15/1/2026");
    EXPECT_EQ(time->text().toStdString(), "12:39:58");
    EXPECT_EQ(find<QLabel>("WeekdayLabel")->text().toStdString(), "Thursday");
    EXPECT_EQ(find<QLabel>("ZoneLabel")->text().toStdString(), "+0:39:58");

    const double before = workspace().moment();
    type(date, "31/2/2026");
    EXPECT_EQ(problem->text().toStdString(), "February 2026 has no day 31.");
    EXPECT_EQ(date->text().toStdString(), "31/2/2026");
    EXPECT_EQ(workspace().moment(), before);
    QTest::keyClick(date, Qt::Key_Escape);
    EXPECT_EQ(date->text().toStdString(), "15/1/2026");
    EXPECT_EQ(problem->text().toStdString(), "");

    type(date, "1/3/2026");
    type(time, "2:39:58 am");
    EXPECT_NEAR(workspace().moment(), kMarch1 + 2.0 / 24.0, 2.0 / 86400.0);
    EXPECT_EQ(find<QLabel>("WeekdayLabel")->text().toStdString(), "Sunday");

    core::Settings settings = workspace().settings();
    settings.monthFirst = true;
    settings.twelveHourClock = true;
    workspace().changeSettings(settings);
    EXPECT_EQ(date->text().toStdString(), "3/1/2026");
    EXPECT_EQ(time->text().toStdString(), "2:39:58am");
    // What the bar writes it reads again.
    type(date, "3/2/2026");
    EXPECT_EQ(problem->text().toStdString(), "");
    EXPECT_NEAR(workspace().moment(), kMarch1 + 1.0 + 2.0 / 24.0, 2.0 / 86400.0);
}

TEST_F(WindowTest, DateBarStepsByUnitsOfTheCalendarAndTheSky)
{
    auto* const unit = find<QComboBox>("StepComboBox", find<QWidget>("DateBar"));
    auto* const date = find<QLineEdit>("DateEdit");
    chooseText(unit, "Month");
    type(date, "31/1/2026");
    command("StepForwardAction");
    EXPECT_EQ(date->text().toStdString(), "28/2/2026");
    EXPECT_EQ(find<QLineEdit>("TimeEdit")->text().toStdString(), "12:39:58");
    chooseText(unit, "Year");
    command("StepBackAction");
    EXPECT_EQ(date->text().toStdString(), "28/2/2025");

    // The Moon stands whole twelves of degrees before the Sun when a tithi ends.
    chooseText(unit, "Tithi");
    for (const char* const action : {"StepForwardAction", "StepForwardAction", "StepBackAction"}) {
        const double from = workspace().moment();
        command(action);
        const core::Chart& sky = workspace().momentChart()->chart;
        const double tithis = std::fmod(core::at(sky.longitude, core::kMoon) -
                                            core::at(sky.longitude, core::kSun) + 360.0,
                                        360.0) /
                              12.0;
        EXPECT_NEAR(tithis, std::round(tithis), 1e-4);
        EXPECT_LT(std::fabs(workspace().moment() - from), 1.2);
        EXPECT_NE(workspace().moment(), from);
    }

    chooseText(unit, "Sunrise");
    command("StepForwardAction");
    const double first = workspace().moment();
    const auto& day = workspace().momentChart()->day;
    ASSERT_TRUE(day);
    command("StepForwardAction");
    EXPECT_NEAR(workspace().moment() - first, 1.0, 4.0 * kMinute);
    command("StepBackAction");
    EXPECT_NEAR(workspace().moment(), first, kMinute / 60.0);

    // Two steps on and one back meet the change that lies between.
    chooseText(unit, "Dasha change");
    command("StepForwardAction");
    const double change = workspace().moment();
    EXPECT_GT(change, first);
    command("StepForwardAction");
    EXPECT_GT(workspace().moment(), change + 30.0);
    command("StepBackAction");
    EXPECT_NEAR(workspace().moment(), change, kMinute);

    command("GoToNowAction");
    EXPECT_NEAR(workspace().moment(), kJanuary15 + 0.5, kMinute);
}

TEST_F(WindowTest, SpecialDatesAreFoundInTheSkyAndInTheLife)
{
    command("SpecialDateAction");
    auto* const dialog = find<QDialog>("TSpecialDateDlg");
    auto* const kind = find<QComboBox>("KindComboBox", dialog);
    auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->focusWidget(), kind);

    type(find<QLineEdit>("DateEdit", dialog), "30/2/2026");
    EXPECT_EQ(find<QLabel>("ResultLabel", dialog)->text().toStdString(),
              "February 2026 has no day 30.");
    EXPECT_FALSE(ok->isEnabled());

    // Mercury turned retrograde on 2026 February 26 at 6:48 Universal Time by the almanacs.
    chooseText(kind, "A body turns");
    auto* const body = find<QComboBox>("StationBodyComboBox", dialog);
    body->setCurrentIndex(body->findData(int(core::kMercury)));
    settle();
    ASSERT_TRUE(ok->isEnabled());
    ok->click();
    EXPECT_NEAR(workspace().moment(), kFebruary26 + 6.8 / 24.0, 30.0 * kMinute);

    // The Sun's entry into Aries: April 14 at 9:39 Indian time by the panchangas.
    command("SpecialDateAction");
    auto* const second = window().findChildren<QDialog*>("TSpecialDateDlg").back();
    chooseText(find<QComboBox>("KindComboBox", second), "A body enters a sign");
    find<QComboBox>("SignComboBox", second)->setCurrentIndex(1);
    settle();
    second->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    EXPECT_NEAR(workspace().moment(), kApril14 + 4.15 / 24.0, 30.0 * kMinute);

    command("SpecialDateAction");
    auto* const third = window().findChildren<QDialog*>("TSpecialDateDlg").back();
    chooseText(find<QComboBox>("KindComboBox", third), "A return of the Sun");
    find<QSpinBox>("ReturnUpDown", third)->setValue(26);
    settle();
    third->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    // The Sun stands where it stood at the birth in 1879.
    EXPECT_NEAR(core::at(workspace().momentChart()->chart.longitude, core::kSun),
                core::at(workspace().chart()->chart.longitude, core::kSun), 1e-4);
    EXPECT_EQ(readingOf(workspace(), workspace().moment()).date.year, 1905);
}

} // namespace
} // namespace kestrav::desktop
