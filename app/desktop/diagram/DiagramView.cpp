#include "app/desktop/diagram/DiagramView.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/Diagram.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kMargin = 6.0;
constexpr double kSmallestSide = 40.0;

} // namespace

DiagramView::DiagramView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("DiagramView"));
    setFocusPolicy(Qt::StrongFocus);
}

void DiagramView::setContents(DiagramContents contents)
{
    contents_ = std::move(contents);
    rebuild();
}

double DiagramView::side() const
{
    return std::max(kSmallestSide, std::min(width(), height()) - 2.0 * kMargin);
}

present::DisplayList DiagramView::layOut(double size, present::ColourScheme scheme) const
{
    if (!contents_.chart) {
        return {};
    }
    const present::ComputedChart& shown = *contents_.chart;
    const present::DiagramSubject subject{shown.chart, shown.settings, contents_.varga,
                                          contents_.outer ? &contents_.outer->chart : nullptr};
    present::DiagramOptions options = contents_.options;
    options.english = (shown.settings.displayFlags & 1) != 0;
    options.scheme = scheme;
    options.centre = present::centreLines(subject, options.english);
    options.measure = measureWith(font());
    return present::layoutDiagram(subject, contents_.style, options, size);
}

void DiagramView::rebuild()
{
    list_ = layOut(side(), schemeOf(*this));
    setAccessibleName(toQt(list_.title));
    setAccessibleDescription(toQt(list_.description));
    update();
}

QSize DiagramView::sizeHint() const
{
    const int side = fontMetrics().height() * 18;
    return {side, side};
}

QSize DiagramView::minimumSizeHint() const
{
    const int side = fontMetrics().height() * 5;
    return {side, side};
}

void DiagramView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.translate((width() - list_.width) / 2.0, (height() - list_.height) / 2.0);
    paintDisplayList(painter, list_, font());
}

void DiagramView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    rebuild();
}

} // namespace kestrav::desktop
