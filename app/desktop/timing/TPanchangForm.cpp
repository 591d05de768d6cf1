#include "app/desktop/timing/TPanchangForm.h"

#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/timing/DayRequest.h"
#include "app/desktop/timing/MomentSteps.h"
#include "app/desktop/timing/TableStack.h"
#include "app/present/PanchangaTables.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "timing/PanchangaReport.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

QSplitter* beside(QWidget* left, QWidget* right)
{
    auto* const splitter = new QSplitter;
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    return splitter;
}

} // namespace

TPanchangForm::TPanchangForm(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), dayLabel_(new QLabel(this)),
      strength_(new QLabel(this)), note_(new QLabel(this)), tabs_(new QTabWidget(this)),
      summary_(new TableStack), elements_(new TableStack), horas_(new TableStack),
      eighths_(new TableStack), report_(new QPlainTextEdit)
{
    setObjectName(QStringLiteral("TPanchangForm"));
    dayLabel_->setObjectName(QStringLiteral("DayLabel"));
    QFont bold = dayLabel_->font();
    bold.setBold(true);
    dayLabel_->setFont(bold);
    strength_->setObjectName(QStringLiteral("TaraBalaLabel"));
    note_->setObjectName(QStringLiteral("NoteLabel"));
    note_->setWordWrap(true);
    note_->hide();
    summary_->setObjectName(QStringLiteral("SummaryTables"));
    elements_->setObjectName(QStringLiteral("ElementTables"));
    horas_->setObjectName(QStringLiteral("HoraTables"));
    eighths_->setObjectName(QStringLiteral("EighthTables"));
    report_->setObjectName(QStringLiteral("ReportMemo"));
    report_->setAccessibleName(tr("Report of the day"));
    report_->setReadOnly(true);
    report_->setFrameShape(QFrame::NoFrame);
    report_->setTabChangesFocus(true);

    tabs_->setObjectName(QStringLiteral("PanchangaTabs"));
    tabs_->setDocumentMode(true);
    tabs_->addTab(beside(summary_, elements_), tr("Day"));
    tabs_->addTab(beside(horas_, eighths_), tr("Parts"));
    tabs_->addTab(report_, tr("Report"));
    for (const TableStack* const stack : {summary_, elements_, horas_, eighths_}) {
        connect(stack, &TableStack::linkChosen, this, &TPanchangForm::choose);
        connect(stack, &TableStack::linkActivated, this, &TPanchangForm::follow);
    }

    auto* const bar = new FlowLayout(fontMetrics().height() / 3);
    bar->addTogether({dayButton(false), dayButton(true), dayLabel_});
    bar->addWidget(strength_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(note_);
    layout->addWidget(tabs_, 1);
    setFocusProxy(tabs_);
    dependOn(OnChart | OnMoment);
}

QToolButton* TPanchangForm::dayButton(bool forward)
{
    auto* const button = new QToolButton(this);
    const QString tip = forward ? tr("Next day") : tr("Previous day");
    button->setObjectName(forward ? QStringLiteral("DayForwardButton")
                                  : QStringLiteral("DayBackButton"));
    button->setArrowType(forward ? Qt::RightArrow : Qt::LeftArrow);
    button->setAutoRaise(true);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    connect(button, &QToolButton::clicked, this,
            forward ? &TPanchangForm::DayForwardButtonClick : &TPanchangForm::DayBackButtonClick);
    return button;
}

QString TPanchangForm::title() const
{
    return tr("Panchanga");
}

void TPanchangForm::refresh()
{
    work_.start([request = dayRequest(workspace(), chart())](
                    const WorkHandle& /*handle*/) { return request.make(); },
                [this](core::Result<timing::PanchangaDay> made) { showDay(std::move(made)); });
}

void TPanchangForm::showDay(core::Result<timing::PanchangaDay> made)
{
    note_->setVisible(!made.ok());
    tabs_->setVisible(made.ok());
    if (!made) {
        day_.reset();
        dayLabel_->clear();
        strength_->clear();
        note_->setText(tr("Not computed: %1").arg(toQt(made.error().text())));
        note_->setMargin(fontMetrics().height() / 2);
        return;
    }
    day_ = std::move(made.value());
    const bool twelveHour = workspace().settings().twelveHourClock;
    const ChartPointer& place = workspace().momentChart();
    QString line = tr("%1, %2").arg(toQt(core::weekdayName(day_->weekday)),
                                    toQt(present::dateText(day_->date)));
    if (place && !place->chart.place.empty()) {
        line = tr("%1, %2").arg(line, toQt(place->chart.place));
    }
    dayLabel_->setText(line);
    strength_->setText(day_->taraBala ? toQt(day_->taraBala->text) : QString());
    QPalette palette;
    if (day_->taraBala && day_->taraBala->score != 0) {
        palette.setColor(QPalette::WindowText,
                         themeColour(day_->taraBala->score > 0 ? ThemeRole::Good : ThemeRole::Bad));
    }
    strength_->setPalette(palette);
    summary_->setTables({present::panchangaTable(*day_, twelveHour)});
    elements_->setTables(
        {present::tithisTable(*day_, twelveHour), present::nakshatrasTable(*day_, twelveHour),
         present::nityaYogasTable(*day_, twelveHour), present::karanasTable(*day_, twelveHour)});
    horas_->setTables({present::horasTable(*day_, twelveHour)});
    eighths_->setTables(
        {present::eighthsTable(*day_, twelveHour), present::kalamsTable(*day_, twelveHour)});
    // A tab of the report stands for a column.
    report_->setTabStopDistance(fontMetrics().averageCharWidth() * 12);
    report_->setPlainText(toQt(timing::panchangaReport(*day_, twelveHour)));
}

std::vector<present::Block> TPanchangForm::blocks()
{
    refreshNow();
    if (!day_) {
        return {};
    }
    const bool twelveHour = workspace().settings().twelveHourClock;
    return {
        present::panchangaTable(*day_, twelveHour),  present::tithisTable(*day_, twelveHour),
        present::nakshatrasTable(*day_, twelveHour), present::nityaYogasTable(*day_, twelveHour),
        present::karanasTable(*day_, twelveHour),    present::horasTable(*day_, twelveHour),
        present::eighthsTable(*day_, twelveHour),    present::kalamsTable(*day_, twelveHour)};
}

void TPanchangForm::DayBackButtonClick()
{
    if (const auto moment = steppedMoment(workspace(), StepUnit::Day, workspace().moment(), -1)) {
        workspace().setMoment(moment.value());
    }
}

void TPanchangForm::DayForwardButtonClick()
{
    if (const auto moment = steppedMoment(workspace(), StepUnit::Day, workspace().moment(), 1)) {
        workspace().setMoment(moment.value());
    }
}

} // namespace kestrav::desktop
