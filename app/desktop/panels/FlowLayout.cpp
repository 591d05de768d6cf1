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

} // namespace

FlowLayout::FlowLayout(int gap)
{
    setContentsMargins(gap, gap, gap, gap);
    setSpacing(gap);
}

FlowLayout::~FlowLayout()
{
    // One by one: a layout that goes takes itself out of the one around it.
    while (count() > 0) {
        delete takeAt(0);
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
    return index >= 0 && index < count() ? items_[std::size_t(index)].get() : nullptr;
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
    QSize least;
    for (const auto& item : items_) {
        if (isShown(*item)) {
            least = least.expandedTo(item->minimumSize());
        }
    }
    const QMargins margins = contentsMargins();
    return least + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize FlowLayout::sizeHint() const
{
    QSize inOneRow;
    for (const Row& row : rowsWithin(QLAYOUTSIZE_MAX)) {
        inOneRow = {row.width, row.height};
    }
    const QMargins margins = contentsMargins();
    return inOneRow + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
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
        const QSize size = item->sizeHint();
        const bool stretch = item->spacerItem() != nullptr;
        const int added = stretch ? 0 : size.width() + spacing();
        if (rows.empty() || (rows.back().width > 0 && rows.back().width + added > width)) {
            rows.emplace_back();
        }
        Row& row = rows.back();
        row.items.push_back(item.get());
        // The first of a row has no gap before it.
        row.width += row.width == 0 && !stretch ? size.width() : added;
        row.height = std::max(row.height, size.height());
    }
    return rows;
}

void FlowLayout::place(const Row& row, const QRect& area) const
{
    const auto growing = int(std::count_if(row.items.begin(), row.items.end(),
                                           [](const QLayoutItem* item) { return grows(*item); }));
    const int left = std::max(0, area.width() - row.width);
    int x = area.left();
    bool first = true;
    for (QLayoutItem* const item : row.items) {
        const QSize wanted = item->sizeHint();
        const int width =
            std::min(area.width(), wanted.width() + (grows(*item) ? left / growing : 0));
        if (item->spacerItem() != nullptr) {
            x += width;
            continue;
        }
        x += first ? 0 : spacing();
        first = false;
        const QRect at(x, area.top() + (area.height() - wanted.height()) / 2, width,
                       wanted.height());
        item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), geometry(), at));
        x += width;
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
