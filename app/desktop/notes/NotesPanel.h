// The notes of the shown chart: read, edited, searched and printed.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

#include <cstddef>
#include <optional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTimer;

namespace kestrav::desktop
{

struct LineEdit;

class NotesPanel : public PanelWidget
{
    Q_OBJECT

public:
    NotesPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    void KeepButtonClick();
    void keepNotes();
    void followEdits(const std::vector<LineEdit>& edits);
    void FindEditReturnPressed();
    void showState();

    QPlainTextEdit* text_;
    QLineEdit* find_;
    QPushButton* keep_;
    QLabel* note_;
    QTimer* soon_; ///< to the next keeping of what is typed
    QList<QAction*> actions_;
    std::wstring shownOf_;                 ///< the chart whose notes are in the editor
    std::optional<std::size_t> shownLine_; ///< and its line in the database
};

} // namespace kestrav::desktop
