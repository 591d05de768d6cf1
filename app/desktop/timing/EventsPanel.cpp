#include "app/desktop/timing/EventsPanel.h"

#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/timing/RowMoments.h"
#include "app/present/EventTables.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

EventsPanel::EventsPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), view_(new TableView(this)),
      note_(new QLabel(this)), edit_(new QToolButton(this))
{
    setObjectName(QStringLiteral("EventsPanel"));
    view_->setObjectName(QStringLiteral("EventsTable"));
    view_->setAccessibleName(tr("Events"));
    note_->setObjectName(QStringLiteral("NoteLabel"));
    note_->setWordWrap(true);
    edit_->setObjectName(QStringLiteral("EditEventsButton"));
    edit_->setText(tr("Edit Events..."));
    connect(edit_, &QToolButton::clicked, this, &EventsPanel::EditEventsButtonClick);
    connect(view_, &TableView::linkChosen, this, &EventsPanel::choose);
    followRows(*view_, workspace);
    auto* const bar = new QHBoxLayout;
    const int gap = fontMetrics().height() / 3;
    bar->setContentsMargins(gap, gap, gap, gap);
    bar->setSpacing(2 * gap);
    bar->addWidget(edit_);
    bar->addWidget(note_, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
    setFocusProxy(view_);
    actions_ = tableActions(this, workspace, view_);
}

QString EventsPanel::title() const
{
    return tr("Events");
}

QList<QAction*> EventsPanel::panelActions()
{
    return actions_;
}

void EventsPanel::refresh()
{
    const ChartPointer shown = chart();
    if (!shown) {
        work_.cancel();
        present::Table none;
        none.notes.push_back(toWide(tr("No chart is open.")));
        showTable(none);
        return;
    }
    work_.start(
        [shown, data = workspace().data()](const WorkHandle& /*handle*/) {
            return present::eventTransitsTable(*shown, data->series);
        },
        [this](const present::Table& table) { showTable(table); });
}

void EventsPanel::showTable(const present::Table& table)
{
    QStringList notes;
    for (const std::wstring& note : table.notes) {
        notes += toQt(note);
    }
    note_->setText(notes.join(QLatin1Char(' ')));
    note_->setToolTip(note_->text());
    view_->setTable(table);
    view_->setVisible(!table.rows.empty());
    edit_->setEnabled(chart() != nullptr);
}

std::vector<present::Block> EventsPanel::blocks()
{
    refreshNow();
    return {view_->table()};
}

void EventsPanel::EditEventsButtonClick()
{
    // The events are part of the data entry.
    if (auto* const action = window()->findChild<QAction*>(QStringLiteral("EventsAction"))) {
        action->trigger();
    } else {
        workspace().tellProblem(tr("Events are edited with the data of the chart."));
    }
}

} // namespace kestrav::desktop
