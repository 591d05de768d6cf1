#include "app/desktop/diagram/DiagramPanel.h"

#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/Diagram.h"
#include "app/present/TerminalDrawing.h"

#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

// The side of a printed diagram in the units of a page.
constexpr double kPrintedSize = 360.0;

} // namespace

DiagramPanel::DiagramPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), view_(new DiagramView(this))
{
    setObjectName(QStringLiteral("DiagramPanel"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view_);
    setFocusProxy(view_);
    dependOn(OnChart);
}

QString DiagramPanel::title() const
{
    return vargaTitle(panel_.varga);
}

void DiagramPanel::refresh()
{
    DiagramContents contents;
    contents.chart = chart();
    contents.varga = panel_.varga;
    contents.style =
        panel_.style.value_or(present::DiagramStyle(workspace().settings().diagramStyle));
    view_->setContents(std::move(contents));
}

std::vector<present::Block> DiagramPanel::blocks()
{
    refreshNow();
    present::Drawing drawing;
    drawing.list = view_->layOut(kPrintedSize, present::ColourScheme::Print);
    return {present::DrawingRow{{std::move(drawing)}}};
}

} // namespace kestrav::desktop
