#include "app/desktop/database/ConfirmMenu.h"

#include "app/desktop/shell/Ks6main.h"

#include <QAction>

namespace kestrav::desktop
{

namespace
{

using Member = bool core::Settings::*;

void addEntry(TKSVform1& window, const char* name, const QString& text, const QString& tip,
              Member member)
{
    Command command{name, text, {}, tip};
    command.checkable = true;
    Workspace& workspace = window.workspace();
    // The handler reads the settings, which are what the entry shows.
    QAction* const action = window.addCommand(MenuName::Confirm, command, [&workspace, member] {
        core::Settings settings = workspace.settings();
        settings.*member = !(settings.*member);
        workspace.changeSettings(settings);
    });
    action->setChecked(workspace.settings().*member);
    QObject::connect(&workspace, &Workspace::settingsChanged, action, [action, &workspace, member] {
        action->setChecked(workspace.settings().*member);
    });
}

} // namespace

void addConfirmMenu(TKSVform1& window)
{
    const auto text = [](const char* words) {
        return TKSVform1::tr(words);
    };
    addEntry(window, "ConfirmShortYearAction", text("&Year of Less Than Four Digits"),
             text("Ask before a chart with such a year is saved"),
             &core::Settings::confirmShortYear);
    addEntry(window, "ConfirmNowRecordAction", text("Saving the '&Now' Record"),
             text("Ask before the chart of the moment is saved"),
             &core::Settings::confirmNowRecord);
    addEntry(window, "ConfirmDeleteAction", text("&Deleting a Chart"),
             text("Ask before a chart is deleted"), &core::Settings::confirmDelete);
    addEntry(window, "ConfirmGroupsAction", text("&Group Tags"),
             text("Ask before the tags of a group are changed"), &core::Settings::confirmGroups);
    addEntry(window, "ConfirmLeaveAction", text("&Leaving the Program"),
             text("Ask before the program ends"), &core::Settings::confirmLeave);
    addEntry(window, "ConfirmRefreshAction", text("&Refreshing the Research Database"),
             text("Ask before the research database is built anew"),
             &core::Settings::confirmRefresh);
    addEntry(window, "WarnAtlasValuesAction", text("&Atlas Values"),
             text("Warn that zone and daylight saving from the atlas should be checked"),
             &core::Settings::warnAtlasValues);
}

} // namespace kestrav::desktop
