#include "app/desktop/options/ChangeOptions.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/ResearchActions.h"
#include "app/desktop/options/OptionNotices.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "data/ResearchDatabase.h"

namespace kestrav::desktop
{

namespace
{

bool hasResearch(Workspace& workspace)
{
    OpenDatabase& database = workspace.database();
    if (database.path().empty()) {
        return false;
    }
    const data::ResearchState state = data::researchState(database.charts(), workspace.settings());
    return state != data::ResearchState::Missing && state != data::ResearchState::Foreign;
}

} // namespace

void changeOptions(TKSVform1& window, core::Settings wanted)
{
    Workspace& workspace = window.workspace();
    const core::Settings before = workspace.settings();
    TMessages messages;
    settleOptions(wanted, before, workspace.changedPoints(), messages);
    workspace.changeSettings(wanted);
    auto* const research = window.findChild<ResearchActions*>();
    if (research == nullptr || !optionsMovePlanets(before, wanted) || !hasResearch(workspace)) {
        return;
    }
    if (!wanted.confirmRefresh || data::agreesToRefreshAfter(before, wanted, messages)) {
        research->refreshNow();
    }
}

} // namespace kestrav::desktop
