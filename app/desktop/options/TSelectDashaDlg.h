// The chooser of the dasha system and how it is computed.
#pragma once

#include "core/Settings.h"

#include <QDialog>

#include <vector>

class QFormLayout;
class QLabel;
class QListWidget;

namespace kestrav::desktop
{

class SettingEditor;
class TKSVform1;

class TSelectDashaDlg : public QDialog
{
    Q_OBJECT

public:
    TSelectDashaDlg(TKSVform1& window, QWidget* parent);

private:
    SettingEditor* add(QFormLayout* form, std::string_view setting, const QString& label);
    void fillSystems();
    void showApplicable();
    void showConditional();
    void DashaListCurrentRowChanged(int row);
    void OkButtonClick();

    TKSVform1& window_;
    core::Settings settings_;
    QListWidget* systems_;
    QLabel* conditional_;
    QLabel* days_;
    std::vector<SettingEditor*> editors_;
};

} // namespace kestrav::desktop
