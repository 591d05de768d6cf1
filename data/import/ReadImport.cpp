#include "data/import/ReadImport.h"

#include "core/FileText.h"
#include "core/Files.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/DatabaseMessages.h"
#include "data/FieldReader.h"
#include "data/import/BinaryChartList.h"
#include "data/import/BirthEntry.h"
#include "data/import/BirthKeys.h"
#include "data/import/CommandChart.h"
#include "data/import/PackedList.h"
#include "data/import/QckReader.h"
#include "data/import/XmlCharts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <string>
#include <system_error>
#include <unistd.h>
#include <unordered_set>
#include <utility>

namespace kestrav::data
{

namespace
{

namespace fs = std::filesystem;

using Bytes = std::span<const std::uint8_t>;

// Our own lines: fields separated by TABs in lines that are long enough.
bool isChartLines(const std::vector<std::string>& lines)
{
    constexpr auto kFewestFields = 8;
    return std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        return !isShortLine(line) && std::count(line.begin(), line.end(), '\t') >= kFewestFields;
    });
}

bool isTaggedDatabase(const std::vector<std::string>& lines)
{
    return std::any_of(lines.begin(), lines.end(),
                       [](const std::string& line) { return line.starts_with("\\S>"); });
}

// The lines as they stand, each in an encoding of its own.
void readChartLines(Bytes bytes, DateOrder order, ImportReport& report)
{
    report.format = "chart lines";
    const core::Result<LineList> lines = LineList::fromBytes(bytes);
    if (!lines) {
        report.refuse(0, lines.error().message);
        return;
    }
    for (std::size_t i = 0; i < lines.value().size(); ++i) {
        const std::string_view line = lines.value().line(i);
        if (trimmed(line).empty()) {
            continue;
        }
        if (isShortLine(line)) {
            report.refuse(long(i) + 1, "the line is too short");
            continue;
        }
        core::Chart chart;
        report.take(long(i) + 1, ParseChartLine(line, chart, order));
    }
}

// The first words of a file that was not recognised, so that the user can see what it is.
std::string beginningOf(const std::vector<std::string>& lines)
{
    const auto first = std::find_if(lines.begin(), lines.end(),
                                    [](const auto& line) { return !trimmed(line).empty(); });
    return first == lines.end() ? "it is empty" : "it begins with " + shown(*first);
}

ImportFormat recognise(Bytes bytes, const std::vector<std::string>& lines)
{
    if (isXml(bytes)) {
        return ImportFormat::Xml;
    }
    if (isQckList(lines)) {
        return ImportFormat::Qck;
    }
    if (isCommandChart(lines)) {
        return ImportFormat::Commands;
    }
    if (isPackedList(lines)) {
        return ImportFormat::PackedList;
    }
    if (isBinaryChartList(bytes)) {
        return ImportFormat::BinaryList;
    }
    if (isTaggedDatabase(lines)) {
        return ImportFormat::TaggedDatabase;
    }
    if (isChartLines(lines)) {
        return ImportFormat::ChartLines;
    }
    return isBirthKeys(lines) ? ImportFormat::BirthKeys : ImportFormat::Unknown;
}

bool hasExtension(const fs::path& file, std::initializer_list<std::string_view> extensions)
{
    return std::find(extensions.begin(), extensions.end(), lowered(file.extension().string())) !=
           extensions.end();
}

std::string notesText(const std::vector<ImportNote>& notes, const std::string& what)
{
    std::string text;
    for (const ImportNote& note : notes) {
        text += "  " + what;
        if (note.record > 0) {
            text += " " + std::to_string(note.record);
        }
        text += ": " + note.text + "\n";
    }
    return text;
}

} // namespace

ImportFormat recogniseImport(Bytes bytes, const ImportOptions& options)
{
    return recognise(bytes, textLines(bytes, options.encoding));
}

ImportReport readImportBytes(Bytes bytes, std::string_view name, const ImportOptions& options)
{
    ImportReport report;
    if (bytes.size() > kLargestImport) {
        report.refuse(0, "is larger than 16 MiB");
        return report;
    }
    const std::vector<std::string> lines = textLines(bytes, options.encoding);
    switch (recognise(bytes, lines)) {
    case ImportFormat::Xml:
        readXmlCharts(bytes, report);
        break;
    case ImportFormat::Qck:
        report.format = "QCK chart list";
        readQckList(lines, report);
        break;
    case ImportFormat::Commands:
        report.format = "chart in command lines";
        readCommandChart(lines, report);
        break;
    case ImportFormat::PackedList:
        report.format = "chart of packed numbers";
        readPackedList(lines, name, report);
        break;
    case ImportFormat::BinaryList:
        report.format = "binary chart list";
        readBinaryChartList(bytes, report);
        break;
    case ImportFormat::ChartLines:
        readChartLines(bytes, options.order, report);
        break;
    case ImportFormat::BirthKeys:
        report.format = "birth data by keys";
        readBirthKeys(lines, report);
        break;
    case ImportFormat::TaggedDatabase:
        report.format = "database with tagged columns";
        report.refuse(0, "is a database with tagged columns of another program, which is not read");
        break;
    case ImportFormat::Unknown:
        report.refuse(0, "is not a chart file: " + beginningOf(lines));
        break;
    }
    if (report.charts.empty() && report.refused.empty()) {
        report.refuse(0, "holds no chart");
    }
    return report;
}

