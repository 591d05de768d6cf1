// The charts of a database whose names hold some letters: name, date and time.
#pragma once

#include "data/Chooser.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <string>
#include <vector>

namespace kestrav::desktop
{

class ChartNamesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The list must stay while the model is used.
    ChartNamesModel(const data::ChooserList& list, data::DateOrder order, QObject* parent);

    /// Shows the charts whose names hold the text, without regard to case and accents.
    void setFilter(const QString& text);
    [[nodiscard]] std::size_t line(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    const data::ChooserList& list_;
    data::DateOrder order_;
    std::vector<std::size_t> alphabetical_;
    std::vector<std::string> keys_; ///< in that order
    std::vector<std::size_t> shown_;
};

} // namespace kestrav::desktop
