#include "app/desktop/timing/Specialdate.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/timing/DashaChoice.h"
#include "app/desktop/timing/MomentSteps.h"
#include "app/desktop/timing/MomentText.h"
#include "app/present/DashaTables.h"
#include "app/present/LifeBar.h"
#include "app/present/TextValues.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "data/BirthTexts.h"
#include "timing/YearLength.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kestrav::desktop
{

namespace
{

constexpr int kOldest = 200;

bool beginsAtBirth(SpecialDate kind)
{
    return kind == SpecialDate::Age || kind == SpecialDate::SunReturn ||
           kind == SpecialDate::DashaStart || kind == SpecialDate::Event;
}

bool hasDirection(SpecialDate kind)
{
    return kind == SpecialDate::DashaStart || kind == SpecialDate::SunriseOrSunset ||
           kind == SpecialDate::Ingress || kind == SpecialDate::Station;
}

} // namespace

TSpecialDateDlg::TSpecialDateDlg(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), kind_(new QComboBox(this)),
      pages_(new QStackedWidget(this)), direction_(new QComboBox(this)),
      directionLabel_(new QLabel(tr("&Which:"), this)), result_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Special Date"));
    setObjectName(QStringLiteral("TSpecialDateDlg"));
    kind_->setObjectName(QStringLiteral("KindComboBox"));
    kind_->addItems({tr("A date and time"), tr("An age"), tr("A return of the Sun"),
                     tr("The start of a dasha"), tr("An event of the chart"),
                     tr("Sunrise or sunset"), tr("A body enters a sign"), tr("A body turns")});
    direction_->setObjectName(QStringLiteral("DirectionComboBox"));
    direction_->addItems({tr("next after the shared date"), tr("last before the shared date")});
    directionLabel_->setBuddy(direction_);
    result_->setObjectName(QStringLiteral("ResultLabel"));
    result_->setWordWrap(true);
    makeDatePage();
    makeBirthPages();
    makeSkyPages();
    disableWithoutBirth();

    auto* const kindForm = new QFormLayout;
    kindForm->addRow(tr("&Go to:"), kind_);
    auto* const whichForm = new QFormLayout;
    whichForm->addRow(directionLabel_, direction_);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(kindForm);
    layout->addWidget(pages_);
    layout->addLayout(whichForm);
    layout->addStretch(1);
    layout->addWidget(result_);
    layout->addWidget(buttons_);
    result_->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    alignLabels();
    connect(kind_, &QComboBox::currentIndexChanged, this, &TSpecialDateDlg::KindComboBoxChange);
    connect(direction_, &QComboBox::currentIndexChanged, this, &TSpecialDateDlg::find);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TSpecialDateDlg::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    kind_->setFocus();
    KindComboBoxChange();
}

// The forms below one another look like one.
void TSpecialDateDlg::alignLabels()
{
    QList<QWidget*> labels;
    int width = 0;
    for (const QFormLayout* const form : findChildren<QFormLayout*>()) {
        for (int row = 0; row < form->rowCount(); ++row) {
            if (const QLayoutItem* const item = form->itemAt(row, QFormLayout::LabelRole)) {
                labels += item->widget();
                width = std::max(width, item->widget()->sizeHint().width());
            }
        }
    }
    for (QWidget* const label : labels) {
        label->setMinimumWidth(width);
    }
}

QFormLayout* TSpecialDateDlg::addPage()
{
    auto* const page = new QWidget(pages_);
    auto* const form = new QFormLayout(page);
    form->setContentsMargins({});
    pages_->addWidget(page);
    return form;
}

QSpinBox* TSpecialDateDlg::spin(const char* name, int lowest, int highest, int value)
{
    auto* const box = new QSpinBox(this);
    box->setObjectName(QLatin1String(name));
    box->setRange(lowest, highest);
    box->setValue(value);
    connect(box, &QSpinBox::valueChanged, this, &TSpecialDateDlg::find);
    return box;
}

QComboBox* TSpecialDateDlg::chooser(const char* name)
{
    auto* const box = new QComboBox(this);
    box->setObjectName(QLatin1String(name));
    return box;
}

