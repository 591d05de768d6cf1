// The yoga files under work: which yoga is selected, what was changed, opening and saving.
#pragma once

#include "core/Messages.h"
#include "data/FileStamp.h"
#include "yoga/YogaLibrary.h"

#include <QObject>
#include <QString>
#include <QUndoGroup>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class QUndoStack;
class QWidget;

namespace kestrav::desktop
{

class Workspace;

/// Works on the yoga library of a workspace. Every panel and form of yogas shares it, and each file
/// has its own steps to undo. Delivered files cannot be changed.
class YogaDesk : public QObject
{
    Q_OBJECT

public:
    /// The one of the workspace, which owns it.
    [[nodiscard]] static YogaDesk& of(Workspace& workspace);
    ~YogaDesk() override;

    [[nodiscard]] const yoga::YogaLibrary& library() const;
    [[nodiscard]] const std::optional<yoga::YogaPlace>& selected() const
    {
        return selected_;
    }
    void select(std::optional<yoga::YogaPlace> place);
    /// The selected yoga, or null.
    [[nodiscard]] const yoga::Yoga* yoga() const;

    /// Whether the file came with the program.
    [[nodiscard]] bool isDelivered(std::size_t file) const;
    [[nodiscard]] bool isModified(std::size_t file) const;
    [[nodiscard]] bool anyModified() const;
    /// A file with what was typed and not taken over yet, where it differs from what is on disk.
    [[nodiscard]] std::optional<yoga::YogaFile> unsaved(std::size_t file);
    /// The steps of the file of the selected yoga; null when there is none.
    [[nodiscard]] QUndoStack* steps();
    void undo();
    void redo();
    /// Takes over what stands in fields.
    void commitFields();

    // --- Files ---------------------------------------------------------------------------------

    /// Loads a file and selects its first yoga; a failure is told. A file that is loaded already
    /// and was changed is not read again.
    bool open(const std::filesystem::path& path);
    /// Begins an empty file and writes it, after asking where one would be replaced.
    bool begin(const std::filesystem::path& path, core::Messages& messages);
    /// Writes a file. Nothing is written when the brackets of a rule do not match, which is told,
    /// and its yoga is selected.
    bool save(std::size_t file, core::Messages& messages);
    bool saveAs(std::size_t file, const std::filesystem::path& path, core::Messages& messages);
    /// Asks what is to become of changed files. False when the user wants to stay.
    bool mayClose(core::Messages& messages);
    /// Gives a file what was kept of unsaved changes, as one step. The stamp is that of the file
    /// from which the changes came: saving asks when it has another one by now. The path is the one
    /// under which the file is loaded.
    std::filesystem::path restore(const std::filesystem::path& path, yoga::YogaFile file,
                                  const data::FileStamp& stamp);
    /// The stamp of a loaded file when it was read or written last.
    [[nodiscard]] data::FileStamp stamp(std::size_t file);
    /// Reads files again that another program changed, unless they were changed here too; tells
    /// both.
    void lookAtFiles();

    // --- Steps ---------------------------------------------------------------------------------

    /// One step on the file of the selected yoga. False when there is none that may be changed.
    bool changeFile(const QString& text, const std::function<bool(yoga::YogaFile&)>& work);
    /// One step on the selected yoga.
    bool changeYoga(const QString& text, const std::function<void(yoga::Yoga&)>& work);
    /// Gives the selected yoga another rule, with the fields that follow from it. Brackets need not
    /// match while the rule is under work.
    bool changeRule(const QString& text, std::string_view rule);
    /// The same for the empty rule, which cannot be undone.
    bool deleteRule();
    /// Adds a yoga behind the selected one, in its chapter, and selects it. In a delivered file, or
    /// without a selection, the user's own file takes it.
    bool addYoga(yoga::Yoga yoga);
    bool deleteYoga(core::Messages& messages);
    bool sortFile();
    /// Appends the yogas of a yoga file or a plain list to the user's file at hand.
    bool importFile(const std::filesystem::path& path);
    /// Copies the selected yoga into the user's own file and selects the copy.
    bool copyToOwn();

signals:
    void selectionChanged();
    /// What stands in fields and was not taken over yet has to be, before a step or a selection.
    void commitWanted();
    /// The same, to be written into a copy of the selected yoga instead.
    void typedWanted(yoga::Yoga* yoga);
    /// A file became changed or was saved.
    void modifiedChanged();
    /// There are other steps to undo or to redo.
    void stepsChanged();
    /// A yoga was begun, and is selected.
    void yogaAdded();

private:
    class Step;
    struct Entry
    {
        std::unique_ptr<QUndoStack> steps;
        data::FileStamp stamp;
        bool beyondUndo = false; ///< changed by what cannot be undone
    };

    explicit YogaDesk(Workspace& workspace);

    Entry& entry(const std::filesystem::path& path);
    void put(const std::filesystem::path& path, yoga::YogaFile file);
    bool pushStep(std::size_t file, const QString& text,
                  const std::function<bool(yoga::YogaFile&)>& work);
    std::optional<std::size_t> indexOf(const std::filesystem::path& path) const;
    std::optional<std::size_t> ownFile();
    std::optional<std::size_t> fileToChange();
    void settleSelection();
    void moveTo(std::optional<yoga::YogaPlace> place);

    Workspace& workspace_;
    std::optional<yoga::YogaPlace> selected_;
    bool committing_ = false;
    QUndoGroup group_;
    std::map<std::filesystem::path, Entry> entries_;
};

/// Opens a yoga file that was named on the command line or dropped.
bool openYogaFile(Workspace& workspace, const std::filesystem::path& path);

} // namespace kestrav::desktop
