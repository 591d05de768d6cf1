// What is painted over a diagram: lights under the pointer, selection, and where the keyboard is.
#include "app/desktop/diagram/DiagramView.h"

#include "analysis/DignityTables.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/DiagramRegions.h"

#include <QPainter>
#include <QPainterPath>

namespace kestrav::desktop
{

namespace
{

using present::RegionKind;

constexpr int kSignLight = 34; // of 255
constexpr int kLordLight = 70;
constexpr double kFrameWidth = 2.0;
constexpr double kBesidePoint = 4.0;
constexpr double kAboveLetters = 0.12; // of the box, which has as much below the letters
constexpr double kRounding = 3.0;

QPolygonF cornersOf(const present::Region& region)
{
    QPolygonF polygon;
    for (const present::Spot& spot : region.polygon) {
        polygon << QPointF(spot.x, spot.y);
    }
    return polygon;
}

bool isSmall(const present::Region& region)
{
    return region.kind == RegionKind::Point || region.kind == RegionKind::More;
}

QRectF aroundPoint(const present::Region& region)
{
    const QRectF box = cornersOf(region).boundingRect();
    return box.adjusted(-kBesidePoint, -kAboveLetters * box.height(), kBesidePoint, 0.0);
}

void fill(QPainter& painter, const present::Region& region, int strength)
{
    QColor colour = themeColour(ThemeRole::Accent);
    colour.setAlpha(strength);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    if (isSmall(region)) {
        painter.drawRoundedRect(aroundPoint(region), kRounding, kRounding);
    } else {
        painter.drawPolygon(cornersOf(region));
    }
}

// The outline of a cell lies inside of it, so that two cells side by side keep theirs apart.
void outline(QPainter& painter, const present::Region& region, Qt::PenStyle style)
{
    QPen pen(themeColour(ThemeRole::Accent), kFrameWidth, style);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setBrush(Qt::NoBrush);
    if (isSmall(region)) {
        pen.setWidthF(kFrameWidth * 0.75);
        painter.setPen(pen);
        painter.drawRoundedRect(aroundPoint(region), kRounding, kRounding);
        return;
    }
    painter.save();
    QPainterPath inside;
    inside.addPolygon(cornersOf(region));
    inside.closeSubpath();
    painter.setClipPath(inside, Qt::IntersectClip);
    pen.setWidthF(kFrameWidth * 2.0);
    painter.setPen(pen);
    painter.drawPath(inside);
    painter.restore();
}

} // namespace

// Under the pointer lies a sign; it and its lord are lit.
void DiagramView::paintLights(QPainter& painter) const
{
    const present::Region* const under = region(hovered_);
    if (under != nullptr && under->sign != 0) {
        const int lord = analysis::signLord(under->sign);
        for (const present::Region& each : list_.regions) {
            if (each.kind == RegionKind::Point && each.layer == 0 && each.index == lord) {
                fill(painter, each, kLordLight);
            } else if (!isSmall(each) && each.sign == under->sign) {
                fill(painter, each, kSignLight);
            }
        }
    }
    for (const int selected :
         present::regionsOf(list_, selection_, contents_.varga, ascendantSign())) {
        fill(painter, *region(selected), kSignLight);
        // Below the texts, since lines of text stand close together.
        if (isSmall(*region(selected))) {
            outline(painter, *region(selected), Qt::SolidLine);
        }
    }
}

void DiagramView::paintFrames(QPainter& painter) const
{
    for (const int selected :
         present::regionsOf(list_, selection_, contents_.varga, ascendantSign())) {
        if (!isSmall(*region(selected))) {
            outline(painter, *region(selected), Qt::SolidLine);
        }
    }
    if (!hasFocus()) {
        return;
    }
    if (const present::Region* const at = region(cursor_)) {
        outline(painter, *at, Qt::DotLine);
    } else {
        painter.setPen(QPen(themeColour(ThemeRole::Accent), kFrameWidth, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(0.0, 0.0, list_.width, list_.height));
    }
}

} // namespace kestrav::desktop
