#include "app/desktop/timing/LifeBarPanel.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/timing/DashaChoice.h"
#include "app/present/DashaTables.h"
#include "app/present/LifeBar.h"

#include <utility>

namespace kestrav::desktop
{

namespace
{

// The bar of cycles shorter than a life would be a crowd of strokes.
constexpr double kShortestCycle = 10.0;

double yearsShown(const timing::Dasha& dasha)
{
    const double cycle = dasha.plan.totals[0];
    return cycle < kShortestCycle ? cycle : present::kLifeYears;
}

} // namespace

LifeBarPanel::LifeBarPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : StripPanel(workspace, std::move(panel), parent)
{
    dependOn(OnChart | OnMoment);
    connect(&DashaChoice::of(workspace), &DashaChoice::changed, this, [this] {
        markDue();
        emit captionChanged();
    });
}

QString LifeBarPanel::title() const
{
    return tr("Bar of the life: %1")
        .arg(toQt(present::dashaSystemName(DashaChoice::of(workspace()).system())));
}

void LifeBarPanel::refresh()
{
    const ChartPointer chart = this->chart();
    if (!chart) {
        shown_.reset();
        showNote(tr("No chart is open."));
        return;
    }
    const DashaChoice& choice = DashaChoice::of(workspace());
    if (chart == shown_ && choice.system() == system_ && moveLine()) {
        return;
    }
    shown_ = chart;
    system_ = choice.system();
    emit captionChanged();
    using Made = core::Result<present::StripModel>;
    work_.start(
        [chart, options = choice.options(chart), data = workspace().data(),
         moment = workspace().moment()](const WorkHandle& /*handle*/) -> Made {
            const auto dasha =
                timing::dashaOf(chart->chart, chart->settings, options, data->series);
            if (!dasha) {
                return dasha.error();
            }
            return present::lifeBar(*chart, dasha.value(), moment, yearsShown(dasha.value()));
        },
        [this](Made made) {
            if (made) {
                showModel(std::move(made.value()));
            } else {
                showNote(tr("Not computed: %1").arg(toQt(made.error().text())));
            }
        });
}

} // namespace kestrav::desktop
