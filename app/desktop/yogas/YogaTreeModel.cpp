#include "app/desktop/yogas/YogaTreeModel.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"

#include <QFont>

#include <utility>

namespace kestrav::desktop
{

namespace
{

QString countText(std::size_t holding, std::size_t all)
{
    return YogaTreeModel::tr("%1 of %2").arg(holding).arg(all);
}

} // namespace

int YogaTreeModel::addNode(int parent, Node node)
{
    const int index = int(nodes_.size());
    node.parent = parent;
    node.row = int(nodes_[std::size_t(parent)].children.size());
    nodes_[std::size_t(parent)].children.push_back(index);
    nodes_.push_back(std::move(node));
    return index;
}

void YogaTreeModel::setTree(Library library, present::YogaTruths truths,
                            const present::YogaTreeChoice& choice, const FileNote& fileNote)
{
    beginResetModel();
    library_ = std::move(library);
    nodes_.assign(1, Node{});
    const bool known = !truths.empty();
    for (const present::YogaTreeFile& file : present::yogaTree(*library_, truths, choice)) {
        const yoga::LoadedYogaFile& loaded = library_->files()[file.file];
        Node ofFile;
        const QString note = fileNote(file.file);
        ofFile.text = toQt(present::yogaFileLabel(loaded)) +
                      (note.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(note));
        ofFile.state = known ? countText(file.holding, file.yogas) : QString();
        ofFile.key = toQt(loaded.path);
        const int fileNode = addNode(0, ofFile);
        for (const present::YogaTreeChapter& chapter : file.chapters) {
            int under = fileNode;
            // Yogas without a chapter stand in the file itself.
            if (!chapter.name.empty()) {
                Node ofChapter;
                ofChapter.text = toQt(chapter.name);
                ofChapter.state =
                    known ? countText(chapter.holding, chapter.yogas.size()) : QString();
                ofChapter.key = ofFile.key + QLatin1Char('\n') + ofChapter.text;
                under = addNode(fileNode, ofChapter);
            }
            for (const yoga::YogaPlace& place : chapter.yogas) {
                Node node;
                node.place = place;
                node.holds = present::holdsIn(truths, place);
                const std::string& title = library_->yoga(place).title;
                node.text =
                    title.empty() ? tr("(without a title)") : toQt(core::fromFileBytes(title));
                if (node.holds) {
                    node.text.prepend(QStringLiteral("\u2713 "));
                    node.state = tr("holds");
                } else if (!library_->rule(place)) {
                    node.state = tr("no usable rule");
                }
                addNode(under, std::move(node));
            }
        }
    }
    endResetModel();
}

const YogaTreeModel::Node& YogaTreeModel::nodeOf(const QModelIndex& index) const
{
    return nodes_[index.isValid() ? std::size_t(index.internalId()) : 0];
}

std::optional<yoga::YogaPlace> YogaTreeModel::placeOf(const QModelIndex& index) const
{
    return nodeOf(index).place;
}

QString YogaTreeModel::keyOf(const QModelIndex& index) const
{
    return nodeOf(index).key;
}

QModelIndex YogaTreeModel::indexOf(const yoga::YogaPlace& place) const
{
    for (std::size_t i = 1; i < nodes_.size(); ++i) {
        const auto& own = nodes_[i].place;
        if (own && own->file == place.file && own->yoga == place.yoga) {
            return createIndex(nodes_[i].row, 0, quintptr(i));
        }
    }
    return {};
}

QModelIndex YogaTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const std::vector<int>& children = nodeOf(parent).children;
    if (parent.column() > 0 || row < 0 || row >= int(children.size()) || column < 0 ||
        column >= columnCount()) {
        return {};
    }
    return createIndex(row, column, quintptr(children[std::size_t(row)]));
}

QModelIndex YogaTreeModel::parent(const QModelIndex& index) const
{
    const int above = nodeOf(index).parent;
    return above <= 0 ? QModelIndex()
                      : createIndex(nodes_[std::size_t(above)].row, 0, quintptr(above));
}

int YogaTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : int(nodeOf(parent).children.size());
}

int YogaTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 2;
}

QVariant YogaTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Node& node = nodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return index.column() == 0 ? node.text : node.state;
    case Qt::AccessibleTextRole:
        return node.state.isEmpty() ? node.text : node.text + QStringLiteral(", ") + node.state;
    case Qt::FontRole:
        if (node.holds && index.column() == 0) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        break;
    case Qt::ForegroundRole:
        if (index.column() == 1) {
            return themeColour(node.holds ? ThemeRole::Good : ThemeRole::Quiet);
        }
        break;
    default:
        break;
    }
    return {};
}

QVariant YogaTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == 0 ? tr("Yoga") : tr("In the chart");
}

} // namespace kestrav::desktop
