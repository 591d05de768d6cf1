#include "app/desktop/options/OptionPreview.h"

#include "app/desktop/diagram/DiagramView.h"
#include "app/present/BirthRecord.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"

#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

ChartPointer chartUnder(const Workspace& workspace, const core::Settings& settings)
{
    const core::Chart record = workspace.chart() ? workspace.record() : workspace.nowRecord();
    if (!present::birthProblem(record).empty()) {
        return nullptr;
    }
    auto computed = std::make_shared<present::ComputedChart>();
    computed->chart = record;
    computed->chart.place = present::placeLabel(record);
    computed->settings = settings;
    computed->hasPlace =
        !record.identity.longitudeText.empty() && !record.identity.latitudeText.empty();
    astro::EphemerisContext context(workspace.data()->series);
    present::computeFromBirthData(*computed, context);
    return computed;
}

OptionPreview::OptionPreview(const Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace), view_(new DiagramView(this))
{
    view_->setObjectName(QStringLiteral("PreviewDiagram"));
    view_->setFocusPolicy(Qt::NoFocus);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(view_);
}

void OptionPreview::show(const core::Settings& settings)
{
    DiagramContents contents;
    contents.chart = chartUnder(workspace_, settings);
    contents.style = present::DiagramStyle(settings.diagramStyle);
    contents.options = present::diagramOptionsOf(settings);
    view_->setContents(std::move(contents));
}

} // namespace kestrav::desktop
