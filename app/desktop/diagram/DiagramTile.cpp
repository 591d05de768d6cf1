#include "app/desktop/diagram/DiagramTile.h"

#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/shell/Theme.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace kestrav::desktop
{

DiagramTile::DiagramTile(QWidget* parent)
    : QWidget(parent), title_(new QLabel(this)), view_(new DiagramView(this)),
      note_(new QLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    title_->setAlignment(Qt::AlignCenter);
    title_->setTextFormat(Qt::PlainText);
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    title_->setBuddy(view_);
    note_->setAlignment(Qt::AlignCenter);
    note_->setWordWrap(true);
    note_->setTextFormat(Qt::PlainText);
    note_->hide();
    layout->addWidget(title_);
    layout->addWidget(view_, 1);
    layout->addWidget(note_);
}

void DiagramTile::setWords(const QString& title, const QString& brief, const QString& tip,
                           const QString& note)
{
    words_ = title;
    brief_ = brief;
    title_->setToolTip(tip);
    note_->setText(note);
    note_->setVisible(!note.isEmpty());
    elide();
}

void DiagramTile::setChosen(bool chosen)
{
    chosen_ = chosen;
    QFont font = title_->font();
    font.setBold(chosen);
    font.setUnderline(chosen);
    title_->setFont(font);
    elide();
}

int DiagramTile::heightOfWords() const
{
    return title_->fontMetrics().height() +
           (note_->isHidden() ? 0 : 2 * note_->fontMetrics().height());
}

void DiagramTile::elide()
{
    const bool fits =
        brief_.isEmpty() || title_->fontMetrics().horizontalAdvance(words_) <= width();
    title_->setText(
        title_->fontMetrics().elidedText(fits ? words_ : brief_, Qt::ElideRight, width()));
}

void DiagramTile::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    elide();
}

void DiagramTile::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        elide();
    }
}

} // namespace kestrav::desktop
