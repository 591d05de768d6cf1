// The shared date steps, and everything on a page goes with it.
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/timing/MomentSteps.h"
#include "app/desktop/timing/MomentText.h"
#include "core/Angles.h"
#include "data/BirthTexts.h"
#include "tests/desktop/FreshPanels.h"
#include "tests/present/VariedCharts.h"
#include "timing/DashaQuery.h"
#include "timing/DashaTable.h"
#include "timing/SiderealSky.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

#include <cmath>

namespace kestrav::desktop
{
namespace
{

using tests::Birth;
using tests::kBirths;
using tests::recordOf;

constexpr double kSecond = 1.0 / 86400.0;
constexpr double kBesideChange = 30.0 * kSecond;

class SharedDate : public FreshPanels
{
protected:
    void chooseUnit(StepUnit unit)
    {
        auto* const box = find<QComboBox>("StepComboBox", find<QWidget>("DateBar"));
        box->setCurrentIndex(int(unit));
        emit box->activated(int(unit));
    }

    /// A step by the command. False when it was told that there is none; then nothing has moved.
    bool step(int direction)
    {
        QSignalSpy told(&workspace(), &Workspace::news);
        const double before = workspace().moment();
        find<QAction>(direction > 0 ? "StepForwardAction" : "StepBackAction")->trigger();
        const bool moved = workspace().moment() != before;
        EXPECT_EQ(moved, told.isEmpty());
        EXPECT_EQ(!moved || (workspace().moment() > before) == (direction > 0), true);
        return moved;
    }

    std::string dateShown()
    {
        return find<QLineEdit>("DateEdit")->text().toStdString();
    }

    void typeDate(const char* text)
    {
        auto* const field = find<QLineEdit>("DateEdit");
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
        QTest::keyClick(field, Qt::Key_Return);
    }

    /// The bar has to show the moment, and the sky of the moment has to be computed for it.
    void expectMomentShown(const std::string& where)
    {
        const auto date =
            readTypedDate(toWide(find<QLineEdit>("DateEdit")->text()), workspace().settings());
        const auto hours = data::readTimeText(toWide(find<QLineEdit>("TimeEdit")->text()));
        ASSERT_TRUE(date.ok() && hours) << where;
        EXPECT_NEAR(momentAt(workspace(), date.value(), *hours), workspace().moment(), kSecond)
            << where;
        const core::Chart& sky = workspace().momentChart()->chart;
        timing::SiderealSky second(data_->series, workspace().settings(), sky.zone);
        for (const int point : core::kBodies) {
            const double computed = core::at(sky.longitude, point);
            const double expected = second.longitude(point, workspace().moment());
            // The two ways differ by hundredths of a second of arc.
            EXPECT_NEAR(core::Wrap180(computed - expected), 0.0, 0.05 / 3600.0)
                << where << ", body " << point;
        }
    }

