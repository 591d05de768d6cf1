#include "app/desktop/timing/DashaChoice.h"

#include "core/Points.h"
#include "timing/DashaTable.h"

namespace kestrav::desktop
{

DashaChoice::DashaChoice(Workspace& workspace) : QObject(&workspace), workspace_(workspace)
{
    connect(&workspace, &Workspace::settingsChanged, this, [this](const core::Settings& before) {
        if (before.dashaSystem != workspace_.settings().dashaSystem && chosen_) {
            chosen_.reset();
            emit changed();
        }
    });
}

DashaChoice& DashaChoice::of(Workspace& workspace)
{
    auto* found = workspace.findChild<DashaChoice*>(QString(), Qt::FindDirectChildrenOnly);
    return found != nullptr ? *found : *new DashaChoice(workspace);
}

int DashaChoice::system() const
{
    return chosen_.value_or(workspace_.settings().dashaSystem);
}

bool DashaChoice::isStandard() const
{
    return system() == workspace_.settings().dashaSystem;
}

void DashaChoice::choose(int system)
{
    if (system >= 0 && system < timing::kNamedDashaSystems && system != this->system()) {
        chosen_ = system;
        emit changed();
    }
}

void DashaChoice::makeStandard()
{
    core::Settings settings = workspace_.settings();
    settings.dashaSystem = system();
    workspace_.changeSettings(settings);
}

timing::DashaOptions DashaChoice::options(const ChartPointer& chart) const
{
    timing::DashaOptions options = timing::dashaOptions(workspace_.settings());
    options.system = system();
    options.sunModified = chart->changed[core::kSun];
    return options;
}

core::Result<timing::Dasha> DashaChoice::dashaOf(const ChartPointer& chart) const
{
    return timing::dashaOf(chart->chart, chart->settings, options(chart),
                           workspace_.data()->series);
}

} // namespace kestrav::desktop
