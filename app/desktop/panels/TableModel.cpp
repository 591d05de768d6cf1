#include "app/desktop/panels/TableModel.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"

#include <QBrush>

#include <algorithm>
#include <numeric>
#include <utility>

namespace kestrav::desktop
{

void TableModel::setTable(present::Table table)
{
    beginResetModel();
    table_ = std::move(table);
    order_.resize(table_.rows.size());
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    endResetModel();
}

present::Table TableModel::sortedTable() const
{
    present::Table sorted = table_;
    for (std::size_t i = 0; i < order_.size(); ++i) {
        sorted.rows[i] = table_.rows[order_[i]];
    }
    return sorted;
}

const present::Cell* TableModel::cell(const QModelIndex& index) const
{
    if (!index.isValid() || std::size_t(index.row()) >= order_.size()) {
        return nullptr;
    }
    const present::Row& row = table_.rows[order_[std::size_t(index.row())]];
    return std::size_t(index.column()) < row.size() ? &row[std::size_t(index.column())] : nullptr;
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(order_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(table_.columns.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    const present::Cell* const shown = cell(index);
    if (shown == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return toQt(shown->text).trimmed();
    case Qt::TextAlignmentRole: {
        const bool right =
            table_.columns[std::size_t(index.column())].align == present::Align::Right;
        return int((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::BackgroundRole:
        return shown->shade ? QVariant(QBrush(toQt(present::colourOfShade(
                                  *shown->shade, isDark() ? present::ColourScheme::Dark
                                                          : present::ColourScheme::Light))))
                            : QVariant();
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 ||
        std::size_t(section) >= table_.columns.size()) {
        return {};
    }
    const present::Column& column = table_.columns[std::size_t(section)];
    if (role == Qt::DisplayRole) {
        return toQt(column.heading).trimmed();
    }
    if (role == Qt::TextAlignmentRole) {
        return int((column.align == present::Align::Right ? Qt::AlignRight : Qt::AlignLeft) |
                   Qt::AlignVCenter);
    }
    return {};
}

void TableModel::sort(int column, Qt::SortOrder order)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    const std::vector<std::size_t> oldOrder = order_;
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    if (column >= 0 && column < columnCount()) {
        const auto at = [&](std::size_t row) -> const present::Cell& {
            static const present::Cell none;
            const present::Row& cells = table_.rows[row];
            return std::size_t(column) < cells.size() ? cells[std::size_t(column)] : none;
        };
        std::stable_sort(order_.begin(), order_.end(), [&](std::size_t one, std::size_t other) {
            const int compared = present::compareCells(at(one), at(other));
            return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
        });
    }
    QModelIndexList after;
    for (const QModelIndex& index : before) {
        const auto found =
            std::find(order_.begin(), order_.end(), oldOrder[std::size_t(index.row())]);
        after += createIndex(int(found - order_.begin()), index.column());
    }
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

} // namespace kestrav::desktop
