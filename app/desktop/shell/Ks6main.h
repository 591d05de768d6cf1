// The main window.
#pragma once

#include "app/desktop/shell/Workspace.h"

#include <QIcon>
#include <QKeySequence>
#include <QMainWindow>

#include <functional>
#include <map>
#include <vector>

class QMenu;
class QSplitter;

namespace kestrav::desktop
{

class DateBar;
class NewsBar;
class PageStrip;

enum class MenuName
{
    File,
    Edit,
    Chart,
    View,
    Pages,
    Options,
    Confirm,
    Tools,
    Help,
};

/// One command of a menu.
struct Command
{
    const char* name = "";   ///< object name of its action
    QString text;            ///< with mnemonic
    QKeySequence keys = {};  ///< standard shortcut
    QString tip = {};        ///< one sentence for the status line and the palette
    const char* icon = "";   ///< name of an icon, see Icons.h
    bool needsChart = false; ///< disabled while no chart is shown
    bool checkable = false;
};

class TKSVform1 : public QMainWindow
{
    Q_OBJECT

public:
    explicit TKSVform1(Workspace& workspace);
    ~TKSVform1() override;

    [[nodiscard]] Workspace& workspace()
    {
        return workspace_;
    }
    [[nodiscard]] PageStrip& pages()
    {
        return *pages_;
    }
    [[nodiscard]] DateBar& dateBar()
    {
        return *dateBar_;
    }
    [[nodiscard]] QMenu* menu(MenuName name);

    /// Adds a command to a menu and to the command palette, and calls the handler when it is
    /// chosen.
    QAction* addCommand(MenuName menu, const Command& command, std::function<void()> handler);
    /// The same for a command of a sub-menu.
    QAction* addCommand(QMenu* menu, const Command& command, std::function<void()> handler);
    /// Every command of the menus, for the palette and the list of keys.
    [[nodiscard]] const QList<QAction*>& commands() const
    {
        return commands_;
    }

    /// Widgets to the left and right of the pages; F9 and F10 show and hide them.
    void setLeftPane(QWidget* pane);
    void setRightPane(QWidget* pane);

    /// Asked in their order before the window closes; the first that says no keeps it open.
    void addCloseQuestion(std::function<bool()> mayClose);
    /// From now on the window closes without asking and keeps nothing of the session.
    void leaveWithoutQuestions();

    /// Window geometry, panes, pages and shared date, kept from run to run.
    void saveSession();
    void restoreSession();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    void makeViewMenu();
    void makeOthers();
    void takeStandardSize();
    void showTitle();

    Workspace& workspace_;
    NewsBar* news_;
    PageStrip* pages_;
    DateBar* dateBar_;
    QSplitter* panes_;
    QWidget* left_ = nullptr;
    QWidget* right_ = nullptr;
    std::map<MenuName, QMenu*> menus_;
    QList<QAction*> commands_;
    QList<QAction*> chartCommands_;
    std::vector<std::function<bool()>> closeQuestions_;
    bool silent_ = false;
};

} // namespace kestrav::desktop
