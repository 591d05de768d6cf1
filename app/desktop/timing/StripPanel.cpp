#include "app/desktop/timing/StripPanel.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/timing/StripView.h"

#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kPrintedWidth = 900.0;
constexpr double kPrintedLane = 30.0;

} // namespace

StripPanel::StripPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), view_(new StripView(this))
{
    setObjectName(QStringLiteral("StripPanel-") + toQt(panel_.content));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view_);
    setFocusProxy(view_);
    connect(view_, &StripView::layoutWanted, this, &StripPanel::layOut);
    connect(view_, &StripView::linkChosen, this, &StripPanel::choose);
    connect(view_, &StripView::momentChosen, this,
            [this](double moment) { this->workspace().setMoment(moment); });
}

void StripPanel::showModel(present::StripModel model)
{
    model_ = std::move(model);
    layOut();
}

void StripPanel::showNote(const QString& note)
{
    work_.cancel();
    model_.reset();
    view_->setNote(note);
}

void StripPanel::forgetModel()
{
    // What is being made for what was shown before would come in between.
    work_.cancel();
    model_.reset();
}

bool StripPanel::moveLine()
{
    const double moment = workspace().moment();
    if (!model_ || moment < model_->from || moment >= model_->to) {
        return false;
    }
    layOut();
    return true;
}

void StripPanel::layOut()
{
    if (model_) {
        model_->cursor = workspace().moment();
        view_->setSharedMoment(model_->cursor);
        view_->setDrawing(drawingOf(*model_, view_->options()));
    }
}

std::vector<present::Block> StripPanel::blocks()
{
    refreshNow();
    if (!model_) {
        return {};
    }
    present::StripOptions options;
    options.width = kPrintedWidth;
    options.height = kPrintedLane * double(model_->lanes.size() + 1);
    options.scheme = present::ColourScheme::Print;
    present::Drawing drawing;
    drawing.list = present::layoutStrip(*model_, options).list;
    drawing.text = drawing.list.description;
    return {present::DrawingRow{{std::move(drawing)}}};
}

} // namespace kestrav::desktop
