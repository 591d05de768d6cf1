#include "app/desktop/entry/DraftBar.h"

#include "app/desktop/entry/EntryDraft.h"
#include "app/desktop/shell/Convert.h"
#include "data/ChartLineFields.h"

#include <QLabel>
#include <QPushButton>

namespace kestrav::desktop
{

DraftBar::DraftBar(QWidget* parent)
    : OfferBar(tr("Continue"), tr("Opens data entry with what was typed"), tr("Discard"),
               tr("Throws away what was typed"), parent)
{
    setObjectName(QStringLiteral("DraftBar"));
    label().setObjectName(QStringLiteral("DraftLabel"));
    takeButton().setObjectName(QStringLiteral("ContinueDraftButton"));
    dropButton().setObjectName(QStringLiteral("DiscardDraftButton"));
}

void DraftBar::lookAgain()
{
    const std::vector<std::string> drafts = keptDrafts();
    if (drafts.empty()) {
        hide();
        return;
    }
    const QString name = toQt(readDraftLine(drafts.back()).chart.name);
    const bool named = !name.isEmpty() && name != toQt(data::kNoNameText);
    QString text = named ? tr("An unfinished chart was kept: %1").arg(name)
                         : tr("An unfinished chart without a name was kept.");
    if (drafts.size() > 1) {
        text += tr(" (%1 in all)").arg(drafts.size());
    }
    offer(text);
}

} // namespace kestrav::desktop
