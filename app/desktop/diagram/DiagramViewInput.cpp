// Keys, pointer and wheel in a diagram.
#include "app/desktop/diagram/DiagramView.h"

#include "analysis/VargaNames.h"
#include "app/desktop/diagram/DiagramDrag.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/DiagramRegions.h"
#include "app/present/TextValues.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

using present::RegionKind;

constexpr int kZoomStep = 10;
constexpr int kLeastZoom = 50;
constexpr int kMostZoom = 400;
constexpr int kWheelStep = 120;

// The keys that mean something in a diagram; all others stay with the window.
bool ownKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_V:
    case Qt::Key_N:
    case Qt::Key_S:
    case Qt::Key_C:
    case Qt::Key_E:
    case Qt::Key_A:
    case Qt::Key_D:
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
    }
}

// A diagram has few letters of its own; with Ctrl or Alt they belong to the window.
bool plain(const QKeyEvent& event)
{
    return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

} // namespace

bool DiagramView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        const present::Region* const under = region(regionUnder(help->pos()));
        if (under == nullptr || under->tip.empty()) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(help->globalPos(),
                               QStringLiteral("<p style='white-space:pre'>%1</p>")
                                   .arg(toQt(under->tip).toHtmlEscaped()),
                               this);
        }
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const keys = static_cast<QKeyEvent*>(event);
        if (keys->matches(QKeySequence::Copy) || (plain(*keys) && ownKey(*keys))) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

int DiagramView::regionUnder(QPointF position) const
{
    const QPointF spot = position - origin_;
    return present::regionAt(list_, {spot.x(), spot.y()});
}

void DiagramView::hover(int index)
{
    if (index != hovered_) {
        hovered_ = index;
        update();
    }
}

void DiagramView::inspect(int index)
{
    const present::Region* const chosen = region(index);
    if (chosen == nullptr) {
        return;
    }
    setCursor(index);
    if (chosen->kind == RegionKind::More) {
        showPointsOf(index);
        return;
    }
    emit linkChosen(present::linkOf(*chosen, contents_.varga, ascendantSign()));
}

void DiagramView::showPointsOf(int more)
{
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("HiddenPointsMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const int point : region(more)->points) {
        menu->addAction(toQt(present::pointLabel(point)), this, [this, point] {
            emit linkChosen({present::Subject::Point, point, contents_.varga});
        });
    }
    menu->popup(mapToGlobal(polygonOf(more).boundingRect().bottomLeft().toPoint()));
}

void DiagramView::walkCells(int by)
{
    const std::vector<int> cells = present::cellsInOrder(list_);
    if (cells.empty()) {
        return;
    }
    const int count = int(cells.size());
    const int here = region(cursor_) != nullptr ? present::cellOf(list_, cursor_) : -1;
    const auto found = std::find(cells.begin(), cells.end(), here);
    const int index = found == cells.end() ? (by > 0 ? 0 : count - 1)
                                           : (int(found - cells.begin()) + by + count) % count;
    setCursor(cells[std::size_t(index)]);
}

// From a cell the next point is the first one in it or behind it.
bool DiagramView::walkPoints(bool next)
{
    const std::vector<int> points = present::pointsInOrder(list_);
    const int count = int(points.size());
    int index = next ? 0 : count - 1;
    const auto found = std::find(points.begin(), points.end(), cursor_);
    if (found != points.end()) {
        index = int(found - points.begin()) + (next ? 1 : -1);
    } else if (region(cursor_) != nullptr) {
        const std::vector<int> cells = present::cellsInOrder(list_);
        const auto placeOf = [&](int cell) {
            return std::find(cells.begin(), cells.end(), cell) - cells.begin();
        };
        const auto here = placeOf(present::cellOf(list_, cursor_));
        index = int(std::count_if(
                    points.begin(), points.end(),
                    [&](int point) { return placeOf(present::cellOf(list_, point)) < here; })) -
                (next ? 0 : 1);
    }
    if (index < 0 || index >= count) {
        return false;
    }
    setCursor(points[std::size_t(index)]);
    return true;
}

bool DiagramView::focusNextPrevChild(bool next)
{
    if (hasFocus() && !contents_.small && walkPoints(next)) {
        return true;
    }
    setCursor(-1);
    return QWidget::focusNextPrevChild(next);
}

void DiagramView::focusOutEvent(QFocusEvent* event)
{
    typed_->hide();
    typing_.stop();
    QWidget::focusOutEvent(event);
}

// After V a number is typed; it counts when a moment has passed, or with Enter.
bool DiagramView::typeVarga(QKeyEvent* event)
{
    if (!typed_->isVisible()) {
        return false;
    }
    QString text = typed_->text();
    const QString key = event->text();
    if (key.size() == 1 && key[0].isDigit()) {
        text += key;
    } else if (event->key() == Qt::Key_Backspace) {
        text = text.size() > 2 ? text.chopped(1) : text;
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        finishVarga();
        return true;
    } else if (event->key() == Qt::Key_Escape) {
        typed_->hide();
        typing_.stop();
        return true;
    } else if (!key.isEmpty()) {
        finishVarga();
        return false;
    }
    typed_->setText(text);
    typed_->adjustSize();
    typing_.start();
    return true;
}

