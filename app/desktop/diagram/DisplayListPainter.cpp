#include "app/desktop/diagram/DisplayListPainter.h"

#include "app/desktop/shell/Convert.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
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

QPolygonF polygonOf(const std::vector<present::Spot>& points)
{
    QPolygonF polygon;
    for (const present::Spot& spot : points) {
        polygon << QPointF(spot.x, spot.y);
    }
    return polygon;
}

void paintShape(QPainter& painter, const present::Shape& shape, const present::DisplayList& list)
{
    painter.setBrush(shape.fill ? QBrush(colourOf(*shape.fill, list)) : QBrush(Qt::NoBrush));
    QPen pen(Qt::NoPen);
    if (shape.stroke) {
        pen = QPen(colourOf(*shape.stroke, list), shape.width);
        pen.setJoinStyle(Qt::MiterJoin);
    }
    painter.setPen(pen);
    painter.drawPolygon(polygonOf(shape.points));
}

void paintLine(QPainter& painter, const present::Line& line, const present::DisplayList& list)
{
    const QColor colour = colourOf(line.role, list);
    QPen pen(colour, line.width);
    if (line.dashed) {
        pen.setStyle(Qt::DashLine);
    }
    painter.setPen(pen);
    const QPointF from(line.from.x, line.from.y);
    const QPointF to(line.to.x, line.to.y);
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
    for (const present::Shape& shape : list.shapes) {
        paintShape(painter, shape, list);
    }
    if (above) {
        above(painter);
    }
    for (const present::Line& line : list.lines) {
        paintLine(painter, line, list);
    }
    QFont unhinted = font;
    unhinted.setHintingPreference(QFont::PreferNoHinting);
    for (const present::Text& text : list.texts) {
        paintText(painter, text, list, unhinted);
    }
    painter.restore();
}

} // namespace kestrav::desktop
