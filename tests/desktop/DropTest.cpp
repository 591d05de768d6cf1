// Charts and files that are dropped on the window.
#include "app/desktop/database/ChartListModel.h"
#include "app/desktop/pages/PageStrip.h"
#include "tests/desktop/DesktopForTests.h"

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTreeView>
#include <QUrl>

#include <memory>
#include <string>

namespace kestrav::desktop
{
namespace
{

class DropTest : public WindowTest
{
protected:
    /// Whether the window would take it.
    bool enters(const QMimeData& mime)
    {
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction | Qt::MoveAction, &mime,
                              Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&window(), &enter);
        return enter.isAccepted();
    }

    void drop(const QMimeData& mime)
    {
        ASSERT_TRUE(enters(mime));
        QDropEvent event(QPointF(10, 10), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&window(), &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "what is dropped stays where it was, too";
        settle();
    }

    std::string lineAt(std::size_t line)
    {
        return std::string(workspace().database().charts().line(line));
    }
};

TEST_F(DropTest, ChartsAreDraggedAsTheLinesOfTheFile)
{
    const QAbstractItemModel& model = *find<QTreeView>("ChartList")->model();
    const auto& list = dynamic_cast<const ChartListModel&>(model);
    // Chosen from below, with every column: each line once, in the order of the list.
    QModelIndexList indexes;
    for (const int row : {7, 2, 4}) {
        for (int column = 0; column < model.columnCount(); ++column) {
            indexes += model.index(row, column);
        }
    }
    const std::unique_ptr<QMimeData> mime(model.mimeData(indexes));
    std::string expected;
    for (const int row : {2, 4, 7}) {
        expected += lineAt(list.lineAt(row)) + "\n";
    }
    EXPECT_EQ(mime->text().toStdString(), expected);
    EXPECT_EQ(mime->data(QLatin1String(ChartListModel::kLinesType)).toStdString(), expected);
    EXPECT_EQ(model.supportedDragActions(), Qt::CopyAction);

    // In an empty database the lines are the same, byte for byte; another program gives text only.
    const std::size_t before = workspace().database().charts().size();
    QMimeData text;
    text.setText(mime->text());
    ASSERT_TRUE(workspace().database().deleteRecord(list.lineAt(4)));
    drop(text);
    EXPECT_EQ(workspace().database().charts().size(), before);
    const std::string last = lineAt(before - 1);
    EXPECT_NE(expected.find(last + "\n"), std::string::npos);
    EXPECT_TRUE(workspace().database().modified());
    command("UndoAction");
    EXPECT_EQ(workspace().database().charts().size(), before - 1);
}

TEST_F(DropTest, WhatHoldsNoChartsIsToldOrNotTaken)
{
    QMimeData words;
    words.setText(QStringLiteral("some words"));
    EXPECT_FALSE(enters(words));
    const std::size_t before = workspace().database().charts().size();
    QMimeData cells;
    cells.setText(QStringLiteral("a\tb\nc\td\n"));
    QSignalSpy news(&workspace(), &Workspace::news);
    drop(cells);
    EXPECT_EQ(workspace().database().charts().size(), before);
    EXPECT_FALSE(workspace().database().modified());
    ASSERT_EQ(news.size(), 1);
    EXPECT_EQ(news[0][0].toString(), QStringLiteral("What was dropped holds no new charts."));
}

TEST_F(DropTest, FilesAreOpenedOneAfterTheOther)
{
    const QString other = home_.filePath(QStringLiteral("\u0926\u0947\u0935 #1.ksc"));
    ASSERT_TRUE(QFile::copy(toQt(sample_), other));
    const std::size_t files = workspace().yogas()->files().size();
    QMimeData mime;
    mime.setUrls({QUrl(QStringLiteral("https://example.org/a.ksc")), QUrl::fromLocalFile(other),
                  QUrl::fromLocalFile(QStringLiteral(KESTRAV_BIN "/yogas/raja.ksy"))});
    drop(mime);
    EXPECT_TRUE(QTest::qWaitFor([&] { return workspace().database().path() == toPath(other); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return workspace().yogas()->files().size() == files + 1; }));
    EXPECT_EQ(window().pages().name(window().pages().current()), QStringLiteral("Yogas"));
    // What is not there is told by the text of the box.
    QMimeData missing;
    missing.setUrls({QUrl::fromLocalFile(home_.filePath(QStringLiteral("none.ksc")))});
    drop(missing);
    settle();
    const auto told = TMessages::takeShown();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].text,
              QStringLiteral("This file is not found, please use 'File/Open Database' to open it"));
    EXPECT_EQ(workspace().database().path(), toPath(other));
}

} // namespace
} // namespace kestrav::desktop