    void expectLawOf(StepUnit unit, double before, const std::string& where)
    {
        const core::Chart& sky = workspace().momentChart()->chart;
        const double sun = core::at(sky.longitude, core::kSun);
        const double days = std::abs(workspace().moment() - before);
        switch (unit) {
        case StepUnit::Sunrise:
            // The Sun and the ascendant meet at the horizon; refraction lifts the Sun by half a
            // degree, which is more along a slanting ecliptic.
            if (std::abs(sky.geoLatitude) < 56.0) {
                EXPECT_NEAR(core::Wrap180(core::at(sky.longitude, core::kAscendant) - sun), 0.0,
                            3.0)
                    << where;
            }
            break;
        case StepUnit::Tithi: {
            const double tithis =
                core::Normalize360(core::at(sky.longitude, core::kMoon) - sun) / 12.0;
            EXPECT_NEAR(tithis, std::round(tithis), 1e-4) << where;
            EXPECT_LT(days, 1.2) << where;
            break;
        }
        case StepUnit::DashaChange: {
            const present::ComputedChart& chart = *workspace().chart();
            const auto dasha = timing::dashaOf(chart.chart, chart.settings,
                                               timing::dashaOptions(chart.settings), data_->series);
            ASSERT_TRUE(dasha.ok()) << where;
            const auto startBeside = [&](double change) {
                const double age = dasha.value().calendar.ageAt(workspace().moment() + change);
                const auto period =
                    timing::periodAtAge(dasha.value(), age, chart.settings.dashaLevels);
                return period ? period->startAge : -1e9;
            };
            EXPECT_GT(startBeside(kBesideChange), startBeside(-kBesideChange)) << where;
            break;
        }
        default:
            break;
        }
    }
};

TEST_F(SharedDate, StepsReachTheSameSkyByTwoWaysAtEveryPlaceAndTime)
{
    for (const Birth& birth : kBirths) {
        ASSERT_TRUE(workspace().showRecord(recordOf(birth)));
        workspace().setMoment(momentAt(workspace(), workspace().record().time, birth.hours) +
                              1234.567);
        for (int unit = 0; unit < kStepUnits; ++unit) {
            const std::string where = core::toUtf8(std::wstring(birth.name)) + ", " +
                                      stepUnitName(StepUnit(unit)).toStdString();
            chooseUnit(StepUnit(unit));
            const double begin = workspace().moment();
            // No sunrise and no ascendant of its own at the poles.
            const bool pole = std::abs(birth.latitude) > 89.0;
            if (!step(1)) {
                EXPECT_TRUE(pole && StepUnit(unit) == StepUnit::Sunrise) << where;
                continue;
            }
            expectMomentShown(where);
            expectLawOf(StepUnit(unit), begin, where);
            const double there = workspace().moment();
            ASSERT_TRUE(step(1)) << where;
            ASSERT_TRUE(step(-1)) << where;
            EXPECT_NEAR(workspace().moment(), there, kSecond) << where;
            expectLawOf(StepUnit(unit), there, where);
        }
    }
}

TEST_F(SharedDate, StepsOfTheCalendarKeepClockAndDay)
{
    ASSERT_TRUE(workspace().showRecord(recordOf(kBirths[17])));
    const auto expectStep = [this](const char* from, StepUnit unit, int direction, const char* to) {
        typeDate(from);
        ASSERT_EQ(dateShown(), from);
        const QString time = find<QLineEdit>("TimeEdit")->text();
        chooseUnit(unit);
        ASSERT_TRUE(step(direction));
        EXPECT_EQ(dateShown(), to) << from;
        EXPECT_EQ(find<QLineEdit>("TimeEdit")->text(), time) << from;
    };
    // The fifteenth counts from its day of the old calendar, as everywhere.
    expectStep("16/10/1582", StepUnit::Week, 1, "23/10/1582");
    expectStep("4/9/1582", StepUnit::Month, 1, "4/10/1582");
    expectStep("29/2/1500", StepUnit::Year, 1, "28/2/1501");
    expectStep("31/12/-1", StepUnit::Day, 1, "1/1/1");
    expectStep("15/12/-1", StepUnit::Month, 1, "15/1/1");
    expectStep("15/1/1", StepUnit::Month, -1, "15/12/-1");
    expectStep("29/2/-1", StepUnit::Year, 1, "28/2/1");
    expectStep("1/3/1", StepUnit::Year, -1, "1/3/-1");
    expectStep("31/1/1900", StepUnit::Month, 1, "28/2/1900");
    expectStep("28/2/1900", StepUnit::Week, 1, "7/3/1900");
    // In Berlin the clock goes on at the end of March; months do not mind.
    core::Settings settings = workspace().settings();
    settings.nowCity = "Berlin";
    settings.nowCountry = "Germany";
    settings.nowLongitude = 13.4;
    settings.nowLatitude = 52.5;
    settings.nowZone = 1.0;
    settings.nowZoneName = "Europe/Berlin";
    workspace().changeSettings(settings);
    workspace().setMoment(2461055.5 + 11.0 / 24.0); // 2026 January 15, noon in Berlin
    EXPECT_EQ(dateShown(), "15/1/2026");
    EXPECT_EQ(find<QLineEdit>("TimeEdit")->text().toStdString(), "12:00:00");
    expectStep("15/1/2026", StepUnit::Month, 1, "15/2/2026");
    expectStep("15/3/2026", StepUnit::Month, 1, "15/4/2026");
    EXPECT_NEAR(workspace().moment(), 2461145.5 + 10.0 / 24.0, kSecond);
    expectStep("15/4/2026", StepUnit::Month, -1, "15/3/2026");
    EXPECT_NEAR(workspace().moment(), 2461114.5 + 11.0 / 24.0, kSecond);
}

class SharedDateOfPages : public SharedDate, public testing::WithParamInterface<int>
{};

TEST_P(SharedDateOfPages, EveryPanelGoesWithTheDate)
{
    ASSERT_LT(GetParam(), window().pages().count());
    window().pages().show(GetParam());
    settle();
    const std::string page = window().pages().name(GetParam()).toStdString();
    std::vector<PanelWidget*> panels;
    for (const PanelCell* const cell : window().pages().page()->cells()) {
        panels.push_back(cell->panel());
    }
    const Birth& birth = kBirths[std::size_t(GetParam() * 5) % kBirths.size()];
    ASSERT_TRUE(workspace().showRecord(recordOf(birth)));
    workspace().setMoment(momentAt(workspace(), workspace().record().time, birth.hours) + 9876.5);
    settle();
    for (int unit = 0; unit < kStepUnits; ++unit) {
        chooseUnit(StepUnit(unit));
        step(unit % 2 == 0 ? 1 : -1);
        QApplication::processEvents(); // workers need not be done before the next step
    }
    expectFresh(panels, page + ", " + core::toUtf8(std::wstring(birth.name)));
}

INSTANTIATE_TEST_SUITE_P(Pages, SharedDateOfPages, testing::Range(0, 12));

TEST_F(SharedDate, DatesOutOfReachAreToldAndBreakNothing)
{
    typeDate("1/1/99999");
    settle();
    for (int page = 0; page < window().pages().count(); ++page) {
        window().pages().show(page);
        QApplication::processEvents();
    }
    for (int unit = 0; unit < kStepUnits; ++unit) {
        chooseUnit(StepUnit(unit));
        step(1);
        step(-1);
    }
    command("GoToNowAction");
    expectMomentShown("now");
}

} // namespace
} // namespace kestrav::desktop
