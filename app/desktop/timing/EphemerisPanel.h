// The panel with the positions of the bodies from step to step.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/timing/RowMoments.h"

#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QTabWidget;

namespace kestrav::desktop
{

class TableView;

/// Positions, and in further tabs the ingresses and stations and the phases of the Moon of the same
/// days. The days begin with that of the shared date and are turned like pages.
class EphemerisPanel : public PanelWidget
{
    Q_OBJECT

public:
    EphemerisPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    struct Tables
    {
        present::Table positions;
        present::Table events;
        present::Table phases;
    };
    struct Request;

    QLayout* makeBar();
    [[nodiscard]] Request request();
    void showTables(Tables tables);
    void showNote(const QString& note);
    void ChoiceChange();

    DayPage page_;
    /// What the tables belong to that are shown or being made; null for none.
    std::shared_ptr<const Request> made_;
    QComboBox* span_;
    QComboBox* step_;
    QCheckBox* tropical_;
    QCheckBox* declination_;
    QCheckBox* latitude_;
    QCheckBox* speed_;
    QLabel* note_;
    QTabWidget* tabs_;
    TableView* positions_;
    TableView* events_;
    TableView* phases_;
    QList<QAction*> actions_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
