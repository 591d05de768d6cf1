#include "app/desktop/entry/WorldMapView.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kAspect = 360.0 / (present::kMapNorth - present::kMapSouth);
constexpr double kMostZoom = 200.0;
constexpr double kKeyZoom = 1.5;
constexpr double kNamesFromZoom = 3.0;
constexpr std::size_t kMostNames = 60;
constexpr int kGridDegrees = 30;

} // namespace

WorldMapView::WorldMapView(PlacesPointer places, QWidget* parent)
    : QWidget(parent), places_(std::move(places))
{
    setObjectName(QStringLiteral("WorldMap"));
    setAccessibleName(tr("World map"));
    setAccessibleDescription(
        tr("Arrow keys move the map, plus and minus change its size, Enter takes the place nearest "
           "to its middle"));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setMouseTracking(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void WorldMapView::setMarks(std::vector<present::GeoPlace> marks)
{
    marks_ = std::move(marks);
    update();
}

void WorldMapView::showAround(const present::GeoPlace& place, double zoom)
{
    centre_ = present::mapSpotOf(place);
    zoom_ = std::clamp(zoom, 1.0, kMostZoom);
    redraw();
}

void WorldMapView::zoomBy(double factor)
{
    zoomAt(QPointF(width() / 2.0, height() / 2.0), factor);
}

QSize WorldMapView::sizeHint() const
{
    const int high = fontMetrics().height() * 18;
    return {int(high * kAspect), high};
}

int WorldMapView::heightForWidth(int wide) const
{
    return int(wide / kAspect);
}

QSize WorldMapView::minimumSizeHint() const
{
    return sizeHint() / 2;
}

// Pixels of the whole map's width.
double WorldMapView::unit() const
{
    return std::min(double(width()), height() * kAspect) * zoom_;
}

QPointF WorldMapView::onScreen(present::Spot spot) const
{
    return {width() / 2.0 + (spot.x - centre_.x) * unit(),
            height() / 2.0 + (spot.y - centre_.y) * unit() / kAspect};
}

present::Spot WorldMapView::onMap(QPointF point) const
{
    return {centre_.x + (point.x() - width() / 2.0) / unit(),
            centre_.y + (point.y() - height() / 2.0) * kAspect / unit()};
}

void WorldMapView::keepInside()
{
    const double halfX = std::min(0.5, width() / unit() / 2.0);
    const double halfY = std::min(0.5, height() * kAspect / unit() / 2.0);
    centre_.x = std::clamp(centre_.x, halfX, 1.0 - halfX);
    centre_.y = std::clamp(centre_.y, halfY, 1.0 - halfY);
}

void WorldMapView::redraw()
{
    picture_ = {};
    update();
}

void WorldMapView::zoomAt(QPointF point, double factor)
{
    const present::Spot fixed = onMap(point);
    zoom_ = std::clamp(zoom_ * factor, 1.0, kMostZoom);
    const present::Spot moved = onMap(point);
    centre_.x += fixed.x - moved.x;
    centre_.y += fixed.y - moved.y;
    redraw();
}

void WorldMapView::moveBy(QPointF step)
{
    centre_.x -= step.x() / unit();
    centre_.y -= step.y() * kAspect / unit();
    redraw();
}

void WorldMapView::pick(QPointF point)
{
    if (const auto place = places_->dots.nearest(present::placeOfMapSpot(onMap(point)))) {
        emit picked(*place);
    }
}

void WorldMapView::paintMap(QPainter& painter) const
{
    const QRectF map(onScreen({0.0, 0.0}), onScreen({1.0, 1.0}));
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.fillRect(map, palette().color(QPalette::Base));
    QColor grid = palette().color(QPalette::Mid);
    painter.setPen(QPen(grid, 1.0, Qt::DotLine));
    for (int degrees = -180; degrees <= 180; degrees += kGridDegrees) {
        const double x = onScreen(present::mapSpotOf({0.0, double(degrees)})).x();
        painter.drawLine(QPointF(x, map.top()), QPointF(x, map.bottom()));
        if (degrees >= present::kMapSouth && degrees <= present::kMapNorth) {
            const double y = onScreen(present::mapSpotOf({double(degrees), 0.0})).y();
            painter.drawLine(QPointF(map.left(), y), QPointF(map.right(), y));
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double size = std::max(1.0, fontMetrics().height() / 16.0);
    const double growth = 1.0 + std::log2(zoom_) / 4.0;
    const std::array<QColor, 3> colours = {themeColour(ThemeRole::Quiet),
                                           themeColour(ThemeRole::Accent),
                                           themeColour(ThemeRole::Accent)};
    const QRectF seen = QRectF(rect()).adjusted(-4.0, -4.0, 4.0, 4.0);
    for (const present::MapDot& dot : places_->dots.dots()) {
        const QPointF at = onScreen(dot.spot);
        if (seen.contains(at)) {
            const double radius = size * growth * (0.5 + 0.35 * dot.size);
            painter.setBrush(colours[std::size_t(std::clamp(dot.size, 0, 2))]);
            painter.drawEllipse(at, radius, radius);
        }
    }
    if (zoom_ >= kNamesFromZoom) {
        paintNames(painter);
    }
}

// The names of the largest places in sight, as many as find room.
void WorldMapView::paintNames(QPainter& painter) const
{
    std::vector<std::pair<std::uint32_t, present::Spot>> inSight;
    for (const present::MapDot& dot : places_->dots.dots()) {
        if (rect().contains(onScreen(dot.spot).toPoint())) {
            inSight.emplace_back(dot.place, dot.spot);
        }
    }
    const auto population = [this](std::uint32_t number) {
        return places_->places.place(number).population;
    };
    const std::size_t tried = std::min(inSight.size(), 4 * kMostNames);
    std::partial_sort(inSight.begin(), inSight.begin() + std::ptrdiff_t(tried), inSight.end(),
                      [&](const auto& one, const auto& other) {
                          return population(one.first) > population(other.first);
                      });
    std::vector<QRectF> taken;
    for (std::size_t i = 0; i < tried && taken.size() < kMostNames; ++i) {
        const QString name = toQt(places_->places.nameOf(places_->places.place(inSight[i].first)));
        const double gap = fontMetrics().height() / 3.0;
        const QPointF at = onScreen(inSight[i].second) + QPointF(gap, gap);
        const QRectF box(at.x(), at.y() - fontMetrics().ascent(),
                         fontMetrics().horizontalAdvance(name), fontMetrics().height());
        const bool free = std::none_of(taken.begin(), taken.end(),
                                       [&](const QRectF& other) { return other.intersects(box); });
        if (free && QRectF(rect()).contains(box)) {
            taken.push_back(box.adjusted(-gap, 0.0, gap, 0.0));
            QPainterPath outline;
            outline.addText(at, font(), name);
            painter.strokePath(outline, QPen(palette().color(QPalette::Base), gap));
            painter.fillPath(outline, palette().color(QPalette::Text));
        }
    }
}

void WorldMapView::paintEvent(QPaintEvent* /*event*/)
{
    if (picture_.isNull()) {
        keepInside();
        picture_ = QPixmap(size() * devicePixelRatioF());
        picture_.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&picture_);
        painter.setFont(font());
        paintMap(painter);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = fontMetrics().height() / 2.5;
    // The chosen one last, over the others.
    for (std::size_t i = marks_.size(); i-- > 0;) {
        const QPointF at = onScreen(present::mapSpotOf(marks_[i]));
        painter.setPen(QPen(palette().color(QPalette::Base), size / 4.0));
        painter.setBrush(themeColour(i == 0 ? ThemeRole::Bad : ThemeRole::Good));
        const double radius = i == 0 ? size : size / 1.6;
        painter.drawEllipse(at, radius, radius);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0));
        const QPointF middle(width() / 2.0, height() / 2.0);
        painter.drawLine(middle - QPointF(size, 0.0), middle + QPointF(size, 0.0));
        painter.drawLine(middle - QPointF(0.0, size), middle + QPointF(0.0, size));
    }
}

void WorldMapView::resizeEvent(QResizeEvent* /*event*/)
{
    redraw();
}

void WorldMapView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        redraw();
    }
    QWidget::changeEvent(event);
}

