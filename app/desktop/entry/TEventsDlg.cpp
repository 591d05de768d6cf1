#include "app/desktop/entry/TEventsDlg.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/EventsTable.h"
#include "app/desktop/entry/FormRows.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "data/CleanText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrav::desktop
{

namespace
{

constexpr int kRowsShown = 16;

} // namespace

TEventsDlg::TEventsDlg(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), table_(new EventsTable(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("TEventsDlg"));
    setWindowTitle(tr("Events"));
    table_->setEvents(workspace.record().identity.events, workspace.database().charts().order());
    table_->setMinimumHeight(kRowsShown * table_->verticalHeader()->defaultSectionSize());
    auto* const label = new QLabel(tr("&Events of %1:").arg(toQt(workspace.record().name)), this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(table_);
    QPushButton* const sort = buttons_->addButton(tr("&Sort by Date"), QDialogButtonBox::ResetRole);
    sort->setObjectName(QStringLiteral("SortButton"));
    connect(sort, &QPushButton::clicked, table_, &EventsTable::sortByDate);
    keepEnterInside(*this);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(label);
    box->addWidget(table_, 1);
    box->addWidget(buttons_);
    const auto check = [this] {
        buttons_->button(QDialogButtonBox::Ok)->setEnabled(table_->valid());
    };
    connect(table_, &EventsTable::edited, this, check);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TEventsDlg::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    table_->setFocus();
}

void TEventsDlg::OkButtonClick()
{
    core::Chart chart = workspace_.record();
    chart.identity.events = table_->events();
    data::cleanRecord(chart);
    const std::optional<std::size_t> line = workspace_.chartLine();
    if (line) {
        const std::size_t index = *line;
        workspace_.database().change(tr("Edit Events"), [&](data::ChartDatabase& charts) {
            if (index < charts.size()) {
                charts.replace(index, chart);
            }
            return data::Outcome::Done;
        });
    }
    workspace_.showRecord(chart, line);
    accept();
}

} // namespace kestrav::desktop
