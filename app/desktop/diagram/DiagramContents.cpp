#include "app/desktop/diagram/DiagramContents.h"

#include <QCoreApplication>

#include <utility>

namespace kestrav::desktop
{

DiagramContents diagramContents(const Workspace& workspace, const present::Panel& panel,
                                ChartPointer chart)
{
    const core::Settings& settings = workspace.settings();
    DiagramContents contents;
    contents.chart = std::move(chart);
    contents.varga = panel.varga;
    contents.style = panel.style.value_or(present::DiagramStyle(settings.diagramStyle));
    contents.options = present::diagramOptionsOf(settings);
    if (contents.chart) {
        contents.options.changed = contents.chart->changed;
    }
    contents.note = panel.chart == present::PanelChart::Second
                        ? QCoreApplication::translate("Diagram", "No second chart is open.")
                        : QCoreApplication::translate("Diagram", "No chart is open.");
    return contents;
}

} // namespace kestrav::desktop
