#include "app/desktop/panels/TableActions.h"

#include "app/desktop/panels/TableExport.h"
#include "app/desktop/panels/TableView.h"

#include <QAction>
#include <QCoreApplication>

#include <utility>

namespace kestrav::desktop
{

QList<QAction*> tableActions(QWidget* owner, Workspace& workspace,
                             const std::function<const TableView*()>& seen)
{
    auto* const copy =
        new QAction(QCoreApplication::translate("TableActions", "Copy &Table"), owner);
    copy->setObjectName(QStringLiteral("CopyTableAction"));
    QObject::connect(copy, &QAction::triggered, owner, [seen] { seen()->copy(); });
    auto* const save =
        new QAction(QCoreApplication::translate("TableActions", "Sa&ve Table..."), owner);
    save->setObjectName(QStringLiteral("SaveTableAction"));
    QObject::connect(save, &QAction::triggered, owner, [owner, &workspace, seen] {
        saveTableAs(seen()->shownTable(), workspace, owner);
    });
    return {copy, save};
}

QList<QAction*> tableActions(QWidget* owner, Workspace& workspace, const TableView* view)
{
    return tableActions(owner, workspace, [view] { return view; });
}

} // namespace kestrav::desktop
