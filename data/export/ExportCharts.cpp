#include "data/export/ExportCharts.h"
#include "data/DatabaseCommands.h"

#include "data/DatabaseMessages.h"
#include "data/DerivedFile.h"
#include "data/export/ChartRows.h"
#include "data/export/QckWriter.h"
#include "data/import/BirthEntry.h"

#include <system_error>
#include <utility>

namespace kestrav::data
{

namespace
{

std::string headOf(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Contacts:
        return contactHead();
    case ExportFormat::Csv:
        return csvHead();
    case ExportFormat::Json:
        return "{\"program\": {\"name\": \"Kestrav\", \"version\": \"" KESTRAV_VERSION
               "\"}, \"charts\": [";
    case ExportFormat::Qck:
        break;
    }
    return {};
}

std::string rowOf(const core::Chart& chart, std::size_t line, ExportFormat format,
                  ExportReport& report)
{
    switch (format) {
    case ExportFormat::Contacts:
        return contactRow(chart);
    case ExportFormat::Csv:
        return csvRow(chart);
    case ExportFormat::Json:
        return (report.written > 0 ? ",\n" : "\n") + jsonObject(chart);
    case ExportFormat::Qck:
        break;
    }
    QckLine qck = qckLine(chart);
    for (std::string& loss : qck.losses) {
        report.notes.push_back({line, std::move(loss)});
    }
    return qck.line + "\r\n";
}

} // namespace

std::string exportText(ChartDatabase& database, ExportFormat format, ExportReport& report)
{
    std::string text = headOf(format);
    core::Chart chart;
    for (std::size_t i = 0; i < database.size(); ++i) {
        if (isShortLine(database.line(i))) {
            report.notes.push_back({i, "the line is too short to be a chart"});
            continue;
        }
        const std::string row = rowOf(database.read(i, chart), i, format, report);
        report.written += row.empty() ? 0 : 1;
        text += row;
    }
    return format == ExportFormat::Json ? text + "\n]}\n" : text;
}

Outcome agreeToExport(const std::filesystem::path& database, ExportFormat format,
                      const std::filesystem::path& to, core::Messages& messages)
{
    if (format == ExportFormat::Contacts && lowered(to.extension().string()) == ".jdf") {
        messages.notice(kErrorCaption, kNoJdfExport);
        return Outcome::Failed;
    }
    std::error_code problem;
    if (std::filesystem::equivalent(to, database, problem)) {
        messages.notice(kErrorCaption,
                        L"This is the database itself; give the export another name");
        return Outcome::Failed;
    }
    if (stampOf(to).exists() &&
        messages.show(kWarningCaption, kOverwrite, core::Buttons::YesNo) != core::Answer::Yes) {
        return Outcome::Cancelled;
    }
    return Outcome::Done;
}

core::Result<void> writeExport(ChartDatabase& database, ExportFormat format,
                               const std::filesystem::path& to, ExportReport& report)
{
    return writeDerivedFile(to, exportText(database, format, report));
}

Outcome exportCharts(ChartDatabase& database, ExportFormat format, const std::filesystem::path& to,
                     core::Messages& messages, ExportReport& report)
{
    const Outcome agreed = agreeToExport(database.path(), format, to, messages);
    if (agreed != Outcome::Done) {
        return agreed;
    }
    const core::Result<void> written = writeExport(database, format, to, report);
    if (!written) {
        tellSavingError(written.error(), messages);
        return Outcome::Failed;
    }
    return Outcome::Done;
}

} // namespace kestrav::data
