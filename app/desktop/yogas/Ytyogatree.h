// The yogas as a tree, and the selected one with its rule, to read and to edit.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/yogas/YogaTreeModel.h"
#include "yoga/ExplainRule.h"

#include <QSet>

#include <memory>
#include <optional>
#include <string>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSplitter;
class QTabWidget;
class QToolButton;
class QTreeView;

namespace kestrav::desktop
{

class RuleEditor;
class YogaCommands;
class YogaDesk;

/// A panel of the page of yogas, and a window of its own. Yogas that hold in the chart are marked;
/// the rule of the selected one shows which of its conditions hold. Fields are taken over when they
/// are left. Delivered yogas cannot be changed, but copied into the user's own file.
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
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// A chart with what may be beside it, for the tests of rules.
    struct Sky;

    QWidget* makeTreeSide();
    QWidget* makeYogaSide();
    void makeActions();
    [[nodiscard]] std::shared_ptr<const Sky> sky() const;
    void evaluate();
    void fillTree();
    void showSelectedInTree();
    void scrollToSelected();
    void selectFirst();
    void showYoga();
    void explain();
    void commit();
    void commitTexts();
    void enableActions();
    void ExpandButtonClick();
    void ContractButtonClick();

    YogaDesk& desk_;
    YogaCommands* commands_;
    YogaTreeModel* model_;
    present::YogaTruths truths_;
    YogasPointer shownLibrary_;
    std::optional<yoga::YogaPlace> shownPlace_;
    bool filling_ = false;
    BackgroundWork evaluating_;
    BackgroundWork explaining_;
    QSet<QString> contracted_;

    QLineEdit* filter_;
    QCheckBox* onlyHolding_;
    QToolButton* sorted_;
    QTreeView* tree_;
    QFrame* delivered_;
    QPushButton* copy_;
    QLineEdit* title_;
    QComboBox* chapter_;
    QLabel* holds_;
    RuleEditor* rule_;
    QTabWidget* texts_;
    QPlainTextEdit* interpretation_;
    QPlainTextEdit* comment_;
    QWidget* yogaSide_;
    QSplitter* parts_;
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