ImportReport readImport(const fs::path& file, const ImportOptions& options)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(file, kLargestImport);
    ImportReport report;
    if (bytes) {
        report = readImportBytes(bytes.value(), file.stem().string(), options);
    } else {
        report.refuse(0, bytes.error().message);
    }
    report.file = file;
    return report;
}

std::vector<ImportReport> readImportFolder(const fs::path& folder, const ImportOptions& options)
{
    std::vector<fs::path> files;
    std::error_code problem;
    for (fs::directory_iterator entry(folder, problem), end; !problem && entry != end;
         entry.increment(problem)) {
        std::error_code unreadable;
        const bool regular = fs::is_regular_file(entry->symlink_status(unreadable));
        if (regular && hasExtension(entry->path(), {".jhd", ".dat"})) {
            files.push_back(entry->path());
        }
    }
    std::sort(files.begin(), files.end());
    std::vector<ImportReport> reports;
    reports.reserve(files.size());
    for (const fs::path& file : files) {
        reports.push_back(readImport(file, options));
    }
    if (problem) {
        ImportReport& report = reports.emplace_back();
        report.file = folder;
        report.refuse(0, "cannot be read: " + problem.message());
    }
    return reports;
}

bool isImportName(const fs::path& file)
{
    return hasExtension(file, {".qck", ".cht", ".jhd", ".jdf"});
}

bool shouldImport(const fs::path& file)
{
    if (isImportName(file)) {
        return true;
    }
    if (!hasExtension(file, {".dat"})) {
        return false;
    }
    constexpr std::streamsize kHead = 65536;
    std::vector<char> head(kHead);
    std::ifstream stream(file, std::ios::binary);
    stream.read(head.data(), kHead);
    const ImportFormat format = recogniseImport(
        {reinterpret_cast<const std::uint8_t*>(head.data()), std::size_t(stream.gcount())});
    return format != ImportFormat::ChartLines && format != ImportFormat::Unknown;
}

std::size_t appendImport(ChartDatabase& database, ImportReport& report)
{
    std::unordered_set<std::string> known;
    for (std::size_t i = 0; i < database.size(); ++i) {
        known.emplace(database.line(i));
    }
    std::vector<core::Chart> added;
    for (core::Chart& chart : report.charts) {
        std::string line = FormatChartLine(chart, database.order());
        if (!known.insert(line).second) {
            report.refuse(0, core::toUtf8(chart.name) + " is in the database already");
            continue;
        }
        database.addLine(std::move(line));
        added.push_back(std::move(chart));
    }
    report.charts = std::move(added);
    return report.charts.size();
}

Outcome agreeToImport(const fs::path& file, const fs::path& database, core::Messages& messages)
{
    if (::access(file.c_str(), R_OK) != 0) {
        messages.notice(kErrorCaption, kCannotFindImport);
        return Outcome::Failed;
    }
    const core::Answer answer =
        messages.show(kNoticeCaption, addQuestion(file, database), core::Buttons::YesNo);
    return answer == core::Answer::Yes ? Outcome::Done : Outcome::Cancelled;
}

Outcome importFile(ChartDatabase& database, const fs::path& file, const ImportOptions& options,
                   core::Messages& messages, ImportReport& report)
{
    const Outcome agreed = agreeToImport(file, database.path(), messages);
    if (agreed != Outcome::Done) {
        return agreed;
    }
    report = readImport(file, options);
    if (appendImport(database, report) == 0) {
        messages.notice(kErrorCaption, reportText(report));
        return Outcome::Failed;
    }
    return Outcome::Done;
}

std::wstring reportText(const ImportReport& report)
{
    std::string text = report.file.filename().string();
    text += report.format.empty() ? "\n" : ": " + report.format + "\n";
    text += "  taken: " + std::to_string(report.charts.size()) +
            ", refused: " + std::to_string(report.refused.size()) + "\n";
    text += notesText(report.refused, "refused") + notesText(report.remarks, "remark on");
    std::wstring wide = core::fromFileBytes(text);
    // Texts of foreign files may hold anything, also the second set of control characters, which
    // terminals obey.
    const auto control = [](wchar_t c) {
        return (c < 0x20 && c != L'\n') || (c >= 0x7F && c < 0xA0);
    };
    std::replace_if(wide.begin(), wide.end(), control, L' ');
    return wide;
}

} // namespace kestrav::data
