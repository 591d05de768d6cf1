// The yogas as a tree that can be filtered.
#pragma once

#include "app/desktop/yogas/YogaTreeModel.h"
#include "yoga/YogaLibrary.h"

#include <QSet>
#include <QWidget>

class QCheckBox;
class QLineEdit;
class QToolButton;
class QTreeView;

namespace kestrav::desktop
{

class YogaDesk;

/// Files, chapters and yogas with what holds in a chart. The yoga that is selected here is the one
/// of the desk, and follows it.
class YogaTreePane : public QWidget
{
    Q_OBJECT

public:
    YogaTreePane(YogaDesk& desk, QWidget* parent);

    [[nodiscard]] QTreeView* tree() const
    {
        return tree_;
    }
    [[nodiscard]] const YogaTreeModel::Library& shown() const
    {
        return shown_;
    }
    /// Shows a library with what holds of it; without a chart there are no truths.
    void show(YogaTreeModel::Library library, present::YogaTruths truths);
    /// Makes the tree anew, after what stands beside the files changed.
    void fill();
    void showSelected();
    void scrollToSelected();
    /// Selects the first yoga that holds, so that there is something to read.
    void selectFirst();

private:
    QToolButton* button(const QString& text, const char* name, const QString& tip);
    void ExpandButtonClick();
    void ContractButtonClick();

    YogaDesk& desk_;
    YogaTreeModel* model_;
    YogaTreeModel::Library shown_;
    present::YogaTruths truths_;
    QSet<QString> contracted_;
    bool filling_ = false;
    QLineEdit* filter_;
    QCheckBox* onlyHolding_;
    QToolButton* sorted_;
    QTreeView* tree_;
};

} // namespace kestrav::desktop
