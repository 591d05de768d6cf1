// The commands on database files: opening, saving, copying.
#pragma once

#include "app/desktop/shell/TMessages.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <functional>
#include <string>

class QMenu;

namespace kestrav::desktop
{

class ChartListPane;
class OpenDatabase;
class OpenQueue;
class TKSVform1;

class DatabaseActions : public QObject
{
    Q_OBJECT

public:
    /// Puts the chart list into the window and the commands on databases into its menus.
    explicit DatabaseActions(TKSVform1& window);

    /// Opens a database after asking what becomes of unsaved changes; a chart file of another
    /// program is imported, and a yoga file loaded. What is wrong with the file is told. `then`
    /// learns whether a database was opened; large files are read on another thread.
    void open(const std::filesystem::path& path, std::function<void(bool opened)> then = {});

    /// Opens files that another program asks for, one after the other, each when no dialog is open.
    void openInTurn(const std::filesystem::path& path);

    /// Saves on another thread; asks for another name where the file cannot be written. False when
    /// the user cancels. How it ended is told later.
    bool beginSave();
    bool beginSaveAs();
    /// The same, and waits for the end. False when nothing was saved.
    bool save();
    bool saveAs();
    /// Writes to a file which may be replaced, on another thread, and tells the news at the end.
    void write(const std::filesystem::path& file, const QString& news);
    /// Asks what becomes of unsaved changes before they are lost. False when the user cancels.
    [[nodiscard]] bool mayDropChanges();
    /// No questions at the end, for runs without a user.
    void leaveWithoutQuestions();

    [[nodiscard]] ChartListPane& pane()
    {
        return *pane_;
    }
    [[nodiscard]] TMessages& messages()
    {
        return messages_;
    }

private:
    void addFileCommands();
    void addSaveCommands();
    void NewDatabaseActionClick();
    void OpenActionClick();
    void fillRecent(QMenu& menu);
    void reload();
    void SaveInOtherOrderActionClick();
    void BackupActionClick();
    void RestoreActionClick();
    /// `saveAs` is a name under which the file is saved first and then opened.
    void read(const std::filesystem::path& path, std::function<void(bool opened)> then,
              const std::filesystem::path& saveAs = {});
    bool finishSaving();
    static std::wstring filters();
    void showFirst();
    [[nodiscard]] bool mayLeave();
    [[nodiscard]] OpenDatabase& database();

    TKSVform1& window_;
    TMessages messages_;
    ChartListPane* pane_;
    OpenQueue* queue_;
    bool quiet_ = false;
    bool saved_ = false;
};

} // namespace kestrav::desktop
