#include "app/desktop/help/CommandNames.h"

#include "app/desktop/shell/Ks6main.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace kestrav::desktop
{

namespace
{

QString plain(const QAction& action)
{
    return QString(action.text()).remove('&').remove(QStringLiteral("..."));
}

// Moves the commands of a menu from the one list to the other.
void addMenu(const QMenu& menu, const QString& top, const QString& before,
             QList<QAction*>& commands, QList<CommandName>& names)
{
    for (QAction* const action : menu.actions()) {
        if (const QMenu* const inner = action->menu()) {
            addMenu(*inner, top, before + plain(*action) + QStringLiteral(": "), commands, names);
        } else if (commands.removeOne(action)) {
            names.push_back({action, top, before + plain(*action)});
        }
    }
}

} // namespace

QList<CommandName> commandNames(TKSVform1& window)
{
    QList<QAction*> commands = window.commands();
    QList<CommandName> names;
    for (const QAction* const top : window.menuBar()->actions()) {
        if (const QMenu* const menu = top->menu()) {
            addMenu(*menu, plain(*top), {}, commands, names);
        }
    }
    for (QAction* const action : commands) {
        names.push_back({action, {}, plain(*action)});
    }
    return names;
}

} // namespace kestrav::desktop
