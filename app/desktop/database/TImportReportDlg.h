// What an import or export did with every record.
#pragma once

#include "app/present/Table.h"
#include "data/export/ExportCharts.h"
#include "data/import/ImportReport.h"

#include <QDialog>

#include <vector>

namespace kestrav::desktop
{

class TableView;

class TImportReportDlg : public QDialog
{
    Q_OBJECT

public:
    /// The reports of the imported files.
    TImportReportDlg(const std::vector<data::ImportReport>& reports, QWidget* parent);
    /// The losses of an export.
    TImportReportDlg(const data::ExportReport& report, const QString& file, QWidget* parent);

private:
    void arrange(const QString& summary, present::Table table);
    void CopyButtonClick();

    TableView* table_;
};

} // namespace kestrav::desktop
