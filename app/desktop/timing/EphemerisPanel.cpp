#include "app/desktop/timing/EphemerisPanel.h"

#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/WorkBar.h"
#include "app/desktop/timing/MomentText.h"
#include "app/present/EphemerisTables.h"
#include "core/Points.h"
#include "timing/Ephemeris.h"
#include "timing/EphemerisEvents.h"
#include "timing/MoonPhases.h"
#include "timing/TransitSearch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

struct SpanRow
{
    const char* text;
    int days;
};

constexpr SpanRow kSpans[] = {
    {QT_TRANSLATE_NOOP("Ephemeris", "1 day"), 1},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 week"), 7},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 month"), 31},
    {QT_TRANSLATE_NOOP("Ephemeris", "3 months"), 92},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 year"), 366},
    {QT_TRANSLATE_NOOP("Ephemeris", "10 years"), 3653},
    {QT_TRANSLATE_NOOP("Ephemeris", "100 years"), 36525},
};
constexpr int kUsualSpan = 2;

struct StepRow
{
    const char* text;
    timing::TableStep step;
};

constexpr StepRow kSteps[] = {
    {QT_TRANSLATE_NOOP("Ephemeris", "10 minutes"), {10, timing::StepUnit::Minute}},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 hour"), {1, timing::StepUnit::Hour}},
    {QT_TRANSLATE_NOOP("Ephemeris", "6 hours"), {6, timing::StepUnit::Hour}},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 day"), {1, timing::StepUnit::Day}},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 week"), {7, timing::StepUnit::Day}},
    {QT_TRANSLATE_NOOP("Ephemeris", "1 month"), {1, timing::StepUnit::Month}},
};
constexpr int kUsualStep = 3;

constexpr char kGroup[] = "ephemeris/";

// The rows of a worker are looked at now and then for whether they are still wanted.
constexpr std::int64_t kRowsBetween = 32;

} // namespace

struct EphemerisPanel::Request
{
    DataPointer data;
    core::Settings settings;
    timing::EphemerisPlan plan;
    present::EphemerisColumns columns;

    [[nodiscard]] bool operator==(const Request& other) const
    {
        const auto day = [](const core::DateTimeRecord& date) {
            return core::DateToJulianDay(date);
        };
        return settings == other.settings && day(plan.first) == day(other.plan.first) &&
               day(plan.last) == day(other.plan.last) && plan.step.count == other.plan.step.count &&
               plan.step.unit == other.plan.step.unit &&
               plan.clockOffset == other.plan.clockOffset &&
               columns.declination == other.columns.declination &&
               columns.latitude == other.columns.latitude && columns.speed == other.columns.speed;
    }

    [[nodiscard]] Tables make(const WorkHandle& handle) const
    {
        timing::SiderealSky sky(data->series, settings, plan.clockOffset);
        timing::EphemerisRows walk(sky, plan);
        std::vector<timing::EphemerisRow> rows;
        const std::int64_t most = walk.rowsAtMost();
        while (std::optional<timing::EphemerisRow> row = walk.next()) {
            rows.push_back(std::move(*row));
            if (std::int64_t(rows.size()) % kRowsBetween == 0) {
                handle.progress(rows.size(), std::size_t(most));
                if (handle.cancelled()) {
                    return {};
                }
            }
        }
        const timing::Span span = timing::spanOf(plan);
        Tables tables;
        tables.positions = present::ephemerisTable(rows, columns);
        tables.events = present::ephemerisEventsTable(
            timing::ephemerisEventsIn(sky, plan.bodies, span,
                                      [&handle](std::size_t) { return !handle.cancelled(); }),
            plan.clockOffset, columns.twelveHour);
        if (!handle.cancelled()) {
            tables.phases = present::moonPhasesTable(timing::moonPhasesIn(sky, span),
                                                     plan.clockOffset, columns.twelveHour);
        }
        return tables;
    }
};

