#include "app/desktop/yogas/YogaActions.h"

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/yogas/YogaCommands.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/desktop/yogas/YogaDrafts.h"
#include "app/desktop/yogas/Ytyogatree.h"

#include <QMenu>

namespace kestrav::desktop
{

YogaActions::YogaActions(TKSVform1& window)
    : QObject(&window), window_(window), commands_(new YogaCommands(window.workspace(), &window))
{
    QMenu* const yogas = window.menu(MenuName::Tools)->addMenu(tr("&Yogas"));
    yogas->setObjectName(QStringLiteral("YogasMenu"));
    const auto add = [&](const Command& command, auto handler) {
        window.addCommand(yogas, command, handler);
    };
    add({"YogaTreeAction",
         tr("Yoga &Tree and Editor"),
         {},
         tr("Opens the yogas in a window of their own")},
        [this] { YogaTreeActionTriggered(); });
    add({"YogaSearchAction", tr("Yoga &Search..."), QKeySequence(tr("Ctrl+Shift+Y")),
         tr("Finds the charts of the database that have the selected yoga")},
        [this] { SearchActionTriggered(); });
    yogas->addSeparator();
    add({"NewYogaAction", tr("&New Yoga"), {}, tr("Begins a yoga in your own file")},
        [this] { commands_->NewYogaButtonClick(); });
    add({"NewYogaFileAction", tr("New &File..."), {}, tr("Begins a file of yogas")},
        [this] { commands_->NewFileButtonClick(); });
    add({"OpenYogaFileAction", tr("&Open File..."), {}, tr("Opens a file of yogas")},
        [this] { commands_->OpenFileButtonClick(); });
    add({"SaveYogaFileAction", tr("Sa&ve File"), {}, tr("Saves the file of the selected yoga")},
        [this] { commands_->SaveFileButtonClick(); });
    add({"SaveYogaFileAsAction",
         tr("Save File &As..."),
         {},
         tr("Saves the file of the selected yoga under another name, or as a plain list")},
        [this] { commands_->SaveFileAsButtonClick(); });
    add({"ImportYogasAction",
         tr("&Import..."),
         {},
         tr("Appends the yogas of a file to your own ones")},
        [this] { commands_->ImportButtonClick(); });
    add({"SortYogasAction", tr("So&rt File"), {}, tr("Sorts the file of the selected yoga")},
        [this] { commands_->SortButtonClick(); });
    auto* const drafts = new YogaDrafts(window);
    window.addCloseQuestion([this, drafts] {
        TMessages messages;
        if (!YogaDesk::of(window_.workspace()).mayClose(messages)) {
            return false;
        }
        drafts->drop();
        return true;
    });
}

void YogaActions::YogaTreeActionTriggered()
{
    if (!form_) {
        form_ = makeYogaWindow(window_.workspace(), &window_);
        form_->setAttribute(Qt::WA_DeleteOnClose);
    }
    form_->show();
    form_->raise();
    form_->activateWindow();
}

void YogaActions::SearchActionTriggered()
{
    window_.pages().show(tr("Yogas"));
    commands_->SearchButtonClick();
}

} // namespace kestrav::desktop
