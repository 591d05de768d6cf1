#include "app/desktop/diagram/DiagramGridPanel.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/VargaNames.h"
#include "app/desktop/diagram/DiagramContents.h"
#include "app/desktop/diagram/DiagramExport.h"
#include "app/desktop/diagram/DiagramTile.h"
#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"

#include <QAction>

#include <algorithm>
#include <numeric>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kPrintedSize = 170.0;
constexpr std::size_t kPrintedInRow = 3;
// The large diagram takes a square of so many cells of the grid on each side.
constexpr int kLeastSpan = 2;
constexpr int kMostSpan = 4;
// How much an area of the large diagram counts against one of the small ones.
constexpr double kWorthOfLarge = 0.5;

struct Arrangement
{
    int span = 0; ///< cells along the large diagram; 0 when nothing fits
    int rows = 0;
    int columns = 0;
    double side = 0.0; ///< of a small diagram
};

// `words` is the height of a title. The small diagrams fill the grid around the large one.
Arrangement bestArrangement(QSizeF room, int count, double words, double gap)
{
    Arrangement best;
    double most = 0.0;
    for (int span = kLeastSpan; span <= kMostSpan; ++span) {
        const int cells = count + span * span;
        for (int columns = span; columns <= cells; ++columns) {
            const int rows = std::max(span, (cells + columns - 1) / columns);
            const double side = std::min((room.width() - (columns - 1) * gap) / columns,
                                         (room.height() - (rows - 1) * gap) / rows - words);
            const double worth = side * side * (count + kWorthOfLarge * span * span);
            if (side > 0.0 && worth > most) {
                most = worth;
                best = {span, rows, columns, side};
            }
        }
    }
    return best;
}

QRect rounded(double x, double y, double width, double height)
{
    return QRectF(x, y, width, height).toRect();
}

} // namespace

DiagramGridPanel::DiagramGridPanel(Workspace& workspace, present::Panel panel, int small,
                                   QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), large_(new DiagramTile(this)),
      copy_(new QAction(tr("&Copy Large Diagram"), this)),
      save_(new QAction(tr("&Save Large Diagram..."), this))
{
    large_->view()->setObjectName(QStringLiteral("LargeDiagramView"));
    connectView(large_->view());
    connect(large_->view(), &DiagramView::degreesWanted, this, [this] {
        degrees_ = present::DegreeForm((int(degrees()) + 1) % 3);
        markDue();
    });
    for (int i = 0; i < small; ++i) {
        auto* const tile = new DiagramTile(this);
        tile->view()->setObjectName(QStringLiteral("DiagramView%1").arg(i));
        connectView(tile->view());
        connect(tile->view(), &DiagramView::clicked, this, [this, i] { tileClicked(i); });
        tiles_.push_back(tile);
    }
    setFocusProxy(large_->view());
    dependOn(OnChart);
    connect(copy_, &QAction::triggered, large_->view(), &DiagramView::copy);
    connect(save_, &QAction::triggered, this,
            [this] { saveDiagramAs(*large_->view(), this->workspace(), this); });
}

void DiagramGridPanel::connectView(DiagramView* view)
{
    connect(&workspace(), &Workspace::selectionChanged, view,
            [this, view] { view->setSelection(workspace().selection()); });
    view->setSelection(workspace().selection());
    connect(view, &DiagramView::linkChosen, this, &DiagramGridPanel::choose);
    connect(view, &DiagramView::vargaWanted, this, &DiagramGridPanel::setVarga);
    connect(view, &DiagramView::styleWanted, this,
            [this](present::DiagramStyle style) { setStyle(style); });
    connect(view, &DiagramView::told, &workspace(), &Workspace::tell);
}

present::DegreeForm DiagramGridPanel::degrees() const
{
    return degrees_.value_or(present::DegreeForm(workspace().settings().diagramDegrees));
}

QList<QAction*> DiagramGridPanel::panelActions()
{
    return {copy_, save_};
}

std::vector<present::Block> DiagramGridPanel::blocks()
{
    refreshNow();
    std::vector<DiagramTile*> tiles = tiles_;
    if (printsLarge()) {
        tiles.insert(tiles.begin(), large_);
    }
    std::vector<present::Block> blocks;
    present::DrawingRow row;
    for (const DiagramTile* const tile : tiles) {
        const DiagramView& view = *tile->view();
        if (view.contents().chart) {
            row.drawings.push_back({view.layOut(kPrintedSize, present::ColourScheme::Print),
                                    view.drawnWithCharacters()});
            row.drawings.back().list.title = toWide(tile->title());
        }
        if (!row.drawings.empty() &&
            (row.drawings.size() == kPrintedInRow || tile == tiles.back())) {
            blocks.emplace_back(std::exchange(row, {}));
        }
    }
    return blocks;
}

QSize DiagramGridPanel::sizeHint() const
{
    const int unit = fontMetrics().height();
    return {unit * 40, unit * 30};
}

void DiagramGridPanel::resizeEvent(QResizeEvent* event)
{
    PanelWidget::resizeEvent(event);
    arrange();
}

