#include "app/desktop/database/TMergePreviewDlg.h"

#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "data/DatabaseMessages.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

TMergePreviewDlg::TMergePreviewDlg(const data::MergePreview& preview, present::Table table,
                                   const std::filesystem::path& theirs,
                                   const std::filesystem::path& ours, QWidget* parent)
    : QDialog(parent), newCharts_(preview.count(data::MergeKind::New)),
      changedCharts_(preview.count(data::MergeKind::Changed)), choices_(new QButtonGroup(this)),
      result_(new QLabel(this))
{
    setObjectName(QStringLiteral("TMergePreviewDlg"));
    setWindowTitle(tr("Merge Databases"));
    auto* const summary = new QLabel(
        tr("%1 has %2 charts that are new in %3, %4 changed, %5 equal and %6 damaged ones.")
            .arg(toQt(data::fileText(theirs)))
            .arg(newCharts_)
            .arg(toQt(data::fileText(ours)))
            .arg(changedCharts_)
            .arg(preview.count(data::MergeKind::Equal))
            .arg(preview.count(data::MergeKind::Damaged)),
        this);
    summary->setObjectName(QStringLiteral("SummaryLabel"));
    summary->setTextFormat(Qt::PlainText);
    summary->setWordWrap(true);
    auto* const view = new TableView(this);
    view->setObjectName(QStringLiteral("PreviewTable"));
    view->setAccessibleName(tr("Charts of the other database"));
    view->setFrameShape(QFrame::StyledPanel);
    view->setTable(std::move(table));

    auto* const group = new QGroupBox(tr("Changed charts"), this);
    auto* const groupBox = new QVBoxLayout(group);
    struct Choice
    {
        const char* name;
        QString text;
        data::MergeChanged value;
    };
    const Choice choices[] = {
        {"SkipRadioButton", tr("&Skip: keep those of this database"), data::MergeChanged::Skip},
        {"ReplaceRadioButton", tr("&Replace: take those of the other database"),
         data::MergeChanged::Replace},
        {"BothRadioButton", tr("&Both: add those of the other database as Nnnnnn~"),
         data::MergeChanged::Both},
    };
    for (const Choice& choice : choices) {
        auto* const button = new QRadioButton(choice.text, group);
        button->setObjectName(QLatin1String(choice.name));
        button->setChecked(choice.value == data::MergeChanged::Skip);
        choices_->addButton(button, int(choice.value));
        groupBox->addWidget(button);
    }
    group->setEnabled(changedCharts_ > 0);
    result_->setObjectName(QStringLiteral("ResultLabel"));
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OkButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(choices_, &QButtonGroup::idToggled, this, &TMergePreviewDlg::showResult);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(summary);
    box->addWidget(view, 1);
    box->addWidget(group);
    box->addWidget(result_);
    box->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 30);
    showResult();
    view->setFocus();
}

data::MergeChanged TMergePreviewDlg::changed() const
{
    return data::MergeChanged(choices_->checkedId());
}

void TMergePreviewDlg::choose(data::MergeChanged changed)
{
    choices_->button(int(changed))->setChecked(true);
}

void TMergePreviewDlg::showResult()
{
    const bool both = changed() == data::MergeChanged::Both;
    const bool replace = changed() == data::MergeChanged::Replace;
    result_->setText(tr("OK adds %1 charts and replaces %2.")
                         .arg(newCharts_ + (both ? changedCharts_ : 0))
                         .arg(replace ? changedCharts_ : 0));
}

} // namespace kestrav::desktop