void TSpecialDateDlg::makeDatePage()
{
    const ClockReading reading = readingOf(workspace_, workspace_.moment());
    const core::Settings& settings = workspace_.settings();
    date_ = new QLineEdit(toQt(typedDate(reading.date, settings)), this);
    date_->setObjectName(QStringLiteral("DateEdit"));
    time_ = new QLineEdit(
        toQt(present::clockSeconds(reading.date.localTime, settings.twelveHourClock)).trimmed(),
        this);
    time_->setObjectName(QStringLiteral("TimeEdit"));
    connect(date_, &QLineEdit::textChanged, this, &TSpecialDateDlg::find);
    connect(time_, &QLineEdit::textChanged, this, &TSpecialDateDlg::find);
    QFormLayout* const form = addPage();
    form->addRow(
        settings.monthFirst ? tr("&Date (month/day/year):") : tr("&Date (day/month/year):"), date_);
    form->addRow(tr("&Time:"), time_);
}

void TSpecialDateDlg::makeBirthPages()
{
    const ChartPointer& chart = workspace_.chart();
    const bool born = chart && chart->chart.hasMoment;
    const double years = born ? (workspace_.moment() - momentOfAge(chart->chart, 0, 0, 0)) /
                                    timing::kMeanSiderealYear
                              : 0.0;
    const int age = core::ClampRange(0, kOldest, int(std::floor(std::clamp(years, 0.0, 999.0))));

    years_ = spin("AgeYearsUpDown", 0, kOldest, age);
    months_ = spin("AgeMonthsUpDown", 0, 11, 0);
    days_ = spin("AgeDaysUpDown", 0, 31, 0);
    QFormLayout* form = addPage();
    form->addRow(tr("&Years:"), years_);
    form->addRow(tr("&Months:"), months_);
    form->addRow(tr("&Days:"), days_);

    return_ = spin("ReturnUpDown", 1, kOldest, std::max(1, age));
    form = addPage();
    form->addRow(tr("&Number of the return:"), return_);

    level_ = spin("LevelUpDown", 1, timing::kDashaLevels, workspace_.settings().dashaLevels);
    lord_ = chooser("LordComboBox");
    form = addPage();
    form->addRow(tr("&Level:"), level_);
    form->addRow(tr("L&ord:"), lord_);
    fillLords();
    connect(lord_, &QComboBox::currentIndexChanged, this, &TSpecialDateDlg::find);

    event_ = chooser("EventComboBox");
    if (born) {
        for (const core::LifeEvent& event : chart->chart.identity.events) {
            if (const auto moment = present::momentOfEvent(chart->chart, event)) {
                event_->addItem(toQt(event.name), *moment);
            }
        }
    }
    connect(event_, &QComboBox::currentIndexChanged, this, &TSpecialDateDlg::find);
    form = addPage();
    form->addRow(tr("&Event:"), event_);
}

void TSpecialDateDlg::fillLords()
{
    lord_->addItem(tr("any"), 0);
    const ChartPointer& chart = workspace_.chart();
    if (!chart) {
        return;
    }
    const auto dasha = DashaChoice::of(workspace_).dashaOf(chart);
    if (!dasha) {
        return;
    }
    const timing::DashaPlan& plan = dasha.value().plan;
    const int last = plan.lordKind == timing::LordKind::Planet ? int(core::kKetu) : 12;
    for (int lord = 1; lord <= last; ++lord) {
        lord_->addItem(toQt(present::dashaLordName(plan.lordKind, lord)), lord);
    }
}

void TSpecialDateDlg::makeSkyPages()
{
    sun_ = chooser("SunComboBox");
    sun_->addItems({tr("Sunrise"), tr("Sunset")});
    QFormLayout* form = addPage();
    form->addRow(tr("&Event:"), sun_);

    ingressBody_ = chooser("IngressBodyComboBox");
    stationBody_ = chooser("StationBodyComboBox");
    for (const int body : core::kBodies) {
        const QString name = toQt(present::pointLabel(body));
        ingressBody_->addItem(name, body);
        const bool turns =
            body != core::kSun && body != core::kMoon && body != core::kRahu && body != core::kKetu;
        if (turns) {
            stationBody_->addItem(name, body);
        }
    }
    sign_ = chooser("SignComboBox");
    sign_->addItem(tr("any"), 0);
    for (int sign = 1; sign <= 12; ++sign) {
        sign_->addItem(toQt(core::signNameLong(sign)).trimmed(), sign);
    }
    form = addPage();
    form->addRow(tr("&Body:"), ingressBody_);
    form->addRow(tr("&Sign:"), sign_);
    form = addPage();
    form->addRow(tr("&Body:"), stationBody_);
    for (QComboBox* const box : {sun_, ingressBody_, sign_, stationBody_}) {
        connect(box, &QComboBox::currentIndexChanged, this, &TSpecialDateDlg::find);
    }
}

