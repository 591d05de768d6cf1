#include "app/desktop/shell/DateBar.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/shell/Workspace.h"
#include "app/desktop/timing/MomentSteps.h"
#include "app/desktop/timing/MomentText.h"
#include "app/present/Clock.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "data/BirthTexts.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

constexpr char kUnitKey[] = "dateBar/unit";
constexpr int kMostNameLetters = 24;

QToolButton* arrowButton(Qt::ArrowType arrow, const char* name, const QString& tip, QWidget* parent)
{
    auto* const button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    return button;
}

void fitTo(QLineEdit& field, const QString& longest)
{
    field.setFixedWidth(field.fontMetrics().horizontalAdvance(longest) +
                        2 * field.fontMetrics().height());
}

} // namespace

DateBar::DateBar(Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace), date_(new QLineEdit(this)),
      time_(new QLineEdit(this)), zone_(new QLabel(this)), weekday_(new QLabel(this)),
      problem_(new QLabel(this)), unit_(new QComboBox(this)),
      secondLabel_(new QLabel(tr("Second chart:"), this)), second_(new QToolButton(this))
{
    setObjectName(QStringLiteral("DateBar"));
    makeFields();
    auto* const back =
        arrowButton(Qt::LeftArrow, "StepBackButton", tr("One step back (Alt+Left)"), this);
    auto* const forward =
        arrowButton(Qt::RightArrow, "StepForwardButton", tr("One step forward (Alt+Right)"), this);
    connect(back, &QToolButton::clicked, this, [this] { step(-1); });
    connect(forward, &QToolButton::clicked, this, [this] { step(1); });
    auto* const now = new QPushButton(tr("&Now"), this);
    now->setObjectName(QStringLiteral("NowButton"));
    now->setToolTip(tr("Shared date to this moment (F5)"));
    connect(now, &QPushButton::clicked, this, &DateBar::goToNow);

    auto* const box = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(2 * gap, gap, 2 * gap, gap);
    box->setSpacing(gap);
    box->addWidget(date_);
    box->addWidget(time_);
    box->addWidget(zone_);
    box->addWidget(weekday_);
    box->addSpacing(gap);
    box->addWidget(back);
    box->addWidget(unit_);
    box->addWidget(forward);
    box->addSpacing(gap);
    box->addWidget(now);
    box->addWidget(problem_, 1);
    box->addStretch(0);
    box->addWidget(secondLabel_);
    box->addWidget(second_);

    connect(&workspace_, &Workspace::momentChanged, this, &DateBar::showMoment);
    connect(&workspace_, &Workspace::chartChanged, this, &DateBar::showMoment);
    connect(&workspace_, &Workspace::secondChanged, this, &DateBar::showSecond);
    showMoment();
    showSecond();
    fitFields();
}

void DateBar::makeFields()
{
    date_->setObjectName(QStringLiteral("DateEdit"));
    date_->setAccessibleName(tr("Shared date"));
    time_->setObjectName(QStringLiteral("TimeEdit"));
    time_->setAccessibleName(tr("Shared time"));
    for (QLineEdit* const field : {date_, time_}) {
        field->setAlignment(Qt::AlignHCenter);
        field->installEventFilter(this);
        connect(field, &QLineEdit::editingFinished, this, &DateBar::DateEditEditingFinished);
    }
    weekday_->setObjectName(QStringLiteral("WeekdayLabel"));
    zone_->setObjectName(QStringLiteral("ZoneLabel"));
    zone_->setToolTip(tr("Hours of the clock before Universal Time"));
    problem_->setObjectName(QStringLiteral("DateProblemLabel"));
    problem_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    unit_->setObjectName(QStringLiteral("StepComboBox"));
    unit_->setAccessibleName(tr("Unit of a step"));
    unit_->setToolTip(tr("Unit of a step"));
    for (int unit = 0; unit < kStepUnits; ++unit) {
        unit_->addItem(stepUnitName(StepUnit(unit)));
    }
    const int kept = stateOfWindow().value(kUnitKey, int(StepUnit::Day)).toInt();
    unit_->setCurrentIndex(std::clamp(kept, 0, kStepUnits - 1));
    connect(unit_, &QComboBox::activated, this, &DateBar::StepComboBoxActivated);
    second_->setObjectName(QStringLiteral("SecondChartButton"));
    second_->setAccessibleName(tr("Second chart"));
    second_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(second_, &QToolButton::clicked, this, &DateBar::SecondChartButtonClick);
}

