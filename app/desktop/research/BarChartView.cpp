#include "app/desktop/research/BarChartView.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"

#include <QFontInfo>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace kestrav::desktop
{

BarChartView::BarChartView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("BarChartView"));
    setFocusPolicy(Qt::TabFocus);
}

void BarChartView::setModel(present::BarChartModel model)
{
    model_ = std::move(model);
    layOut();
}

present::DisplayList BarChartView::drawingForPaper() const
{
    present::BarChartOptions options;
    options.scheme = present::ColourScheme::Print;
    return present::layoutBarChart(model_, options);
}

void BarChartView::layOut()
{
    present::BarChartOptions options;
    options.width = width();
    options.scheme = schemeOf(*this);
    options.fontSize = QFontInfo(font()).pixelSize();
    options.measure = measureWith(font());
    list_ = present::layoutBarChart(model_, options);
    setMinimumHeight(int(list_.height) + 1);
    setAccessibleName(toQt(list_.title));
    setAccessibleDescription(toQt(list_.description));
    update();
}

bool BarChartView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        const int region =
            present::regionAt(list_, {double(help->pos().x()), double(help->pos().y())});
        if (region >= 0) {
            QToolTip::showText(help->globalPos(),
                               toQt(list_.regions[std::size_t(region)].tip).trimmed(), this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(event);
}

void BarChartView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintDisplayList(painter, list_, font());
}

void BarChartView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void BarChartView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        layOut();
    }
}

} // namespace kestrav::desktop