void DiagramGridPanel::arrange()
{
    const double gap = fontMetrics().height() / 2.0;
    const double words = tiles_.front()->heightOfWords();
    const QRectF room = QRectF(rect()).adjusted(gap, gap / 2.0, -gap, -gap / 2.0);
    const Arrangement best = bestArrangement(room.size(), int(tiles_.size()), words, gap);
    if (best.span == 0) {
        return;
    }
    const double across = best.side + gap;
    const double down = best.side + words + gap;
    const double left = room.left() + (room.width() - (best.columns * across - gap)) / 2.0;
    const double top = room.top() + (room.height() - (best.rows * down - gap)) / 2.0;
    large_->setGeometry(rounded(left, top, best.span * across - gap, best.span * down - gap));
    std::size_t tile = 0;
    for (int cell = 0; cell < best.rows * best.columns && tile < tiles_.size(); ++cell) {
        const int row = cell / best.columns;
        const int column = cell % best.columns;
        if (row >= best.span || column >= best.span) {
            tiles_[tile++]->setGeometry(
                rounded(left + column * across, top + row * down, best.side, best.side + words));
        }
    }
}

VargaGridPanel::VargaGridPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : DiagramGridPanel(workspace, std::move(panel), core::kVargaCount, parent)
{
    setObjectName(QStringLiteral("VargaGridPanel"));
}

QString VargaGridPanel::title() const
{
    return tr("Divisional charts");
}

void VargaGridPanel::tileClicked(int index)
{
    setVarga(index);
}

void VargaGridPanel::refresh()
{
    const ChartPointer shown = chart();
    DiagramContents contents = diagramContents(workspace(), panel_, shown);
    contents.options.boundaries = true;
    contents.options.degrees = degrees();
    large_->view()->setContents(contents);
    QStringList near;
    for (int point = 0; shown && point < present::kPlacedPoints; ++point) {
        if (contents.options.points[std::size_t(point)] &&
            core::at(core::at(shown->chart.nearBoundary, panel_.varga), point)) {
            near += toQt(present::pointLabel(point));
        }
    }
    large_->setWords(toQt(present::vargaHeading(panel_.varga)), vargaTitle(panel_.varga), {},
                     near.isEmpty()
                         ? QString()
                         : tr("~ near a boundary: %1").arg(near.join(QLatin1String(", "))));
    contents.small = true;
    const bool combust = contents.options.combust;
    contents.options.degrees = present::DegreeForm::None;
    contents.options.nameStyle = 2;
    contents.options.navamshaRing = false;
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        DiagramTile& tile = *tiles_[std::size_t(varga)];
        contents.varga = varga;
        // Which planets are combust is the same in all of them; the rashi says it.
        contents.options.combust = combust && varga == core::kRashi;
        const QString name = vargaTitle(varga);
        const QString division = QStringLiteral("D-%1").arg(analysis::vargaDivision(varga));
        tile.setWords(division + QLatin1Char(' ') + name, division,
                      toQt(present::vargaHeading(varga)));
        tile.setChosen(varga == panel_.varga);
        tile.view()->setContents(contents);
    }
    arrange();
}

BinduGridPanel::BinduGridPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : DiagramGridPanel(workspace, std::move(panel), analysis::kAshtakavargaPoints, parent)
{
    setObjectName(QStringLiteral("BinduGridPanel"));
}

QString BinduGridPanel::title() const
{
    return tr("Bindus in %1").arg(vargaTitle(panel_.varga));
}

void BinduGridPanel::tileClicked(int index)
{
    receiver_ = receiver_ == index ? present::BinduChoice::kSarva : index;
    markDue();
}

void BinduGridPanel::refresh()
{
    const ChartPointer shown = chart();
    DiagramContents contents = diagramContents(workspace(), panel_, shown);
    contents.options.navamshaRing = false;
    contents.options.bindus = present::BinduChoice{receiver_};
    contents.options.degrees = present::DegreeForm::None;
    large_->view()->setContents(contents);
    analysis::Ashtakavarga table;
    if (shown) {
        table = analysis::computeAshtakavarga(shown->chart, panel_.varga, false);
    }
    const auto titled = [](const QString& name, const analysis::SignRow12& row) {
        return tr("%1: %2").arg(name).arg(std::accumulate(row.begin(), row.end(), 0));
    };
    large_->setWords(
        receiver_ == present::BinduChoice::kSarva
            ? titled(tr("Sarvashtakavarga"), table.sarva)
            : titled(toQt(present::pointLabel(receiver_)), core::at(table.bindus, receiver_)),
        {}, {});
    contents.small = true;
    contents.options.points.reset();
    contents.options.arudhas = false;
    for (int receiver = 0; receiver < int(tiles_.size()); ++receiver) {
        contents.options.bindus = present::BinduChoice{receiver};
        const QString name = toQt(present::pointLabel(receiver));
        tiles_[std::size_t(receiver)]->setWords(
            titled(name, core::at(table.bindus, receiver)),
            titled(name.left(2), core::at(table.bindus, receiver)), name);
        tiles_[std::size_t(receiver)]->setChosen(receiver == receiver_);
        tiles_[std::size_t(receiver)]->view()->setContents(contents);
    }
    arrange();
}

} // namespace kestrav::desktop
