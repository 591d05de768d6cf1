#include "app/desktop/timing/TrialTimesPanel.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableModel.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/WorkBar.h"
#include "app/present/TypedDate.h"
#include "core/DateTime.h"
#include "data/BirthTexts.h"
#include "timing/DashaTable.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kLargestStep = 600;
constexpr int kMostSteps = 100;
constexpr double kSecondsOfMinute = 60.0;
constexpr double kSecondsOfHour = 3600.0;

} // namespace

TrialTimesPanel::TrialTimesPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), step_(new QSpinBox(this)),
      unit_(new QComboBox(this)), count_(new QSpinBox(this)), levels_(new QSpinBox(this)),
      takeOver_(new QToolButton(this)), note_(new QLabel(this)), tabs_(new QTabWidget(this)),
      ascendants_(new TableView(this)), lords_(new TableView(this))
{
    setObjectName(QStringLiteral("TrialTimesPanel"));
    note_->setObjectName(QStringLiteral("NoteLabel"));
    note_->setMargin(fontMetrics().height() / 3);
    note_->setWordWrap(true);
    tabs_->setObjectName(QStringLiteral("TrialTabs"));
    tabs_->setDocumentMode(true);
    ascendants_->setObjectName(QStringLiteral("AscendantsTable"));
    ascendants_->setAccessibleName(tr("Ascendants of other birth times"));
    lords_->setObjectName(QStringLiteral("LordsTable"));
    lords_->setAccessibleName(tr("Dasha lords of other birth times"));
    tabs_->addTab(ascendants_, tr("Ascendants"));
    tabs_->addTab(lords_, tr("Dasha lords of the events"));
    for (TableView* const view : {ascendants_, lords_}) {
        connect(view, &TableView::linkChosen, this, &TrialTimesPanel::choose);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(makeBar());
    layout->addWidget(tabs_, 1);
    layout->addWidget(note_);
    setFocusProxy(ascendants_);
    actions_ = tableActions(this, workspace,
                            [this] { return static_cast<TableView*>(tabs_->currentWidget()); });
}

QLayout* TrialTimesPanel::makeBar()
{
    const auto spin = [this](QSpinBox& box, const char* name, int lowest, int highest, int value) {
        box.setObjectName(QLatin1String(name));
        box.setRange(lowest, highest);
        box.setValue(value);
        // Typed digits are not computed one by one.
        box.setKeyboardTracking(false);
        connect(&box, &QSpinBox::valueChanged, this, [this] { markDue(); });
    };
    spin(*step_, "TrialStepUpDown", 1, kLargestStep, 1);
    spin(*count_, "TrialCountUpDown", 1, kMostSteps, 10);
    spin(*levels_, "TrialLevelsUpDown", 1, timing::kDashaLevels, 3);
    unit_->setObjectName(QStringLiteral("TrialUnitComboBox"));
    unit_->setAccessibleName(tr("Unit of a step"));
    unit_->addItems({tr("seconds"), tr("minutes")});
    unit_->setCurrentIndex(1);
    connect(unit_, &QComboBox::activated, this, [this] { markDue(); });
    auto* const bar = new FlowLayout(fontMetrics().height() / 3);
    const auto label = [this](const QString& text, QWidget* field) {
        auto* const made = new QLabel(text, this);
        made->setBuddy(field);
        field->setAccessibleName(QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
        return made;
    };
    bar->addTogether({label(tr("Steps to both sides:"), count_), count_});
    bar->addTogether({label(tr("of"), step_), step_, unit_});
    bar->addTogether({label(tr("Dasha levels:"), levels_), levels_});
    bar->addStretch();
    takeOver_->setObjectName(QStringLiteral("TakeOverButton"));
    takeOver_->setText(tr("Take Over..."));
    takeOver_->setToolTip(tr("Enters the chosen time into the data of the chart"));
    connect(takeOver_, &QToolButton::clicked, this, &TrialTimesPanel::TakeOverButtonClick);
    bar->addWidget(takeOver_);
    auto* const working = new WorkBar(work_, this);
    connect(working, &WorkBar::stopped, this,
            [this] { note_->setText(tr("Stopped before all times were tried.")); });
    bar->addWidget(working);
    step_->setAccessibleName(tr("Length of a step"));
    return bar;
}

QString TrialTimesPanel::title() const
{
    return tr("Other birth times");
}

QList<QAction*> TrialTimesPanel::panelActions()
{
    return actions_;
}

void TrialTimesPanel::refresh()
{
    const ChartPointer shown = chart();
    tabs_->setVisible(shown != nullptr);
    takeOver_->setEnabled(shown != nullptr && shown == workspace().chart());
    if (!shown) {
        work_.cancel();
        note_->setText(tr("No chart is open."));
        ascendants_->setTable({});
        lords_->setTable({});
        return;
    }
    present::TrialTimes times;
    times.steps = count_->value();
    times.seconds = step_->value() * (unit_->currentIndex() == 1 ? kSecondsOfMinute : 1.0);
    times.levels = levels_->value();
    work_.start(
        [shown, times, data = workspace().data()](const WorkHandle& handle) {
            return present::trialTables(*shown, data->series, times, handle.longWork());
        },
        [this](const present::TrialTables& tables) { showTables(tables); });
}

void TrialTimesPanel::showTables(const present::TrialTables& tables)
{
    ascendants_->setTable(tables.ascendants);
    lords_->setTable(tables.lords);
    const bool hasEvents = tables.lords.columns.size() > 2;
    tabs_->setTabVisible(1, hasEvents);
    QStringList notes;
    for (const std::wstring& note : tables.ascendants.notes) {
        notes += toQt(note);
    }
    note_->setText(notes.join(QLatin1Char(' ')));
    // The given time stands in the middle.
    for (TableView* const view : {ascendants_, lords_}) {
        const QModelIndex middle = view->model()->index(view->model()->rowCount() / 2, 0);
        view->setCurrentIndex(middle);
        view->scrollTo(middle, QAbstractItemView::PositionAtCenter);
    }
}

std::vector<present::Block> TrialTimesPanel::blocks()
{
    refreshNow();
    std::vector<present::Block> blocks = {ascendants_->table()};
    if (lords_->table().columns.size() > 2) {
        blocks.emplace_back(lords_->table());
    }
    return blocks;
}

void TrialTimesPanel::TakeOverButtonClick()
{
    const TableView& view = tabs_->currentIndex() == 1 ? *lords_ : *ascendants_;
    const auto* const model = static_cast<const TableModel*>(view.model());
    const present::Cell* const shift = model->cell(view.currentIndex().siblingAtColumn(0));
    auto* const edit = window()->findChild<QAction*>(QStringLiteral("EditChartAction"));
    if (shift == nullptr || !shift->sortKey || edit == nullptr) {
        return;
    }
    edit->trigger();
    const auto* const form = window()->findChild<QWidget*>(QStringLiteral("TDataEntryForm"));
    auto* const time =
        form != nullptr ? form->findChild<QLineEdit*>(QStringLiteral("TimeEdit")) : nullptr;
    auto* const date =
        form != nullptr ? form->findChild<QLineEdit*>(QStringLiteral("DateEdit")) : nullptr;
    if (time == nullptr || date == nullptr) {
        return;
    }
    core::DateTimeRecord born = workspace().record().time;
    const double hours = born.localTime + *shift->sortKey / kSecondsOfHour;
    const double days = std::floor(hours / 24.0);
    time->setText(toQt(data::timeText(hours - 24.0 * days)));
    if (days != 0.0) {
        core::addDays(born, int(days));
        date->setText(toQt(present::typedDate({born.year, born.month, born.day},
                                              workspace().database().charts().order())));
    }
}

} // namespace kestrav::desktop
