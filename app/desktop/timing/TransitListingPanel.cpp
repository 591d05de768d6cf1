#include "app/desktop/timing/TransitListingPanel.h"

#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/WorkBar.h"
#include "app/desktop/timing/MomentText.h"
#include "app/desktop/timing/TTransitChoicesDlg.h"
#include "app/present/TextValues.h"
#include "app/present/TransitTables.h"
#include "core/Points.h"
#include "timing/Ephemeris.h"
#include "timing/TransitSearch.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using timing::TransitKind;

// What the filter of kinds offers, in its order.
enum KindFilter : int
{
    AllKinds,
    Aspects,
    Orbs,
    Ingresses,
    Stations,
    Combustion,
};

bool isOfKind(TransitKind kind, int filter)
{
    switch (kind) {
    case TransitKind::Aspect:
    case TransitKind::Conjunction:
        return filter == Aspects;
    case TransitKind::OrbEnter:
    case TransitKind::OrbLeave:
        return filter == Orbs;
    case TransitKind::Ingress:
        return filter == Ingresses;
    case TransitKind::Station:
        return filter == Stations;
    case TransitKind::CombustEnter:
    case TransitKind::CombustLeave:
        return filter == Combustion;
    }
    return false;
}

} // namespace

TransitListingPanel::TransitListingPanel(Workspace& workspace, present::Panel panel,
                                         QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), choices_(TransitChoices::kept()),
      days_(new QLabel(this)), note_(new QLabel(this)), tabs_(new QTabWidget(this)),
      body_(new QComboBox(this)), kind_(new QComboBox(this)), filter_(new QLineEdit(this)),
      events_(new TableView(this)), kakshyas_(new TableView(this)), phases_(new TableView(this))
{
    setObjectName(QStringLiteral("TransitListingPanel"));
    note_->setObjectName(QStringLiteral("NoteLabel"));
    note_->setWordWrap(true);
    note_->setMargin(fontMetrics().height() / 3);
    note_->hide();
    tabs_->setObjectName(QStringLiteral("TransitTabs"));
    tabs_->setDocumentMode(true);
    tabs_->addTab(makeEvents(), tr("Transits"));
    tabs_->addTab(kakshyas_, tr("Kakshyas"));
    tabs_->addTab(phases_, tr("Sade Sati"));
    kakshyas_->setObjectName(QStringLiteral("KakshyaTable"));
    kakshyas_->setAccessibleName(tr("Kakshyas"));
    phases_->setObjectName(QStringLiteral("SadeSatiTable"));
    phases_->setAccessibleName(tr("Sade Sati"));
    for (TableView* const view : {events_, kakshyas_, phases_}) {
        connect(view, &TableView::linkChosen, this, &TransitListingPanel::choose);
        connect(view, &TableView::linkActivated, this, &TransitListingPanel::follow);
    }
    followRows(*events_, workspace);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(makeBar());
    layout->addWidget(note_);
    layout->addWidget(tabs_, 1);
    setFocusProxy(events_);
    dependOn(OnChart | OnMoment);

    auto* const choices = new QAction(tr("Transit &Choices..."), this);
    connect(choices, &QAction::triggered, this, &TransitListingPanel::ChoicesButtonClick);
    actions_ = {choices};
    actions_ += tableActions(this, workspace, [this] {
        return tabs_->currentIndex() == 1   ? kakshyas_
               : tabs_->currentIndex() == 2 ? phases_
                                            : events_;
    });
}

QLayout* TransitListingPanel::makeBar()
{
    const auto arrow = [this](Qt::ArrowType type, const char* name, const QString& tip,
                              int direction) {
        auto* const button = new QToolButton(this);
        button->setObjectName(QLatin1String(name));
        button->setArrowType(type);
        button->setAutoRaise(true);
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        connect(button, &QToolButton::clicked, this, [this, direction] { turnPage(direction); });
        return button;
    };
    days_->setObjectName(QStringLiteral("DaysLabel"));
    auto* const choices = new QToolButton(this);
    choices->setObjectName(QStringLiteral("ChoicesButton"));
    choices->setText(tr("Choices..."));
    connect(choices, &QToolButton::clicked, this, &TransitListingPanel::ChoicesButtonClick);
    auto* const working = new WorkBar(work_, this);
    connect(working, &WorkBar::stopped, this, [this] {
        note_->setText(tr("Stopped before the list was complete."));
        note_->show();
    });
    auto* const bar = new FlowLayout(fontMetrics().height() / 3);
    bar->addTogether({arrow(Qt::LeftArrow, "DaysBackButton", tr("The days before"), -1),
                      arrow(Qt::RightArrow, "DaysForwardButton", tr("The days after"), 1)});
    bar->addWidget(days_);
    bar->addStretch();
    bar->addWidget(working);
    bar->addWidget(choices);
    return bar;
}