void DiagramView::finishVarga()
{
    typing_.stop();
    typed_->hide();
    const QString text = typed_->text();
    if (text.size() <= 2) {
        return;
    }
    if (const auto varga = analysis::findVarga(toUtf8(text))) {
        emit vargaWanted(*varga);
    } else {
        emit told(tr("There is no divisional chart %1.").arg(text));
    }
}

void DiagramView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    if (!plain(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (typeVarga(event)) {
        return;
    }
    switch (event->key()) {
    case Qt::Key_V:
        typed_->setText(QStringLiteral("D-"));
        typed_->adjustSize();
        typed_->move(0, 0);
        typed_->show();
        typing_.start();
        return;
    case Qt::Key_N:
        emit styleWanted(present::DiagramStyle::North);
        return;
    case Qt::Key_S:
        emit styleWanted(present::DiagramStyle::South);
        return;
    case Qt::Key_C:
        emit styleWanted(present::DiagramStyle::Circle);
        return;
    case Qt::Key_E:
        emit styleWanted(present::DiagramStyle::East);
        return;
    case Qt::Key_A:
        if (const auto planet = chosenPlanet()) {
            toggleAspects(*planet);
        } else {
            emit told(tr("Aspects are drawn of the planet that is selected."));
        }
        return;
    case Qt::Key_D:
        emit degreesWanted();
        return;
    case Qt::Key_Escape:
        if (!clear()) {
            event->ignore();
        }
        return;
    case Qt::Key_Right:
    case Qt::Key_Down:
        walkCells(1);
        return;
    case Qt::Key_Left:
    case Qt::Key_Up:
        walkCells(-1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        inspect(cursor_);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void DiagramView::mousePressEvent(QMouseEvent* event)
{
    pressed_ = regionUnder(event->position());
    pressedAt_ = event->position();
    moved_ = false;
    if (event->button() == Qt::RightButton) {
        // What the menu offers is about what lies under the pointer.
        setCursor(pressed_);
        QWidget::mousePressEvent(event);
        return;
    }
    if (event->button() == Qt::LeftButton && region(pressed_) != nullptr &&
        region(pressed_)->kind == RegionKind::Point) {
        holding_.start();
    }
}

void DiagramView::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) == 0) {
        hover(regionUnder(event->position()));
        return;
    }
    const QPointF way = event->position() - pressedAt_;
    if (!moved_ && way.manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    holding_.stop();
    const bool begins = !moved_;
    moved_ = true;
    if (held_ < 0 && region(pressed_) != nullptr && region(pressed_)->kind == RegionKind::Point) {
        if (begins) {
            startDrag();
        }
    } else if (list_.width > width() || list_.height > height()) {
        origin_ += way;
        pressedAt_ = event->position();
        place();
        update();
    }
}

void DiagramView::mouseReleaseEvent(QMouseEvent* event)
{
    holding_.stop();
    if (held_ >= 0) {
        held_ = -1;
        rebuild();
        return;
    }
    if (event->button() != Qt::LeftButton || moved_) {
        return;
    }
    emit clicked();
    const int released = regionUnder(event->position());
    if (released == pressed_ && region(released) != nullptr) {
        inspect(released);
    }
}

void DiagramView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const present::Region* const under = region(regionUnder(event->position()));
    // The release that follows is no click of its own.
    moved_ = true;
    if (event->button() == Qt::LeftButton && under != nullptr && under->sign != 0) {
        turnTo(under->sign);
    }
}

void DiagramView::wheelEvent(QWheelEvent* event)
{
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        anchor_ = event->position();
        const int steps = event->angleDelta().y() / (kWheelStep / kZoomStep);
        emit zoomWanted(std::clamp(zoom_ + steps, kLeastZoom, kMostZoom));
        event->accept();
        return;
    }
    if (list_.height <= height() && list_.width <= width()) {
        event->ignore();
        return;
    }
    QPointF by = event->pixelDelta().isNull() ? QPointF(event->angleDelta()) / 2.0
                                              : QPointF(event->pixelDelta());
    if ((event->modifiers() & Qt::ShiftModifier) != 0) {
        by = by.transposed();
    }
    origin_ += by;
    place();
    update();
    event->accept();
}

void DiagramView::leaveEvent(QEvent* event)
{
    hover(-1);
    QWidget::leaveEvent(event);
}

void DiagramView::startDrag()
{
    const present::Region& dragged = *region(pressed_);
    const ChartPointer& outer = compared_ ? compared_ : contents_.outer;
    auto* const drag = new QDrag(this);
    auto* const contents = new PointMimeData(
        {dragged.layer == 0 ? contents_.chart : outer, dragged.index, contents_.varga});
    contents->setText(toQt(dragged.tip));
    drag->setMimeData(contents);
    drag->exec(Qt::CopyAction);
}

void DiagramView::dragEnterEvent(QDragEnterEvent* event)
{
    if (contents_.chart && qobject_cast<const PointMimeData*>(event->mimeData()) != nullptr &&
        event->source() != this) {
        event->acceptProposedAction();
    }
}

void DiagramView::dropEvent(QDropEvent* event)
{
    if (const auto* const dropped = qobject_cast<const PointMimeData*>(event->mimeData())) {
        event->acceptProposedAction();
        compareWith(dropped->point());
    }
}

} // namespace kestrav::desktop
