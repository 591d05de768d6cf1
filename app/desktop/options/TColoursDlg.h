// The dialog with the colours of the window and what they are for.
#pragma once

#include "core/Settings.h"

#include <QDialog>

class QFormLayout;
class QTableWidget;

namespace kestrav::desktop
{

class OptionPreview;
class SettingEditor;
class TKSVform1;

/// A chosen scheme is tried on the whole window; cancelling takes it back.
class TColoursDlg : public QDialog
{
    Q_OBJECT

public:
    TColoursDlg(TKSVform1& window, QWidget* parent);

    void reject() override;

private:
    SettingEditor* addRow(QFormLayout* form, std::string_view setting, const QString& label);
    void fillRoles();
    void tryOut();
    void OkButtonClick();

    TKSVform1& window_;
    core::Settings settings_;
    OptionPreview* preview_;
    QTableWidget* roles_;
};

} // namespace kestrav::desktop
