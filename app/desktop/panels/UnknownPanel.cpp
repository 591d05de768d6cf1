#include "app/desktop/panels/UnknownPanel.h"

#include "app/desktop/shell/Convert.h"

#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

UnknownPanel::UnknownPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent)
{
    auto* const label = new QLabel(
        tr("This version of the program has no panel \"%1\".").arg(toQt(panel_.content)), this);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    (new QVBoxLayout(this))->addWidget(label);
}

QString UnknownPanel::title() const
{
    return toQt(panel_.content);
}

} // namespace kestrav::desktop
