#include "app/desktop/printing/Printing.h"

#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/TMessages.h"
#include "app/present/Report.h"
#include "data/DatabaseMessages.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QThreadPool>

#include <algorithm>
#include <numeric>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kPointsOfInch = 72.0;
constexpr double kMarginMm = 12.0;

// Where lines of a grid lie, 0 to 1.
std::vector<double> gridLines(const std::vector<int>& weights)
{
    const double total = std::accumulate(weights.begin(), weights.end(), 0.0);
    std::vector<double> lines = {0.0};
    for (const int weight : weights) {
        lines.push_back(lines.back() + weight / total);
    }
    return lines;
}

// Letters of paper do not follow the size of the window's letters.
QFont fontOfPaper()
{
    QFont font = QApplication::font();
    font.setPointSizeF(10.0);
    return font;
}

template <typename Device>
void paintSheets(const PaperLayout& layout, QPainter& painter, Device& device)
{
    const double scale = device.resolution() / kPointsOfInch;
    for (int sheet = 0; sheet < layout.sheets(); ++sheet) {
        if (sheet > 0) {
            device.newPage();
        }
        painter.save();
        painter.scale(scale, scale);
        layout.paint(painter, sheet);
        painter.restore();
    }
}

// Lets every panel finish what it shows, also those whose work runs on another thread. The window
// is painted meanwhile.
void finishPanels(PageView& page)
{
    for (PanelCell* const cell : page.cells()) {
        cell->panel()->refreshNow();
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QEventLoop loop;
    QThreadPool::globalInstance()->start([&loop] {
        BackgroundWork::waitForAll();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QApplication::restoreOverrideCursor();
}

// The chart that the page is about: the shown one, unless all cells keep another.
ChartPointer chartOfHead(const PageView& page, const Workspace& workspace)
{
    const auto& cells = page.cells();
    const bool kept =
        !cells.empty() && std::all_of(cells.begin(), cells.end(), [&cells](const PanelCell* cell) {
            return cell->panel()->pinnedChart() == cells.front()->panel()->pinnedChart();
        });
    const ChartPointer pinned = kept ? cells.front()->panel()->pinnedChart() : nullptr;
    return pinned ? pinned : workspace.chart();
}

// Paper does not show which chart is the second one; its name does.
QString captionOnPaper(const PanelCell& cell, const Workspace& workspace)
{
    const PanelWidget& panel = *cell.panel();
    const ChartPointer& second = workspace.secondChart();
    if (!panel.pinnedChart() && panel.panel().chart == present::PanelChart::Second && second) {
        return QStringLiteral("%1 (%2)").arg(panel.title(), toQt(second->chart.name));
    }
    return cell.captionText();
}

QSizeF roomOf(const QPageLayout& layout)
{
    return layout.paintRect(QPageLayout::Point).size();
}

} // namespace

PaperDocument paperOfPage(PageView& page, Workspace& workspace)
{
    finishPanels(page);
    PaperDocument document;
    if (const ChartPointer chart = chartOfHead(page, workspace)) {
        document.title = chart->chart.name;
        document.head = present::reportHead(*chart);
    }
    const present::PageLayout layout = page.layout();
    const std::vector<double> rows = gridLines(layout.rowWeights);
    const std::vector<double> columns = gridLines(layout.columnWeights);
    for (PanelCell* const cell : page.cells()) {
        PanelWidget& panel = *cell->panel();
        const present::Panel& place = panel.panel();
        const auto at = [](const std::vector<double>& lines, int line) {
            return lines[std::size_t(line)];
        };
        PaperCell printed;
        printed.share = QRectF(
            QPointF(at(columns, place.column), at(rows, place.row)),
            QPointF(at(columns, place.column + place.columns), at(rows, place.row + place.rows)));
        printed.caption = toWide(captionOnPaper(*cell, workspace));
        printed.blocks = panel.blocks();
        document.cells.push_back(std::move(printed));
    }
    return document;
}

PaperDocument paperOfReport(const present::Document& report)
{
    PaperDocument document;
    document.title = report.title;
    document.head = report.head;
    document.flow = report.blocks;
    return document;
}

void printPaper(const PaperDocument& document, QPrinter& printer)
{
    const PaperLayout layout(document, roomOf(printer.pageLayout()), fontOfPaper());
    QPainter painter;
    if (painter.begin(&printer)) {
        paintSheets(layout, painter, printer);
    }
}

core::Result<void> writePdf(const PaperDocument& document, const QPageLayout& layout,
                            const QString& file)
{
    QFile output(file);
    if (!output.open(QIODevice::WriteOnly)) {
        return core::Error{toUtf8(output.errorString()), toUtf8(file)};
    }
    QPdfWriter writer(&output);
    writer.setPageLayout(layout);
    writer.setTitle(toQt(document.title));
    writer.setCreator(QStringLiteral("Kestrav " KESTRAV_VERSION));
    const PaperLayout sheets(document, roomOf(layout), fontOfPaper());
    QPainter painter;
    if (!painter.begin(&writer)) {
        return core::Error{"the PDF could not be begun", toUtf8(file)};
    }
    paintSheets(sheets, painter, writer);
    painter.end();
    if (output.error() != QFileDevice::NoError || !output.flush()) {
        return core::Error{toUtf8(output.errorString()), toUtf8(file)};
    }
    return {};
}

bool savePdf(const PaperDocument& document, const QString& file, Workspace& workspace)
{
    if (QFileInfo::exists(file) && TMessages().show(data::kWarningCaption, data::kOverwrite,
                                                    core::Buttons::YesNo) != core::Answer::Yes) {
        return false;
    }
    const core::Result<void> written = writePdf(document, chosenPaper(), file);
    if (written) {
        workspace.tell(QObject::tr("Saved %1").arg(file));
    } else {
        workspace.tellProblem(toQt(written.error().text()));
    }
    return written.ok();
}

QPageLayout chosenPaper()
{
    const QSettings& state = stateOfWindow();
    const auto size = QPageSize::PageSizeId(state.value("print/paper", int(QPageSize::A4)).toInt());
    const auto orientation =
        state.value("print/wide", false).toBool() ? QPageLayout::Landscape : QPageLayout::Portrait;
    const QPageSize paper(size >= 0 && size <= QPageSize::LastPageSize ? size : QPageSize::A4);
    return {paper, orientation, QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
            QPageLayout::Millimeter};
}

void keepPaper(const QPageLayout& layout)
{
    QSettings& state = stateOfWindow();
    state.setValue("print/paper", int(layout.pageSize().id()));
    state.setValue("print/wide", layout.orientation() == QPageLayout::Landscape);
}

} // namespace kestrav::desktop
