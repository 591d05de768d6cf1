// What an import or export did with every record.
#pragma once

#include "app/present/Table.h"
#include "data/import/ImportReport.h"

#include <QDialog>

#include <cstddef>
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
    /// The losses of an export of so many charts.
    TImportReportDlg(std::size_t written, present::Table losses, const QString& file,
                     QWidget* parent);

private:
    void arrange(const QString& summary, present::Table table);
    void CopyButtonClick();

    TableView* table_;
};

} // namespace kestrav::desktop
