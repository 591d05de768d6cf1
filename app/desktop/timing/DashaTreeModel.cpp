#include "app/desktop/timing/DashaTreeModel.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/TextValues.h"
#include "timing/DashaTable.h"

#include <QFont>

#include <array>
#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::size_t kPortion = 150; ///< a life of years at once
constexpr double kLife = 120.0;
constexpr double kDaysOfYear = 365.25; ///< of lengths in a chart without dates

std::wstring twoParts(long long larger, const wchar_t* largeUnit, long long smaller,
                      const wchar_t* smallUnit)
{
    std::wstring text = std::to_wstring(larger) + largeUnit;
    return smaller > 0 ? text + L" " + std::to_wstring(smaller) + smallUnit : text;
}

} // namespace

struct DashaTreeModel::Node
{
    timing::DashaNode node;
    timing::DashaPeriod period;
    Node* parent = nullptr;
    int row = 0;
    bool made = false; ///< whether its children are
    std::vector<std::unique_ptr<Node>> children;
    present::Row cells;

    [[nodiscard]] bool holds(const std::optional<double>& age) const
    {
        return age && period.startAge <= *age && *age < period.endAge();
    }
};

DashaTreeModel::DashaTreeModel(QObject* parent)
    : QAbstractItemModel(parent), root_(std::make_unique<Node>())
{}

DashaTreeModel::~DashaTreeModel() = default;

void DashaTreeModel::clear()
{
    beginResetModel();
    root_ = std::make_unique<Node>();
    walk_.reset();
    chart_.reset();
    headings_.clear();
    endResetModel();
}

void DashaTreeModel::setDasha(ChartPointer chart, DataPointer data, present::DashaResult result)
{
    beginResetModel();
    chart_ = std::move(chart);
    data_ = std::move(data);
    dasha_ = std::move(result);
    root_ = std::make_unique<Node>();
    age_.reset();
    headings_.clear();
    walk_.emplace(dasha_.dasha.plan);
    while (walk_->node().end() <= 0.0) {
        walk_->next();
    }
    makeMahadashas();
    endResetModel();
}

timing::LordKind DashaTreeModel::lordKind() const
{
    return dasha_.dasha.plan.lordKind;
}

DashaTreeModel::Node* DashaTreeModel::nodeOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
}

// The next portion of mahadashas; a life of them at once where there are not many.
void DashaTreeModel::makeMahadashas()
{
    std::vector<Node*> added;
    while (added.size() < kPortion && walk_->node().start <= timing::kLastAge &&
           (walk_->node().start < kLife || added.empty())) {
        auto made = std::make_unique<Node>();
        made->node = walk_->node();
        made->row = int(root_->children.size());
        made->parent = root_.get();
        added.push_back(made.get());
        root_->children.push_back(std::move(made));
        walk_->next();
    }
    addTexts(added);
}

void DashaTreeModel::makeChildren(Node& node)
{
    node.made = true;
    const timing::DashaPlan& plan = dasha_.dasha.plan;
    double start = node.node.start;
    std::vector<Node*> added;
    for (int number = 0; number < plan.childCount(); ++number) {
        auto made = std::make_unique<Node>();
        made->node = timing::childOf(plan, node.node, number, start);
        made->parent = &node;
        made->row = number;
        start = made->node.end();
        added.push_back(made.get());
        node.children.push_back(std::move(made));
    }
    addTexts(added);
}

// Periods and cells of siblings.
void DashaTreeModel::addTexts(const std::vector<Node*>& nodes)
{
    present::DashaResult shown = dasha_;
    for (Node* const node : nodes) {
        timing::DashaPeriod& period = node->period;
        const timing::DashaPeriod& above = node->parent->period;
        period.level = above.level + 1;
        period.lords = above.lords;
        period.lords[std::size_t(period.level - 1)] = node->node.lord;
        period.startAge = node->node.start;
        period.length = node->node.length;
        period.startJulianDay = dasha_.dasha.calendar.julianDayOf(period.startAge);
        period.kalaChakraRow = node->node.kalaChakraRow;
        shown.periods.push_back(period);
    }
    present::Table table = present::dashaPeriodsTable(*chart_, shown);
    if (headings_.empty()) {
        for (const present::Column& column : table.columns) {
            headings_.push_back(column.heading);
        }
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        nodes[i]->cells = std::move(table.rows[i]);
    }
}

// Without a moment of birth there are no dates before it.
int DashaTreeModel::lengthColumn() const
{
    return chart_ && chart_->chart.hasMoment ? 4 : 2;
}

bool DashaTreeModel::isRight(int column) const
{
    return column == lengthColumn() || column == lengthColumn() - 1;
}

