// The loaded yogas as an item model: files, chapters, yogas.
#pragma once

#include "app/present/YogaTree.h"

#include <QAbstractItemModel>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kestrav::desktop
{

/// The first column has the names, with a tick before yogas that hold; the second one says the same
/// in words, and of files and chapters how many hold.
class YogaTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    // Shared with the workspace, which replaces the library while the model still shows it.
    using Library = std::shared_ptr<const yoga::YogaLibrary>;
    /// What stands behind the name of a file: "read only", "changed".
    using FileNote = std::function<QString(std::size_t file)>;

    void setTree(Library library, present::YogaTruths truths, const present::YogaTreeChoice& choice,
                 const FileNote& fileNote);

    /// The yoga of an index, nothing for files and chapters.
    [[nodiscard]] std::optional<yoga::YogaPlace> placeOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const yoga::YogaPlace& place) const;
    /// What names a file or chapter from one tree to the next.
    [[nodiscard]] QString keyOf(const QModelIndex& index) const;

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Node
    {
        int parent = -1;
        int row = 0;
        QString text;
        QString state;
        QString key;
        std::optional<yoga::YogaPlace> place;
        bool holds = false;
        std::vector<int> children;
    };

    int addNode(int parent, Node node);
    [[nodiscard]] const Node& nodeOf(const QModelIndex& index) const;

    Library library_;
    std::vector<Node> nodes_ = {Node{}}; ///< the first one is the root
};

} // namespace kestrav::desktop
