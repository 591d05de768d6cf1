#include "app/desktop/database/ChartListModel.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "data/ResearchLine.h"

#include <QFont>
#include <QMimeData>

#include <algorithm>
#include <limits>

namespace kestrav::desktop
{

namespace
{

bool hasDigit(const std::string& word)
{
    return std::any_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Research lines have nothing from the tag, so they stay when it changes.
std::string_view untagged(std::string_view line)
{
    return line.substr(std::min(line.find('\t'), line.size()));
}

} // namespace

ChartListModel::ChartListModel(Workspace& workspace, QObject* parent)
    : QAbstractTableModel(parent), workspace_(workspace), database_(workspace.database())
{
    connect(&database_, &OpenDatabase::reset, this, [this] {
        readKeys();
        rebuild();
    });
    connect(&database_, &OpenDatabase::lineChanged, this, &ChartListModel::LineChanged);
    connect(&database_, &OpenDatabase::lineInserted, this, &ChartListModel::LineInserted);
    connect(&database_, &OpenDatabase::lineRemoved, this, &ChartListModel::LineRemoved);
    connect(&database_, &OpenDatabase::linesEdited, this, &ChartListModel::followEdits);
    connect(&workspace_, &Workspace::chartChanged, this, &ChartListModel::markShown);
    connect(&workspace_, &Workspace::settingsChanged, this, &ChartListModel::markAll);
    readKeys();
    rebuild();
}

void ChartListModel::setSort(data::SortOrder order)
{
    sort_ = order;
    rebuild();
}

void ChartListModel::setFilter(const QString& text)
{
    words_.clear();
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        words_.push_back(data::nameSortKey(toUtf8(word)));
    }
    rebuild();
}

void ChartListModel::setLabels(std::optional<data::ResearchKey> key)
{
    key_ = key;
    rebuild();
}

void ChartListModel::setResearch(data::LineList research)
{
    research_ = std::move(research);
    if (key_) {
        rebuild();
    }
}

std::size_t ChartListModel::lineAt(int row) const
{
    const std::size_t position = shown_[std::size_t(row)];
    const std::vector<data::ChooserRow>& rows = database_.list().rows;
    // While the model is about to be reset, the rows are those of another database already.
    return position < rows.size() ? rows[position].line : std::numeric_limits<std::size_t>::max();
}

std::optional<int> ChartListModel::positionOf(std::size_t line) const
{
    const std::optional<std::size_t> row = database_.rowOf(line);
    const auto shown = row ? std::find(shown_.begin(), shown_.end(), *row) : shown_.end();
    return shown == shown_.end() ? std::nullopt : std::optional(int(shown - shown_.begin()));
}

int ChartListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(shown_.size());
}

int ChartListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant ChartListModel::data(const QModelIndex& index, int role) const
{
    // A row that is about to be removed may be that of the end.
    if (!index.isValid() || index.row() >= rowCount() ||
        shown_[std::size_t(index.row())] >= database_.list().rows.size()) {
        return {};
    }
    const data::ChooserRow& row = rowAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == NameColumn || index.column() == LabelColumn
                   ? text(row, index.column())
                   : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == DateColumn || index.column() == TimeColumn
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::FontRole:
        if (workspace_.chart() && workspace_.chartLine() == row.line) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::AccessibleTextRole:
        // The name is read together with what distinguishes charts of like names.
        return index.column() == NameColumn
                   ? tr("%1, %2, %3")
                         .arg(text(row, NameColumn), text(row, DateColumn).trimmed(),
                              text(row, TimeColumn).trimmed())
                   : text(row, index.column());
    default:
        return {};
    }
}

QString ChartListModel::text(const data::ChooserRow& row, int column) const
{
    const bool dayFirst = database_.charts().order() == data::DateOrder::DayFirst;
    switch (column) {
    case NameColumn:
        return toQt(row.name);
    case DateColumn:
        return QStringLiteral("%1/%2/%3")
            .arg(dayFirst ? row.date.day : row.date.month, 2)
            .arg(dayFirst ? row.date.month : row.date.day, 2)
            .arg(row.date.year, 4);
    case TimeColumn:
        return QStringLiteral("%1").arg(toQt(core::fromFileBytes(row.time)), 5);
    case TagColumn:
        return row.tag == L' ' ? QString() : toQt(std::wstring(1, row.tag));
    case LabelColumn: {
        const int value = labelValue(row);
        return value > 0 ? toQt(data::researchLabel(value, *key_)) : QString();
    }
    default:
        return {};
    }
}

