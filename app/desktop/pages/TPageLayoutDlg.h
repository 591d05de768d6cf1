// The dialog in which a page is composed.
#pragma once

#include "app/present/PageLayout.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTableWidget;

namespace kestrav::desktop
{

/// Shows the grid of a page. A panel is chosen for the selected cells; selected cells that form a
/// rectangle become one panel.
class TPageLayoutDlg : public QDialog
{
    Q_OBJECT

public:
    TPageLayoutDlg(present::PageLayout layout, QWidget* parent);

    [[nodiscard]] const present::PageLayout& layoutOfPage() const
    {
        return layout_;
    }

private:
    void makeContentChooser();
    void showGrid();
    void showSelected();
    void JoinButtonClick();
    void SplitButtonClick();
    void ContentComboBoxActivated();
    void changeLines(bool rows, int change);
    void check();
    [[nodiscard]] present::Panel* selectedPanel();

    present::PageLayout layout_;
    QLineEdit* name_;
    QTableWidget* grid_;
    QComboBox* content_;
    QComboBox* varga_;
    QComboBox* chart_;
    QComboBox* outer_;
    QSpinBox* rowWeight_;
    QSpinBox* columnWeight_;
    QLabel* problem_;
    QDialogButtonBox* buttons_;
    bool filling_ = false;
};

} // namespace kestrav::desktop
