#include "app/desktop/diagram/DisplayListPainter.h"

#include "app/desktop/shell/Convert.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPaintEngine>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QTransform>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kestrav::desktop
{

namespace
{

using present::ColourRole;

// The size in which texts are measured: large enough that no rounding of the font shows.
constexpr double kMeasuredSize = 1000.0;
constexpr double kArrowLength = 9.0;
constexpr double kArrowHalfWidth = 3.5;
constexpr double kHaloPart = 0.15; // of the size of a text, around its letters

QColor colourOf(ColourRole role, const present::DisplayList& list)
{
    return toQt(present::colourOf(role, list.scheme));
}

// Puts the corners of straight drawings on whole pixels, so that their lines are equally sharp.
class PixelGrid
{
public:
    PixelGrid(const QPainter& painter, const present::DisplayList& list)
        : transform_(painter.deviceTransform())
    {
        const QPaintEngine* const engine = painter.paintEngine();
        bool invertible = false;
        back_ = transform_.inverted(&invertible);
        active_ = engine != nullptr && engine->type() == QPaintEngine::Raster && invertible &&
                  transform_.type() <= QTransform::TxScale;
        room_ = transform_.mapRect(QRectF(0.0, 0.0, list.width, list.height));
    }

    // The width of a pen that covers whole pixels.
    [[nodiscard]] double width(double wanted) const
    {
        return active_ ? pixels(wanted) / transform_.m11() : wanted;
    }

    // The corner moved by at most a pixel, so that a pen of that width around it stays inside.
    [[nodiscard]] QPointF corner(const present::Spot& spot, double width) const
    {
        const QPointF exact(spot.x, spot.y);
        if (!active_) {
            return exact;
        }
        const double half = pixels(width) / 2.0;
        const auto along = [half](double at, double low, double high) {
            const double inside = std::clamp(at, low + half, std::max(low + half, high - half));
            // The edges of the pen lie between two pixels.
            return std::round(inside - half) + half;
        };
        const QPointF device = transform_.map(exact);
        return back_.map(
            QPointF(along(device.x(), std::ceil(room_.left()), std::floor(room_.right())),
                    along(device.y(), std::ceil(room_.top()), std::floor(room_.bottom()))));
    }

private:
    [[nodiscard]] double pixels(double width) const
    {
        return std::max(1.0, std::round(width * transform_.m11()));
    }

    QTransform transform_;
    QTransform back_;
    QRectF room_;
    bool active_ = false;
};

// Level, upright or at half a right angle, as all lines of the square styles are.
bool isStraight(const present::Spot& from, const present::Spot& to)
{
    constexpr double kNothing = 1e-6;
    const double across = std::abs(to.x - from.x);
    const double down = std::abs(to.y - from.y);
    return across < kNothing || down < kNothing || std::abs(across - down) < kNothing;
}

bool isStraight(const present::Shape& shape)
{
    const std::size_t corners = shape.points.size();
    for (std::size_t i = 0; i < corners; ++i) {
        if (!isStraight(shape.points[i], shape.points[(i + 1) % corners])) {
            return false;
        }
    }
    return true;
}

void paintShape(QPainter& painter, const present::Shape& shape, const present::DisplayList& list,
                const PixelGrid& grid)
{
    painter.setBrush(shape.fill ? QBrush(colourOf(*shape.fill, list)) : QBrush(Qt::NoBrush));
    const bool onGrid = isStraight(shape);
    QPen pen(Qt::NoPen);
    if (shape.stroke) {
        pen = QPen(colourOf(*shape.stroke, list), onGrid ? grid.width(shape.width) : shape.width);
        pen.setJoinStyle(Qt::MiterJoin);
    }
    painter.setPen(pen);
    QPolygonF polygon;
    for (const present::Spot& spot : shape.points) {
        polygon << (onGrid ? grid.corner(spot, shape.width) : QPointF(spot.x, spot.y));
    }
    painter.drawPolygon(polygon);
}

void paintLine(QPainter& painter, const present::Line& line, const present::DisplayList& list,
               const PixelGrid& grid)
{
    const QColor colour = colourOf(line.role, list);
    const bool onGrid = !line.arrow && isStraight(line.from, line.to);
    QPen pen(colour, onGrid ? grid.width(line.width) : line.width);
    if (line.dashed) {
        pen.setStyle(Qt::DashLine);
    }
    painter.setPen(pen);
    const QPointF from =
        onGrid ? grid.corner(line.from, line.width) : QPointF(line.from.x, line.from.y);
    const QPointF to = onGrid ? grid.corner(line.to, line.width) : QPointF(line.to.x, line.to.y);
    painter.drawLine(from, to);
    if (line.arrow) {
        const double angle = std::atan2(to.y() - from.y(), to.x() - from.x());
        const QPointF along(std::cos(angle), std::sin(angle));
        const QPointF across(-along.y(), along.x());
        const QPointF base = to - along * kArrowLength;
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawPolygon(
            QPolygonF{to, base + across * kArrowHalfWidth, base - across * kArrowHalfWidth});
    }
}

// Whether the line of an aspect runs through the text, so that its letters need clear ground.
bool crossed(const present::Text& text, const present::DisplayList& list)
{
    const QRectF box(QPointF(text.box.left, text.box.top),
                     QPointF(text.box.right, text.box.bottom));
    return std::any_of(list.lines.begin(), list.lines.end(), [&box](const present::Line& line) {
        const QLineF path(line.from.x, line.from.y, line.to.x, line.to.y);
        const QLineF diagonals[] = {{box.topLeft(), box.bottomRight()},
                                    {box.topRight(), box.bottomLeft()}};
        return line.arrow &&
               std::any_of(std::begin(diagonals), std::end(diagonals), [&](const QLineF& diagonal) {
                   return path.intersects(diagonal) == QLineF::BoundedIntersection;
               });
    });
}

void paintText(QPainter& painter, const present::Text& text, const present::DisplayList& list,
               QFont font)
{
    if (text.halo && crossed(text, list)) {
        const double around = text.size * kHaloPart;
        painter.fillRect(QRectF(text.box.left - around, text.box.top,
                                text.box.width() + 2.0 * around, text.box.height()),
                         colourOf(*text.halo, list));
    }
    const QString words = toQt(text.text);
    // A font of fractional size: the large one scaled, so that widths are those that were measured.
    font.setPixelSize(int(kMeasuredSize));
    const double scale = text.size / kMeasuredSize;
    const double width = QFontMetricsF(font).horizontalAdvance(words) * scale;
    painter.save();
    painter.setPen(colourOf(text.role, list));
    if (std::abs(text.size - std::round(text.size)) < 0.01) {
        font.setPixelSize(int(std::round(text.size)));
        painter.setFont(font);
        painter.drawText(
            QPointF(text.box.centre().x - width / 2.0, text.box.top + present::kAscent * text.size),
            words);
    } else {
        painter.translate(text.box.centre().x - width / 2.0,
                          text.box.top + present::kAscent * text.size);
        painter.scale(scale, scale);
        painter.setFont(font);
        painter.drawText(QPointF(0.0, 0.0), words);
    }
    painter.restore();
}

} // namespace

QColor toQt(present::Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

present::MeasureText measureWith(const QFont& font)
{
    QFont large = font;
    large.setPixelSize(int(kMeasuredSize));
    large.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(large);
    return [metrics](std::wstring_view text) {
        return metrics.horizontalAdvance(toQt(text)) / kMeasuredSize;
    };
}

present::ColourScheme schemeOf(const QWidget& widget)
{
    constexpr int kMiddle = 128;
    return widget.palette().color(QPalette::Base).lightness() < kMiddle
               ? present::ColourScheme::Dark
               : present::ColourScheme::Light;
}

void paintDisplayList(QPainter& painter, const present::DisplayList& list, const QFont& font,
                      const std::function<void(QPainter&)>& above)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const PixelGrid grid(painter, list);
    for (const present::Shape& shape : list.shapes) {
        paintShape(painter, shape, list, grid);
    }
    if (above) {
        above(painter);
    }
    for (const present::Line& line : list.lines) {
        paintLine(painter, line, list, grid);
    }
    QFont unhinted = font;
    unhinted.setHintingPreference(QFont::PreferNoHinting);
    for (const present::Text& text : list.texts) {
        paintText(painter, text, list, unhinted);
    }
    painter.restore();
}

} // namespace kestrav::desktop