int ChartListModel::labelValue(const data::ChooserRow& row) const
{
    // A file that was not refreshed may have other lines; the name tells.
    if (!key_ || row.line >= research_.size() ||
        data::researchField(research_.line(row.line), 0) != row.name) {
        return 0;
    }
    return data::researchValue(research_.line(row.line), *key_).value_or(0);
}

QVariant ChartListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return section == DateColumn || section == TimeColumn
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const QString titles[Columns] = {tr("Name"), tr("Date"), tr("Time"), tr("Tag"), tr("Label")};
    return section >= 0 && section < Columns ? titles[section] : QVariant();
}

Qt::ItemFlags ChartListModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid()) {
        flags |= Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    }
    return index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

bool ChartListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || index.column() != NameColumn || index.row() >= rowCount()) {
        return false;
    }
    QString problem;
    const bool renamed = database_.renameRecord(lineAt(index.row()), value.toString(), problem);
    if (!problem.isEmpty()) {
        workspace_.tellProblem(problem);
    }
    return renamed;
}

QStringList ChartListModel::mimeTypes() const
{
    return {QLatin1String(kLinesType), QStringLiteral("text/plain")};
}

QMimeData* ChartListModel::mimeData(const QModelIndexList& indexes) const
{
    std::vector<int> rows;
    for (const QModelIndex& index : indexes) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::string lines;
    for (const int row : rows) {
        lines += database_.charts().line(lineAt(row));
        lines += '\n';
    }
    auto* const mime = new QMimeData;
    mime->setData(QLatin1String(kLinesType), QByteArray::fromStdString(lines));
    mime->setText(toQt(core::fromFileBytes(lines)));
    return mime;
}

Qt::DropActions ChartListModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

const data::ChooserRow& ChartListModel::rowAt(int position) const
{
    return database_.list().rows[shown_[std::size_t(position)]];
}

bool ChartListModel::shows(std::size_t row) const
{
    return std::all_of(words_.begin(), words_.end(), [&](const std::string& word) {
        return keys_[row].find(word) != std::string::npos ||
               (hasDigit(word) &&
                text(database_.list().rows[row], DateColumn).contains(toQt(word)));
    });
}

bool ChartListModel::inSort(const data::ChooserRow& row) const
{
    switch (sort_) {
    case data::SortOrder::NowAndLocation:
        return row.tag == L'N' || row.tag == L'L';
    case data::SortOrder::GroupA:
        return row.tag == L'A';
    case data::SortOrder::GroupB:
        return row.tag == L'B';
    case data::SortOrder::Male:
        return row.sex == 'M';
    case data::SortOrder::Female:
        return row.sex == 'F';
    default:
        return true;
    }
}

bool ChartListModel::movesAlone() const
{
    return !key_ && sort_ != data::SortOrder::LinkedToPrimary;
}

int ChartListModel::placeOf(std::size_t row) const
{
    const auto place = std::lower_bound(
        shown_.begin(), shown_.end(), row, [this](std::size_t one, std::size_t other) {
            return sort_ == data::SortOrder::Alphabetical && keys_[one] != keys_[other]
                       ? keys_[one] < keys_[other]
                       : one < other;
        });
    return int(place - shown_.begin());
}

void ChartListModel::readKeys()
{
    keys_.clear();
    keys_.reserve(database_.list().rows.size());
    for (const data::ChooserRow& row : database_.list().rows) {
        keys_.push_back(data::nameSortKey(row.name));
    }
}

void ChartListModel::rebuild()
{
    beginResetModel();
    const data::ChooserList& list = database_.list();
    if (key_) {
        shown_.clear();
        for (const data::LabelledRow& row : data::rowsByResearch(list, research_, *key_)) {
            if (inSort(list.rows[row.row])) {
                shown_.push_back(row.row);
            }
        }
    } else {
        shown_ = data::sortedRows(list, sort_);
    }
    std::erase_if(shown_, [this](std::size_t row) { return !shows(row); });
    endResetModel();
    marked_ = shownIndex();
}

void ChartListModel::insertRowOf(std::size_t row)
{
    keys_.insert(keys_.begin() + std::ptrdiff_t(row),
                 data::nameSortKey(database_.list().rows[row].name));
    for (std::size_t& shown : shown_) {
        shown += shown >= row ? 1 : 0;
    }
    if (!movesAlone()) {
        rebuild();
    } else if (shows(row) && inSort(database_.list().rows[row])) {
        const int place = placeOf(row);
        beginInsertRows({}, place, place);
        shown_.insert(shown_.begin() + place, row);
        endInsertRows();
    }
}

