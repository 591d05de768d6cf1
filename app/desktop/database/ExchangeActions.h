// The commands that bring charts of other files in and write them for other programs.
#pragma once

#include "app/present/Table.h"
#include "data/Merge.h"
#include "data/export/ExportCharts.h"
#include "data/import/ReadImport.h"

#include <QObject>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QAction;

namespace kestrav::desktop
{

class DatabaseActions;
class OpenDatabase;
class TKSVform1;

class ExchangeActions : public QObject
{
    Q_OBJECT

public:
    ExchangeActions(TKSVform1& window, DatabaseActions& files);

    /// Adds the charts of a file to the open database after the question, and reports them.
    void importFile(const std::filesystem::path& file);
    /// Shows what merging a database would do, and does it when the user agrees. `name` stands for
    /// the file in what is shown, `first` is what is chosen for changed charts at first, and
    /// `merged` is called when it was done.
    void merge(const std::filesystem::path& file, const std::filesystem::path& name,
               data::MergeChanged first, std::function<void()> merged);
    /// Adds chart lines that were dropped; those that are there already are left out.
    void addLines(const std::string& lines);

private:
    struct Merging;

    void addImportCommands();
    void addExportCommands();
    void MergeActionClick();
    void preview(const std::shared_ptr<Merging>& merging);
    void ImportFileActionClick();
    void ImportFolderActionClick();
    using ReadReports = std::function<std::vector<data::ImportReport>()>;

    void append(const QString& working, const QString& what, const ReadReports& read);
    void exportAs(data::ExportFormat format, const QString& caption, const QString& suffix,
                  const std::wstring& filter);
    [[nodiscard]] data::ImportOptions options();
    [[nodiscard]] OpenDatabase& database();

    TKSVform1& window_;
    DatabaseActions& files_;
    QAction* dosLetters_ = nullptr;
};

} // namespace kestrav::desktop
