#include "app/cli/DatabaseExchangeCommands.h"

#include "app/cli/ChartSource.h"
#include "app/cli/Console.h"
#include "app/cli/SharedOptions.h"
#include "app/present/BirthRecord.h"
#include "app/present/TextTable.h"
#include "core/FileText.h"
#include "data/DatabaseMessages.h"
#include "data/Merge.h"
#include "data/export/ExportCharts.h"
#include "data/import/BirthEntry.h"
#include "data/import/ReadImport.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace kestrav::cli
{

namespace
{

namespace fs = std::filesystem;

constexpr std::array<OptionInfo, 2> kMergeOptions = {{
    {"--changed", "skip|replace|both",
     "what happens to a chart of the same name with other data: ours stays (when not given), "
     "theirs replaces it, or theirs is added under the name with ~"},
    {"--preview", "", "show what merging would do, and change nothing"},
}};

constexpr std::array<OptionInfo, 1> kImportOptions = {{
    {"--encoding", "NAME", "how bytes that are no UTF-8 are read: windows-1252 or cp850"},
}};

constexpr std::array<OptionInfo, 1> kExportOptions = {{
    {"--format", "NAME", "qck, contacts, csv or json; when not given by the extension of the file"},
}};

constexpr std::array<std::wstring_view, 4> kMergeWords = {L"new", L"changed", L"equal", L"damaged"};

std::wstring_view wordOf(data::MergeKind kind)
{
    return kMergeWords[std::size_t(kind)];
}

std::optional<data::MergeChanged> changedOf(const std::string& word)
{
    if (word == "skip") {
        return data::MergeChanged::Skip;
    }
    if (word == "replace") {
        return data::MergeChanged::Replace;
    }
    return word == "both" ? std::optional(data::MergeChanged::Both) : std::nullopt;
}

std::wstring previewText(const data::MergePreview& preview)
{
    present::TextTable table({{L"Line", present::TextTable::Align::Right}, {L"Here"}, {L"Name"}});
    for (const data::MergeEntry& entry : preview.entries) {
        table.add(
            {std::to_wstring(entry.theirLine + 1), std::wstring(wordOf(entry.kind)), entry.name});
    }
    std::wstring text = table.text();
    for (const data::MergeKind kind : {data::MergeKind::New, data::MergeKind::Changed,
                                       data::MergeKind::Equal, data::MergeKind::Damaged}) {
        text += (kind == data::MergeKind::New ? L"" : L", ") + std::wstring(wordOf(kind)) + L": " +
                std::to_wstring(preview.count(kind));
    }
    return text + L"\n";
}

Json previewJson(const DatabaseCall& call, const data::MergePreview& preview)
{
    Json object = call.object();
    object["entries"] = Json::array();
    for (const data::MergeEntry& entry : preview.entries) {
        Json each;
        each["line"] = entry.theirLine + 1;
        each["name"] = textOrNull(entry.name);
        each["kind"] = textJson(wordOf(entry.kind));
        each["ourLine"] = entry.ourLine ? Json(*entry.ourLine + 1) : Json();
        object["entries"].push_back(std::move(each));
    }
    return object;
}

// How many charts a merge adds and replaces.
data::MergeResult expected(const data::MergePreview& preview, data::MergeChanged changed)
{
    const std::size_t others = preview.count(data::MergeKind::Changed);
    return {preview.count(data::MergeKind::New) +
                (changed == data::MergeChanged::Both ? others : 0),
            changed == data::MergeChanged::Replace ? others : 0};
}

Json noteJson(std::string_view place, long number, const std::string& text)
{
    Json note;
    note[std::string(place)] = number > 0 ? Json(number) : Json();
    note["text"] = text;
    return note;
}

Json reportJson(const data::ImportReport& report)
{
    Json object;
    object["file"] = report.file.string();
    object["format"] = textOrNull(core::fromFileBytes(report.format));
    object["taken"] = report.charts.size();
    object["refused"] = Json::array();
    for (const data::ImportNote& note : report.refused) {
        object["refused"].push_back(noteJson("record", note.record, note.text));
    }
    object["remarks"] = Json::array();
    for (const data::ImportNote& note : report.remarks) {
        object["remarks"].push_back(noteJson("record", note.record, note.text));
    }
    return object;
}

// Adds the files of a folder after one question.
data::Outcome importFolder(DatabaseCall& call, const fs::path& folder,
                           const data::ImportOptions& options,
                           std::vector<data::ImportReport>& reports)
{
    if (call.messages.show(data::kNoticeCaption, data::addQuestion(folder, call.path),
                           core::Buttons::YesNo) != core::Answer::Yes) {
        return data::Outcome::Cancelled;
    }
    std::vector<data::ImportReport> found = data::readImportFolder(folder, options);
    std::size_t added = 0;
    for (data::ImportReport& report : found) {
        added += data::appendImport(call.database, report);
        reports.push_back(std::move(report));
    }
    if (found.empty()) {
        call.console.error(folder.string() + ": holds no .jhd and no .dat file");
    }
    return added > 0 ? data::Outcome::Done : data::Outcome::Failed;
}

std::optional<data::ExportFormat> formatOf(const std::string& word)
{
    struct Entry
    {
        std::string_view word;
        std::string_view extension;
        data::ExportFormat format;
    };
    constexpr std::array<Entry, 4> kFormats = {{
        {"qck", ".qck", data::ExportFormat::Qck},
        {"contacts", ".txt", data::ExportFormat::Contacts},
        {"csv", ".csv", data::ExportFormat::Csv},
        {"json", ".json", data::ExportFormat::Json},
    }};
    for (const Entry& entry : kFormats) {
        if (word == entry.word || word == entry.extension) {
            return entry.format;
        }
    }
    return std::nullopt;
}

// A folder stands for the file of the database's own name in it.
fs::path fileAt(const std::string& target, const fs::path& database)
{
    std::error_code problem;
    const fs::path path = target;
    return fs::is_directory(path, problem) ? path / database.filename() : path;
}

void printFile(DatabaseCall& call, const fs::path& file)
{
    if (call.json()) {
        Json object = call.object();
        object["file"] = file.string();
        object["lines"] = call.database.size();
        call.console.print(jsonText(object));
        return;
    }
    call.console.print(file.string() + ": " + std::to_string(call.database.size()) + " lines\n");
}

} // namespace

MergeDatabaseCommand::MergeDatabaseCommand()
    : DatabaseCommand("db merge", "Bring the charts of another database into a database",
                      {{"OTHER", "the other database"}}, {kMergeOptions, kYesOption})
{}

ExitCode MergeDatabaseCommand::work(DatabaseCall& call) const
{
    const std::string word = call.arguments.value("--changed").value_or("skip");
    const std::optional<data::MergeChanged> changed = changedOf(word);
    if (!changed) {
        return usageError(call, "--changed '" + word + "' is not skip, replace or both");
    }
    data::ChartDatabase theirs(present::dateOrder(call.settings));
    if (data::openDatabase(theirs, *call.arguments.value("OTHER"), call.messages) !=
        data::Outcome::Done) {
        return ExitCode::Failed;
    }
    const data::MergePreview preview = data::previewMerge(call.database, theirs);
    if (!call.json()) {
        call.console.print(previewText(preview));
    }
    data::MergeResult result = expected(preview, *changed);
    ExitCode code = ExitCode::Done;
    if (call.arguments.has("--preview")) {
        result = {};
    } else if (result.added + result.replaced > 0) {
        const std::wstring question = L"Add " + std::to_wstring(result.added) + L" and replace " +
                                      std::to_wstring(result.replaced) + L" charts in " +
                                      data::fileText(call.path) + L"?";
        if (call.messages.show(data::kNoticeCaption, question, core::Buttons::YesNo) !=
            core::Answer::Yes) {
            return ExitCode::Failed;
        }
        result = data::merge(call.database, preview, *changed);
        code = saveCall(call);
    }
    if (code == ExitCode::Done && call.json()) {
        Json object = previewJson(call, preview);
        object["added"] = result.added;
        object["replaced"] = result.replaced;
        call.console.print(jsonText(object));
    }
    return code;
}

ImportChartsCommand::ImportChartsCommand()
    : DatabaseCommand("db import",
                      "Add the charts of files of other programs to a database; of a folder those "
                      "of its .jhd and .dat files",
                      {{"PATH", "a file or a folder", true, true}}, {kImportOptions, kYesOption})
{}

ExitCode ImportChartsCommand::work(DatabaseCall& call) const
{
    data::ImportOptions options;
    options.order = present::dateOrder(call.settings);
    const std::string encoding =
        data::lowered(call.arguments.value("--encoding").value_or("windows-1252"));
    if (encoding != "windows-1252" && encoding != "cp850") {
        return usageError(call, "--encoding '" + encoding + "' is neither windows-1252 nor cp850");
    }
    options.encoding =
        encoding == "cp850" ? data::ByteEncoding::CodePage850 : data::ByteEncoding::Windows1252;
    std::vector<data::ImportReport> reports;
    const std::size_t before = call.database.size();
    bool all = true;
    for (const std::string& path : call.arguments.values("PATH")) {
        std::error_code problem;
        data::Outcome outcome = data::Outcome::Failed;
        if (fs::is_directory(path, problem)) {
            outcome = importFolder(call, path, options, reports);
        } else {
            data::ImportReport report;
            outcome = data::importFile(call.database, path, options, call.messages, report);
            if (!report.file.empty()) {
                reports.push_back(std::move(report));
            }
        }
        all = all && outcome == data::Outcome::Done;
    }
    const std::size_t added = call.database.size() - before;
    if (added > 0 && saveCall(call) != ExitCode::Done) {
        return ExitCode::Failed;
    }
    if (call.json()) {
        Json object = call.object();
        object["files"] = Json::array();
        for (const data::ImportReport& report : reports) {
            object["files"].push_back(reportJson(report));
        }
        object["added"] = added;
        call.console.print(jsonText(object));
    } else {
        for (const data::ImportReport& report : reports) {
            call.console.print(data::reportText(report));
        }
    }
    return all ? ExitCode::Done : ExitCode::Failed;
}

ExportChartsCommand::ExportChartsCommand()
    : DatabaseCommand("db export", "Write the charts of a database for other programs",
                      {{"FILE", "the file to write"}}, {kExportOptions, kYesOption})
{}

ExitCode ExportChartsCommand::work(DatabaseCall& call) const
{
    const fs::path file = *call.arguments.value("FILE");
    const std::string word =
        call.arguments.value("--format").value_or(data::lowered(file.extension().string()));
    const std::optional<data::ExportFormat> format = formatOf(word);
    if (!format) {
        return usageError(call, call.arguments.has("--format")
                                    ? "--format '" + word + "' is not qck, contacts, csv or json"
                                    : "--format is missing; the file's extension tells none");
    }
    data::ExportReport report;
    const ExitCode code =
        exitCodeOf(data::exportCharts(call.database, *format, file, call.messages, report));
    if (code != ExitCode::Done) {
        return code;
    }
    if (call.json()) {
        Json object = call.object();
        object["file"] = file.string();
        object["written"] = report.written;
        object["notes"] = Json::array();
        for (const data::ExportNote& note : report.notes) {
            object["notes"].push_back(noteJson("line", long(note.line) + 1, note.text));
        }
        call.console.print(jsonText(object));
        return code;
    }
    std::string text = file.string() + ": " + std::to_string(report.written) + " charts written\n";
    for (const data::ExportNote& note : report.notes) {
        text += "  line " + std::to_string(note.line + 1) + ": " + note.text + "\n";
    }
    call.console.print(text);
    return code;
}

BackUpDatabaseCommand::BackUpDatabaseCommand()
    : DatabaseCommand("db backup", "Save a copy of a database",
                      {{"TO", "the copy, or a folder for it"}}, {kYesOption})
{}

ExitCode BackUpDatabaseCommand::work(DatabaseCall& call) const
{
    data::announceBackup(call.messages);
    const fs::path to = fileAt(*call.arguments.value("TO"), call.path);
    const ExitCode code = exitCodeOf(data::backUpDatabase(call.database, to, call.messages));
    if (code == ExitCode::Done) {
        printFile(call, to);
    }
    return code;
}

RestoreDatabaseCommand::RestoreDatabaseCommand()
    : DatabaseCommand("db restore", "Save a copy that was backed up as a database",
                      {{"FROM", "the copy, or the folder that holds it"}}, {kYesOption},
                      Opens::Nothing)
{}

ExitCode RestoreDatabaseCommand::work(DatabaseCall& call) const
{
    const fs::path from = fileAt(*call.arguments.value("FROM"), call.path);
    const ExitCode code =
        exitCodeOf(data::restoreDatabase(call.database, from, call.path, call.messages));
    if (code == ExitCode::Done) {
        printFile(call, call.path);
    }
    return code;
}

} // namespace kestrav::cli