void DateBar::showMoment()
{
    const ClockReading reading = readingOf(workspace_, workspace_.moment());
    const core::Settings& settings = workspace_.settings();
    date_->setText(toQt(typedDate(reading.date, settings)));
    time_->setText(
        toQt(present::clockSeconds(reading.date.localTime, settings.twelveHourClock)).trimmed());
    for (QLineEdit* const field : {date_, time_}) {
        field->setModified(false);
        field->setCursorPosition(0);
    }
    const QString order = settings.monthFirst ? tr("month/day/year") : tr("day/month/year");
    date_->setToolTip(tr("The date that all panels follow, as %1").arg(order));
    time_->setToolTip(tr("The clock time that all panels follow, at the Now location or, while "
                         "that is not set, at the birth place"));
    weekday_->setText(toQt(core::weekdayName(reading.weekday)));
    zone_->setText(toQt(present::offsetText(reading.offset)));
    showProblem({});
}

void DateBar::showSecond()
{
    const ChartPointer& chart = workspace_.secondChart();
    const QString name = chart ? toQt(chart->chart.name).trimmed() : QString();
    const QString brief =
        name.size() > kMostNameLetters ? name.left(kMostNameLetters - 1) + QChar(0x2026) : name;
    second_->setText(chart ? brief : tr("None"));
    second_->setToolTip(chart ? tr("%1 is the second chart; choose another").arg(name)
                              : tr("Choose a chart to compare with"));
    fitFields();
}

void DateBar::showProblem(const QString& text)
{
    problem_->setText(text);
    problem_->setToolTip(text);
    QPalette palette;
    palette.setColor(QPalette::WindowText, themeColour(ThemeRole::Bad));
    problem_->setPalette(palette);
}

int DateBar::neededWidth() const
{
    int needed = layout()->contentsMargins().left() + layout()->contentsMargins().right();
    for (const QWidget* const widget : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (widget != zone_ && widget != weekday_ && widget != secondLabel_ && widget != problem_) {
            needed += widget->sizeHint().width() + 2 * layout()->spacing();
        }
    }
    return needed;
}

// What can be missed does not keep a window wide.
QSize DateBar::minimumSizeHint() const
{
    return {neededWidth(), QWidget::minimumSizeHint().height()};
}

// What can be missed makes room in a narrow window.
void DateBar::fitFields()
{
    fitTo(*date_, QStringLiteral("00/00/-00000"));
    fitTo(*time_, QStringLiteral("00:00:00 pm"));
    const int forWeekday = weekday_->fontMetrics().horizontalAdvance(QStringLiteral("Wednesday_"));
    weekday_->setMinimumWidth(forWeekday);
    int spare = width() - neededWidth() - forWeekday;
    weekday_->setVisible(spare >= 0);
    spare -= zone_->sizeHint().width() + layout()->spacing();
    zone_->setVisible(spare >= 0);
    secondLabel_->setVisible(spare >= secondLabel_->sizeHint().width());
}

void DateBar::DateEditEditingFinished()
{
    if (!date_->isModified() && !time_->isModified()) {
        return;
    }
    const auto date = readTypedDate(toWide(date_->text()), workspace_.settings());
    if (!date) {
        showProblem(toQt(date.error().message));
        return;
    }
    const auto hours = data::readTimeText(toWide(time_->text().trimmed()));
    if (!hours) {
        showProblem(tr("The time is written as hours:minutes:seconds."));
        return;
    }
    workspace_.setMoment(momentAt(workspace_, date.value(), *hours));
    showMoment();
}

void DateBar::StepComboBoxActivated()
{
    stateOfWindow().setValue(kUnitKey, unit_->currentIndex());
}

void DateBar::SecondChartButtonClick()
{
    // Another part of the program has the list of charts.
    if (auto* const action = window()->findChild<QAction*>(QStringLiteral("CompareAction"))) {
        action->trigger();
    } else {
        workspace_.tellProblem(tr("There is no chart to compare with."));
    }
}

bool DateBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        showMoment();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void DateBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitFields();
}

void DateBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && second_ != nullptr) {
        fitFields();
    }
}

void DateBar::step(int direction)
{
    const auto moment =
        steppedMoment(workspace_, StepUnit(unit_->currentIndex()), workspace_.moment(), direction);
    if (moment) {
        workspace_.setMoment(moment.value());
    } else {
        workspace_.tellProblem(asSentence(moment.error().message));
    }
}

void DateBar::goToNow()
{
    workspace_.setMoment(Workspace::now());
}

} // namespace kestrav::desktop
