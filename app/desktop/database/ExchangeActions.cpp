#include "app/desktop/database/ExchangeActions.h"

#include "app/desktop/database/ChangeWithBox.h"
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/ExchangeTables.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/database/TImportReportDlg.h"
#include "app/desktop/database/TMergePreviewDlg.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "data/DatabaseMessages.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

#include <cstdint>
#include <span>
#include <utility>

namespace kestrav::desktop
{

using data::Outcome;

// What a merge works on while nothing is changed yet.
struct ExchangeActions::Merging
{
    data::ChartDatabase ours;
    data::ChartDatabase theirs;
    std::filesystem::path path;
    std::filesystem::path name; ///< what the user is shown for the path
    data::MergeChanged first = data::MergeChanged::Skip;
    std::function<void()> merged;
    int revision = 0;
    NotedMessages notes;
    bool opened = false;
    data::MergePreview preview;
    present::Table table;
};

namespace
{

constexpr wchar_t kImportFilter[] =
    L"Charts of other programs (*.qck, *.cht, *.jhd, *.jdf, *.dat, *.xml, *.txt)|"
    L"*.qck;*.cht;*.jhd;*.jdf;*.dat;*.xml;*.txt|";
constexpr wchar_t kAllFiles[] = L"|All files (*)|*";

QString charts(std::size_t count)
{
    return count == 1 ? ExchangeActions::tr("1 chart")
                      : ExchangeActions::tr("%1 charts").arg(count);
}

} // namespace

ExchangeActions::ExchangeActions(TKSVform1& window, DatabaseActions& files)
    : QObject(&window), window_(window), files_(files)
{
    window_.addCommand(MenuName::File,
                       {"MergeAction",
                        tr("&Merge..."),
                        {},
                        tr("Brings the charts of another database into this one")},
                       [this] { MergeActionClick(); });
    addImportCommands();
    addExportCommands();
}

OpenDatabase& ExchangeActions::database()
{
    return window_.workspace().database();
}

void ExchangeActions::addImportCommands()
{
    QMenu* const menu = window_.menu(MenuName::File)->addMenu(tr("&Import"));
    window_.addCommand(menu,
                       {"ImportFileAction",
                        tr("&File..."),
                        {},
                        tr("Adds the charts of a file of another program"),
                        "document-import"},
                       [this] { ImportFileActionClick(); });
    window_.addCommand(menu,
                       {"ImportFolderAction",
                        tr("All .jhd and .dat Files of a F&older..."),
                        {},
                        tr("Adds the charts of all such files of a folder")},
                       [this] { ImportFolderActionClick(); });
    menu->addSeparator();
    Command letters{"DosLettersAction",
                    tr("Read Letters of &DOS Files (CP850)"),
                    {},
                    tr("For files of DOS days, whose accented letters are read wrongly otherwise")};
    letters.checkable = true;
    dosLetters_ = window_.addCommand(menu, letters, [] {});
}

void ExchangeActions::addExportCommands()
{
    using Format = data::ExportFormat;
    QMenu* const menu = window_.menu(MenuName::File)->addMenu(tr("E&xport"));
    const auto add = [&](const char* name, const QString& text, const QString& tip, Format format,
                         const QString& caption, const char* suffix, const std::wstring& filter) {
        window_.addCommand(menu, {name, text, {}, tip}, [this, format, caption, suffix, filter] {
            exportAs(format, caption, QLatin1String(suffix), filter);
        });
    };
    add("ExportQckAction", tr("&QCK Chart List..."), tr("Writes a chart list in fixed columns"),
        Format::Qck, toQt(data::kQckNamePrompt), ".QCK", L"QCK chart list (*.qck)|*.qck");
    add("ExportContactsAction", tr("&Contact Information..."),
        tr("Writes names and addresses as a text with tabs"), Format::Contacts,
        tr("Export Contact Information"), ".txt", L"Text with tabs (*.txt)|*.txt");
    add("ExportCsvAction", tr("Comma-&Separated Values..."), tr("Writes a table for spreadsheets"),
        Format::Csv, tr("Export Charts"), ".csv", L"Comma-separated values (*.csv)|*.csv");
    add("ExportJsonAction", tr("&JSON..."), tr("Writes every field of all charts for programs"),
        Format::Json, tr("Export Charts"), ".json", L"JSON (*.json)|*.json");
}

data::ImportOptions ExchangeActions::options()
{
    return {dosLetters_->isChecked() ? data::ByteEncoding::CodePage850
                                     : data::ByteEncoding::Windows1252,
            database().charts().order()};
}

void ExchangeActions::MergeActionClick()
{
    const auto file = TMessages::fileToOpen(&window_, tr("Merge Database"), data::kDatabaseFilter,
                                            QFileInfo(toQt(database().path())).path());
    if (file) {
        const std::filesystem::path path = toPath(*file);
        merge(path, path, data::MergeChanged::Skip, {});
    }
}

void ExchangeActions::merge(const std::filesystem::path& file, const std::filesystem::path& name,
                            data::MergeChanged first, std::function<void()> merged)
{
    emit database().editsDue();
    // Shared, because the work may outlive the window.
    auto merging = std::make_shared<Merging>();
    merging->name = name;
    merging->first = first;
    merging->merged = std::move(merged);
    merging->ours = database().charts();
    merging->revision = database().revision();
    merging->theirs = data::ChartDatabase(merging->ours.order());
    merging->path = file;
    workWithBox(
        &window_, tr("Comparing %1").arg(toQt(data::fileText(name))), {},
        [merging](const WorkHandle&) {
            merging->opened =
                data::openDatabase(merging->theirs, merging->path, merging->notes) == Outcome::Done;
            if (merging->opened) {
                merging->preview = data::previewMerge(merging->ours, merging->theirs);
                merging->table = mergeTable(merging->preview, merging->ours, merging->theirs);
            }
            return merging;
        },
        [this](const std::shared_ptr<Merging>& compared) {
            repeat(compared->notes.said(), files_.messages());
            if (compared->opened) {
                preview(compared);
            }
        });
}

void ExchangeActions::preview(const std::shared_ptr<Merging>& merging)
{
    auto* const dialog = new TMergePreviewDlg(merging->preview, std::move(merging->table),
                                              merging->name, database().path(), &window_);
    dialog->choose(merging->first);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, merging] {
        auto result = std::make_shared<data::MergeResult>();
        const QString name = toQt(data::fileText(merging->name));
        LongChange change{tr("Merging %1").arg(name), tr("Merge %1").arg(name), merging->revision,
                          [merging, result, changed = dialog->changed()](data::ChartDatabase& ours,
                                                                         const data::LongWork&) {
                              *result = data::merge(ours, merging->preview, changed);
                              return Outcome::Done;
                          }};
        changeWithBox(window_, std::move(change), [this, merging, result](Outcome) {
            window_.workspace().tell(
                tr("%1 added, %2 replaced").arg(charts(result->added)).arg(result->replaced));
            if (merging->merged) {
                merging->merged();
            }
        });
    });
    dialog->open();
}

