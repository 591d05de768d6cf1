#include "app/desktop/database/ResearchActions.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/research/ResearchDesk.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "data/ResearchDatabase.h"

namespace kestrav::desktop
{

ResearchActions::ResearchActions(TKSVform1& window) : QObject(&window), window_(window)
{
    window.addCommand(MenuName::File,
                      {"RefreshResearchAction",
                       tr("Refresh Research Data&base..."),
                       {},
                       tr("Computes the positions of all charts for sorting, searches and tables"),
                       "view-refresh"},
                      [this] { refresh(); });
    ResearchDesk& desk = ResearchDesk::of(window.workspace());
    desk.setPlace({&window, [this] {
                       auto* const actions = window_.findChild<DatabaseActions*>();
                       return actions != nullptr && actions->saveAs();
                   }});
    connect(&desk, &ResearchDesk::refreshed, this, &ResearchActions::refreshed);
}

void ResearchActions::refresh()
{
    TMessages messages;
    SettledMessages settled(messages, window_.workspace().settings());
    if (data::agreesToRefresh(settled)) {
        refreshNow();
    }
}

void ResearchActions::refreshNow()
{
    ResearchDesk::of(window_.workspace()).refresh();
}

bool optionsMovePlanets(const core::Settings& before, const core::Settings& after)
{
    return data::researchSettingsText(before) != data::researchSettingsText(after);
}

} // namespace kestrav::desktop
