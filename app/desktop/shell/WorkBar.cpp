#include "app/desktop/shell/WorkBar.h"

#include "app/desktop/shell/BackgroundWork.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>

#include <chrono>

namespace kestrav::desktop
{

namespace
{

constexpr std::chrono::milliseconds kBlink{200};

} // namespace

WorkBar::WorkBar(BackgroundWork& work, QWidget* parent)
    : QWidget(parent), work_(work), progress_(new QProgressBar(this))
{
    setObjectName(QStringLiteral("WorkBar"));
    progress_->setObjectName(QStringLiteral("WorkProgressBar"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setMaximumWidth(fontMetrics().averageCharWidth() * 24);
    auto* const stop = new QToolButton(this);
    stop->setObjectName(QStringLiteral("StopButton"));
    stop->setText(tr("Stop"));
    connect(stop, &QToolButton::clicked, this, [this] {
        work_.cancel();
        emit stopped();
    });
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(progress_);
    box->addWidget(stop);
    hide();
    auto* const blink = new QTimer(this);
    blink->setSingleShot(true);
    connect(blink, &QTimer::timeout, this, &QWidget::show);
    connect(&work_, &BackgroundWork::started, this, [this, blink] {
        progress_->setRange(0, 0);
        blink->start(kBlink);
    });
    connect(&work_, &BackgroundWork::progressed, this, [this](qulonglong done, qulonglong total) {
        progress_->setRange(0, int(total));
        progress_->setValue(int(done));
    });
    connect(&work_, &BackgroundWork::finished, this, [this, blink] {
        blink->stop();
        hide();
    });
}

} // namespace kestrav::desktop
