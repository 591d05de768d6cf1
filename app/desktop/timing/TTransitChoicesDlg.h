// The choices of the transit listing: bodies, targets, kinds of events, aspects, orb, days.
#pragma once

#include "app/desktop/timing/TransitChoices.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QListWidget;
class QSpinBox;

namespace kestrav::desktop
{

class TTransitChoicesDlg : public QDialog
{
    Q_OBJECT

public:
    TTransitChoicesDlg(Workspace& workspace, QWidget* parent);

    /// The choices as they stand in the dialog.
    [[nodiscard]] TransitChoices choices() const;

private:
    QWidget* makePoints();
    QWidget* makeKinds();
    QWidget* makeOthers();
    void showChoices(const TransitChoices& choices);
    void showProblem();
    void TargetsComboBoxChange();
    void UsualButtonClick();
    void OkButtonClick();

    Workspace& workspace_;
    QComboBox* mode_;
    QListWidget* bodies_;
    QListWidget* targets_;
    std::array<QCheckBox*, 7> kinds_ = {};
    QComboBox* aspects_;
    QSpinBox* orb_;
    QSpinBox* days_;
    QCheckBox* kakshyas_;
    QCheckBox* sadeSati_;
    QLabel* problem_;
    QDialogButtonBox* buttons_;
};

} // namespace kestrav::desktop