void WorldMapView::wheelEvent(QWheelEvent* event)
{
    zoomAt(event->position(), std::pow(2.0, event->angleDelta().y() / 240.0));
    event->accept();
}

void WorldMapView::mousePressEvent(QMouseEvent* event)
{
    pressed_ = event->position();
    last_ = pressed_;
    dragging_ = false;
}

void WorldMapView::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) == 0) {
        const present::Spot spot = onMap(event->position());
        if (const auto place = places_->dots.nearest(present::placeOfMapSpot(spot))) {
            emit hovered(*place);
        }
        return;
    }
    const int distance = (event->position() - pressed_).toPoint().manhattanLength();
    dragging_ = dragging_ || distance >= QApplication::startDragDistance();
    if (dragging_) {
        moveBy(event->position() - last_);
        last_ = event->position();
    }
}

void WorldMapView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !dragging_) {
        pick(event->position());
    }
    dragging_ = false;
}

void WorldMapView::mouseDoubleClickEvent(QMouseEvent* event)
{
    pick(event->position());
    emit activated();
}

void WorldMapView::keyPressEvent(QKeyEvent* event)
{
    const double step = height() / 8.0;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy({step, 0.0});
    case Qt::Key_Right:
        return moveBy({-step, 0.0});
    case Qt::Key_Up:
        return moveBy({0.0, step});
    case Qt::Key_Down:
        return moveBy({0.0, -step});
    case Qt::Key_Plus:
        return zoomBy(kKeyZoom);
    case Qt::Key_Minus:
        return zoomBy(1.0 / kKeyZoom);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return pick(QPointF(width() / 2.0, height() / 2.0));
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace kestrav::desktop