void TSpecialDateDlg::disableWithoutBirth()
{
    const ChartPointer& chart = workspace_.chart();
    auto* const items = qobject_cast<QStandardItemModel*>(kind_->model());
    for (int kind = 0; kind < kSpecialDates; ++kind) {
        const bool possible = !beginsAtBirth(SpecialDate(kind)) ||
                              (chart && chart->chart.hasMoment &&
                               (SpecialDate(kind) != SpecialDate::Event || event_->count() > 0));
        items->item(kind)->setEnabled(possible);
    }
}

TSpecialDateDlg::Found TSpecialDateDlg::typedMoment() const
{
    const auto date = readTypedDate(toWide(date_->text()), workspace_.settings());
    if (!date) {
        return date.error();
    }
    const auto hours = data::readTimeText(toWide(time_->text().trimmed()));
    if (!hours) {
        return core::Error{"The time is written as hours:minutes:seconds."};
    }
    return momentAt(workspace_, date.value(), *hours);
}

// What a worker is to do for the kind that is chosen; empty where the answer is at hand.
std::function<TSpecialDateDlg::Found(const WorkHandle&)> TSpecialDateDlg::search()
{
    const ChartPointer& chart = workspace_.chart();
    SpecialSearch search;
    search.data = workspace_.data();
    search.chart = chart;
    search.settings = chart ? chart->settings : workspace_.settings();
    search.moment = workspace_.moment();
    search.clockOffset = readingOf(workspace_, search.moment).offset;
    search.direction = direction_->currentIndex() == 0 ? 1 : -1;
    switch (SpecialDate(kind_->currentIndex())) {
    case SpecialDate::SunReturn:
        return [search, number = return_->value()](const WorkHandle& /*handle*/) {
            return sunReturn(search, number);
        };
    case SpecialDate::DashaStart:
        return
            [search, options = DashaChoice::of(workspace_).options(chart), level = level_->value(),
             lord = lord_->currentData().toInt()](const WorkHandle& /*handle*/) {
                return dashaStart(search, options, level, lord);
            };
    case SpecialDate::Ingress:
        return [search, body = ingressBody_->currentData().toInt(),
                sign = sign_->currentData().toInt()](const WorkHandle& /*handle*/) {
            return ingressOf(search, body, sign);
        };
    case SpecialDate::Station:
        return [search, body = stationBody_->currentData().toInt()](const WorkHandle& /*handle*/) {
            return stationOf(search, body);
        };
    default:
        return {};
    }
}

void TSpecialDateDlg::find()
{
    work_.cancel();
    if (auto work = search()) {
        found_.reset();
        buttons_->button(QDialogButtonBox::Ok)->setEnabled(false);
        result_->setText(tr("Searching..."));
        work_.start(std::move(work), [this](const Found& found) { showFound(found); });
        return;
    }
    const core::Chart* const birth = workspace_.chart() ? &workspace_.chart()->chart : nullptr;
    switch (SpecialDate(kind_->currentIndex())) {
    case SpecialDate::Age:
        showFound(momentOfAge(*birth, years_->value(), months_->value(), days_->value()));
        break;
    case SpecialDate::Event:
        showFound(event_->currentData().toDouble());
        break;
    case SpecialDate::SunriseOrSunset:
        showFound(sunEventBeside(workspace_, sun_->currentIndex() == 0, workspace_.moment(),
                                 direction_->currentIndex() == 0 ? 1 : -1));
        break;
    default:
        showFound(typedMoment());
        break;
    }
}

void TSpecialDateDlg::showFound(const Found& found)
{
    found_ = found ? std::optional(found.value()) : std::nullopt;
    result_->setText(found ? momentLine(workspace_, found.value())
                           : asSentence(found.error().message));
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(found.ok());
}

void TSpecialDateDlg::KindComboBoxChange()
{
    pages_->setCurrentIndex(kind_->currentIndex());
    const bool directed = hasDirection(SpecialDate(kind_->currentIndex()));
    direction_->setVisible(directed);
    directionLabel_->setVisible(directed);
    find();
}

void TSpecialDateDlg::OkButtonClick()
{
    if (found_) {
        workspace_.setMoment(*found_);
        accept();
    }
}

} // namespace kestrav::desktop
