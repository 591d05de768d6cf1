#include "app/desktop/panels/TableExport.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/SaveFile.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/Document.h"
#include "app/present/TableWriters.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace kestrav::desktop
{

namespace
{

std::string tableBytes(const present::Table& table, const QString& suffix)
{
    if (suffix == QLatin1String("csv")) {
        return present::tableCsv(table);
    }
    if (suffix == QLatin1String("json")) {
        return present::tableJson(table);
    }
    present::Document document;
    document.title = table.title;
    document.blocks.emplace_back(table);
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm")) {
        return present::documentHtml(document);
    }
    if (suffix == QLatin1String("rtf")) {
        return present::documentRtf(document);
    }
    return core::toUtf8(present::tableText(table));
}

} // namespace

void saveTableAs(const present::Table& table, Workspace& workspace, QWidget* parent)
{
    const auto file = TMessages::fileToSave(
        parent, QCoreApplication::translate("TableExport", "Save Table"),
        L"Comma-separated values (*.csv)|*.csv|Text (*.txt)|*.txt|Web page (*.html)|*.html|"
        L"Rich text (*.rtf)|*.rtf|JSON (*.json)|*.json",
        toQt(table.id) + QStringLiteral(".csv"));
    if (file) {
        saveBytes(tableBytes(table, QFileInfo(*file).suffix().toLower()), *file, workspace);
    }
}

} // namespace kestrav::desktop
