// The database that is open in the window.
#pragma once

#include "core/Messages.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/Chooser.h"
#include "data/DatabaseCommands.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QFileSystemWatcher;
class QTimer;

namespace kestrav::desktop
{

class BackgroundWork;

/// One line before and after a step: nothing before for a line that is added, nothing after for one
/// that is taken out.
struct LineEdit
{
    std::size_t line = 0;
    std::optional<std::string> before;
    std::optional<std::string> after;
};

/// The charts in memory, what the chart list shows of them, and the steps that can be undone. Every
/// change goes through this class; the database itself is handed out for reading.
class OpenDatabase : public QObject
{
    Q_OBJECT

public:
    /// What a worker reads of a file, for adopt().
    struct Content
    {
        data::ChartDatabase charts;
        data::ChooserList list;
    };

    /// What a worker made of a copy of the charts, for adoptChange(). The list is needed only where
    /// several lines are changed.
    struct Changed
    {
        Content content;
        std::vector<LineEdit> edits;
        data::Outcome outcome = data::Outcome::Cancelled;
    };

    explicit OpenDatabase(data::DateOrder order, QObject* parent = nullptr);
    ~OpenDatabase() override;

    /// Opens a file; the one before stays open when that fails.
    [[nodiscard]] core::Result<void> load(const std::filesystem::path& path);
    /// Takes the place of everything; nothing can be undone then.
    void adopt(Content content);
    /// Which questions are asked, and the date order of what is written.
    void follow(const core::Settings& settings);

    [[nodiscard]] data::ChartDatabase& charts()
    {
        return charts_;
    }
    [[nodiscard]] const std::filesystem::path& path() const
    {
        return charts_.path();
    }
    /// Whether there is something that is not in the file: steps since it was read or saved, or
    /// while it is being saved.
    [[nodiscard]] bool modified() const
    {
        return !undo_.isClean() || (saving() && savesChanges_);
    }
    /// Counts what was done to the lines, so that a worker's result for other lines is known.
    [[nodiscard]] int revision() const
    {
        return revision_;
    }
    /// Whether the file, or a new one in its folder, can be written.
    [[nodiscard]] bool writable() const;
    /// What the chart list shows of every line.
    [[nodiscard]] const data::ChooserList& list() const
    {
        return list_;
    }
    /// The index of a line's row in list().rows; nothing where the line is too short to be a chart.
    [[nodiscard]] std::optional<std::size_t> rowOf(std::size_t line) const;
    /// The chart of a line; nothing where the line is too short to be one or does not exist.
    [[nodiscard]] std::optional<core::Chart> record(std::size_t line);

    /// Puts a chart in, after the questions about its year, its name and the record of the moment
    /// as far as they are switched on. A chart of the same name is replaced when the user agrees.
    /// `own` is the line that the chart was read from, which is meant where several charts have its
    /// name. The index of its line, or nothing when the user cancelled. The file is not written.
    std::optional<std::size_t> saveRecord(const core::Chart& chart, core::Messages& messages,
                                          std::optional<std::size_t> own = std::nullopt);
    /// Takes the chart of a line out without a question. False when there is no such line.
    bool deleteRecord(std::size_t line);
    /// The same after the question. No line stands for a chart that was never saved, which is told.
    bool deleteRecord(std::optional<std::size_t> line, core::Messages& messages);
    /// Several lines in one step.
    void deleteRecords(std::vector<std::size_t> lines);
    /// Gives the chart another name. False, with the reason, for a name that cannot be one.
    bool renameRecord(std::size_t line, const QString& name, QString& problem);
    using Work = std::function<data::Outcome(data::ChartDatabase&)>;

    /// Any other change: the work is done on a copy, and one step is made of what it changed.
    data::Outcome change(const QString& text, const Work& work);
    /// Does such work on a copy, on any thread.
    [[nodiscard]] static Changed changedCopy(const data::ChartDatabase& charts, const Work& work);
    /// Makes one step of what was changed, which was done to the lines as they are now.
    void adoptChange(const QString& text, Changed changed);

    using Saved = std::function<void(const core::Result<void>&)>;

    /// Begins to write the lines as they are now to a file, which is the database's own when that
    /// is done. Another thread writes; steps meanwhile are not saved. `then` learns how it ended.
    /// Whether a file may be replaced is for the caller to ask.
    void beginSave(const std::filesystem::path& path, Saved then);
    [[nodiscard]] bool saving() const;
    /// Waits for the end of what is being saved. The window is painted meanwhile, but the user's
    /// input waits as well.
    void waitForSave();

    [[nodiscard]] QUndoStack& undoStack()
    {
        return undo_;
    }

signals:
    /// Another file, or the same one read anew.
    void opened();
    /// Everything may have changed: another file, or many lines.
    void reset();
    /// One line has changed; the list shows it already.
    void lineChanged(std::size_t line);
    void lineInserted(std::size_t line);
    void lineRemoved(std::size_t line);
    /// What a step, done or undone, did to the lines, in its order; after the signals above.
    void linesEdited(const std::vector<kestrav::desktop::LineEdit>& edits);
    void modifiedChanged();
    /// Before the database is saved, replaced or left: panels put into it what was typed in them.
    void editsDue();
    /// Another program changed the file, or took it away.
    void changedByOthers();

private:
    class Step;

    void pushStep(const QString& text, std::vector<LineEdit> edits);
    void apply(const std::vector<LineEdit>& edits);
    void applyToLines(const LineEdit& edit);
    void applyToList(const LineEdit& edit);
    void relist();
    void finishSave(const std::filesystem::path& path, const core::Result<data::FileStamp>& saved);
    void watch();
    void lookAtFile();

    data::ChartDatabase charts_;
    data::ChooserList list_;
    core::Settings settings_;
    QUndoStack undo_;
    QFileSystemWatcher* watcher_;
    QTimer* lookTimer_;
    BackgroundWork* saving_;
    bool savesChanges_ = false;
    int revision_ = 0;
    bool toldChange_ = false;
};

} // namespace kestrav::desktop
