// The form in which a chart is entered and edited.
#pragma once

#include "app/desktop/entry/EntryDraft.h"
#include "core/Chart.h"

#include <QDialog>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QDialogButtonBox;
class QLabel;
class QTabWidget;
class QTimer;

namespace kestrav::desktop
{

class BirthPage;
class EntryPage;
class EventsTable;
class PlaceFields;
class Workspace;

/// One form for all fields of a chart. What is typed is kept as a draft every 20 seconds and when
/// the focus moves, until it is saved; leaving the form with changes keeps the draft.
class TDataEntryForm : public QDialog
{
    Q_OBJECT

public:
    TDataEntryForm(Workspace& workspace, QWidget* parent);
    ~TDataEntryForm() override;

    /// Begins an empty chart, an edit of a record, of which `line` is the one in the database, or
    /// goes on with a draft.
    void newChart();
    void edit(const core::Chart& record, std::optional<std::size_t> line = std::nullopt);
    void goOn(std::string_view draft);
    /// Takes a place of the program's lists, as the world map gives it.
    [[nodiscard]] PlaceFields& place();

    /// Whether something was typed since the form was filled.
    [[nodiscard]] bool changed() const;
    /// Keeps what is typed, when it changed since it was kept last.
    void keepDraft();

    void reject() override;

signals:
    /// The form was left; drafts may have come or gone.
    void left();

private:
    void OkButtonClick();
    void fill(const core::Chart& record);
    [[nodiscard]] core::Chart typed() const;
    [[nodiscard]] EntryDraft draft() const;
    [[nodiscard]] std::string draftText() const;
    void dropDraft();
    void EditChange();
    void showPreview();
    void addPage(EntryPage* page, const QString& title);

    Workspace& workspace_;
    QTabWidget* tabs_;
    BirthPage* birth_;
    std::vector<EntryPage*> pages_;
    EventsTable* events_;
    QLabel* ascendant_;
    QLabel* moon_;
    QLabel* day_;
    QLabel* state_;
    QDialogButtonBox* buttons_;
    QTimer* timer_;
    QTimer* soon_; ///< gathers keystrokes before the preview is computed
    core::Chart base_;
    std::optional<std::size_t> line_; ///< where the edited record stands in the database
    std::string lineText_;            ///< and what that line was then
    std::string filledDraft_; ///< what was in the form at first; empty for a draft gone on with
    std::string keptDraft_;   ///< what stands in the file for this form
    std::vector<std::string> others_;
    int lacking_ = 0; ///< what areas that scroll ask for too little
};

} // namespace kestrav::desktop
