#include "app/desktop/entry/EntryActions.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/DraftBar.h"
#include "app/desktop/entry/EntryDraft.h"
#include "app/desktop/entry/PlaceFields.h"
#include "app/desktop/entry/TChooseChartDlg.h"
#include "app/desktop/entry/TDataEntryForm.h"
#include "app/desktop/entry/TEventsDlg.h"
#include "app/desktop/entry/TNowLocationDlg.h"
#include "app/desktop/entry/TPcAtlasVersionDlg.h"
#include "app/desktop/entry/TWorldMapForm.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "data/Atlas.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>

namespace kestrav::desktop
{

EntryActions::EntryActions(TKSVform1& window)
    : QObject(&window), window_(window), drafts_(new DraftBar(window.centralWidget()))
{
    using Keys = QKeySequence;
    const auto add = [this](MenuName menu, const Command& command,
                            void (EntryActions::*handler)()) {
        return window_.addCommand(menu, command, [this, handler] { (this->*handler)(); });
    };
    add(MenuName::Chart,
        {"NewChartAction", tr("&New Chart..."), Keys(tr("Ctrl+N")),
         tr("Enters the data of a new chart"), "document-new"},
        &EntryActions::NewChartActionTriggered);
    add(MenuName::Chart,
        {"EditChartAction", tr("&Edit Data..."), Keys(tr("Ctrl+E")),
         tr("Edits the data of the shown chart"), "document-edit", true},
        &EntryActions::EditChartActionTriggered);
    add(MenuName::Chart,
        {"EventsAction",
         tr("E&vents..."),
         {},
         tr("Edits the dated events of the shown chart"),
         "",
         true},
        &EntryActions::EventsActionTriggered);
    continue_ = add(MenuName::Chart,
                    {"ContinueDraftAction",
                     tr("Con&tinue Draft"),
                     {},
                     tr("Goes on with a chart entry that was not saved")},
                    &EntryActions::ContinueDraftActionTriggered);
    add(MenuName::Chart,
        {"NowChartAction", tr("Chart of N&ow"), Keys(tr("Shift+F5")),
         tr("Shows the chart of this moment at the Now location")},
        &EntryActions::NowChartActionTriggered);
    window_.menu(MenuName::Chart)->addSeparator();
    add(MenuName::Chart,
        {"CompareAction",
         tr("&Compare With..."),
         {},
         tr("Chooses a second chart of the database for comparison"),
         "",
         true},
        &EntryActions::CompareActionTriggered);
    QAction* const close =
        window_.addCommand(MenuName::Chart, {"CloseSecondAction", tr("C&lose Second Chart")},
                           [this] { window_.workspace().closeSecond(); });
    const auto showSecond = [this, close] {
        close->setEnabled(window_.workspace().secondChart() != nullptr);
    };
    connect(&window_.workspace(), &Workspace::secondChanged, this, showSecond);
    showSecond();
    window_.menu(MenuName::Options)->addSeparator();
    window_.addCommand(MenuName::Options,
                       {"NowLocationAction",
                        tr("&Now Location..."),
                        {},
                        tr("Sets the place of the chart of the moment and of transits")},
                       [this] { TNowLocationDlg(window_.workspace(), &window_).exec(); });
    window_.addCommand(MenuName::Options,
                       {"PcAtlasVersionAction",
                        tr("PC A&tlas..."),
                        {},
                        tr("Selects the version of an outside atlas and locates it")},
                       [this] { TPcAtlasVersionDlg(window_.workspace(), &window_).exec(); });
    add(MenuName::Tools,
        {"WorldMapAction",
         tr("World &Map..."),
         {},
         tr("Chooses a place on the map and enters a chart for it")},
        &EntryActions::WorldMapActionTriggered);

    if (auto* const box = qobject_cast<QBoxLayout*>(window_.centralWidget()->layout())) {
        // Below the news.
        box->insertWidget(1, drafts_);
    }
    connect(drafts_, &DraftBar::taken, this, &EntryActions::ContinueDraftActionTriggered);
    connect(drafts_, &DraftBar::dropped, this, &EntryActions::DiscardDraft);
    connect(&window_.workspace(), &Workspace::settingsChanged, this, &EntryActions::showDrafts,
            Qt::QueuedConnection);
    window_.addCloseQuestion([this] {
        if (form_ != nullptr && form_->isVisible() && form_->changed()) {
            form_->keepDraft();
        }
        return true;
    });
    showDrafts();
}

void EntryActions::showDrafts()
{
    if (form_ != nullptr && form_->isVisible()) {
        drafts_->hide();
    } else {
        drafts_->lookAgain();
    }
    continue_->setEnabled(!drafts_->isHidden());
}

TDataEntryForm* EntryActions::freeForm()
{
    if (form_ == nullptr) {
        form_ = new TDataEntryForm(window_.workspace(), &window_);
        connect(form_, &TDataEntryForm::left, this, &EntryActions::showDrafts);
    }
    const bool busy = form_->isVisible() && form_->changed();
    form_->show();
    form_->raise();
    form_->activateWindow();
    if (busy) {
        window_.workspace().tell(tr("First save or cancel the chart that is being entered."));
    }
    return busy ? nullptr : form_.data();
}

void EntryActions::NewChartActionTriggered()
{
    if (TDataEntryForm* const form = freeForm()) {
        form->newChart();
    }
    showDrafts();
}

void EntryActions::EditChartActionTriggered()
{
    if (TDataEntryForm* const form = freeForm()) {
        form->edit(window_.workspace().record(), window_.workspace().chartLine());
    }
    showDrafts();
}

void EntryActions::ContinueDraftActionTriggered()
{
    const std::vector<std::string> drafts = keptDrafts();
    TDataEntryForm* const form = drafts.empty() ? nullptr : freeForm();
    if (form != nullptr) {
        form->goOn(drafts.back());
    }
    showDrafts();
}

void EntryActions::DiscardDraft()
{
    std::vector<std::string> drafts = keptDrafts();
    if (!drafts.empty()) {
        drafts.pop_back();
        if (const auto kept = keepDrafts(drafts); !kept) {
            window_.workspace().tellProblem(toQt(kept.error().text()));
        }
    }
    showDrafts();
}

void EntryActions::NowChartActionTriggered()
{
    window_.workspace().showRecord(window_.workspace().nowRecord());
}

void EntryActions::EventsActionTriggered()
{
    TEventsDlg(window_.workspace(), &window_).exec();
}

void EntryActions::CompareActionTriggered()
{
    OpenDatabase& database = window_.workspace().database();
    TChooseChartDlg dialog(database, tr("Compare With"), &window_);
    if (dialog.exec() != QDialog::Accepted || !dialog.line()) {
        return;
    }
    if (const auto record = database.record(*dialog.line())) {
        window_.workspace().showSecond(*record);
    }
}

void EntryActions::WorldMapActionTriggered()
{
    const PlacesPointer places = PlaceSource::of(window_.workspace()).places();
    if (!places) {
        window_.workspace().tellProblem(toQt(data::kNoAtlas));
        return;
    }
    TWorldMapForm map(places, std::nullopt, &window_);
    if (map.exec() != QDialog::Accepted || !map.place()) {
        return;
    }
    if (TDataEntryForm* const form = freeForm()) {
        form->newChart();
        form->place().takePlace(places, *map.place());
    }
    showDrafts();
}

} // namespace kestrav::desktop
