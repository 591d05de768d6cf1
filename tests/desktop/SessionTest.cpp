// What the window remembers from one run to the next, and what it makes of a damaged memory.
#include "app/desktop/database/OpenFirst.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/start/ProgramOptions.h"
#include "app/present/TableWriters.h"
#include "tests/desktop/DesktopForTests.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QSplitter>
#include <QTreeView>

namespace kestrav::desktop
{
namespace
{

class SessionTest : public WindowTest
{
protected:
    void TearDown() override
    {
        QLocale::setDefault(QLocale::c());
        WindowTest::TearDown();
    }

    void restart()
    {
        window().saveSession();
        openWindow();
        window().restoreSession();
        settle();
    }

    std::filesystem::path stateFile()
    {
        return stateFolder() / "window.ini";
    }

    /// The platform has its own idea of where a window is.
    QByteArray bytesOfState()
    {
        stateOfWindow().sync();
        QFile file(toQt(stateFile()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes;
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            bytes += line.startsWith("geometry=") ? QByteArray() : line;
        }
        return bytes;
    }

    void writeState(const QByteArray& bytes)
    {
        QFile file(toQt(stateFile()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        stateOfWindow().sync(); // takes in what another program has written
    }

    PanelWidget* firstPanel()
    {
        return window().pages().page()->cells().constFirst()->panel();
    }
};

TEST_F(SessionTest, SizesLettersPageAndDateComeBack)
{
    PageStrip& pages = window().pages();
    command("InspectorAction");
    pages.movePage(0, 2);
    ASSERT_TRUE(pages.show(QStringLiteral("Chart")));
    settle();
    firstPanel()->setZoom(140);
    auto* const splitter = pages.page()->findChild<QSplitter*>();
    QList<int> sizes = splitter->sizes();
    ASSERT_GE(sizes.size(), 2);
    sizes[0] -= 60;
    sizes[1] += 60;
    splitter->setSizes(sizes);
    sizes = splitter->sizes();
    const double size = firstPanel()->font().pointSizeF();
    ASSERT_TRUE(pages.show(QStringLiteral("Dashas")));
    settle();
    workspace().setMoment(2451545.123456789);
    restart();
    EXPECT_EQ(window().pages().name(window().pages().current()), QStringLiteral("Dashas"));
    EXPECT_EQ(workspace().moment(), 2451545.123456789);
    EXPECT_FALSE(find<QWidget>("InspectorPanel")->isVisible());
    EXPECT_TRUE(find<QWidget>("ChartListPane")->isVisible());
    // A page that was not looked at keeps what it had.
    restart();
    EXPECT_EQ(window().pages().name(2), QStringLiteral("Chart"));
    window().pages().show(2);
    settle();
    EXPECT_EQ(window().pages().page()->findChild<QSplitter*>()->sizes(), sizes);
    EXPECT_EQ(firstPanel()->zoom(), 140);
    EXPECT_EQ(firstPanel()->font().pointSizeF(), size);

    // The present of yesterday is not the present of today.
    command("GoToNowAction");
    restart();
    EXPECT_EQ(workspace().moment(), Workspace::now());
    EXPECT_FALSE(stateOfWindow().contains("window/moment"));
}

TEST_F(SessionTest, LettersOfACellFollowThoseOfTheWindow)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    const double size = firstPanel()->font().pointSizeF();
    firstPanel()->setZoom(150);
    EXPECT_NEAR(firstPanel()->font().pointSizeF(), size * 1.5, 0.01);
    command("ZoomInAction");
    command("ZoomInAction");
    EXPECT_NEAR(firstPanel()->font().pointSizeF(), size * 1.2 * 1.5, 0.1);
    firstPanel()->setZoom(100);
    command("ZoomResetAction");
    EXPECT_NEAR(firstPanel()->font().pointSizeF(), size, 0.01);
}

TEST_F(SessionTest, RestoringCanBeSwitchedOff)
{
    const std::filesystem::path other = toPath(home_.filePath(QStringLiteral("Other.ksc")));
    std::filesystem::copy_file(sample_, other);
    rememberFile(other);
    rememberChart(QStringLiteral("John Dee"));
    core::Settings settings = workspace().settings();
    settings.restoreSession = false;
    workspace().changeSettings(settings);
    openFirst(window(), {});
    settle();
    EXPECT_EQ(workspace().database().path().filename(), "Sample.ksc");
    EXPECT_NE(workspace().chart()->chart.name, L"John Dee");
    settings.restoreSession = true;
    workspace().changeSettings(settings);
    rememberFile(other);
    rememberChart(QStringLiteral("John Dee"));
    openFirst(window(), {});
    settle();
    EXPECT_EQ(workspace().database().path(), other);
    EXPECT_EQ(workspace().chart()->chart.name, L"John Dee");
}

TEST_F(SessionTest, ADamagedMemoryIsLeftAside)
{
    const int delivered = window().pages().count();
    window().pages().show(4);
    settle();
    const QString page = window().pages().name(4);
    window().saveSession();
    const QByteArray good = bytesOfState();
    const auto reopen = [&](const QByteArray& state) {
        openWindow();
        writeState(state);
        QSignalSpy news(&workspace(), &Workspace::news);
        window().restoreSession();
        settle();
        EXPECT_GT(window().pages().count(), 0);
        EXPECT_NE(window().pages().page(), nullptr);
        EXPECT_EQ(workspace().moment(), Workspace::now());
        return int(news.size());
    };
    // One page that cannot be read is told; the others and the one in view are as they were.
    QByteArray onePage = good;
    const qsizetype second = onePage.indexOf("2\\layout=");
    ASSERT_GT(second, 0);
    onePage.replace(onePage.indexOf("Kestrav page 1", second), 14, "Kestrav page 9");
    EXPECT_EQ(reopen(onePage), 1);
    EXPECT_EQ(window().pages().count(), delivered - 1);
    EXPECT_EQ(window().pages().name(window().pages().current()), page);

    for (const QByteArray& state :
         {QByteArray(), QByteArray("\x00\x01\xff[[[]]]=%%%", 14),
          QByteArray("[pages]\nsize=999999999\n"), QByteArray("[pages]\nsize=-5\n"),
          QByteArray("[window]\nmoment=nan\npage=-7\n"),
          QByteArray("[window]\nmoment=1e300\npanes=x\ngeometry=@ByteArray(zzz)\npage=99\n"),
          QByteArray("[window]\nmoment=inf\nleft=perhaps\n[dateBar]\nunit=77\n"),
          good.left(good.size() / 2)}) {
        reopen(state);
        command("StepForwardAction");
        EXPECT_LE(window().pages().count(), delivered);
    }
}

TEST_F(SessionTest, NumbersAndFilesDoNotDependOnTheLanguageOfTheSystem)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    const auto seen = [this] {
        std::string text = find<QLineEdit>("DateEdit")->text().toStdString() + " " +
                           find<QLineEdit>("TimeEdit")->text().toStdString() + "\n";
        for (const PanelCell* const cell : window().pages().page()->cells()) {
            if (const auto* const view = cell->findChild<TableView*>()) {
                text += present::tableCsv(view->table());
                for (int row = 0; row < view->model()->rowCount(); ++row) {
                    text += view->model()->index(row, 1).data().toString().toStdString();
                }
            }
        }
        const QAbstractItemModel& list = *find<QTreeView>("ChartList")->model();
        for (int row = 0; row < list.rowCount(); ++row) {
            text += list.index(row, 1).data().toString().toStdString() +
                    list.index(row, 2).data().toString().toStdString() + "\n";
        }
        return text;
    };
    workspace().setMoment(2451545.123456789);
    const std::string expected = seen();
    window().saveSession();
    const QByteArray state = bytesOfState();
    for (const char* const name : {"de_DE", "ar_EG", "hi_IN", "fa_IR"}) {
        QLocale::setDefault(QLocale(QLatin1String(name)));
        openWindow();
        window().restoreSession();
        ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
        settle();
        EXPECT_EQ(workspace().moment(), 2451545.123456789) << name;
        EXPECT_EQ(seen(), expected) << name;
        window().saveSession();
        EXPECT_EQ(bytesOfState().toStdString(), state.toStdString()) << name;
        // Decimal points are typed as they are written.
        auto* const date = find<QLineEdit>("DateEdit");
        date->selectAll();
        QTest::keyClicks(date, "2/1/2000");
        QTest::keyClick(date, Qt::Key_Return);
        EXPECT_EQ(date->text(), QStringLiteral("2/1/2000"));
        workspace().setMoment(2451545.123456789);
    }
}

} // namespace
} // namespace kestrav::desktop
