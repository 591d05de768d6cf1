// The panchanga of the day at the shared moment: elements with their times, parts of day and night.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "timing/Panchanga.h"

#include <optional>

class QLabel;
class QPlainTextEdit;
class QTabWidget;
class QToolButton;

namespace kestrav::desktop
{

class TableStack;

class TPanchangForm : public PanelWidget
{
    Q_OBJECT

public:
    TPanchangForm(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    QToolButton* dayButton(bool forward);
    void showDay(core::Result<timing::PanchangaDay> made);
    void DayBackButtonClick();
    void DayForwardButtonClick();

    QLabel* dayLabel_;
    QLabel* strength_;
    QLabel* note_;
    QTabWidget* tabs_;
    TableStack* summary_;
    TableStack* elements_;
    TableStack* horas_;
    TableStack* eighths_;
    QPlainTextEdit* report_;
    std::optional<timing::PanchangaDay> day_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
