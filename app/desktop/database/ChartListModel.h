// The charts of the open database as the chart list shows them.
#pragma once

#include "app/desktop/database/OpenDatabase.h"
#include "data/LineList.h"
#include "data/ResearchLabels.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>
#include <vector>

namespace kestrav::desktop
{

class Workspace;

/// The charts that the sort box and the filter let through, in their order. A change of one line
/// of the database moves or updates one row.
class ChartListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        DateColumn,
        TimeColumn,
        TagColumn,
        LabelColumn,
        Columns,
    };

    explicit ChartListModel(Workspace& workspace, QObject* parent = nullptr);

    void setSort(data::SortOrder order);
    /// Shows charts whose name or date has every word of the text.
    void setFilter(const QString& text);
    /// Labels every chart by a key of the research lines, which also orders them; nothing takes the
    /// labels away.
    void setLabels(std::optional<data::ResearchKey> key);
    void setResearch(data::LineList research);

    /// The line of a row in the database.
    [[nodiscard]] std::size_t lineAt(int row) const;
    /// The row that shows a line; nothing when it is filtered out.
    [[nodiscard]] std::optional<int> positionOf(std::size_t line) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Renames a chart.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QStringList mimeTypes() const override;
    /// The lines of the charts, as text and byte for byte.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;

    /// The type of dragged chart lines.
    static constexpr char kLinesType[] = "application/x-kestrav-charts";

private:
    [[nodiscard]] const data::ChooserRow& rowAt(int position) const;
    [[nodiscard]] QString text(const data::ChooserRow& row, int column) const;
    [[nodiscard]] int labelValue(const data::ChooserRow& row) const;
    [[nodiscard]] bool shows(std::size_t row) const;
    [[nodiscard]] bool inSort(const data::ChooserRow& row) const;
    /// Whether rows stand where their own key puts them, so that one can be moved alone.
    [[nodiscard]] bool movesAlone() const;
    [[nodiscard]] int placeOf(std::size_t row) const;
    void rebuild();
    void readKeys();
    void insertRowOf(std::size_t row);
    void removeRowOf(std::size_t row);
    void followEdits(const std::vector<LineEdit>& edits);
    void LineChanged(std::size_t line);
    void LineInserted(std::size_t line);
    void LineRemoved(std::size_t line);
    [[nodiscard]] QModelIndex shownIndex() const;
    void markShown();
    void markAll();

    Workspace& workspace_;
    OpenDatabase& database_;
    std::vector<std::string> keys_;  ///< of the names, for each row of the database's list
    std::vector<std::size_t> shown_; ///< rows of that list
    std::vector<std::string> words_;
    data::SortOrder sort_ = data::SortOrder::Alphabetical;
    std::optional<data::ResearchKey> key_;
    data::LineList research_;
    QPersistentModelIndex marked_; ///< the row of the chart last shown
};

} // namespace kestrav::desktop
