#include "app/cli/ReportCommand.h"

#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/ReportCommandOptions.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/VargaOutput.h"
#include "app/present/Report.h"
#include "app/present/TableCatalogue.h"
#include "app/present/TableWriters.h"
#include "core/FileText.h"
#include "core/Files.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <span>

namespace kestrav::cli
{

namespace
{

constexpr int kMostLevels = 5;
constexpr int kMostLines = 10000;
constexpr int kMostDays = 36525;

using present::Document;

ExitCode usageError(const core::Error& error, Console& console)
{
    console.error(error.text());
    return ExitCode::Usage;
}

std::string formatted(const Document& document, WrittenForm form, const CommandInfo& info)
{
    switch (form) {
    case WrittenForm::Text:
        return core::toUtf8(present::documentText(document));
    case WrittenForm::Csv:
        return present::documentCsv(document);
    case WrittenForm::Html:
        return present::documentHtml(document);
    case WrittenForm::Rtf:
        return present::documentRtf(document);
    case WrittenForm::Json:
        break;
    }
    Json object = commandObject(info.name);
    object["report"] = Json::parse(present::documentJson(document));
    return jsonText(object);
}

ExitCode write(const std::string& bytes, const Arguments& arguments, Console& console)
{
    const std::optional<std::string> file = arguments.value("--output");
    if (!file) {
        console.print(bytes);
        return ExitCode::Done;
    }
    const core::Result<void> written = core::writeFileSafely(
        *file, std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
    if (!written) {
        console.error(written.error().text());
        return ExitCode::Failed;
    }
    return ExitCode::Done;
}

// Tables alone, without the head of a report where a form has none.
std::string formattedTables(const Document& document, WrittenForm form, const CommandInfo& info)
{
    if (form == WrittenForm::Text) {
        std::wstring text;
        for (const present::Block& block : document.blocks) {
            text +=
                (text.empty() ? L"" : L"\n") + present::tableText(std::get<present::Table>(block));
        }
        return core::toUtf8(text);
    }
    if (form == WrittenForm::Json) {
        Json object = commandObject(info.name);
        object["tables"] = Json::array();
        for (const present::Block& block : document.blocks) {
            object["tables"].push_back(
                Json::parse(present::tableJson(std::get<present::Table>(block))));
        }
        return jsonText(object);
    }
    if (form == WrittenForm::Csv && document.blocks.size() == 1) {
        // Programs that read the rows expect the headings in the first line.
        return present::tableCsv(std::get<present::Table>(document.blocks.front()));
    }
    return formatted(document, form, info);
}

// A list of names and meanings in the form of the other tables.
ExitCode printList(const Document& list, const Arguments& arguments, const CommandInfo& info,
                   Console& console)
{
    const core::Result<WrittenForm> form = writtenForm(arguments);
    return form ? write(formattedTables(list, form.value(), info), arguments, console)
                : usageError(form.error(), console);
}

Document listOfTables()
{
    present::Table table = {"tables", L"", {{L"Table"}, {L"What it shows"}}};
    for (const present::TableInfo& info : present::allTables()) {
        table.add({core::fromFileBytes(info.id), info.meaning});
    }
    return {L"Tables", {}, {std::move(table)}};
}

Document listOfReports()
{
    present::Table reports = {"reports", L"", {{L"Report"}}};
    for (const std::filesystem::path& path : deliveredReports()) {
        reports.add({core::fromFileBytes(path.stem().string())});
    }
    present::Table sections = {"sections", L"", {{L"Section"}}};
    for (int section = 0; section < present::kReportSections; ++section) {
        sections.add({core::fromFileBytes(
            present::reportSectionName(static_cast<present::ReportSection>(section)))});
    }
    return {L"Reports", {}, {std::move(reports), std::move(sections)}};
}

core::Result<present::TableSource>
tableSource(const Arguments& arguments, const ComputedChart& computed, const astro::Series& series)
{
    const auto varga = chosenVarga(arguments);
    const auto levels = integerOption(arguments, "--levels", 1, kMostLevels, 2);
    const auto lines = integerOption(arguments, "--lines", 1, kMostLines, 0);
    const auto days = integerOption(arguments, "--days", 1, kMostDays, 0);
    const auto letter = integerOption(arguments, "--name-letter", 1, 5, 0);
    const auto moment = momentOption(arguments, computed.chart.zone);
    if (!varga) {
        return varga.error();
    }
    for (const auto* number : {&levels, &lines, &letter, &days}) {
        if (!*number) {
            return number->error();
        }
    }
    if (!moment) {
        return moment.error();
    }
    present::TableSource source{computed, series};
    source.varga = varga.value().value_or(core::kRashi);
    source.levels = levels.value();
    source.lines = lines.value();
    source.nameLetter = letter.value();
    source.moment = moment.value();
    source.days = days.value();
    return source;
}

// The tables that were named, or the error.
core::Result<std::vector<present::Block>> namedTables(const Arguments& arguments,
                                                      const present::TableSource& source)
{
    std::vector<present::Block> blocks;
    for (const std::string& name : arguments.values("TABLE")) {
        const present::TableInfo* const info = present::findTable(name);
        if (info == nullptr) {
            return core::Error{"there is no table '" + name + "'; --list shows them"};
        }
        core::Result<present::Table> table = info->make(source);
        if (!table) {
            return core::Error{name + ": " + table.error().text()};
        }
        blocks.emplace_back(std::move(table.value()));
    }
    if (blocks.empty()) {
        return core::Error{"name a table; --list shows them"};
    }
    return blocks;
}

core::Result<yoga::YogaLibrary> yogaLibrary(const Arguments& arguments)
{
    yoga::YogaLibrary library;
    if (!arguments.has("--yogas")) {
        for (const std::filesystem::path& path : yoga::standardYogaFiles()) {
            if (const core::Result<void> loaded = library.load(path); !loaded) {
                return loaded.error();
            }
        }
        return library;
    }
    for (const std::string& file : arguments.values("--yogas")) {
        if (const core::Result<void> loaded = library.load(file); !loaded) {
            return loaded.error();
        }
    }
    return library;
}

// Whether an option names the second chart.
bool hasSecondChart(const Arguments& arguments)
{
    return std::any_of(kSecondChartOptions.begin(), kSecondChartOptions.end(),
                       [&](const OptionInfo& option) { return arguments.has(option.name); });
}

// What a report or its tables are made from, but for a second chart.
struct ReportCall
{
    yoga::YogaLibrary library;
    CallData data;
    ComputedChart computed;

    [[nodiscard]] const yoga::YogaLibrary* yogas() const
    {
        return library.files().empty() ? nullptr : &library;
    }
};

// Nothing after a failure, which has been reported with its exit code in `code`.
std::optional<ReportCall> openReport(const Arguments& arguments, const BirthData& birth,
                                     Console& console, ExitCode& code)
{
    core::Result<yoga::YogaLibrary> library = yogaLibrary(arguments);
    if (!library) {
        console.error(library.error().text());
        code = ExitCode::Failed;
        return std::nullopt;
    }
    std::optional<CallData> data = openCall(arguments, console, code);
    std::optional<ComputedChart> computed =
        data ? computeChart(*data, birth, console, code) : std::nullopt;
    if (!computed) {
        return std::nullopt;
    }
    return ReportCall{std::move(library.value()), std::move(*data), std::move(*computed)};
}

} // namespace

TableCommand::TableCommand()
    : Command({"table",
               "Write tables of a chart as text, comma-separated values, HTML, RTF or JSON",
               {{"TABLE", "names of tables; --list shows them", false, true}},
               {kBirthOptions, kPositionsOption, kSecondChartOptions, kTableOptions, kVargaOption,
                kFormatOptions, kSetOptions, kCommonOptions}})
{}

ExitCode TableCommand::run(const Arguments& arguments, Console& console) const
{
    if (arguments.has("--list")) {
        return printList(listOfTables(), arguments, info(), console);
    }
    const core::Result<WrittenForm> form = writtenForm(arguments);
    if (!form) {
        return usageError(form.error(), console);
    }
    const core::Result<BirthData> birth = readBirthData(arguments, PlaceNeed::Optional);
    if (!birth) {
        return usageError(birth.error(), console);
    }
    std::optional<BirthData> secondBirth;
    if (hasSecondChart(arguments)) {
        core::Result<BirthData> read = readBirthData(arguments, PlaceNeed::Optional, kSecondChart);
        if (!read) {
            return usageError(read.error(), console);
        }
        secondBirth = std::move(read.value());
    }
    ExitCode code = ExitCode::Done;
    const std::optional<ReportCall> call = openReport(arguments, birth.value(), console, code);
    if (!call) {
        return code;
    }
    const ComputedChart& computed = call->computed;
    std::optional<ComputedChart> second;
    if (secondBirth) {
        second = computeChart(call->data, *secondBirth, console, code);
        if (!second) {
            return code;
        }
    }
    core::Result<present::TableSource> source =
        tableSource(arguments, computed, call->data.data.series);
    if (!source) {
        return usageError(source.error(), console);
    }
    source.value().yogas = call->yogas();
    if (second) {
        const bool brideFirst = arguments.has("--bride-first");
        source.value().groom = brideFirst ? &second->chart : &computed.chart;
        source.value().bride = brideFirst ? &computed.chart : &second->chart;
        source.value().matchingTables = &call->data.data.matching;
    }
    auto blocks = namedTables(arguments, source.value());
    if (!blocks) {
        return usageError(blocks.error(), console);
    }
    Document document;
    document.title = computed.chart.name.empty() ? L"Chart" : computed.chart.name;
    document.head = present::reportHead(computed);
    document.blocks = std::move(blocks.value());
    return write(formattedTables(document, form.value(), info()), arguments, console);
}

ReportCommand::ReportCommand()
    : Command({"report",
               "Write a report of chosen sections as text, HTML, RTF or JSON, or its tables as "
               "comma-separated values",
               {},
               {kBirthOptions, kPositionsOption, kReportOptions, kFormatOptions, kSetOptions,
                kCommonOptions}})
{}

ExitCode ReportCommand::run(const Arguments& arguments, Console& console) const
{
    if (arguments.has("--list")) {
        return printList(listOfReports(), arguments, info(), console);
    }
    const core::Result<WrittenForm> form = writtenForm(arguments);
    const core::Result<present::DiagramStyle> style = styleOption(arguments);
    const core::Result<present::ReportDefinition> definition = chosenReport(arguments);
    const core::Result<BirthData> birth = readBirthData(arguments, PlaceNeed::Optional);
    for (const core::Error* error :
         {form ? nullptr : &form.error(), style ? nullptr : &style.error(),
          definition ? nullptr : &definition.error(), birth ? nullptr : &birth.error()}) {
        if (error != nullptr) {
            return usageError(*error, console);
        }
    }
    ExitCode code = ExitCode::Done;
    const std::optional<ReportCall> call = openReport(arguments, birth.value(), console, code);
    if (!call) {
        return code;
    }
    const ComputedChart& computed = call->computed;
    const core::Result<double> moment = momentOption(arguments, computed.chart.zone);
    if (!moment) {
        return usageError(moment.error(), console);
    }
    const present::ReportSource source{computed, call->data.data.series, call->yogas(),
                                       moment.value(), style.value()};
    return write(formatted(present::makeReport(source, definition.value()), form.value(), info()),
                 arguments, console);
}

} // namespace kestrav::cli
