#include "app/desktop/shell/NewsBar.h"

#include "app/desktop/shell/Theme.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QTimer>
#include <QToolButton>

#include <chrono>

namespace kestrav::desktop
{

namespace
{

constexpr std::chrono::seconds kShown{8};

} // namespace

NewsBar::NewsBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), timer_(new QTimer(this))
{
    setObjectName(QStringLiteral("NewsBar"));
    setAutoFillBackground(true);
    text_->setObjectName(QStringLiteral("NewsLabel"));
    text_->setWordWrap(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const close = new QToolButton(this);
    close->setText(QStringLiteral("\u2715"));
    close->setObjectName(QStringLiteral("NewsCloseButton"));
    close->setAccessibleName(tr("Close this message"));
    close->setToolTip(tr("Close this message"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* const box = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(2 * gap, gap, gap, gap);
    box->addWidget(text_, 1);
    box->addWidget(close, 0, Qt::AlignTop);
    timer_->setSingleShot(true);
    connect(timer_, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void NewsBar::show(const QString& text, bool problem)
{
    QPalette palette;
    palette.setColor(QPalette::Window, themeColour(problem ? ThemeRole::Problem : ThemeRole::News));
    setPalette(palette);
    text_->setText(text);
    setAccessibleName(text);
    QFrame::show();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    timer_->stop();
    if (!problem) {
        timer_->start(kShown);
    }
}

QString NewsBar::text() const
{
    return isHidden() ? QString() : text_->text();
}

} // namespace kestrav::desktop
