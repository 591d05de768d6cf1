// Which outside atlas is used, and where it is.
#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace kestrav::desktop
{

class Workspace;

class TPcAtlasVersionDlg : public QDialog
{
    Q_OBJECT

public:
    TPcAtlasVersionDlg(Workspace& workspace, QWidget* parent);

private:
    void BrowseButtonClick();
    void OkButtonClick();
    void check();
    /// The chosen file set, by its number in the settings.
    [[nodiscard]] int version() const;

    Workspace& workspace_;
    QRadioButton* none_;
    QRadioButton* plain_;
    QRadioButton* indexed_;
    QLineEdit* path_;
    QPushButton* browse_;
    QLabel* files_;
    QDialogButtonBox* buttons_;
};

} // namespace kestrav::desktop
