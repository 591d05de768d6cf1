// What the panels with a strip of bars have in common.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/present/Strip.h"

#include <optional>

class QVBoxLayout;

namespace kestrav::desktop
{

class StripView;

class StripPanel : public PanelWidget
{
    Q_OBJECT

public:
    StripPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void showModel(present::StripModel model);
    void showNote(const QString& note);
    /// Whether there is a drawing whose axis holds the shared moment; then only its line moves.
    bool moveLine();
    void forgetModel();

    BackgroundWork work_;

private:
    void layOut();

    StripView* view_;
    std::optional<present::StripModel> model_;
};

} // namespace kestrav::desktop
