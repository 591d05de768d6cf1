// The periods of a dasha as a tree whose branches are computed when they are opened.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "app/present/DashaTables.h"

#include <QAbstractItemModel>

#include <memory>
#include <optional>
#include <vector>

namespace kestrav::desktop
{

/// Columns: period, start, end, age and length, and what the system has besides. The periods go
/// down to the fifth level; the mahadashas are given in portions, for short cycles never end.
class DashaTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit DashaTreeModel(QObject* parent);
    ~DashaTreeModel() override;

    /// Shows a dasha of a chart from birth on. The program data keep what it is made from.
    void setDasha(ChartPointer chart, DataPointer data, present::DashaResult result);
    void clear();

    /// Marks what runs at an age, and returns the path to the period of that level, from the
    /// mahadasha on. Empty where none runs.
    QModelIndexList setAge(std::optional<double> age, int level);

    /// The period of an index; it must be valid.
    [[nodiscard]] const timing::DashaPeriod& period(const QModelIndex& index) const;
    /// Its end, as a Julian day.
    [[nodiscard]] double endOf(const QModelIndex& index) const;
    [[nodiscard]] timing::LordKind lordKind() const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex& parent) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Node;

    [[nodiscard]] Node* nodeOf(const QModelIndex& index) const;
    void makeChildren(Node& node);
    void makeMahadashas();
    void appendMahadashas();
    void addTexts(const std::vector<Node*>& nodes);
    [[nodiscard]] int lengthColumn() const;
    [[nodiscard]] bool isRight(int column) const;
    [[nodiscard]] std::wstring lengthText(const timing::DashaPeriod& period) const;

    ChartPointer chart_;
    DataPointer data_;
    present::DashaResult dasha_;
    std::optional<timing::MahadashaWalk> walk_; ///< stands at the first mahadasha not shown
    std::unique_ptr<Node> root_;
    std::optional<double> age_;
    std::vector<std::wstring> headings_;
};

} // namespace kestrav::desktop
