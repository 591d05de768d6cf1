#include "app/desktop/panels/FlowLayout.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

// Hidden controls take no room; a stretch takes none of its own but is there all the same.
bool isShown(QLayoutItem& item)
{
    return !item.isEmpty() || item.spacerItem() != nullptr;
}

bool grows(const QLayoutItem& item)
{
    return item.expandingDirections().testFlag(Qt::Horizontal);
}

// Texts that may be broken become higher in less room.
int heightWithin(const QLayoutItem& item, int width)
{
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

} // namespace

FlowLayout::FlowLayout(int gap)
{
    setContentsMargins(gap, gap, gap, gap);
    setSpacing(gap);
}

FlowLayout::~FlowLayout()
{
    // One by one: a layout that goes takes itself out of the one around it.
    while (FlowLayout::count() > 0) {
        delete FlowLayout::takeAt(0);
    }
}

void FlowLayout::addTogether(std::initializer_list<QWidget*> widgets)
{
    auto* const group = new QHBoxLayout;
    group->setSpacing(spacing());
    for (QWidget* const widget : widgets) {
        addChildWidget(widget);
        group->addWidget(widget);
    }
    addChildLayout(group);
    addItem(group);
}

void FlowLayout::addStretch()
{
    addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void FlowLayout::addItem(QLayoutItem* item)
{
    items_.emplace_back(item);
    invalidate();
}

int FlowLayout::count() const
{
    return int(items_.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < FlowLayout::count() ? items_[std::size_t(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* const taken = items_[std::size_t(index)].release();
    items_.erase(items_.begin() + index);
    invalidate();
    return taken;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    return heightOf(rowsWithin(width - margins.left() - margins.right())) + margins.top() +
           margins.bottom();
}

QSize FlowLayout::minimumSize() const
{
    QSize least(0, 0);
    for (const auto& item : items_) {
        if (isShown(*item)) {
            least = least.expandedTo(item->minimumSize());
        }
    }
    const QMargins margins = contentsMargins();
    least += QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
    // As it stands now all its rows are needed.
    return placed_ > 0 ? QSize(least.width(), heightForWidth(placed_)) : least;
}

QSize FlowLayout::sizeHint() const
{
    QSize inOneRow(0, 0);
    for (const auto& item : items_) {
        if (isShown(*item)) {
            const QSize wanted = item->sizeHint();
            const int gap = inOneRow.width() > 0 && item->spacerItem() == nullptr ? spacing() : 0;
            inOneRow = {inOneRow.width() + gap + wanted.width(),
                        std::max(inOneRow.height(), wanted.height())};
        }
    }
    const QMargins margins = contentsMargins();
    return inOneRow + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    if (area.width() != placed_) {
        const bool otherRows =
            placed_ == 0 || heightForWidth(placed_) != heightForWidth(area.width());
        placed_ = area.width();
        if (otherRows) {
            update();
        }
    }
    const QRect inside = area.marginsRemoved(contentsMargins());
    int top = inside.top();
    for (const Row& row : rowsWithin(inside.width())) {
        place(row, {inside.left(), top, inside.width(), row.height});
        top += row.height + spacing();
    }
}

std::vector<FlowLayout::Row> FlowLayout::rowsWithin(int width) const
{
    std::vector<Row> rows;
    for (const auto& item : items_) {
        if (!isShown(*item)) {
            continue;
        }
        const bool stretch = item->spacerItem() != nullptr;
        const int wanted = std::min(item->sizeHint().width(), width);
        const int added = stretch ? 0 : wanted + spacing();
        if (rows.empty() || (rows.back().width > 0 && rows.back().width + added > width)) {
            rows.emplace_back();
        }
        Row& row = rows.back();
        row.items.push_back({item.get(), wanted});
        // The first of a row has no gap before it.
        row.width += row.width == 0 && !stretch ? wanted : added;
    }
    for (Row& row : rows) {
        fill(row, width);
    }
    return rows;
}

// Gives what can grow the room that is left, and finds the height.
void FlowLayout::fill(Row& row, int width)
{
    const auto growing =
        int(std::count_if(row.items.begin(), row.items.end(),
                          [](const Placed& placed) { return grows(*placed.item); }));
    const int left = std::max(0, width - row.width);
    for (Placed& placed : row.items) {
        placed.width += grows(*placed.item) ? left / growing : 0;
        row.height = std::max(row.height, heightWithin(*placed.item, placed.width));
    }
}

void FlowLayout::place(const Row& row, const QRect& area) const
{
    int x = area.left();
    bool first = true;
    for (const Placed& placed : row.items) {
        if (placed.item->spacerItem() == nullptr) {
            x += first ? 0 : spacing();
            first = false;
            const int height = heightWithin(*placed.item, placed.width);
            const QRect at(x, area.top() + (area.height() - height) / 2, placed.width, height);
            placed.item->setGeometry(
                QStyle::visualRect(parentWidget()->layoutDirection(), geometry(), at));
        }
        x += placed.width;
    }
}

int FlowLayout::heightOf(const std::vector<Row>& rows) const
{
    int height = rows.empty() ? 0 : spacing() * int(rows.size() - 1);
    for (const Row& row : rows) {
        height += row.height;
    }
    return height;
}

} // namespace kestrav::desktop