EphemerisPanel::EphemerisPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), span_(new QComboBox(this)),
      step_(new QComboBox(this)), tropical_(new QCheckBox(tr("Tropical"), this)),
      declination_(new QCheckBox(tr("Declination"), this)),
      latitude_(new QCheckBox(tr("Latitude"), this)), speed_(new QCheckBox(tr("Speed"), this)),
      note_(new QLabel(this)), tabs_(new QTabWidget(this)), positions_(new TableView(this)),
      events_(new TableView(this)), phases_(new TableView(this))
{
    setObjectName(QStringLiteral("EphemerisPanel"));
    note_->setObjectName(QStringLiteral("NoteLabel"));
    note_->setWordWrap(true);
    note_->setMargin(fontMetrics().height() / 3);
    note_->hide();
    tabs_->setObjectName(QStringLiteral("EphemerisTabs"));
    tabs_->setDocumentMode(true);
    const std::pair<TableView*, std::pair<const char*, QString>> views[] = {
        {positions_, {"PositionsTable", tr("Positions")}},
        {events_, {"EventsTable", tr("Ingresses and Stations")}},
        {phases_, {"PhasesTable", tr("Phases of the Moon")}}};
    for (const auto& [view, names] : views) {
        view->setObjectName(QLatin1String(names.first));
        view->setAccessibleName(names.second);
        tabs_->addTab(view, names.second);
        connect(view, &TableView::linkChosen, this, &EphemerisPanel::choose);
        followRows(*view, workspace);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(makeBar());
    layout->addWidget(note_);
    layout->addWidget(tabs_, 1);
    setFocusProxy(positions_);
    dependOn(OnChart | OnMoment);
    actions_ = tableActions(this, workspace,
                            [this] { return static_cast<TableView*>(tabs_->currentWidget()); });
}

QLayout* EphemerisPanel::makeBar()
{
    const QSettings& state = stateOfWindow();
    const auto fill = [&](QComboBox& box, const char* name, const QString& meaning,
                          const auto& rows, int standard) {
        box.setObjectName(QLatin1String(name));
        box.setAccessibleName(meaning);
        box.setToolTip(meaning);
        for (const auto& row : rows) {
            box.addItem(QCoreApplication::translate("Ephemeris", row.text));
        }
        const int kept = state.value(QLatin1String(kGroup) + box.objectName(), standard).toInt();
        box.setCurrentIndex(std::clamp(kept, 0, box.count() - 1));
        connect(&box, &QComboBox::activated, this, &EphemerisPanel::ChoiceChange);
    };
    fill(*span_, "SpanComboBox", tr("Days of the table"), kSpans, kUsualSpan);
    fill(*step_, "StepComboBox", tr("Step from row to row"), kSteps, kUsualStep);
    const std::pair<QCheckBox*, const char*> boxes[] = {{tropical_, "TropicalCheckBox"},
                                                        {declination_, "DeclinationCheckBox"},
                                                        {latitude_, "LatitudeCheckBox"},
                                                        {speed_, "SpeedCheckBox"}};
    auto* const bar = new FlowLayout(fontMetrics().height() / 3);
    bar->addWidget(span_);
    bar->addWidget(step_);
    for (const auto& [box, name] : boxes) {
        box->setObjectName(QLatin1String(name));
        box->setChecked(state.value(QLatin1String(kGroup) + box->objectName()).toBool());
        connect(box, &QCheckBox::clicked, this, &EphemerisPanel::ChoiceChange);
        bar->addWidget(box);
    }
    bar->addStretch();
    auto* const working = new WorkBar(work_, this);
    connect(working, &WorkBar::stopped, this,
            [this] { showNote(tr("Stopped before the table was complete.")); });
    bar->addWidget(working);
    return bar;
}

QString EphemerisPanel::title() const
{
    return tr("Ephemeris");
}

QList<QAction*> EphemerisPanel::panelActions()
{
    return actions_;
}

EphemerisPanel::Request EphemerisPanel::request()
{
    Request request;
    const ChartPointer shown = chart();
    request.data = workspace().data();
    request.settings = shown ? shown->settings : workspace().settings();
    if (tropical_->isChecked()) {
        // A row without a rate is tropical whatever its value.
        request.settings.ayanamsaRow = core::kAyanamsaRows - 1;
        request.settings.ayanamsaTable.back().annualRate = 0.0;
    }
    const double moment = workspace().moment();
    const StepRow& step = kSteps[step_->currentIndex()];
    timing::EphemerisPlan& plan = request.plan;
    plan.clockOffset =
        shown && shown->chart.hasMoment ? shown->chart.zone : readingOf(workspace(), moment).offset;
    page_.turnTo(timing::civilDayOf(moment, plan.clockOffset), kSpans[span_->currentIndex()].days);
    plan.first = timing::recordOfDay(*page_.first);
    plan.last = timing::recordOfDay(*page_.first + page_.days - 1);
    plan.step = step.step;
    plan.bodies.assign(core::kBodies.begin(), core::kBodies.end());
    request.columns.clock =
        step.step.unit == timing::StepUnit::Minute || step.step.unit == timing::StepUnit::Hour;
    request.columns.declination = declination_->isChecked();
    request.columns.latitude = latitude_->isChecked();
    request.columns.speed = speed_->isChecked();
    request.columns.twelveHour = request.settings.twelveHourClock;
    return request;
}

void EphemerisPanel::refresh()
{
    const Request wanted = request();
    if (made_ && *made_ == wanted) {
        showRowAt(*positions_, workspace().moment());
        return;
    }
    made_ = std::make_shared<const Request>(wanted);
    switch (timing::checkPlan(wanted.plan)) {
    case timing::PlanProblem::None:
        break;
    case timing::PlanProblem::TooManyPositions:
    case timing::PlanProblem::TooLong:
        showNote(tr("The table would be too long: choose a longer step or fewer days."));
        return;
    default:
        showNote(tr("The days lie outside the years of the ephemeris."));
        return;
    }
    work_.start([wanted](const WorkHandle& handle) { return wanted.make(handle); },
                [this](Tables tables) { showTables(std::move(tables)); });
}

void EphemerisPanel::showTables(Tables tables)
{
    note_->hide();
    tabs_->show();
    positions_->setTable(tables.positions);
    events_->setTable(tables.events);
    phases_->setTable(tables.phases);
    showRowAt(*positions_, workspace().moment());
}

void EphemerisPanel::showNote(const QString& note)
{
    work_.cancel();
    note_->setText(note);
    note_->show();
    tabs_->hide();
    made_.reset();
}

std::vector<present::Block> EphemerisPanel::blocks()
{
    refreshNow();
    std::vector<present::Block> blocks;
    for (const TableView* const view : {positions_, events_, phases_}) {
        if (!view->table().columns.empty()) {
            blocks.emplace_back(view->table());
        }
    }
    return blocks;
}

void EphemerisPanel::ChoiceChange()
{
    QSettings& state = stateOfWindow();
    for (const QComboBox* const box : {span_, step_}) {
        state.setValue(QLatin1String(kGroup) + box->objectName(), box->currentIndex());
    }
    for (const QCheckBox* const box : {tropical_, declination_, latitude_, speed_}) {
        state.setValue(QLatin1String(kGroup) + box->objectName(), box->isChecked());
    }
    markDue();
}

} // namespace kestrav::desktop
