#include "app/desktop/shell/OfferBar.h"

#include "app/desktop/shell/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QPushButton>

namespace kestrav::desktop
{

OfferBar::OfferBar(const QString& take, const QString& takeTip, const QString& drop,
                   const QString& dropTip, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), take_(new QPushButton(take, this)),
      drop_(new QPushButton(drop, this))
{
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    take_->setToolTip(takeTip);
    drop_->setToolTip(dropTip);
    auto* const box = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(2 * gap, gap, gap, gap);
    box->addWidget(text_, 1);
    box->addWidget(take_);
    box->addWidget(drop_);
    connect(take_, &QPushButton::clicked, this, &OfferBar::taken);
    connect(drop_, &QPushButton::clicked, this, &OfferBar::dropped);
    hide();
}

void OfferBar::offer(const QString& text)
{
    text_->setText(text);
    setAccessibleName(text);
    QPalette palette;
    palette.setColor(QPalette::Window, themeColour(ThemeRole::News));
    setPalette(palette);
    show();
}

} // namespace kestrav::desktop
