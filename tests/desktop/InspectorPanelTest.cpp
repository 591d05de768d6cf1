// The inspector follows what is selected; the grids of diagrams and the heat table.
#include "app/desktop/inspector/InspectorPanel.h"

#include "analysis/Ashtakavarga.h"
#include "app/desktop/diagram/DiagramGridPanel.h"
#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/inspector/HeatPanel.h"
#include "app/desktop/inspector/InspectorHtml.h"
#include "app/desktop/pages/PanelFactory.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/Colour.h"
#include "app/present/DiagramRegions.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QTextBrowser>
#include <QToolButton>

namespace kestrav::desktop
{
namespace
{

using present::Subject;

class InspectorTest : public WindowTest
{
protected:
    void choose(const present::Link& link)
    {
        workspace().select(link);
        settle();
    }
    [[nodiscard]] QString text()
    {
        return find<QTextBrowser>("InspectorBrowser")->toPlainText();
    }
    void click(const QString& address)
    {
        emit find<QTextBrowser>("InspectorBrowser")->anchorClicked(QUrl(address));
        settle();
    }

    // A view as a page makes it, of a size, shown by itself.
    template <typename Panel>
    std::unique_ptr<Panel> view(const char* name, QSize size)
    {
        present::Panel panel;
        panel.kind = present::PanelKind::View;
        panel.content = name;
        std::unique_ptr<Panel> made(qobject_cast<Panel*>(makePanel(workspace(), panel, nullptr)));
        EXPECT_NE(made, nullptr) << name << " is not registered";
        if (made) {
            made->resize(size);
            made->show();
            settle();
        }
        return made;
    }
};

TEST_F(InspectorTest, FollowsTheSelectionAndGoesBackAndForward)
{
    choose({Subject::Point, core::kMars, 0});
    EXPECT_TRUE(text().startsWith(QStringLiteral("Mars")));
    EXPECT_TRUE(text().contains(QStringLiteral("Divisional charts")));
    choose({Subject::House, 4, 0});
    EXPECT_TRUE(text().startsWith(QStringLiteral("House 4, ")));
    click(linkText({Subject::Point, core::kVenus, 8}));
    EXPECT_TRUE(text().startsWith(QStringLiteral("Venus")));
    EXPECT_EQ(workspace().selection().index, core::kVenus);

    auto* const pane = find<InspectorPanel>("InspectorPanel");
    auto* const back = find<QToolButton>("BackButton", pane);
    auto* const forward = find<QToolButton>("ForwardButton", pane);
    EXPECT_FALSE(forward->isEnabled());
    back->click();
    back->click();
    settle();
    EXPECT_TRUE(text().startsWith(QStringLiteral("Mars")));
    // What the page selected when it opened lies before.
    int before = 0;
    for (; back->isEnabled() && before < 10; ++before) {
        back->click();
    }
    EXPECT_LT(before, 10) << "the way back has an end";
    for (; before > 0; --before) {
        forward->click();
    }
    settle();
    EXPECT_TRUE(text().startsWith(QStringLiteral("Mars")));
    forward->click();
    settle();
    EXPECT_TRUE(text().startsWith(QStringLiteral("House 4, ")));
    choose({Subject::Sign, 9, 0});
    EXPECT_FALSE(forward->isEnabled()) << "a new way begins";
    click(QStringLiteral("about:1,400,0,0"));
    EXPECT_EQ(workspace().selection().subject, Subject::Sign) << "no point 400";

    auto* const source = find<QComboBox>("SourceComboBox", pane);
    choose({Subject::Point, core::kMoon, 0});
    const QString natal = text();
    source->setCurrentIndex(2);
    emit source->activated(2);
    settle();
    EXPECT_NE(text(), natal) << "the Moon of the shared date";
}

TEST_F(InspectorTest, SectionsFoldAndStayFolded)
{
    choose({Subject::Point, core::kMars, 0});
    const QString closed = text();
    EXPECT_TRUE(closed.contains(QStringLiteral("\u25B8 How computed")));
    click(QStringLiteral("fold:how-computed"));
    EXPECT_GT(text().size(), closed.size() + 200);
    click(QStringLiteral("fold:placements"));
    EXPECT_FALSE(text().contains(QStringLiteral("D9")));
    openWindow();
    choose({Subject::Point, core::kVenus, 0});
    EXPECT_TRUE(text().contains(QStringLiteral("\u25B8 Divisional charts")));
    EXPECT_TRUE(text().contains(QStringLiteral("\u25BE How computed")));
}

TEST_F(InspectorTest, LinksKeepEverythingOnTheirWay)
{
    for (const present::Link& link :
         {present::Link{Subject::Point, 62, 20}, present::Link{Subject::Sign, 12, 8},
          present::Link{Subject::House, 1, 0}, present::Link{Subject::Nakshatra, 26, 0},
          present::Link{Subject::Moment, 0, 0, 2461056.25}}) {
        EXPECT_EQ(linkOfText(linkText(link)), link);
    }
    for (const char* const wrong :
         {"", "about:", "about:2,13,0,0", "about:2,0,0,0", "about:1,3,21,0", "http://a"}) {
        EXPECT_FALSE(linkOfText(QLatin1String(wrong))) << wrong;
    }
}

TEST_F(InspectorTest, TheGridOfVargasFillsItsRoomAndTheLargeOneFollows)
{
    for (const QSize size : {QSize(1100, 650), QSize(600, 900)}) {
        const auto grid = view<VargaGridPanel>("varga-grid", size);
        ASSERT_NE(grid, nullptr);
        auto* const large = find<DiagramView>("LargeDiagramView", grid.get());
        QList<QRect> places = {QRect(large->mapTo(grid.get(), QPoint()), large->size())};
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            auto* const small = find<DiagramView>(
                QStringLiteral("DiagramView%1").arg(varga).toLatin1().constData(), grid.get());
            EXPECT_EQ(small->contents().varga, varga);
            const QRect place(small->mapTo(grid.get(), QPoint()), small->size());
            EXPECT_TRUE(grid->rect().contains(place));
            for (const QRect& other : places) {
                EXPECT_FALSE(place.intersects(other));
            }
            places += place;
        }
        EXPECT_EQ(places.size(), 22);
        QTest::mouseClick(find<DiagramView>("DiagramView8", grid.get()), Qt::LeftButton);
        settle();
        EXPECT_EQ(large->contents().varga, 8);
        EXPECT_EQ(grid->panel().varga, 8);
    }
}

TEST_F(InspectorTest, TheGridOfBindusShowsEveryReceiver)
{
    const auto grid = view<BinduGridPanel>("bindu-grid", {1000, 600});
    ASSERT_NE(grid, nullptr);
    const auto sum = [](const present::DisplayList& list) {
        int total = 0;
        for (const present::Text& text : list.texts) {
            total += text.role == present::ColourRole::Bindu ? std::stoi(text.text) : 0;
        }
        return total;
    };
    EXPECT_EQ(sum(find<DiagramView>("LargeDiagramView", grid.get())->list()), 337);
    for (int receiver = 0; receiver < analysis::kAshtakavargaPoints; ++receiver) {
        const QByteArray name = QStringLiteral("DiagramView%1").arg(receiver).toLatin1();
        EXPECT_EQ(sum(find<DiagramView>(name.constData(), grid.get())->list()),
                  analysis::binduTotal(receiver));
    }
    QTest::mouseClick(find<DiagramView>("DiagramView3", grid.get()), Qt::LeftButton);
    settle();
    EXPECT_EQ(sum(find<DiagramView>("LargeDiagramView", grid.get())->list()), 39);
}

TEST_F(InspectorTest, HeatHasWordsAndReadableColours)
{
    for (const int scheme : {1, 2}) {
        core::Settings settings = workspace().settings();
        settings.colourScheme = scheme;
        workspace().changeSettings(settings);
        settle();
        const auto heat = view<HeatPanel>("heat", {900, 500});
        ASSERT_NE(heat, nullptr);
        const QAbstractItemModel& model = *find<TableView>("HeatTableView", heat.get())->model();
        const QColor ink = heat->palette().color(QPalette::Text);
        int coloured = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex index = model.index(row, column);
                const QVariant behind = index.data(Qt::BackgroundRole);
                if (!behind.isValid()) {
                    continue;
                }
                ++coloured;
                EXPECT_FALSE(index.data().toString().isEmpty());
                const QColor paper = behind.value<QBrush>().color();
                const auto part = [](int value) {
                    return std::uint8_t(value);
                };
                EXPECT_GE(
                    present::contrast({part(ink.red()), part(ink.green()), part(ink.blue())},
                                      {part(paper.red()), part(paper.green()), part(paper.blue())}),
                    4.5);
            }
        }
        EXPECT_GE(coloured, 9 * 16);
    }
}

} // namespace
} // namespace kestrav::desktop
