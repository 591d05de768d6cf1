// Two charts in each other's houses, and one chart under other settings.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace kestrav::desktop
{

class TableView;

class ComparePanel : public PanelWidget
{
    Q_OBJECT

public:
    ComparePanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    QWidget* makeSettingsPage();
    void SettingComboBoxActivated();
    void showDifferences();
    [[nodiscard]] TableView* currentView() const;

    QTabWidget* tabs_;
    QLabel* hint_;
    QPushButton* choose_;
    TableView* firstInSecond_;
    TableView* secondInFirst_;
    TableView* differences_;
    QComboBox* setting_ = nullptr;
    QComboBox* value_ = nullptr;
    QList<QAction*> actions_;
};

} // namespace kestrav::desktop
