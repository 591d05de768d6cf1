// The quick tips at the start.
#pragma once

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QLabel;

namespace kestrav::desktop
{

class Workspace;

class TQuickTipsDlg : public QDialog
{
    Q_OBJECT

public:
    TQuickTipsDlg(Workspace& workspace, QWidget* parent);

private:
    void NextButtonClick();
    void ShowCheckBoxToggled(bool shown);

    Workspace& workspace_;
    QStringList tips_;
    qsizetype next_ = 0;
    QLabel* tip_;
    QCheckBox* show_;
};

} // namespace kestrav::desktop
