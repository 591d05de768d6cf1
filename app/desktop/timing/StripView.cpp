#include "app/desktop/timing/StripView.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"

#include <QFontInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kSameMoment = 1.0 / 86400.0;

} // namespace

StripView::StripView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("StripView"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

int StripView::margin() const
{
    return fontMetrics().height() / 2;
}

present::StripOptions StripView::options() const
{
    present::StripOptions options;
    options.width = std::max(1, width() - 2 * margin());
    options.height = std::max(1, height() - 2 * margin());
    options.scheme = schemeOf(*this);
    options.fontSize = QFontInfo(font()).pixelSize();
    options.measure = measureWith(font());
    return options;
}

void StripView::setDrawing(StripDrawing drawing)
{
    drawing_ = std::move(drawing);
    note_.clear();
    setAccessibleName(toQt(drawing_.list.title));
    setAccessibleDescription(toQt(drawing_.list.description));
    update();
}

void StripView::setNote(const QString& note)
{
    drawing_ = {};
    note_ = note;
    setAccessibleName(note);
    update();
}

void StripView::setSharedMoment(std::optional<double> moment)
{
    moment_ = moment;
    update();
}

QPoint StripView::placeOf(double moment) const
{
    return {int(drawing_.axis.xOf(moment)) + margin(), int(drawing_.list.height / 2.0) + margin()};
}

QSize StripView::sizeHint() const
{
    return {fontMetrics().height() * 30, fontMetrics().height() * 10};
}

QSize StripView::minimumSizeHint() const
{
    return {fontMetrics().height() * 8, fontMetrics().height() * 4};
}

int StripView::regionUnder(const QPoint& place) const
{
    return present::regionAt(drawing_.list,
                             {double(place.x() - margin()), double(place.y() - margin())});
}

bool StripView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        const int region = regionUnder(help->pos());
        if (region >= 0) {
            const QString tip = toQt(drawing_.list.regions[std::size_t(region)].tip).trimmed();
            QToolTip::showText(help->globalPos(), tip, this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(event);
}

void StripView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (!note_.isEmpty()) {
        painter.drawText(rect().adjusted(margin(), margin(), -margin(), -margin()),
                         int(Qt::AlignTop | Qt::AlignLeft) | Qt::TextWordWrap, note_);
        return;
    }
    painter.save();
    painter.translate(margin(), margin());
    paintDisplayList(painter, drawing_.list, font());
    if (drawing_.bottom > 0.0) {
        present::DisplayList line;
        line.scheme = drawing_.list.scheme;
        present::addCursor(line, drawing_.axis, moment_, 0.0, drawing_.bottom);
        paintDisplayList(painter, line, font());
    }
    painter.restore();
    if (hasFocus()) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}

void StripView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    emit layoutWanted();
}

void StripView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        emit layoutWanted();
    }
}

void StripView::mousePressEvent(QMouseEvent* event)
{
    const double x = event->pos().x() - margin();
    if (event->button() != Qt::LeftButton || drawing_.list.width <= 0.0 || x < drawing_.axis.left) {
        QWidget::mousePressEvent(event);
        return;
    }
    double moment = drawing_.axis.momentAt(x);
    const int region = regionUnder(event->pos());
    if (region >= 0 && std::size_t(region) < drawing_.links.size()) {
        const present::Link& link = drawing_.links[std::size_t(region)];
        if (link.subject == present::Subject::Moment) {
            moment = link.moment;
        } else if (link.subject != present::Subject::None) {
            emit linkChosen(link);
        }
    }
    emit momentChosen(moment);
}

void StripView::keyPressEvent(QKeyEvent* event)
{
    const bool forward = event->key() == Qt::Key_Right;
    if ((!forward && event->key() != Qt::Key_Left) || event->modifiers() != Qt::NoModifier ||
        !moment_) {
        QWidget::keyPressEvent(event);
        return;
    }
    std::optional<double> next;
    for (const double stop : drawing_.stops) {
        if (forward && stop > *moment_ + kSameMoment) {
            next = next ? std::min(*next, stop) : stop;
        } else if (!forward && stop < *moment_ - kSameMoment) {
            next = next ? std::max(*next, stop) : stop;
        }
    }
    if (next) {
        emit momentChosen(*next);
    }
}

StripDrawing drawingOf(const present::StripModel& model, const present::StripOptions& options)
{
    StripDrawing drawing;
    present::Strip strip = present::layoutStrip(model, options);
    drawing.axis = strip.axis;
    for (const present::Region& region : strip.list.regions) {
        present::Link link;
        if (region.kind == present::RegionKind::Span) {
            const present::StripSpan& from = strip.spans[std::size_t(region.index)];
            link = model.lanes[from.lane].spans[from.span].about;
        }
        drawing.links.push_back(link);
    }
    for (const present::Lane& lane : model.lanes) {
        for (const present::TimeSpan& span : lane.spans) {
            if (strip.axis.holds(span.from)) {
                drawing.stops.push_back(span.from);
            }
        }
    }
    drawing.list = std::move(strip.list);
    return drawing;
}

} // namespace kestrav::desktop
