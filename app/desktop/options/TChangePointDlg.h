// The dialog in which the user gives a point another position.
#pragma once

#include "app/desktop/shell/Workspace.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace kestrav::desktop
{

class TKSVform1;

/// Positions given here hold for the shown chart until another is shown, and are never saved. Rahu
/// and Ketu stay opposite to each other.
class TChangePointDlg : public QDialog
{
    Q_OBJECT

public:
    TChangePointDlg(TKSVform1& window, QWidget* parent);

private:
    void showPoint();
    void showChanged();
    [[nodiscard]] int point() const;
    [[nodiscard]] int typedMinutes() const;
    [[nodiscard]] double ownLongitude(int point) const;
    void PositionChanged();
    void ResetButtonClick();
    void ResetAllButtonClick();
    void OkButtonClick();

    TKSVform1& window_;
    ChangedPoints changed_;
    ChartPointer own_; ///< the chart without changes
    QComboBox* point_;
    QLabel* computed_;
    QComboBox* sign_;
    QSpinBox* degrees_;
    QSpinBox* minutes_;
    QLabel* changedLabel_;
    QPushButton* reset_;
    QPushButton* resetAll_;
    bool showing_ = false;
    int shownMinutes_ = 0; ///< of the circle
};

} // namespace kestrav::desktop
