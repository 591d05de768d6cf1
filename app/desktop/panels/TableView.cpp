#include "app/desktop/panels/TableView.h"

#include "app/desktop/panels/TableModel.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/TableWriters.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

namespace kestrav::desktop
{

TableView::TableView(QWidget* parent) : QTableView(parent), model_(new TableModel(this))
{
    setModel(model_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setFrameShape(NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    sortByColumn(-1, Qt::AscendingOrder);
    connect(this, &QTableView::activated, this, [this](const QModelIndex& index) {
        if (const present::Cell* const cell = model_->cell(index);
            cell != nullptr && cell->link.subject != present::Subject::None) {
            emit linkActivated(cell->link);
        }
    });
}

void TableView::setTable(present::Table given)
{
    model_->setTable(std::move(given));
    const present::Table& table = model_->table();
    if (!table.title.empty() || accessibleName().isEmpty()) {
        setAccessibleName(table.title.empty() ? tr("Table") : toQt(table.title));
    }
    horizontalHeader()->setVisible(!table.withoutHeadings());
    const int sorted = horizontalHeader()->sortIndicatorSection();
    if (sorted >= 0 && sorted < model_->columnCount()) {
        model_->sort(sorted, horizontalHeader()->sortIndicatorOrder());
    }
    fitColumns();
}

const present::Table& TableView::table() const
{
    return model_->table();
}

present::Table TableView::shownTable() const
{
    return model_->sortedTable();
}

void TableView::fitColumns()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 13 / 10);
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    resizeColumnsToContents();
    horizontalHeader()->setStretchLastSection(
        model_->columnCount() > 0 && model_->table().columns.back().align != present::Align::Right);
}

void TableView::copy() const
{
    present::Table copied = model_->sortedTable();
    std::set<int> chosen;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        chosen.insert(index.row());
    }
    if (!chosen.empty()) {
        std::vector<present::Row> rows;
        rows.reserve(chosen.size());
        for (const int row : chosen) {
            rows.push_back(copied.rows[std::size_t(row)]);
        }
        copied.rows = std::move(rows);
    }
    auto* const contents = new QMimeData;
    QString text;
    const auto addLine = [&](const auto& cells, auto textOf) {
        QStringList words;
        for (const auto& cell : cells) {
            // A tab or line end inside a cell would move what follows it.
            QString word = toQt(textOf(cell)).trimmed();
            for (const char end : {'\t', '\n', '\r'}) {
                word.replace(QLatin1Char(end), QLatin1Char(' '));
            }
            words += word;
        }
        text += words.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    if (!copied.withoutHeadings()) {
        addLine(copied.columns, [](const present::Column& column) { return column.heading; });
    }
    for (const present::Row& row : copied.rows) {
        addLine(row, [](const present::Cell& cell) { return cell.text; });
    }
    contents->setText(text);
    contents->setHtml(toQt(present::tableHtml(copied)));
    QApplication::clipboard()->setMimeData(contents);
}

void TableView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void TableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (const present::Cell* const cell = model_->cell(current);
        cell != nullptr && hasFocus() && cell->link.subject != present::Subject::None) {
        emit linkChosen(cell->link);
    }
}

void TableView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitColumns();
    }
}

} // namespace kestrav::desktop
