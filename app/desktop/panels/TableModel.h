// A table of the presentation as an item model.
#pragma once

#include "app/present/Table.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <vector>

namespace kestrav::desktop
{

class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTable(present::Table table);
    [[nodiscard]] const present::Table& table() const
    {
        return table_;
    }
    /// The table with its rows in the order in which they are shown.
    [[nodiscard]] present::Table sortedTable() const;
    [[nodiscard]] const present::Cell* cell(const QModelIndex& index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// Column -1 brings back the order of the table.
    void sort(int column, Qt::SortOrder order) override;

private:
    present::Table table_;
    std::vector<std::size_t> order_; ///< rows of the table as they are shown
};

} // namespace kestrav::desktop
