#include "app/desktop/panels/PanelWidget.h"

#include "analysis/VargaNames.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/shell/Convert.h"

#include <QApplication>
#include <QEvent>
#include <QShowEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kSmallestZoom = 50;
constexpr int kLargestZoom = 400;

// A font without a size of its own follows that of the program.
void takeZoom(QWidget& panel, int zoom)
{
    QFont font;
    if (zoom != 100) {
        font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * zoom / 100.0);
    }
    panel.setFont(font);
}

} // namespace

QString vargaTitle(int varga)
{
    return toQt(analysis::vargaName(varga));
}

PanelWidget::PanelWidget(Workspace& workspace, present::Panel panel, QWidget* parent)
    : QWidget(parent), panel_(std::move(panel)), workspace_(workspace)
{
    connect(&workspace, &Workspace::chartChanged, this, [this] { whenChanged(OnChart); });
    connect(&workspace, &Workspace::secondChanged, this, [this] { whenChanged(OnSecond); });
    connect(&workspace, &Workspace::momentChanged, this, [this] { whenChanged(OnMoment); });
    connect(&workspace, &Workspace::selectionChanged, this, [this] { whenChanged(OnSelection); });
    connect(&workspace, &Workspace::yogasChanged, this, [this] { whenChanged(OnYogas); });
    connect(&workspace, &Workspace::settingsChanged, this, [this] {
        if (zoom_ != 100) {
            takeZoom(*this, zoom_); // the letters of the program may have changed
        }
        whenChanged(OnSettings);
    });
    connect(&workspace.database(), &OpenDatabase::reset, this, [this] { whenChanged(OnDatabase); });
    dependOn(OnChart);
}

QString PanelWidget::helpName() const
{
    return panel_.content.empty() ? QStringLiteral("diagram") : toQt(panel_.content);
}

QList<QAction*> PanelWidget::panelActions()
{
    return {};
}

std::vector<present::Block> PanelWidget::blocks()
{
    return {};
}

void PanelWidget::setVarga(int varga)
{
    if (varga != panel_.varga) {
        panel_.varga = varga;
        markDue();
        emit captionChanged();
    }
}

void PanelWidget::setStyle(std::optional<present::DiagramStyle> style)
{
    if (style != panel_.style) {
        panel_.style = style;
        markDue();
        emit captionChanged();
    }
}

void PanelWidget::pin(bool pinned)
{
    pinned_ = pinned ? chart() : nullptr;
    markDue();
    emit captionChanged();
}

void PanelWidget::setZoom(int percent)
{
    const int zoom = std::clamp(percent, kSmallestZoom, kLargestZoom);
    if (zoom == zoom_) {
        return;
    }
    zoom_ = zoom;
    takeZoom(*this, zoom_);
    markDue();
}

void PanelWidget::refreshNow()
{
    if (due_) {
        due_ = false;
        refresh();
    }
}

void PanelWidget::dependOn(unsigned dependences)
{
    dependences_ = dependences | OnSettings;
    const auto dependOnChart = [this](present::PanelChart source) {
        dependences_ |= source == present::PanelChart::Second   ? OnSecond
                        : source == present::PanelChart::Moment ? OnMoment | OnChart
                                                                : OnChart;
    };
    dependOnChart(panel_.chart);
    if (panel_.outer) {
        dependOnChart(*panel_.outer);
    }
}

void PanelWidget::whenChanged(unsigned dependence)
{
    if ((dependences_ & dependence) != 0) {
        markDue();
    }
}

void PanelWidget::markDue()
{
    due_ = true;
    if (!isVisible() || queued_) {
        return;
    }
    queued_ = true;
    QTimer::singleShot(0, this, [this] {
        queued_ = false;
        if (isVisible()) {
            refreshNow();
        }
    });
}

ChartPointer PanelWidget::chart() const
{
    if (pinned_) {
        return pinned_;
    }
    switch (panel_.chart) {
    case present::PanelChart::Second:
        return workspace_.secondChart();
    case present::PanelChart::Moment:
        return workspace_.momentChart();
    case present::PanelChart::Natal:
        break;
    }
    return workspace_.chart();
}

void PanelWidget::choose(const present::Link& link)
{
    workspace_.select(link);
}

void PanelWidget::follow(const present::Link& link)
{
    if (link.subject == present::Subject::Moment) {
        workspace_.setMoment(link.moment);
    } else {
        workspace_.select(link);
    }
}

void PanelWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refreshNow();
}

void PanelWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        markDue();
    }
    QWidget::changeEvent(event);
}

} // namespace kestrav::desktop
