#include "app/desktop/timing/TimingActions.h"

#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/timing/Specialdate.h"
#include "app/desktop/timing/TTransitChoicesDlg.h"
#include "app/desktop/timing/TransitListingPanel.h"

#include <QMenu>

namespace kestrav::desktop
{

TimingActions::TimingActions(TKSVform1& window) : QObject(&window), window_(window)
{
    window.menu(MenuName::Chart)->addSeparator();
    window.addCommand(MenuName::Chart,
                      {"SpecialDateAction", tr("Special &Date..."), QKeySequence(tr("Ctrl+J")),
                       tr("Brings the shared date to an age, a return, a change in the sky")},
                      [this] { SpecialDateActionExecute(); });
    window.addCommand(MenuName::Options,
                      {"TransitChoicesAction", tr("Trans&it Choices..."),
                       QKeySequence(tr("Ctrl+Shift+T")),
                       tr("Chooses bodies, points, aspects and days of the list of transits")},
                      [this] { TransitChoicesActionExecute(); });
}

void TimingActions::SpecialDateActionExecute()
{
    auto* const dialog = new TSpecialDateDlg(window_.workspace(), &window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void TimingActions::TransitChoicesActionExecute()
{
    auto* const dialog = new TTransitChoicesDlg(window_.workspace(), &window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, &window_, [this] {
        for (auto* const panel : window_.findChildren<TransitListingPanel*>()) {
            panel->readChoices();
        }
    });
    dialog->open();
}

} // namespace kestrav::desktop
