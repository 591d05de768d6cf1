// The yogas as a tree, and the selected one with its rule, to read and to edit.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/yogas/YogaSky.h"

class QLabel;
class QSplitter;

namespace kestrav::desktop
{

class YogaCommands;
class YogaDesk;
class YogaPane;
class YogaTreePane;

/// A panel of the page of yogas, and a window of its own. Yogas that hold in the chart are marked;
/// the rule of the selected one shows which of its conditions hold. Delivered yogas cannot be
/// changed, but copied into the user's own file.
class TYogaTreeForm : public PanelWidget
{
    Q_OBJECT

public:
    TYogaTreeForm(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    [[nodiscard]] QString helpName() const override;

protected:
    void refresh() override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeActions();
    QWidget* makeBar();
    [[nodiscard]] YogaSkyPointer sky() const;
    void evaluate();
    void showYoga();
    void enableActions();

    YogaDesk& desk_;
    YogaCommands* commands_;
    BackgroundWork evaluating_;
    QSplitter* parts_;
    YogaTreePane* tree_;
    YogaPane* yoga_;
    QLabel* none_;
    QList<QAction*> actions_;
    QAction* save_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QAction* delete_ = nullptr;
    QAction* copyAction_ = nullptr;
    QAction* sortFile_ = nullptr;
    QAction* search_ = nullptr;
};

/// A window with the form, over the whole window's parent.
[[nodiscard]] QWidget* makeYogaWindow(Workspace& workspace, QWidget* parent);

} // namespace kestrav::desktop
