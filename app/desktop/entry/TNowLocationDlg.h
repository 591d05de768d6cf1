// The place of the chart of the moment and of transits.
#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;

namespace kestrav::desktop
{

class PlaceFields;
class Workspace;

/// OK keeps the place in the settings. Its zone is kept by name where the place was looked up, so
/// that saving time follows the moment.
class TNowLocationDlg : public QDialog
{
    Q_OBJECT

public:
    TNowLocationDlg(Workspace& workspace, QWidget* parent);

private:
    void OkButtonClick();
    void EditChange();
    [[nodiscard]] std::string zoneName() const;

    Workspace& workspace_;
    PlaceFields* place_;
    QLabel* zone_;
    QDialogButtonBox* buttons_;
    double filledZone_ = 0.0;
};

} // namespace kestrav::desktop
