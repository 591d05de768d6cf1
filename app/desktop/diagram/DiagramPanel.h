// A panel with one chart diagram.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

#include <optional>

class QMenu;

namespace kestrav::desktop
{

class DiagramView;

class DiagramPanel : public PanelWidget
{
    Q_OBJECT

public:
    DiagramPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString helpName() const override
    {
        return QStringLiteral("diagram");
    }
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    [[nodiscard]] bool hasVarga() const override
    {
        return true;
    }
    [[nodiscard]] bool hasStyle() const override
    {
        return true;
    }

protected:
    void refresh() override;

private:
    void makeActions();
    void setDegrees(present::DegreeForm form);
    [[nodiscard]] present::DegreeForm degrees() const;
    [[nodiscard]] ChartPointer outerChart() const;

    DiagramView* view_;
    QAction* inspect_ = nullptr;
    QAction* aspects_ = nullptr;
    QAction* turn_ = nullptr;
    QAction* clear_ = nullptr;
    QAction* copy_ = nullptr;
    QAction* save_ = nullptr;
    QMenu* degreesMenu_ = nullptr;
    std::optional<present::DegreeForm> degrees_; ///< of this panel; none for that of the settings
};

} // namespace kestrav::desktop
