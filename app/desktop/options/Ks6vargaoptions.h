// The dialog with the variants of divisional charts.
#pragma once

#include "core/Settings.h"

#include <QDialog>

#include <vector>

class QTableWidget;

namespace kestrav::desktop
{

class SettingEditor;
class TKSVform1;

/// The choices beside the placements that they lead to in the shown chart.
class TVargaOptionsDlg : public QDialog
{
    Q_OBJECT

public:
    TVargaOptionsDlg(TKSVform1& window, QWidget* parent);

private:
    void showPlacements();
    void OkButtonClick();
    void ResetButtonClick();

    TKSVform1& window_;
    core::Settings settings_;
    std::vector<SettingEditor*> editors_;
    QTableWidget* placements_;
};

} // namespace kestrav::desktop
