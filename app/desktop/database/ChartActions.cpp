#include "app/desktop/database/ChartActions.h"

#include "app/desktop/database/ChartListPane.h"
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "data/DatabaseMessages.h"

#include <QAction>
#include <QMenu>
#include <QTreeView>

#include <algorithm>
#include <set>

namespace kestrav::desktop
{

using core::Answer;
using core::Buttons;

ChartActions::ChartActions(TKSVform1& window, DatabaseActions& files)
    : QObject(&window), window_(window), files_(files), database_(window.workspace().database())
{
    addUndoCommands();
    addChartCommands();
    addGroupCommands();
    connect(&files_.pane(), &ChartListPane::menuWanted, this,
            [this](QMenu* menu) { fillContextMenu(*menu); });
    connect(&database_, &OpenDatabase::linesEdited, this, &ChartActions::followShownChart);
    connect(&database_, &OpenDatabase::opened, this, [this] { lost_.clear(); });
}

void ChartActions::addUndoCommands()
{
    QUndoStack& stack = database_.undoStack();
    QAction* const undo =
        window_.addCommand(MenuName::Edit,
                           {"UndoAction", tr("&Undo"), QKeySequence(tr("Ctrl+Z")),
                            tr("Takes back the last change of the database"), "edit-undo"},
                           [&stack] { stack.undo(); });
    QAction* const redo =
        window_.addCommand(MenuName::Edit,
                           {"RedoAction", tr("&Redo"), QKeySequence(tr("Ctrl+Shift+Z")),
                            tr("Does again what was taken back"), "edit-redo"},
                           [&stack] { stack.redo(); });
    undo->setEnabled(stack.canUndo());
    redo->setEnabled(stack.canRedo());
    connect(&stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    const auto escaped = [](QString text) {
        return text.replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    connect(&stack, &QUndoStack::undoTextChanged, undo, [undo, escaped](const QString& text) {
        undo->setText(text.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(escaped(text)));
    });
    connect(&stack, &QUndoStack::redoTextChanged, redo, [redo, escaped](const QString& text) {
        redo->setText(text.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(escaped(text)));
    });
    window_.menu(MenuName::Edit)->addSeparator();
}

void ChartActions::addChartCommands()
{
    window_.addCommand(MenuName::Edit,
                       {"FilterAction", tr("&Find a Chart"), QKeySequence(tr("Ctrl+F")),
                        tr("Filters the chart list by name or date"), "edit-find"},
                       [this] { files_.pane().focusFilter(); });
    QAction* const rename =
        window_.addCommand(MenuName::Edit,
                           {"RenameChartAction", tr("Re&name Chart"), QKeySequence(Qt::Key_F2),
                            tr("Gives the chart of the list another name"), "edit-rename"},
                           [this] { RenameChartActionClick(); });
    QAction* const remove =
        window_.addCommand(MenuName::Edit,
                           {"DeleteChartAction", tr("&Delete Chart"), QKeySequence(Qt::Key_Delete),
                            tr("Takes the selected charts out of the database"), "edit-delete"},
                           [this] { DeleteChartActionClick(); });
    // Elsewhere the key deletes letters.
    remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    files_.pane().list().addAction(remove);
    chartCommands_ = {rename, remove};
}

void ChartActions::addGroupCommands()
{
    groups_ = window_.menu(MenuName::Edit)->addMenu(tr("&Groups"));
    const auto add = [this](const char* name, const QString& text, const QString& tip,
                            wchar_t group, GroupChange how) {
        window_.addCommand(groups_, {name, text, {}, tip},
                           [this, group, how] { changeGroup(group, how); });
    };
    add("SetGroupAAction", tr("Selected Charts Are the &A Group"),
        tr("Gives the tag A to the selected charts and takes it from all others"), L'A',
        GroupChange::Exactly);
    add("AddGroupAAction", tr("A&dd Selected Charts to the A Group"), {}, L'A', GroupChange::Add);
    add("LeaveGroupAAction", tr("&Take Selected Charts out of the A Group"), {}, L'A',
        GroupChange::TakeOut);
    groups_->addSeparator();
    add("SetGroupBAction", tr("Selected Charts Are the &B Group"),
        tr("Gives the tag B to the selected charts and takes it from all others"), L'B',
        GroupChange::Exactly);
    add("AddGroupBAction", tr("Add Selected C&harts to the B Group"), {}, L'B', GroupChange::Add);
    add("LeaveGroupBAction", tr("Ta&ke Selected Charts out of the B Group"), {}, L'B',
        GroupChange::TakeOut);
}

void ChartActions::fillContextMenu(QMenu& menu)
{
    const bool any = !files_.pane().selectedLines().empty();
    for (const char* const name : {"EditChartAction", "RenameChartAction", "DeleteChartAction"}) {
        if (auto* const action = window_.findChild<QAction*>(QLatin1String(name))) {
            menu.addAction(action);
        }
    }
    menu.addSeparator();
    menu.addMenu(groups_)->setEnabled(any);
}

void ChartActions::DeleteChartActionClick()
{
    const std::vector<std::size_t> selected = files_.pane().selectedLines();
    if (selected.empty()) {
        database_.deleteRecord(window_.workspace().chartLine(), files_.messages());
        return;
    }
    if (selected.size() == 1) {
        database_.deleteRecord(selected.front(), files_.messages());
        return;
    }
    std::vector<std::size_t> agreed;
    for (const std::size_t line : selected) {
        const std::wstring question =
            data::deleteQuestion(data::nameOfLine(database_.charts().line(line)));
        const Answer answer =
            window_.workspace().settings().confirmDelete
                ? files_.messages().show(data::kNoticeCaption, question, Buttons::YesNoCancel)
                : Answer::Yes;
        if (answer == Answer::Cancel) {
            return;
        }
        if (answer == Answer::Yes) {
            agreed.push_back(line);
        }
    }
    database_.deleteRecords(std::move(agreed));
}

void ChartActions::RenameChartActionClick()
{
    const QTreeView& list = files_.pane().list();
    const std::vector<std::size_t> selected = files_.pane().selectedLines();
    std::optional<std::size_t> line = window_.workspace().chartLine();
    if (selected.size() == 1 && (list.hasFocus() || !line)) {
        line = selected.front();
    }
    if (!line) {
        window_.workspace().tellProblem(
            tr("Choose a chart in the list, then it can be given another name."));
        return;
    }
    if (files_.pane().editName(*line)) {
        return;
    }
    // The filter hides it, so its name is asked for.
    const auto name = TMessages::text(&window_, tr("Rename Chart"), tr("Name:"),
                                      toQt(data::nameOfLine(database_.charts().line(*line))));
    QString problem;
    if (name && !database_.renameRecord(*line, *name, problem)) {
        window_.workspace().tellProblem(problem);
    }
}

void ChartActions::changeGroup(wchar_t group, GroupChange how)
{
    std::vector<std::size_t> lines = files_.pane().selectedLines();
    if (how != GroupChange::Exactly) {
        const bool add = how == GroupChange::Add;
        std::set<std::size_t> members;
        for (const data::ChooserRow& row : database_.list().rows) {
            if (row.tag == group) {
                members.insert(row.line);
            }
        }
        for (const std::size_t line : lines) {
            if (add) {
                members.insert(line);
            } else {
                members.erase(line);
            }
        }
        lines.assign(members.begin(), members.end());
    }
    if (!database_.writable() && !files_.saveAs()) {
        return;
    }
    // The tags are written to the file, and with them what was typed.
    emit database_.editsDue();
    database_.waitForSave();
    SettledMessages settled(files_.messages(), window_.workspace().settings());
    const auto file = data::agreesToChangeGroup(group, settled)
                          ? data::agreeToSave(database_.charts(), database_.path(), settled)
                          : std::nullopt;
    if (!file) {
        return;
    }
    database_.change(group == L'A' ? tr("A Group Tags") : tr("B Group Tags"),
                     [&](data::ChartDatabase& charts) {
                         data::setGroup(charts, group, lines);
                         return data::Outcome::Done;
                     });
    files_.write(*file, tr("Saved %1").arg(toQt(data::fileText(*file))));
}

void ChartActions::followShownChart(const std::vector<LineEdit>& edits)
{
    Workspace& workspace = window_.workspace();
    std::optional<std::size_t> line = workspace.chartLine();
    bool changed = false;
    for (const LineEdit& edit : edits) {
        if (!line && !edit.before && !lost_.empty() && edit.after == lost_) {
            line = edit.line;
            lost_.clear();
        } else if (line && edit.line <= *line &&
                   edit.before.has_value() != edit.after.has_value()) {
            if (edit.after) {
                ++*line;
            } else if (edit.line < *line) {
                --*line;
            } else {
                lost_ = *edit.before;
                line.reset();
            }
        } else if (line && edit.line == *line) {
            changed = true;
        }
    }
    workspace.setChartLine(line);
    if (line && changed) {
        workspace.showLine(*line);
    }
}

} // namespace kestrav::desktop
