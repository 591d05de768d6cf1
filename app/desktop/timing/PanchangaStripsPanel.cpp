#include "app/desktop/timing/PanchangaStripsPanel.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/timing/DayRequest.h"
#include "app/present/PanchangaStrips.h"

#include <utility>

namespace kestrav::desktop
{

PanchangaStripsPanel::PanchangaStripsPanel(Workspace& workspace, present::Panel panel,
                                           QWidget* parent)
    : StripPanel(workspace, std::move(panel), parent)
{
    dependOn(OnChart | OnMoment);
    // The day does not change while the moment moves within it; place and names do.
    connect(&workspace, &Workspace::chartChanged, this, &PanchangaStripsPanel::forgetModel);
}

QString PanchangaStripsPanel::title() const
{
    return tr("Strips of the day");
}

void PanchangaStripsPanel::refresh()
{
    if (moveLine()) {
        return;
    }
    using Made = core::Result<timing::PanchangaDay>;
    work_.start([request = dayRequest(workspace(), chart())](
                    const WorkHandle& /*handle*/) { return request.make(); },
                [this](Made made) {
                    if (made) {
                        showModel(present::panchangaStrips(made.value(),
                                                           workspace().settings().twelveHourClock));
                    } else {
                        showNote(tr("Not computed: %1").arg(toQt(made.error().text())));
                    }
                });
}

} // namespace kestrav::desktop
