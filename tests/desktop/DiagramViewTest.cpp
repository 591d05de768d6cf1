// Diagrams in the window: what is painted, pointed at, typed, read aloud, copied and saved.
#include "app/desktop/diagram/DiagramView.h"

#include "app/desktop/diagram/DiagramExport.h"
#include "app/desktop/diagram/DiagramPanel.h"
#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/present/DiagramRegions.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QXmlStreamReader>

#include <cmath>

namespace kestrav::desktop
{
namespace
{

using present::Subject;

class DiagramViewTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
        settle();
        panel_ = qobject_cast<DiagramPanel*>(window().pages().page()->cells().first()->panel());
        ASSERT_NE(panel_, nullptr);
        view_ = panel_->findChild<DiagramView*>();
        ASSERT_NE(view_, nullptr);
        window().activateWindow();
        view_->setFocus();
        settle();
    }

    [[nodiscard]] int regionOf(int point) const
    {
        return present::regionOfPoint(view_->list(), point);
    }
    [[nodiscard]] const present::Region& at(int region) const
    {
        return view_->list().regions.at(std::size_t(region));
    }
    [[nodiscard]] QPoint middleOf(int region) const
    {
        return view_->polygonOf(region).boundingRect().center().toPoint();
    }
    void type(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier)
    {
        QTest::keyClick(view_, key, with);
        settle();
    }
    [[nodiscard]] const present::Link& selection()
    {
        return workspace().selection();
    }

    DiagramPanel* panel_ = nullptr;
    DiagramView* view_ = nullptr;
};

int arrows(const present::DisplayList& list)
{
    int count = 0;
    for (const present::Line& line : list.lines) {
        count += line.arrow ? 1 : 0;
    }
    return count;
}

TEST_F(DiagramViewTest, PointerSelectsAndHoldsAndTurns)
{
    const int mars = regionOf(core::kMars);
    ASSERT_GE(mars, 0);
    QTest::mouseClick(view_, Qt::LeftButton, {}, middleOf(mars));
    EXPECT_EQ(selection(), (present::Link{Subject::Point, core::kMars, 0}));
    EXPECT_TRUE(view_->isSelected(regionOf(core::kMars)));

    const int fourth = present::cellsInOrder(view_->list())[3];
    QTest::mouseMove(view_, middleOf(fourth));
    EXPECT_EQ(view_->hovered(), fourth);
    const QImage lit = view_->grab().toImage();
    QTest::mouseMove(view_, QPoint(1, 1));
    EXPECT_NE(view_->grab().toImage(), lit);
    QTest::mouseClick(view_, Qt::LeftButton, {}, middleOf(fourth));
    EXPECT_EQ(selection(), (present::Link{Subject::House, 4, 0}));

    QTest::mousePress(view_, Qt::LeftButton, {}, middleOf(mars));
    EXPECT_TRUE(QTest::qWaitFor([this] { return arrows(view_->list()) == 3; })) << "Mars has three";
    QTest::mouseRelease(view_, Qt::LeftButton, {}, middleOf(mars));
    EXPECT_EQ(arrows(view_->list()), 0);

    const int sign = at(fourth).sign;
    QTest::mouseDClick(view_, Qt::LeftButton, {}, middleOf(fourth));
    EXPECT_EQ(at(present::cellsInOrder(view_->list())[0]).sign, sign);
    EXPECT_NE(panel_->title(), QStringLiteral("Rashi"));
    QTest::mouseDClick(view_, Qt::LeftButton, {},
                       middleOf(present::cellsInOrder(view_->list())[0]));
    EXPECT_EQ(view_->firstSign(), 0);
}

