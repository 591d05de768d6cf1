// The commands of the window as lists name them.
#pragma once

#include <QList>
#include <QString>

class QAction;

namespace kestrav::desktop
{

class TKSVform1;

struct CommandName
{
    QAction* action = nullptr;
    QString menu; ///< of the menu bar; empty for a command that stands in none
    QString name; ///< behind the names of the menus inside of that one: "Export: QCK Chart List"
};

/// All commands in the order of the menus, and behind them those of no menu.
[[nodiscard]] QList<CommandName> commandNames(TKSVform1& window);

} // namespace kestrav::desktop
