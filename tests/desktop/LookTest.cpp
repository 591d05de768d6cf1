// What a designer would look at: sharp lines, readable letters, menus and lists in good order.
#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/palette/TPaletteDlg.h"
#include "app/desktop/panels/PanelWidget.h"
#include "tests/desktop/DesktopForTests.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <string>

namespace kestrav::desktop
{
namespace
{

// The pixels near the begin of a row, or of a column, that have the colour of the border, and those
// that are between it and what lies beside it.
struct Crossing
{
    int border = 0;
    int between = 0;
};

Crossing crossingNearBegin(const QImage& image, bool row, int along)
{
    const auto pixel = [&](int across) {
        return row ? image.pixel(across, along) : image.pixel(along, across);
    };
    const QRgb border =
        toQt(present::colourOf(present::ColourRole::Border, present::ColourScheme::Light)).rgb();
    Crossing crossing;
    for (int i = 0; i < 10; ++i) {
        const QRgb colour = pixel(i);
        crossing.border += colour == border ? 1 : 0;
        crossing.between +=
            colour != border && colour != pixel(20) && colour != qRgb(255, 255, 255) ? 1 : 0;
    }
    return crossing;
}

TEST_F(WindowTest, BordersOfDiagramsCoverWholePixels)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Chart")));
    settle();
    const DiagramView& view = *find<DiagramView>("DiagramView");
    // South cells are squares, so that rows and columns away from the corners cross one border.
    for (const double side : {104.3, 223.7, 331.0}) {
        DiagramContents contents = view.contents();
        contents.style = present::DiagramStyle::South;
        DiagramView other;
        other.setContents(contents);
        present::DisplayList list = other.layOut(side, present::ColourScheme::Light);
        list.texts.clear();
        for (const double scale : {1.0, 1.5, 2.0}) {
            QImage image(QSize(int(400 * scale), int(400 * scale)), QImage::Format_RGB32);
            image.setDevicePixelRatio(scale);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.translate(0.3, 0.3);
            paintDisplayList(painter, list, window().font());
            painter.end();
            for (const bool row : {true, false}) {
                const Crossing crossing = crossingNearBegin(image, row, int(side * scale * 0.6));
                EXPECT_GE(crossing.border, 1) << side << ' ' << scale;
                EXPECT_EQ(crossing.between, 0) << side << ' ' << scale;
            }
        }
    }
}

TEST_F(WindowTest, SmallDiagramsMakeColumnsBeforeLettersCannotBeRead)
{
    ASSERT_TRUE(window().pages().show(QStringLiteral("Vargas")));
    settle();
    // Seven points of this chart share a sign of the Hora.
    const DiagramView& hora = *find<DiagramView>("DiagramView1");
    ASSERT_EQ(hora.contents().varga, 1);
    const present::DisplayList list = hora.layOut(104.0, present::ColourScheme::Light);
    int points = 0;
    for (const present::Region& region : list.regions) {
        if (region.kind == present::RegionKind::Point) {
            const double letters = region.polygon[2].y - region.polygon[0].y;
            EXPECT_GE(letters, 6.5) << core::toUtf8(region.tip);
            ++points;
        }
    }
    EXPECT_EQ(points, 10) << "and no point is left out";
}

TEST_F(WindowTest, CaptionsShareNarrowCellsWithTheirChoosers)
{
    window().resize(1024, 700);
    for (const char* const name : {"Ashtakavarga", "Strength", "Events"}) {
        ASSERT_TRUE(window().pages().show(QLatin1String(name)));
        settle();
        for (const PanelCell* const cell : window().pages().page()->cells()) {
            if (cell->panel()->hasStyle()) {
                continue; // its two choosers say what it shows
            }
            const auto* const caption = find<QLabel>("CaptionLabel", cell);
            const int few = caption->fontMetrics().averageCharWidth() * 6;
            EXPECT_GE(caption->width(), std::min(few, caption->sizeHint().width()))
                << name << ": " << caption->text().toStdString();
        }
    }
}

TEST_F(WindowTest, ReportsFitTheirWindowAndNameTheirDiagrams)
{
    window().resize(1200, 800);
    settle();
    ASSERT_TRUE(window().pages().show(QStringLiteral("Report")));
    settle();
    auto* const browser = window().pages().page()->findChild<QTextBrowser*>();
    ASSERT_NE(browser, nullptr);
    const QString words = browser->document()->toPlainText();
    EXPECT_TRUE(words.contains(QStringLiteral("Rashi (D-1)")));
    EXPECT_TRUE(words.contains(QStringLiteral("Navamsha (D-9)")));
    EXPECT_EQ(browser->horizontalScrollBar()->maximum(), 0);
}

TEST_F(WindowTest, PaletteTellsTheMenuAndTheKeysOfCommands)
{
    TPaletteDlg dialog(window());
    dialog.show();
    auto* const find_ = find<QLineEdit>("FindEdit", &dialog);
    auto* const list = find<QListWidget>("EntryList", &dialog);
    ASSERT_GT(list->count(), 10);
    EXPECT_EQ(list->item(0)->data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("New Database, File menu, Ctrl+Shift+N"))
        << "without letters the order is that of the menus";
    QTest::keyClicks(find_, "export qck");
    ASSERT_GT(list->count(), 0);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("Export: QCK Chart List"));
    find_->clear();
    QTest::keyClicks(find_, "Albert Ein");
    ASSERT_GT(list->count(), 0);
    EXPECT_EQ(list->item(0)->data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Albert Einstein, Chart"));
}

} // namespace
} // namespace kestrav::desktop