TEST_F(DiagramViewTest, KeysWalkThroughHousesAndPointsAndLeaveAtTheEnd)
{
    type(Qt::Key_Right);
    EXPECT_EQ(at(view_->cursor()).house, 1);
    type(Qt::Key_Down);
    EXPECT_EQ(at(view_->cursor()).house, 2);
    type(Qt::Key_Left);
    type(Qt::Key_Left);
    EXPECT_EQ(at(view_->cursor()).house, 12);
    type(Qt::Key_Return);
    EXPECT_EQ(selection(), (present::Link{Subject::House, 12, 0}));

    type(Qt::Key_Escape);
    EXPECT_EQ(selection().subject, Subject::None);
    EXPECT_EQ(view_->cursor(), -1);
    const std::vector<int> points = present::pointsInOrder(view_->list());
    for (const int point : points) {
        ASSERT_TRUE(view_->hasFocus());
        type(Qt::Key_Tab);
        EXPECT_EQ(view_->cursor(), point);
    }
    type(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(view_->cursor(), points[points.size() - 2]);
    type(Qt::Key_Tab);
    type(Qt::Key_Tab);
    EXPECT_FALSE(view_->hasFocus()) << "behind the last point the next widget follows";
}

TEST_F(DiagramViewTest, SingleKeysChangeWhatIsShown)
{
    type(Qt::Key_V);
    type(Qt::Key_9);
    EXPECT_EQ(panel_->panel().varga, core::kRashi) << "another digit may follow";
    type(Qt::Key_Return);
    EXPECT_EQ(panel_->panel().varga, core::kNavamsha);
    EXPECT_EQ(view_->contents().varga, core::kNavamsha);
    QSignalSpy news(&workspace(), &Workspace::news);
    type(Qt::Key_V);
    type(Qt::Key_1);
    type(Qt::Key_3);
    type(Qt::Key_Return);
    ASSERT_EQ(news.size(), 1);
    EXPECT_EQ(news[0][0].toString(), QStringLiteral("There is no divisional chart D-13."));
    EXPECT_EQ(panel_->panel().varga, core::kNavamsha);

    for (const auto& [key, style] : {std::pair(Qt::Key_S, present::DiagramStyle::South),
                                     std::pair(Qt::Key_E, present::DiagramStyle::East),
                                     std::pair(Qt::Key_C, present::DiagramStyle::Circle),
                                     std::pair(Qt::Key_N, present::DiagramStyle::North)}) {
        type(key);
        EXPECT_EQ(view_->contents().style, style);
    }
    type(Qt::Key_D);
    EXPECT_EQ(view_->contents().options.degrees, present::DegreeForm::Minutes);
    type(Qt::Key_D);
    EXPECT_EQ(view_->contents().options.degrees, present::DegreeForm::None);

    workspace().select({Subject::Point, core::kJupiter, 0});
    settle();
    type(Qt::Key_A);
    EXPECT_EQ(arrows(view_->list()), 3);
    QAction* aspects = nullptr;
    for (QAction* const action : panel_->panelActions()) {
        aspects = action->objectName() == QStringLiteral("AspectsAction") ? action : aspects;
    }
    ASSERT_NE(aspects, nullptr);
    EXPECT_TRUE(aspects->isChecked()) << "the menu tells the same";
    type(Qt::Key_Escape);
    EXPECT_EQ(arrows(view_->list()), 0);
}

TEST_F(DiagramViewTest, WheelWithControlZoomsAroundThePointer)
{
    // Away from the corners of cells, whatever the shape of the view; the diagram is in its middle.
    const double before = view_->list().width;
    const QPointF spot = QRectF(view_->rect()).center() + QPointF(-0.25 * before, -0.02 * before);
    const auto cellUnder = [this, spot] {
        for (const int cell : present::cellsInOrder(view_->list())) {
            if (view_->polygonOf(cell).containsPoint(spot, Qt::OddEvenFill)) {
                return at(cell).house;
            }
        }
        return 0;
    };
    const int house = cellUnder();
    ASSERT_NE(house, 0);
    QWheelEvent wheel(spot, view_->mapToGlobal(spot), {}, {0, 480}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view_, &wheel);
    settle();
    EXPECT_NEAR(view_->list().width, 1.4 * before, 1e-6);
    EXPECT_EQ(panel_->zoom(), 140);
    EXPECT_EQ(cellUnder(), house);
}

TEST_F(DiagramViewTest, SettingsAndChangedPointsReachTheDiagram)
{
    core::Settings settings = workspace().settings();
    settings.diagramOuterPlanets = true;
    settings.diagramStyle = int(present::DiagramStyle::South);
    workspace().changeSettings(settings);
    settle();
    EXPECT_GE(regionOf(core::kPluto), 0);
    EXPECT_EQ(view_->contents().style, present::DiagramStyle::South);

    workspace().changePoint(core::kMoon, 100.0);
    settle();
    const present::Region& moon = at(regionOf(core::kMoon));
    EXPECT_EQ(moon.sign, 4);
    EXPECT_NE(moon.spoken.find(L"changed"), std::wstring::npos);
}

TEST_F(DiagramViewTest, APointOfAnotherChartIsDrawnAroundThisOne)
{
    ASSERT_TRUE(workspace().showSecond(workspace().database().record(1).value()));
    settle();
    QSignalSpy news(&workspace(), &Workspace::news);
    view_->compareWith({workspace().secondChart(), core::kVenus, 0});
    settle();
    EXPECT_GE(present::regionOfPoint(view_->list(), core::kVenus, 1), 0);
    EXPECT_EQ(present::regionOfPoint(view_->list(), core::kMars, 1), -1);
    EXPECT_EQ(selection().index, core::kVenus);
    EXPECT_EQ(news.size(), 1);
    type(Qt::Key_Escape);
    EXPECT_EQ(present::regionOfPoint(view_->list(), core::kVenus, 1), -1);
}

TEST_F(DiagramViewTest, ScreenReadersHearHousesWithTheirPoints)
{
    core::Settings settings = workspace().settings();
    settings.diagramDegrees = 0;
    workspace().changeSettings(settings);
    settle();
    QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(view_);
    ASSERT_NE(whole, nullptr);
    EXPECT_EQ(whole->text(QAccessible::Name), toQt(view_->list().title));
    ASSERT_EQ(whole->childCount(), 12);
    const QRect around = whole->rect();
    int points = 0;
    for (int house = 0; house < 12; ++house) {
        QAccessibleInterface* const cell = whole->child(house);
        ASSERT_NE(cell, nullptr);
        const QString name = cell->text(QAccessible::Name);
        EXPECT_TRUE(name.startsWith(QStringLiteral("House %1, ").arg(house + 1)))
            << name.toStdString();
        EXPECT_EQ(whole->indexOfChild(cell), house);
        EXPECT_TRUE(around.contains(cell->rect()));
        points += cell->childCount();
        for (int i = 0; i < cell->childCount(); ++i) {
            QAccessibleInterface* const point = cell->child(i);
            EXPECT_EQ(point->parent(), cell);
            EXPECT_TRUE(name.contains(point->text(QAccessible::Name)));
            EXPECT_FALSE(point->text(QAccessible::Description).isEmpty());
            EXPECT_TRUE(cell->rect().intersects(point->rect()));
            EXPECT_EQ(whole->childAt(point->rect().center().x(), point->rect().center().y()),
                      point);
        }
    }
    EXPECT_EQ(points, 10);
    // The words of the house of the ascendant are those of the layout, without degrees of planets.
    EXPECT_TRUE(whole->child(0)
                    ->text(QAccessible::Name)
                    .contains(QRegularExpression(
                        QStringLiteral("^House 1, \\w+: .*Ascendant \\d+ degrees? \\d+ minutes?"))))
        << whole->child(0)->text(QAccessible::Name).toStdString();

    QAccessibleInterface* const second = whole->child(1);
    second->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(second->state().focused);
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(selection(), (present::Link{Subject::House, 2, 0}));
    EXPECT_TRUE(second->state().selected);
}

TEST_F(DiagramViewTest, ClipboardAndFilesHoldPictureDrawingAndWords)
{
    type(Qt::Key_C, Qt::ControlModifier);
    const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
    ASSERT_TRUE(copied->hasImage());
    ASSERT_TRUE(copied->hasFormat(QStringLiteral("image/svg+xml")));
    EXPECT_TRUE(copied->data(QStringLiteral("image/png")).startsWith("\x89PNG"));
    EXPECT_TRUE(copied->text().contains(QStringLiteral("House 12, ")));

    const auto save = [this](const QString& name, const QString& size = {}) {
        const QString file = home_.filePath(name);
        TMessages::prepare(file);
        if (!size.isEmpty()) {
            TMessages::prepare(size);
        }
        saveDiagramAs(*view_, workspace(), &window());
        TMessages::takeShown();
        QFile written(file);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    };
    QXmlStreamReader svg(save(QStringLiteral("chart.svg")));
    QStringList texts;
    while (!svg.atEnd()) {
        if (svg.readNext() == QXmlStreamReader::StartElement &&
            svg.name() == QLatin1String("text")) {
            texts += svg.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
    EXPECT_TRUE(texts.filter(QStringLiteral("As ")).size() == 1);
    EXPECT_EQ(QImage::fromData(save(QStringLiteral("chart.png"), QStringLiteral("333"))).width(),
              333);
    EXPECT_TRUE(save(QStringLiteral("bad.png"), QStringLiteral("2x")).isEmpty());
    EXPECT_TRUE(save(QStringLiteral("chart.pdf")).startsWith("%PDF"));
}

// Paints the list at a scale, as a screen of that pixel ratio does.
QImage painted(const present::DisplayList& list, double scale)
{
    QImage image(int(std::ceil(list.width * scale)), int(std::ceil(list.height * scale)),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintDisplayList(painter, list, QApplication::font());
    return image;
}

// Share of the pixels that differ by more than a trace.
double difference(const QImage& one, const QImage& other)
{
    if (one.size() != other.size()) {
        return 1.0;
    }
    constexpr int kTrace = 48;
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            different += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > kTrace;
        }
    }
    return double(different) / (one.width() * one.height());
}

TEST_F(DiagramViewTest, PicturesAreSharpAndTheSameAtEveryScale)
{
    for (const present::DiagramStyle style :
         {present::DiagramStyle::North, present::DiagramStyle::South, present::DiagramStyle::East,
          present::DiagramStyle::Circle}) {
        for (const int varga : {int(core::kRashi), int(core::kNavamsha), 5}) {
            DiagramContents contents = view_->contents();
            contents.style = style;
            contents.varga = varga;
            view_->setContents(contents);
            EXPECT_EQ(view_->grab().toImage(), view_->grab().toImage());
            const present::DisplayList list = view_->layOut(300.0, present::ColourScheme::Light);
            const QImage once = painted(list, 1.0);
            present::DisplayList words = list;
            words.shapes.clear();
            words.lines.clear();
            for (const double scale : {1.5, 2.0}) {
                const QImage large = painted(list, scale);
                // More pixels show more than stretched ones: edges are drawn anew.
                const QImage stretched =
                    once.scaled(large.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                EXPECT_GT(difference(large, stretched), 0.001) << scale;
                const QImage back =
                    large.scaled(once.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                // Borders lie on whole pixels of each scale, up to half a point apart.
                EXPECT_LT(difference(once, back), 0.08) << int(style) << ' ' << scale;
                EXPECT_LT(
                    difference(painted(words, 1.0), painted(words, scale)
                                                        .scaled(once.size(), Qt::IgnoreAspectRatio,
                                                                Qt::SmoothTransformation)),
                    0.03)
                    << int(style) << ' ' << scale;
            }
        }
    }
}

} // namespace
} // namespace kestrav::desktop
