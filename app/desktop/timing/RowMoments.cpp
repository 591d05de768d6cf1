#include "app/desktop/timing/RowMoments.h"

#include "app/desktop/panels/TableModel.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Workspace.h"

#include <cmath>

namespace kestrav::desktop
{

namespace
{

std::optional<double> momentOfRow(const QModelIndex& index)
{
    const auto* const model = qobject_cast<const TableModel*>(index.model());
    const present::Cell* const cell =
        model != nullptr ? model->cell(index.siblingAtColumn(0)) : nullptr;
    if (cell == nullptr || cell->link.subject != present::Subject::Moment) {
        return std::nullopt;
    }
    return cell->link.moment;
}

} // namespace

void followRows(TableView& view, Workspace& workspace)
{
    const auto follow = [&workspace](const QModelIndex& index) {
        if (const std::optional<double> moment = momentOfRow(index)) {
            workspace.setMoment(*moment);
        }
    };
    QObject::connect(&view, &QAbstractItemView::clicked, &view, follow);
    QObject::connect(&view, &QAbstractItemView::activated, &view, follow);
}

void showRowAt(TableView& view, double moment)
{
    if (view.hasFocus()) {
        return;
    }
    QModelIndex last;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        const std::optional<double> other = momentOfRow(index);
        if (!other || *other > moment) {
            break;
        }
        last = index;
    }
    if (last.isValid()) {
        view.setCurrentIndex(last);
        view.scrollTo(last, QAbstractItemView::PositionAtCenter);
    } else {
        view.clearSelection();
    }
}

void DayPage::turnTo(double day, int newDays)
{
    if (!first || newDays != days || std::fabs(std::floor((day - *first) / newDays)) > 1.0) {
        first = day;
    } else {
        *first += std::floor((day - *first) / newDays) * newDays;
    }
    days = newDays;
}

} // namespace kestrav::desktop
