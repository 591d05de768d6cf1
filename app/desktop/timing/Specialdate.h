// A special date for transits and dashas: described by an age, a return, a change in the sky.
#pragma once

#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/timing/SpecialDates.h"

#include <QDialog>

#include <functional>
#include <optional>

class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;
class QStackedWidget;

namespace kestrav::desktop
{

/// OK makes the date that was found the shared one. It is searched for while the dialog is filled
/// in, and shown below.
class TSpecialDateDlg : public QDialog
{
    Q_OBJECT

public:
    TSpecialDateDlg(Workspace& workspace, QWidget* parent);

private:
    using Found = core::Result<double>;

    void alignLabels();
    QFormLayout* addPage();
    void makeDatePage();
    void makeBirthPages();
    void makeSkyPages();
    QSpinBox* spin(const char* name, int lowest, int highest, int value);
    QComboBox* chooser(const char* name);
    void fillLords();
    void disableWithoutBirth();
    [[nodiscard]] Found typedMoment() const;
    [[nodiscard]] std::function<Found(const WorkHandle&)> search();
    void find();
    void showFound(const Found& found);
    void KindComboBoxChange();
    void OkButtonClick();

    Workspace& workspace_;
    QComboBox* kind_;
    QStackedWidget* pages_;
    QComboBox* direction_;
    QLabel* directionLabel_;
    QLabel* result_;
    QDialogButtonBox* buttons_;
    QLineEdit* date_ = nullptr;
    QLineEdit* time_ = nullptr;
    QSpinBox* years_ = nullptr;
    QSpinBox* months_ = nullptr;
    QSpinBox* days_ = nullptr;
    QSpinBox* return_ = nullptr;
    QSpinBox* level_ = nullptr;
    QComboBox* lord_ = nullptr;
    QComboBox* event_ = nullptr;
    QComboBox* sun_ = nullptr;
    QComboBox* ingressBody_ = nullptr;
    QComboBox* sign_ = nullptr;
    QComboBox* stationBody_ = nullptr;
    std::optional<double> found_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
