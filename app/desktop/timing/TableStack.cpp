#include "app/desktop/timing/TableStack.h"

#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace kestrav::desktop
{

TableStack::TableStack(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    // The views inside take the keys.
    setFocusPolicy(Qt::NoFocus);
    auto* const inside = new QWidget(this);
    inside->setBackgroundRole(QPalette::Base);
    inside->setAutoFillBackground(true);
    layout_ = new QVBoxLayout(inside);
    layout_->setContentsMargins({});
    layout_->setSpacing(0);
    layout_->addStretch(1);
    setWidget(inside);
}

QSize TableStack::minimumSizeHint() const
{
    return {fontMetrics().height() * 8, fontMetrics().height() * 4};
}

TableStack::Part TableStack::addPart()
{
    const Part part{new QLabel(widget()), new TableView(widget()), new QLabel(widget())};
    QFont bold = part.title->font();
    bold.setBold(true);
    part.title->setFont(bold);
    part.title->setMargin(fontMetrics().height() / 3);
    part.note->setMargin(fontMetrics().height() / 3);
    part.note->setWordWrap(true);
    part.view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    part.view->setObjectName(QStringLiteral("TableView%1").arg(parts_.size() + 1));
    connect(part.view, &TableView::linkChosen, this, &TableStack::linkChosen);
    connect(part.view, &TableView::linkActivated, this, &TableStack::linkActivated);
    const int at = layout_->count() - 1;
    layout_->insertWidget(at, part.title);
    layout_->insertWidget(at + 1, part.view);
    layout_->insertWidget(at + 2, part.note);
    return part;
}

void TableStack::fit(const Part& part)
{
    const QTableView& view = *part.view;
    const int headings = view.horizontalHeader()->isVisibleTo(&view)
                             ? view.horizontalHeader()->sizeHint().height()
                             : 0;
    part.view->setFixedHeight(
        headings + view.model()->rowCount() * view.verticalHeader()->defaultSectionSize() +
        view.horizontalScrollBar()->sizeHint().height() / 2);
}

void TableStack::setTables(const std::vector<present::Table>& tables)
{
    while (parts_.size() < tables.size()) {
        parts_.push_back(addPart());
    }
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const Part& part = parts_[i];
        const bool used = i < tables.size();
        const present::Table table = used ? tables[i] : present::Table();
        const QString title = toQt(table.title).trimmed();
        part.title->setText(title);
        part.title->setVisible(!title.isEmpty());
        part.view->setAccessibleName(title);
        part.view->setTable(table);
        part.view->setVisible(used && !table.rows.empty());
        QStringList notes;
        for (const std::wstring& note : table.notes) {
            notes += toQt(note);
        }
        part.note->setText(notes.join(QLatin1Char('\n')));
        part.note->setVisible(!notes.isEmpty());
        fit(part);
    }
}

void TableStack::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        for (const Part& part : parts_) {
            fit(part);
        }
    }
}

} // namespace kestrav::desktop
