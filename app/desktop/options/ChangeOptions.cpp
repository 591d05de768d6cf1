#include "app/desktop/options/ChangeOptions.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/options/OptionNotices.h"
#include "app/desktop/options/OptionsActions.h"
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
    const bool moved =
        data::researchSettingsText(before) != data::researchSettingsText(workspace.settings());
    if (!moved || !hasResearch(workspace)) {
        return;
    }
    if (!wanted.confirmRefresh ||
        data::agreesToRefreshAfter(before, workspace.settings(), messages)) {
        if (const auto* const actions = window.findChild<OptionsActions*>()) {
            actions->refreshResearch();
        }
    }
}

} // namespace kestrav::desktop
