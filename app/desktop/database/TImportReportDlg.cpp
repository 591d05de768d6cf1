#include "app/desktop/database/TImportReportDlg.h"

#include "app/desktop/database/ExchangeTables.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "data/DatabaseMessages.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

QString summaryOf(const std::vector<data::ImportReport>& reports)
{
    std::size_t added = 0;
    std::size_t refused = 0;
    for (const data::ImportReport& report : reports) {
        added += report.charts.size();
        refused += report.refused.size();
    }
    const QString from = reports.size() == 1
                             ? toQt(data::fileText(reports.front().file)) +
                                   (reports.front().format.empty()
                                        ? QString()
                                        : QStringLiteral(" (%1)").arg(toQt(reports.front().format)))
                             : TImportReportDlg::tr("%1 files").arg(reports.size());
    return TImportReportDlg::tr("%1: %2 added, %3 refused").arg(from).arg(added).arg(refused);
}

} // namespace

TImportReportDlg::TImportReportDlg(const std::vector<data::ImportReport>& reports, QWidget* parent)
    : QDialog(parent), table_(new TableView(this))
{
    setWindowTitle(tr("Import Report"));
    arrange(summaryOf(reports), importTable(reports));
}

TImportReportDlg::TImportReportDlg(std::size_t written, present::Table losses, const QString& file,
                                   QWidget* parent)
    : QDialog(parent), table_(new TableView(this))
{
    setWindowTitle(tr("Export Report"));
    arrange(tr("%1: %2 charts written. Some things do not fit into this kind of file:")
                .arg(QFileInfo(file).fileName())
                .arg(written),
            std::move(losses));
}

void TImportReportDlg::arrange(const QString& summary, present::Table table)
{
    setObjectName(QStringLiteral("TImportReportDlg"));
    auto* const label = new QLabel(summary, this);
    label->setObjectName(QStringLiteral("SummaryLabel"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    table_->setObjectName(QStringLiteral("ReportTable"));
    table_->setAccessibleName(tr("Records of the file"));
    table_->setFrameShape(QFrame::StyledPanel);
    table_->setTable(std::move(table));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* const copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("CopyButton"));
    connect(copy, &QPushButton::clicked, this, &TImportReportDlg::CopyButtonClick);
    QPushButton* const close = buttons->button(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("CloseButton"));
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(label);
    box->addWidget(table_, 1);
    box->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 24);
    table_->setFocus();
}

void TImportReportDlg::CopyButtonClick()
{
    table_->copy();
}

} // namespace kestrav::desktop
