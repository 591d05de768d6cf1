// The commands on the charts of the open database: undo, rename, delete, groups.
#pragma once

#include "app/desktop/database/OpenDatabase.h"

#include <QObject>

#include <cstddef>
#include <string>
#include <vector>

class QAction;
class QMenu;

namespace kestrav::desktop
{

class DatabaseActions;
class TKSVform1;

class ChartActions : public QObject
{
    Q_OBJECT

public:
    ChartActions(TKSVform1& window, DatabaseActions& files);

private:
    enum class GroupChange
    {
        Exactly, ///< the selected charts are the group
        Add,
        TakeOut,
    };

    void addUndoCommands();
    void addChartCommands();
    void addGroupCommands();
    void fillContextMenu(QMenu& menu);
    void DeleteChartActionClick();
    void RenameChartActionClick();
    void changeGroup(wchar_t group, GroupChange how);
    void followShownChart(const std::vector<LineEdit>& edits);

    TKSVform1& window_;
    DatabaseActions& files_;
    OpenDatabase& database_;
    std::vector<QAction*> chartCommands_;
    QMenu* groups_ = nullptr;
    std::string lost_; ///< the line of the shown chart, when it was deleted
};

} // namespace kestrav::desktop
