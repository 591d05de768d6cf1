#include "app/desktop/entry/DraftBar.h"

#include "app/desktop/entry/EntryDraft.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "data/ChartLineFields.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QPushButton>

namespace kestrav::desktop
{

DraftBar::DraftBar(QWidget* parent) : QFrame(parent), text_(new QLabel(this))
{
    setObjectName(QStringLiteral("DraftBar"));
    setAutoFillBackground(true);
    text_->setObjectName(QStringLiteral("DraftLabel"));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    auto* const go = new QPushButton(tr("Continue"), this);
    go->setObjectName(QStringLiteral("ContinueDraftButton"));
    go->setToolTip(tr("Opens data entry with what was typed"));
    auto* const drop = new QPushButton(tr("Discard"), this);
    drop->setObjectName(QStringLiteral("DiscardDraftButton"));
    drop->setToolTip(tr("Throws away what was typed"));
    auto* const box = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(2 * gap, gap, gap, gap);
    box->addWidget(text_, 1);
    box->addWidget(go);
    box->addWidget(drop);
    connect(go, &QPushButton::clicked, this, &DraftBar::continued);
    connect(drop, &QPushButton::clicked, this, &DraftBar::discarded);
    hide();
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
    text_->setText(text);
    setAccessibleName(text);
    QPalette palette;
    palette.setColor(QPalette::Window, themeColour(ThemeRole::News));
    setPalette(palette);
    show();
}

} // namespace kestrav::desktop