void ExchangeActions::ImportFileActionClick()
{
    const auto file = TMessages::fileToOpen(
        &window_, tr("Import Charts"),
        kImportFilter + std::wstring(data::kBirthdatFilter) + kAllFiles, chartsFolder());
    if (file) {
        importFile(toPath(*file));
    }
}

void ExchangeActions::importFile(const std::filesystem::path& file)
{
    if (data::agreeToImport(file, database().path(), files_.messages()) != Outcome::Done) {
        return;
    }
    const QString name = toQt(data::fileText(file));
    append(tr("Reading %1").arg(name), name, [file, chosen = options()] {
        return std::vector<data::ImportReport>{data::readImport(file, chosen)};
    });
}

void ExchangeActions::ImportFolderActionClick()
{
    const auto file = TMessages::fileToOpen(
        &window_, tr("Select any file to import all .jhd and .dat data files"),
        L"Data files (*.jhd, *.dat)|*.jhd;*.dat", chartsFolder());
    if (!file) {
        return;
    }
    const std::filesystem::path folder = toPath(*file).parent_path();
    if (data::agreeToImport(folder, database().path(), files_.messages()) != Outcome::Done) {
        return;
    }
    const QString name = toQt(data::fileText(folder));
    append(tr("Reading the files of %1").arg(name), name,
           [folder, chosen = options()] { return data::readImportFolder(folder, chosen); });
}

void ExchangeActions::append(const QString& working, const QString& what, const ReadReports& read)
{
    // Shared, because the work may outlive the window.
    auto reports = std::make_shared<std::vector<data::ImportReport>>();
    LongChange change{working, tr("Import %1").arg(what), database().revision(),
                      [reports, read](data::ChartDatabase& charts, const data::LongWork&) {
                          *reports = read();
                          std::size_t added = 0;
                          for (data::ImportReport& report : *reports) {
                              added += data::appendImport(charts, report);
                          }
                          return added > 0 ? Outcome::Done : Outcome::Cancelled;
                      }};
    changeWithBox(window_, std::move(change), [this, reports](Outcome) {
        auto* const dialog = new TImportReportDlg(*reports, &window_);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}

void ExchangeActions::addLines(const std::string& lines)
{
    const std::span<const std::uint8_t> bytes(reinterpret_cast<const std::uint8_t*>(lines.data()),
                                              lines.size());
    data::ImportReport report = data::readImportBytes(bytes, "", options());
    std::size_t added = 0;
    database().change(tr("Add Dropped Charts"), [&](data::ChartDatabase& target) {
        added = data::appendImport(target, report);
        return added > 0 ? Outcome::Done : Outcome::Cancelled;
    });
    if (added > 0) {
        window_.workspace().tell(tr("%1 added").arg(charts(added)));
    } else {
        window_.workspace().tellProblem(tr("What was dropped holds no new charts."));
    }
}

void ExchangeActions::exportAs(data::ExportFormat format, const QString& caption,
                               const QString& suffix, const std::wstring& filter)
{
    const QString base = QFileInfo(toQt(database().path())).completeBaseName();
    const auto file = TMessages::fileToSave(&window_, caption, filter,
                                            chartsFolder() + QLatin1Char('/') +
                                                (base.isEmpty() ? tr("Charts") : base) + suffix);
    if (!file || data::agreeToExport(database().path(), format, toPath(*file), files_.messages()) !=
                     Outcome::Done) {
        return;
    }
    struct Written
    {
        core::Result<void> result;
        std::size_t charts = 0;
        present::Table losses;
    };
    // Shared, because the work may outlive the window.
    const auto copy = std::make_shared<data::ChartDatabase>(database().charts());
    workWithBox(
        &window_, tr("Writing %1").arg(QFileInfo(*file).fileName()), {},
        [copy, format, path = toPath(*file)](const WorkHandle&) {
            Written written;
            data::ExportReport report;
            written.result = data::writeExport(*copy, format, path, report);
            written.charts = report.written;
            written.losses = exportTable(report);
            return written;
        },
        [this, name = *file](Written written) {
            if (!written.result) {
                data::tellSavingError(written.result.error(), files_.messages());
                return;
            }
            if (written.losses.rows.empty()) {
                window_.workspace().tell(tr("%1 written to %2").arg(charts(written.charts), name));
                return;
            }
            auto* const dialog =
                new TImportReportDlg(written.charts, std::move(written.losses), name, &window_);
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->open();
        });
}

} // namespace kestrav::desktop