QWidget* TransitListingPanel::makeEvents()
{
    events_->setObjectName(QStringLiteral("TransitTable"));
    events_->setAccessibleName(tr("Transits"));
    body_->setObjectName(QStringLiteral("BodyComboBox"));
    body_->setAccessibleName(tr("Transiting body"));
    body_->addItem(tr("All bodies"), -1);
    for (const int body : core::kBodies) {
        body_->addItem(toQt(present::pointLabel(body)), body);
    }
    kind_->setObjectName(QStringLiteral("KindComboBox"));
    kind_->setAccessibleName(tr("Kind of event"));
    kind_->addItems({tr("All events"), tr("Aspects"), tr("Orbs"), tr("Ingresses"), tr("Stations"),
                     tr("Combustion")});
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setAccessibleName(tr("Words of the event"));
    filter_->setPlaceholderText(tr("Filter"));
    filter_->setClearButtonEnabled(true);
    connect(body_, &QComboBox::currentIndexChanged, this, &TransitListingPanel::showEvents);
    connect(kind_, &QComboBox::currentIndexChanged, this, &TransitListingPanel::showEvents);
    connect(filter_, &QLineEdit::textChanged, this, &TransitListingPanel::showEvents);
    auto* const page = new QWidget(this);
    auto* const bar = new FlowLayout(fontMetrics().height() / 3);
    bar->addWidget(body_);
    bar->addWidget(kind_);
    bar->addWidget(filter_);
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(events_, 1);
    return page;
}

QString TransitListingPanel::title() const
{
    return tr("Transits");
}

QList<QAction*> TransitListingPanel::panelActions()
{
    return actions_;
}

void TransitListingPanel::readChoices()
{
    choices_ = TransitChoices::kept();
    request_ = {};
    markDue();
}

void TransitListingPanel::refresh()
{
    TransitRequest request;
    request.choices = choices_;
    request.native = chart();
    request.settings = request.native ? request.native->settings : workspace().settings();
    request.data = workspace().data();
    const double moment = workspace().moment();
    request.clock = request.native && request.native->chart.hasMoment
                        ? request.native->chart.zone
                        : readingOf(workspace(), moment).offset;
    page_.turnTo(timing::civilDayOf(moment, request.clock), choices_.days);
    request.firstDay = *page_.first;
    const bool same = request_.data && request.native == request_.native &&
                      request.settings == request_.settings && request.clock == request_.clock &&
                      request.firstDay == request_.firstDay;
    if (same) {
        showRowAt(*events_, moment);
        return;
    }
    request_ = request;
    showDays();
    if (!timing::isInTables(timing::recordOfDay(request.firstDay)) ||
        !timing::isInTables(timing::recordOfDay(request.firstDay + choices_.days))) {
        work_.cancel();
        showLists({});
        note_->setText(tr("The days lie outside the years of the ephemeris."));
        note_->show();
        return;
    }
    work_.start([request](const WorkHandle& handle) { return listTransits(request, handle); },
                [this](TransitLists lists) { showLists(std::move(lists)); });
}

void TransitListingPanel::showDays()
{
    const auto date = [](double day) {
        return toQt(present::dateText(timing::recordOfDay(day)));
    };
    days_->setText(
        tr("%1 to %2").arg(date(request_.firstDay), date(request_.firstDay + choices_.days - 1)));
}

void TransitListingPanel::showLists(TransitLists lists)
{
    lists_ = std::move(lists);
    const bool twelveHour = request_.settings.twelveHourClock;
    note_->setVisible(!request_.native);
    note_->setText(tr("No chart is open: the bodies are compared with each other."));
    kakshyas_->setTable(present::kakshyaStaysTable(lists_.kakshyas, request_.clock, twelveHour));
    phases_->setTable(present::sadeSatiTable(lists_.phases, request_.clock, twelveHour));
    tabs_->setTabVisible(1, request_.native && choices_.kakshyas);
    tabs_->setTabVisible(2, request_.native && choices_.sadeSati);
    showEvents();
}

bool TransitListingPanel::passesFilters(const timing::TransitEvent& event) const
{
    const int body = body_->currentData().toInt();
    return (body < 0 || event.body == body) &&
           (kind_->currentIndex() == AllKinds || isOfKind(event.kind, kind_->currentIndex()));
}

void TransitListingPanel::showEvents()
{
    std::vector<timing::TransitEvent> shown;
    std::copy_if(lists_.events.begin(), lists_.events.end(), std::back_inserter(shown),
                 [this](const timing::TransitEvent& event) { return passesFilters(event); });
    timing::TransitMode mode = choices_.options.mode;
    if (!request_.native) {
        mode = timing::TransitMode::TransitToTransit;
    }
    present::Table table = present::transitTable(
        shown, {mode, choices_.options.orbDegrees, request_.settings.twelveHourClock});
    const QString words = filter_->text().trimmed();
    if (!words.isEmpty()) {
        std::erase_if(table.rows, [&words](const present::Row& row) {
            return std::none_of(row.begin(), row.end(), [&words](const present::Cell& cell) {
                return toQt(cell.text).contains(words, Qt::CaseInsensitive);
            });
        });
    }
    events_->setTable(table);
    showRowAt(*events_, workspace().moment());
}

std::vector<present::Block> TransitListingPanel::blocks()
{
    refreshNow();
    std::vector<present::Block> blocks = {events_->table()};
    if (!kakshyas_->table().rows.empty()) {
        blocks.emplace_back(kakshyas_->table());
    }
    if (!phases_->table().rows.empty()) {
        blocks.emplace_back(phases_->table());
    }
    return blocks;
}

void TransitListingPanel::ChoicesButtonClick()
{
    auto* const dialog = new TTransitChoicesDlg(workspace(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, &TransitListingPanel::readChoices);
    dialog->open();
}

void TransitListingPanel::turnPage(int direction)
{
    workspace().setMoment(workspace().moment() + direction * choices_.days);
}

} // namespace kestrav::desktop
