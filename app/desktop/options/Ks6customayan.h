// The dialog in which the rows of the ayanamsa table are edited.
#pragma once

#include "core/Settings.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;

namespace kestrav::desktop
{

class Workspace;

/// Any row may be edited, also the named ones. Numbers are read up to the first character that is
/// no part of them, without any message.
class TCustomAyanamsaDlg : public QDialog
{
    Q_OBJECT

public:
    TCustomAyanamsaDlg(Workspace& workspace, core::Settings settings, QWidget* parent);

    /// The settings with the edited table.
    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_;
    }

private:
    [[nodiscard]] QLineEdit* field(const char* name);
    [[nodiscard]] core::AyanamsaRow& row();
    void showRow();
    void showResults();
    void NameEditTextEdited();
    void EpochYearEditTextEdited();
    void ValueEditTextEdited();
    void AnnualRateEditTextEdited();
    void ResetButtonClick();

    Workspace& workspace_;
    core::Settings settings_;
    QListWidget* rows_;
    QLineEdit* name_;
    QLineEdit* epochYear_;
    QLineEdit* degrees_;
    QLineEdit* minutes_;
    QLineEdit* seconds_;
    QLineEdit* annualRate_;
    QLabel* today_;
    QLabel* ofChart_;
    QLabel* note_;
};

} // namespace kestrav::desktop
