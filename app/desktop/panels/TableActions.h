// What the menu of a panel offers for its table.
#pragma once

#include <QList>

#include <functional>

class QAction;
class QWidget;

namespace kestrav::desktop
{

class TableView;
class Workspace;

/// Copy Table and Save Table... for the table that is seen when one of them is chosen. The owner
/// has the actions.
[[nodiscard]] QList<QAction*> tableActions(QWidget* owner, Workspace& workspace,
                                           const std::function<const TableView*()>& seen);

/// The same for a panel with one table.
[[nodiscard]] QList<QAction*> tableActions(QWidget* owner, Workspace& workspace,
                                           const TableView* view);

} // namespace kestrav::desktop
