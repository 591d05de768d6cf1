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
    /// Whether something was changed since the file was read or saved.
    [[nodiscard]] bool modified() const
    {
        return !undo_.isClean();
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
    /// The index of its line, or nothing when the user cancelled. The file is not written.
    std::optional<std::size_t> saveRecord(const core::Chart& chart, core::Messages& messages);
    /// Takes the chart of a line out without a question. False when there is no such line.
    bool deleteRecord(std::size_t line);
    /// The same after the question. No line stands for a chart that was never saved, which is told.
    bool deleteRecord(std::optional<std::size_t> line, core::Messages& messages);
    /// Several lines in one step.
    void deleteRecords(std::vector<std::size_t> lines);
    /// Gives the chart another name. False, with the reason, for a name that cannot be one.
    bool renameRecord(std::size_t line, const QString& name, QString& problem);
    /// Any other change: the work is done on a copy, and one step is made of what it changed.
    data::Outcome change(const QString& text,
                         const std::function<data::Outcome(data::ChartDatabase&)>& work);

    data::Outcome save(core::Messages& messages);
    data::Outcome saveAs(const std::filesystem::path& path, core::Messages& messages);

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
    void watch();
    void lookAtFile();

    data::ChartDatabase charts_;
    data::ChooserList list_;
    core::Settings settings_;
    QUndoStack undo_;
    QFileSystemWatcher* watcher_;
    QTimer* lookTimer_;
    bool toldChange_ = false;
};

} // namespace kestrav::desktop
