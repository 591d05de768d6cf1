// The panel with the transits of some days, the kakshyas and Saturn's passages.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/timing/RowMoments.h"
#include "app/desktop/timing/TransitChoices.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace kestrav::desktop
{

class TableView;

/// The list begins with the day of the shared date and is turned like pages when the date leaves
/// it. A click on a row brings the date there. Filters narrow what is listed without listing anew.
class TransitListingPanel : public PanelWidget
{
    Q_OBJECT

public:
    TransitListingPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    /// Lists anew with the choices that the window remembers.
    void readChoices();

protected:
    void refresh() override;

private:
    QLayout* makeBar();
    QWidget* makeEvents();
    void showLists(TransitLists lists);
    void showEvents();
    void showDays();
    [[nodiscard]] bool passesFilters(const timing::TransitEvent& event) const;
    void ChoicesButtonClick();
    void turnPage(int direction);

    TransitChoices choices_;
    DayPage page_;
    TransitRequest request_; ///< of what is shown or being made
    TransitLists lists_;
    QLabel* days_;
    QLabel* note_;
    QTabWidget* tabs_;
    QComboBox* body_;
    QComboBox* kind_;
    QLineEdit* filter_;
    TableView* events_;
    TableView* kakshyas_;
    TableView* phases_;
    QList<QAction*> actions_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
