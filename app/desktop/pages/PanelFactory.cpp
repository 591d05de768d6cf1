#include "app/desktop/pages/PanelFactory.h"

#include "app/desktop/compare/ComparePanel.h"
#include "app/desktop/diagram/DiagramGridPanel.h"
#include "app/desktop/diagram/DiagramPanel.h"
#include "app/desktop/inspector/HeatPanel.h"
#include "app/desktop/inspector/InspectorPanel.h"
#include "app/desktop/notes/NotesPanel.h"
#include "app/desktop/panels/TablePanel.h"
#include "app/desktop/panels/TextPanel.h"
#include "app/desktop/panels/UnknownPanel.h"
#include "app/desktop/report/TReportForm.h"
#include "app/desktop/research/NativesPanel.h"
#include "app/desktop/research/ResearchPanel.h"
#include "app/desktop/timing/DashaTreePanel.h"
#include "app/desktop/timing/EphemerisPanel.h"
#include "app/desktop/timing/EphemerisStripPanel.h"
#include "app/desktop/timing/EventsPanel.h"
#include "app/desktop/timing/LifeBarPanel.h"
#include "app/desktop/timing/PanchangaStripsPanel.h"
#include "app/desktop/timing/TPanchangForm.h"
#include "app/desktop/timing/TransitListingPanel.h"
#include "app/desktop/timing/TrialTimesPanel.h"
#include "app/desktop/yogas/Ytyogatree.h"

#include <string_view>

namespace kestrav::desktop
{

namespace
{

using Make = PanelWidget* (*)(Workspace&, const present::Panel&, QWidget*);

template <typename Widget>
PanelWidget* make(Workspace& workspace, const present::Panel& panel, QWidget* parent)
{
    return new Widget(workspace, panel, parent);
}

struct ViewRow
{
    std::string_view name;
    Make make;
};

// The views by the names of present::panelViews().
// clang-format off
constexpr ViewRow kViews[] = {
    {"notes", make<NotesPanel>},
    {"compare", make<ComparePanel>},
    {"report", make<TReportForm>},
    {"varga-grid", make<VargaGridPanel>},
    {"bindu-grid", make<BinduGridPanel>},
    {"inspector", make<InspectorPanel>},
    {"heat", make<HeatPanel>},
    {"dasha-tree", make<DashaTreePanel>},
    {"life-bar", make<LifeBarPanel>},
    {"panchanga", make<TPanchangForm>},
    {"panchanga-strips", make<PanchangaStripsPanel>},
    {"yoga-tree", make<TYogaTreeForm>},
    {"natives", make<NativesPanel>},
    {"research", make<ResearchPanel>},
    {"transit-listing", make<TransitListingPanel>},
    {"ephemeris", make<EphemerisPanel>},
    {"ephemeris-strip", make<EphemerisStripPanel>},
    {"events", make<EventsPanel>},
    {"trial-times", make<TrialTimesPanel>},
};
// clang-format on

} // namespace

PanelWidget* makePanel(Workspace& workspace, const present::Panel& panel, QWidget* parent)
{
    switch (panel.kind) {
    case present::PanelKind::Diagram:
        return new DiagramPanel(workspace, panel, parent);
    case present::PanelKind::Table:
        return new TablePanel(workspace, panel, parent);
    case present::PanelKind::Text:
        return new TextPanel(workspace, panel, parent);
    case present::PanelKind::View:
        break;
    }
    for (const ViewRow& row : kViews) {
        if (row.name == panel.content) {
            return row.make(workspace, panel, parent);
        }
    }
    return new UnknownPanel(workspace, panel, parent);
}

} // namespace kestrav::desktop
