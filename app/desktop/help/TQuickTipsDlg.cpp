#include "app/desktop/help/TQuickTipsDlg.h"

#include "app/desktop/help/HelpTopics.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/Workspace.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrav::desktop
{

TQuickTipsDlg::TQuickTipsDlg(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), tips_(quickTips()), tip_(new QLabel(this)),
      show_(new QCheckBox(tr("&Show a tip when the program starts"), this))
{
    setObjectName(QStringLiteral("TQuickTipsDlg"));
    setWindowTitle(tr("Quick Tip"));
    tip_->setObjectName(QStringLiteral("TipLabel"));
    tip_->setWordWrap(true);
    tip_->setMinimumSize(fontMetrics().height() * 24, fontMetrics().height() * 5);
    tip_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    show_->setObjectName(QStringLiteral("ShowCheckBox"));
    show_->setChecked(workspace_.settings().quickTips);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* const next = buttons->addButton(tr("&Next Tip"), QDialogButtonBox::ActionRole);
    next->setObjectName(QStringLiteral("NextButton"));
    auto* const box = new QVBoxLayout(this);
    box->addWidget(tip_, 1);
    box->addWidget(show_);
    box->addWidget(buttons);
    connect(next, &QPushButton::clicked, this, &TQuickTipsDlg::NextButtonClick);
    connect(show_, &QCheckBox::toggled, this, &TQuickTipsDlg::ShowCheckBoxToggled);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    next_ = stateOfWindow().value("tips/next", 0).toLongLong();
    NextButtonClick();
    next->setFocus();
}

void TQuickTipsDlg::NextButtonClick()
{
    if (tips_.isEmpty()) {
        tip_->setText(tr("The help pages are not installed."));
        return;
    }
    next_ = next_ >= 0 && next_ < tips_.size() ? next_ : 0;
    tip_->setText(tips_[next_]);
    stateOfWindow().setValue("tips/next", qlonglong(++next_));
}

void TQuickTipsDlg::ShowCheckBoxToggled(bool shown)
{
    core::Settings settings = workspace_.settings();
    settings.quickTips = shown;
    workspace_.changeSettings(settings);
}

} // namespace kestrav::desktop
