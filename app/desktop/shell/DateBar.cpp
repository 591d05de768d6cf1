#include "app/desktop/shell/DateBar.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "core/TextForms.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace kestrav::desktop
{

namespace
{

constexpr double kUnits[] = {1.0 / 1440.0, 1.0 / 24.0, 1.0, 7.0};

} // namespace

DateBar::DateBar(Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace), date_(new QLineEdit(this)),
      time_(new QLineEdit(this)), unit_(new QComboBox(this))
{
    setObjectName(QStringLiteral("DateBar"));
    date_->setObjectName(QStringLiteral("DateEdit"));
    date_->setAccessibleName(tr("Shared date"));
    time_->setObjectName(QStringLiteral("TimeEdit"));
    time_->setAccessibleName(tr("Shared time"));
    unit_->setObjectName(QStringLiteral("StepComboBox"));
    unit_->setAccessibleName(tr("Unit of a step"));
    unit_->addItems({tr("Minute"), tr("Hour"), tr("Day"), tr("Week")});
    unit_->setCurrentIndex(2);
    auto* const now = new QPushButton(tr("N&ow"), this);
    now->setObjectName(QStringLiteral("NowButton"));
    connect(now, &QPushButton::clicked, this, &DateBar::goToNow);
    connect(date_, &QLineEdit::editingFinished, this, &DateBar::DateEditEditingFinished);
    connect(time_, &QLineEdit::editingFinished, this, &DateBar::DateEditEditingFinished);
    connect(&workspace_, &Workspace::momentChanged, this, &DateBar::showMoment);
    connect(&workspace_, &Workspace::chartChanged, this, &DateBar::showMoment);
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(date_);
    box->addWidget(time_);
    box->addWidget(unit_);
    box->addWidget(now);
    box->addStretch(1);
    showMoment();
}

void DateBar::showMoment()
{
    const core::Chart record = workspace_.recordAt(workspace_.moment());
    date_->setText(QStringLiteral("%1-%2-%3")
                       .arg(record.time.year)
                       .arg(record.time.month, 2, 10, QLatin1Char('0'))
                       .arg(record.time.day, 2, 10, QLatin1Char('0')));
    time_->setText(toQt(core::FormatHM(record.time.localTime)));
}

void DateBar::DateEditEditingFinished()
{}

void DateBar::step(int direction)
{
    workspace_.setMoment(workspace_.moment() + direction * kUnits[unit_->currentIndex()]);
}

void DateBar::goToNow()
{
    workspace_.setMoment(Workspace::now());
}

} // namespace kestrav::desktop
