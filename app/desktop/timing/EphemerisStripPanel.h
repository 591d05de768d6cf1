// The panel with the longitudes of the bodies as curves.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/timing/RowMoments.h"

#include <memory>

class QCheckBox;
class QComboBox;

namespace kestrav::desktop
{

class StripView;
struct StripDrawing;

class EphemerisStripPanel : public PanelWidget
{
    Q_OBJECT

public:
    EphemerisStripPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    struct Request;

    [[nodiscard]] Request request();
    void draw();
    void ChoiceChange();

    DayPage page_;
    std::shared_ptr<const Request> made_; ///< of what is drawn or being drawn; null for nothing
    QComboBox* span_;
    QCheckBox* natal_;
    StripView* view_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
