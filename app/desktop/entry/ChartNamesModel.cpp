#include "app/desktop/entry/ChartNamesModel.h"

#include "app/desktop/shell/Convert.h"
#include "app/present/TypedDate.h"

namespace kestrav::desktop
{

namespace
{

enum Column
{
    kName,
    kDate,
    kTime,
    kColumns,
};

} // namespace

ChartNamesModel::ChartNamesModel(const data::ChooserList& list, data::DateOrder order,
                                 QObject* parent)
    : QAbstractTableModel(parent), list_(list), order_(order),
      alphabetical_(data::sortedRows(list, data::SortOrder::Alphabetical)), shown_(alphabetical_)
{
    keys_.reserve(alphabetical_.size());
    for (const std::size_t row : alphabetical_) {
        keys_.push_back(data::nameSortKey(list.rows[row].name));
    }
}

void ChartNamesModel::setFilter(const QString& text)
{
    const std::string key = data::nameSortKey(toUtf8(text.trimmed()));
    beginResetModel();
    shown_.clear();
    for (std::size_t i = 0; i < alphabetical_.size(); ++i) {
        if (keys_[i].find(key) != std::string::npos) {
            shown_.push_back(alphabetical_[i]);
        }
    }
    endResetModel();
}

std::size_t ChartNamesModel::line(int row) const
{
    return list_.rows[shown_[std::size_t(row)]].line;
}

int ChartNamesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(shown_.size());
}

int ChartNamesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(kColumns);
}

QVariant ChartNamesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    const data::ChooserRow& row = list_.rows[shown_[std::size_t(index.row())]];
    switch (index.column()) {
    case kName:
        return toQt(row.name);
    case kDate:
        return toQt(present::typedDate(row.date, order_));
    default:
        return toQt(row.time);
    }
}

QVariant ChartNamesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == kName ? tr("Name") : section == kDate ? tr("Date") : tr("Time");
}

} // namespace kestrav::desktop