// The two largest units of a length, "16y", "2y 1m", "3d 4h".
std::wstring DashaTreeModel::lengthText(const timing::DashaPeriod& period) const
{
    double days = period.length * kDaysOfYear;
    double year = kDaysOfYear;
    if (std::isfinite(period.startJulianDay)) {
        days = dasha_.dasha.calendar.julianDayOf(period.endAge()) - period.startJulianDay;
        year = days / period.length;
    }
    const double month = year / 12.0;
    if (days >= month - 0.5) {
        const auto months = std::llround(days / month * 30.0);
        if (months >= 360) {
            const auto whole = std::llround(days / month);
            return twoParts(whole / 12, L"y", whole % 12, L"m");
        }
        return twoParts(months / 30, L"m", months % 30, L"d");
    }
    constexpr long long kMinutes = 1440;
    const auto minutes = std::llround(days * double(kMinutes));
    if (minutes >= kMinutes) {
        const auto hours = std::llround(days * 24.0);
        return twoParts(hours / 24, L"d", hours % 24, L"h");
    }
    if (minutes >= 60) {
        return twoParts(minutes / 60, L"h", minutes % 60, L"min");
    }
    const auto seconds = std::llround(days * 86400.0);
    return twoParts(seconds / 60, L"min", seconds % 60, L"s");
}

QModelIndexList DashaTreeModel::setAge(std::optional<double> age, int level)
{
    age_ = age;
    QModelIndexList path;
    if (age_ && chart_) {
        // Short cycles may have to be followed for long, but not for ever.
        constexpr std::size_t kMostMahadashas = 3000;
        while (root_->children.back()->period.endAge() <= *age_ &&
               walk_->node().start <= timing::kLastAge &&
               root_->children.size() < kMostMahadashas) {
            appendMahadashas();
        }
        QModelIndex index;
        while (path.size() < level) {
            if (canFetchMore(index) && index.isValid()) {
                fetchMore(index);
            }
            const Node* const node = nodeOf(index);
            QModelIndex inner;
            for (const auto& child : node->children) {
                if (child->holds(age_)) {
                    inner = createIndex(child->row, 0, child.get());
                }
            }
            if (!inner.isValid()) {
                break;
            }
            path += inner;
            index = inner;
        }
    }
    return path;
}

const timing::DashaPeriod& DashaTreeModel::period(const QModelIndex& index) const
{
    return nodeOf(index)->period;
}

double DashaTreeModel::endOf(const QModelIndex& index) const
{
    return dasha_.dasha.calendar.julianDayOf(period(index).endAge());
}

QModelIndex DashaTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Node* const node = nodeOf(parent);
    if (row < 0 || column < 0 || std::size_t(row) >= node->children.size() ||
        column >= columnCount(parent)) {
        return {};
    }
    return createIndex(row, column, node->children[std::size_t(row)].get());
}

QModelIndex DashaTreeModel::parent(const QModelIndex& index) const
{
    Node* const above = index.isValid() ? nodeOf(index)->parent : nullptr;
    return above == nullptr || above == root_.get() ? QModelIndex()
                                                    : createIndex(above->row, 0, above);
}

int DashaTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : int(nodeOf(parent)->children.size());
}

int DashaTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return int(headings_.size());
}

bool DashaTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return !root_->children.empty();
    }
    return parent.column() == 0 && period(parent).level < timing::kDashaLevels;
}

bool DashaTreeModel::canFetchMore(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return walk_ && walk_->node().start < kLife;
    }
    return hasChildren(parent) && !nodeOf(parent)->made;
}

// How many there will be shows when they are made; they are put in afterwards.
void DashaTreeModel::appendMahadashas()
{
    const std::size_t before = root_->children.size();
    makeMahadashas();
    std::vector<std::unique_ptr<Node>> added;
    for (std::size_t i = before; i < root_->children.size(); ++i) {
        added.push_back(std::move(root_->children[i]));
    }
    root_->children.resize(before);
    beginInsertRows({}, int(before), int(before + added.size()) - 1);
    for (auto& node : added) {
        root_->children.push_back(std::move(node));
    }
    endInsertRows();
}

void DashaTreeModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent)) {
        return;
    }
    if (!parent.isValid()) {
        appendMahadashas();
        return;
    }
    beginInsertRows(parent, 0, dasha_.dasha.plan.childCount() - 1);
    makeChildren(*nodeOf(parent));
    endInsertRows();
}

QVariant DashaTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Node& node = *nodeOf(index);
    const bool runs = node.holds(age_);
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == lengthColumn()) {
            return toQt(lengthText(node.period));
        }
        return toQt(node.cells[std::size_t(index.column())].text).trimmed();
    case Qt::AccessibleTextRole: {
        const QString text = data(index, Qt::DisplayRole).toString();
        return runs && index.column() == 0 ? tr("%1, running").arg(text) : text;
    }
    case Qt::ToolTipRole:
        return runs ? tr("Runs at the shared date") : QVariant();
    case Qt::FontRole: {
        QFont font;
        font.setBold(runs);
        return runs ? font : QVariant();
    }
    case Qt::ForegroundRole:
        return runs ? QVariant(themeColour(ThemeRole::Accent)) : QVariant();
    case Qt::TextAlignmentRole:
        return int((isRight(index.column()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant DashaTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || std::size_t(section) >= headings_.size()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return int((isRight(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const QString heading = toQt(headings_[std::size_t(section)]);
    return heading == QLatin1String("From")    ? tr("Start")
           : heading == QLatin1String("To")    ? tr("End")
           : heading == QLatin1String("Years") ? tr("Length")
                                               : heading;
}

} // namespace kestrav::desktop