void ChartListModel::removeRowOf(std::size_t row)
{
    const auto shown = std::find(shown_.begin(), shown_.end(), row);
    const bool visible = shown != shown_.end();
    const int place = int(shown - shown_.begin());
    keys_.erase(keys_.begin() + std::ptrdiff_t(row));
    // The database has done without the row already; the others must be right before it goes here.
    for (std::size_t& other : shown_) {
        other -= other > row ? 1 : 0;
    }
    if (visible) {
        beginRemoveRows({}, place, place);
        shown_.erase(shown_.begin() + place);
        endRemoveRows();
    }
    if (!movesAlone()) {
        rebuild();
    }
}

void ChartListModel::LineChanged(std::size_t line)
{
    const std::size_t rows = database_.list().rows.size();
    if (rows != keys_.size()) {
        // The line became a chart, or too short to be one.
        rows > keys_.size() ? LineInserted(line) : LineRemoved(line);
        return;
    }
    const std::optional<std::size_t> row = database_.rowOf(line);
    if (!row) {
        return;
    }
    const std::optional<int> before = positionOf(line);
    keys_[*row] = data::nameSortKey(database_.list().rows[*row].name);
    if (!movesAlone()) {
        rebuild();
        return;
    }
    const bool visible = shows(*row) && inSort(database_.list().rows[*row]);
    if (before) {
        shown_.erase(shown_.begin() + *before);
    }
    const int after = placeOf(*row);
    if (before) {
        shown_.insert(shown_.begin() + *before, *row);
    }
    if (before && visible) {
        if (after != *before) {
            beginMoveRows({}, *before, *before, {}, after > *before ? after + 1 : after);
            shown_.erase(shown_.begin() + *before);
            shown_.insert(shown_.begin() + after, *row);
            endMoveRows();
        }
        emit dataChanged(index(after, 0), index(after, Columns - 1));
    } else if (before) {
        beginRemoveRows({}, *before, *before);
        shown_.erase(shown_.begin() + *before);
        endRemoveRows();
    } else if (visible) {
        beginInsertRows({}, after, after);
        shown_.insert(shown_.begin() + after, *row);
        endInsertRows();
    }
}

void ChartListModel::LineInserted(std::size_t line)
{
    const std::optional<std::size_t> row = database_.rowOf(line);
    if (row && database_.list().rows.size() > keys_.size()) {
        insertRowOf(*row);
    }
}

void ChartListModel::LineRemoved(std::size_t line)
{
    const std::vector<data::ChooserRow>& rows = database_.list().rows;
    if (rows.size() < keys_.size()) {
        const auto next = std::lower_bound(
            rows.begin(), rows.end(), line,
            [](const data::ChooserRow& one, std::size_t at) { return one.line < at; });
        removeRowOf(std::size_t(next - rows.begin()));
    }
}

void ChartListModel::followEdits(const std::vector<LineEdit>& edits)
{
    for (const LineEdit& edit : edits) {
        if (edit.line > research_.size()) {
            continue;
        }
        if (!edit.before) {
            research_.insert(edit.line, {});
        } else if (edit.line < research_.size() && !edit.after) {
            research_.remove(edit.line);
        } else if (edit.line < research_.size() &&
                   untagged(*edit.before) != untagged(*edit.after)) {
            research_.replace(edit.line, {});
        }
    }
    if (key_ && !edits.empty()) {
        rebuild();
    }
}

QModelIndex ChartListModel::shownIndex() const
{
    const std::optional<int> row =
        workspace_.chartLine() ? positionOf(*workspace_.chartLine()) : std::nullopt;
    return row ? index(*row, 0) : QModelIndex();
}

void ChartListModel::markShown()
{
    // Views look at every row of a changed range, which takes long in a large database.
    const QModelIndex now = shownIndex();
    for (const QModelIndex& changed : {QModelIndex(marked_), now}) {
        if (changed.isValid()) {
            emit dataChanged(changed, changed.siblingAtColumn(Columns - 1));
        }
    }
    marked_ = now;
}

void ChartListModel::markAll()
{
    if (!shown_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
    }
}

} // namespace kestrav::desktop
