#include "app/desktop/pages/PageView.h"

#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/panels/PanelWidget.h"

#include <QApplication>
#include <QDataStream>
#include <QGridLayout>
#include <QIODevice>
#include <QSplitter>
#include <QVBoxLayout>

#include <numeric>
#include <utility>

namespace kestrav::desktop
{

namespace
{

// Splitters divide what there is in proportion to numbers of this order.
constexpr int kSizeOfWeight = 1000;

} // namespace

PageView::PageView(Workspace& workspace, present::PageLayout layout, QWidget* parent)
    : QWidget(parent), workspace_(workspace), layout_(std::move(layout))
{
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(
        build({0, int(layout_.rowWeights.size())}, {0, int(layout_.columnWeights.size())}));
}

// The lines between rows or columns inside the ranges that no panel covers.
std::vector<int> PageView::cuts(Qt::Orientation orientation, const Range& rows,
                                const Range& columns) const
{
    const bool vertical = orientation == Qt::Vertical;
    const Range& range = vertical ? rows : columns;
    std::vector<int> found;
    for (int line = range.first + 1; line < range.end; ++line) {
        bool free = true;
        for (const present::Panel& panel : layout_.panels) {
            const bool inside = panel.row >= rows.first && panel.row < rows.end &&
                                panel.column >= columns.first && panel.column < columns.end;
            const int first = vertical ? panel.row : panel.column;
            const int count = vertical ? panel.rows : panel.columns;
            free = free && !(inside && first < line && first + count > line);
        }
        if (free) {
            found.push_back(line);
        }
    }
    return found;
}

QWidget* PageView::cell(std::size_t panel)
{
    auto* const made = new PanelCell(workspace_, layout_.panels[panel], this);
    connect(made, &PanelCell::changed, this, &PageView::changed);
    cells_ += made;
    panelOfCell_.push_back(panel);
    return made;
}

QWidget* PageView::build(const Range& rows, const Range& columns)
{
    for (std::size_t i = 0; i < layout_.panels.size(); ++i) {
        const present::Panel& panel = layout_.panels[i];
        if (panel.row == rows.first && panel.column == columns.first &&
            panel.row + panel.rows == rows.end && panel.column + panel.columns == columns.end) {
            return cell(i);
        }
    }
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        const std::vector<int> lines = cuts(orientation, rows, columns);
        if (!lines.empty()) {
            return buildSplitter(orientation, lines, rows, columns);
        }
    }
    return buildGrid(rows, columns);
}

QWidget* PageView::buildSplitter(Qt::Orientation orientation, const std::vector<int>& lines,
                                 const Range& rows, const Range& columns)
{
    auto* const splitter = new QSplitter(orientation, this);
    splitter->setChildrenCollapsible(false);
    splitter->setObjectName(QStringLiteral("Splitter"));
    splitters_ += splitter;
    const bool vertical = orientation == Qt::Vertical;
    const std::vector<int>& weights = vertical ? layout_.rowWeights : layout_.columnWeights;
    Range part = vertical ? rows : columns;
    std::vector<int> ends = lines;
    ends.push_back(part.end);
    QList<int> sizes;
    for (const int end : ends) {
        part.end = end;
        splitter->addWidget(vertical ? build(part, columns) : build(rows, part));
        sizes += kSizeOfWeight *
                 std::accumulate(weights.begin() + part.first, weights.begin() + part.end, 0);
        splitter->setStretchFactor(splitter->count() - 1, sizes.back() / kSizeOfWeight);
        part.first = end;
    }
    splitter->setSizes(sizes);
    return splitter;
}

// Panels that lie around one another like the arms of a windmill: no line cuts them apart.
QWidget* PageView::buildGrid(const Range& rows, const Range& columns)
{
    auto* const box = new QWidget(this);
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins({});
    for (std::size_t i = 0; i < layout_.panels.size(); ++i) {
        const present::Panel& panel = layout_.panels[i];
        if (panel.row >= rows.first && panel.row < rows.end && panel.column >= columns.first &&
            panel.column < columns.end) {
            grid->addWidget(cell(i), panel.row - rows.first, panel.column - columns.first,
                            panel.rows, panel.columns);
        }
    }
    for (int row = rows.first; row < rows.end; ++row) {
        grid->setRowStretch(row - rows.first, layout_.rowWeights[std::size_t(row)]);
    }
    for (int column = columns.first; column < columns.end; ++column) {
        grid->setColumnStretch(column - columns.first, layout_.columnWeights[std::size_t(column)]);
    }
    return box;
}

present::PageLayout PageView::layout() const
{
    present::PageLayout layout = layout_;
    for (qsizetype i = 0; i < cells_.size(); ++i) {
        layout.panels[panelOfCell_[std::size_t(i)]] = cells_[i]->panel()->panel();
    }
    return layout;
}

PanelCell* PageView::currentCell() const
{
    for (PanelCell* const cell : cells_) {
        if (cell->isAncestorOf(QApplication::focusWidget())) {
            return cell;
        }
    }
    return cells_.isEmpty() ? nullptr : cells_.constFirst();
}

void PageView::focusCell(int by)
{
    if (cells_.isEmpty()) {
        return;
    }
    const qsizetype count = cells_.size();
    qsizetype index = cells_.indexOf(currentCell());
    if (cells_[index]->isAncestorOf(QApplication::focusWidget())) {
        index = (index + by + count) % count;
    }
    cells_[index]->focusPanel();
}

QByteArray PageView::saveSizes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QSplitter* const splitter : splitters_) {
        stream << splitter->saveState();
    }
    for (const PanelCell* const cell : cells_) {
        stream << qint32(cell->panel()->zoom());
    }
    return bytes;
}

void PageView::restoreSizes(const QByteArray& sizes)
{
    QDataStream stream(sizes);
    for (QSplitter* const splitter : splitters_) {
        QByteArray state;
        stream >> state;
        splitter->restoreState(state);
    }
    QList<qint32> zooms(cells_.size());
    for (qint32& zoom : zooms) {
        stream >> zoom;
    }
    if (stream.status() == QDataStream::Ok && stream.atEnd()) {
        for (qsizetype i = 0; i < cells_.size(); ++i) {
            cells_[i]->panel()->setZoom(zooms[i]);
        }
    }
}

} // namespace kestrav::desktop
