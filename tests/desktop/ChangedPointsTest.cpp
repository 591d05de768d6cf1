// Positions that the user gave to points: how they are typed, and where they are marked.
#include "app/present/ChangedPoints.h"
#include "app/desktop/options/TChangePointDlg.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/timing/DashaChoice.h"
#include "app/present/Inspector.h"
#include "app/present/Report.h"
#include "app/present/TableCatalogue.h"
#include "data/ChartLine.h"
#include "tests/desktop/DesktopForTests.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace kestrav::desktop
{
namespace
{

class ChangedPointsTest : public WindowTest
{
protected:
    core::Result<present::Table> table(const char* id)
    {
        present::TableSource source{*workspace().chart(), data_->series};
        source.moment = workspace().moment();
        return present::findTable(id)->make(source);
    }
};

TEST_F(ChangedPointsTest, OnlyWhatIsTypedChangesAPoint)
{
    const double before = workspace().chart()->chart.longitude[core::kSun];
    TChangePointDlg dialog(window(), &window());
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto* const point = find<QComboBox>("PointComboBox", &dialog);
    auto* const degrees = find<QSpinBox>("DegreesSpinBox", &dialog);
    auto* const minutes = find<QSpinBox>("MinutesSpinBox", &dialog);
    point->setCurrentIndex(core::kSun);
    // The keys go through the fields as they stand: degrees, minutes, sign.
    point->setFocus();
    for (QWidget* const next : {static_cast<QWidget*>(degrees), static_cast<QWidget*>(minutes),
                                static_cast<QWidget*>(find<QComboBox>("SignComboBox", &dialog))}) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(dialog.focusWidget()->objectName(), next->objectName());
    }
    // Enter in a field that was only looked at changes nothing, not even seconds.
    degrees->setFocus();
    QTest::keyClick(degrees, Qt::Key_Return);
    EXPECT_EQ(find<QLabel>("ChangedLabel", &dialog)->text(), "No point is changed.");
    find<QPushButton>("OkButton", &dialog)->click();
    EXPECT_TRUE(workspace().changedPoints().empty());
    EXPECT_EQ(workspace().chart()->chart.longitude[core::kSun], before);
}

TEST_F(ChangedPointsTest, TheyAreMarkedWhereverTheChartStands)
{
    EXPECT_TRUE(present::changedPointsLine(*workspace().chart()).empty());
    workspace().changePoint(core::kSun, 130.5);
    workspace().changePoint(core::cuspPoint(10), 12.0);
    const ChartPointer shown = workspace().chart();
    const std::wstring line = L"Changed by you: Sun, Midheaven";
    EXPECT_EQ(present::changedPointsLine(*shown), line);
    const std::vector<std::wstring> head = present::reportHead(*shown);
    EXPECT_NE(std::find(head.begin(), head.end(), line), head.end())
        << "reports and printed pages begin with it";
    const present::Inspection sun =
        present::inspect({*shown, data_->series}, {present::Subject::Point, core::kSun});
    EXPECT_EQ(sun.title, L"Sun, changed by you");
    // How the sky's own longitude comes about would explain another number.
    const auto how = std::find_if(sun.sections.begin(), sun.sections.end(),
                                  [](const auto& one) { return one.id == "how-computed"; });
    ASSERT_NE(how, sun.sections.end());
    const auto changed =
        std::find_if(how->rows.begin(), how->rows.end(), [](const present::Row& row) {
            return row[2].text.starts_with(L"Changed by you");
        });
    ASSERT_NE(changed, how->rows.end());
    EXPECT_EQ((*changed)[1].text, L"130\u00b030' 0\"");

    const auto points = table("positions");
    ASSERT_TRUE(points.ok());
    std::vector<std::wstring> marked;
    for (const present::Row& row : points.value().rows) {
        if (row.front().text.ends_with(L'*')) {
            marked.push_back(row.front().text);
        }
    }
    EXPECT_EQ(marked, std::vector<std::wstring>{L"Sun*"});
    EXPECT_EQ(points.value().notes.back(), L"* Its position was changed by you.");
    // The transiting Sun is another one.
    const auto transits = table("ephemeris-events");
    ASSERT_TRUE(transits.ok()) << transits.error().text();
    for (const present::Row& row : transits.value().rows) {
        EXPECT_FALSE(row.front().text.ends_with(L'*'));
    }

    // True solar years cannot be counted from a changed Sun, wherever the dasha is made.
    EXPECT_TRUE(present::dashaOptions(*shown).sunModified);
    EXPECT_TRUE(DashaChoice::of(workspace()).options(shown).sunModified);
    // The record, which is what is saved, has none of it; nor has another chart.
    data::DateOrder order = workspace().database().charts().order();
    EXPECT_EQ(data::FormatChartLine(workspace().record(), order),
              data::FormatChartLine(*workspace().database().record(0), order));
    ASSERT_TRUE(workspace().showLine(1));
    EXPECT_TRUE(workspace().chart()->changed.none());
    EXPECT_FALSE(present::dashaOptions(*workspace().chart()).sunModified);
}

} // namespace
} // namespace kestrav::desktop
