#include "app/present/ReportDefinition.h"

#include "analysis/VargaNames.h"
#include "app/present/DefinitionLines.h"

#include <algorithm>
#include <array>

namespace kestrav::present
{

namespace
{

constexpr std::string_view kHead = "Kestrav report 1";

constexpr std::array<std::string_view, kReportSections> kNames = {
    "birth-data", "chart",     "positions", "vargas",   "dignities", "strengths", "ashtakavarga",
    "dashas",     "panchanga", "yogas",     "transits", "notes",     "events",    "page-break"};

constexpr std::size_t kMostDiagrams = 21;
constexpr int kMostLevels = 5;
constexpr int kMostLines = 10000;
constexpr int kMostDays = 366;

// The options that a section has in files.
std::vector<std::string_view> optionsOf(ReportSection section)
{
    switch (section) {
    case ReportSection::Chart:
        return {"varga", "style"};
    case ReportSection::Ashtakavarga:
        return {"varga"};
    case ReportSection::Dashas:
        return {"levels", "lines"};
    case ReportSection::Transits:
        return {"days"};
    default:
        return {};
    }
}

bool hasOption(ReportSection section, std::string_view key)
{
    const std::vector<std::string_view> options = optionsOf(section);
    return std::find(options.begin(), options.end(), key) != options.end();
}

// "rashi,navamsha,D-10"
core::Result<std::vector<int>> readVargas(const DefinitionLine& line, std::string_view text)
{
    std::vector<int> vargas;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(','), text.size());
        const std::optional<int> varga = analysis::findVarga(text.substr(0, end));
        if (!varga) {
            return definitionError(line, "there is no divisional chart '" +
                                             std::string(text.substr(0, end)) + "'");
        }
        vargas.push_back(*varga);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    if (vargas.empty() || vargas.size() > kMostDiagrams) {
        return definitionError(line, "varga= needs 1 to 21 divisional charts");
    }
    return vargas;
}

core::Result<ReportPart> readPart(const DefinitionLine& line)
{
    const std::optional<ReportSection> section = findReportSection(line.word);
    if (!section || !line.words.empty()) {
        return definitionError(line, "there is no section '" +
                                         (section ? line.words.front() : line.word) + "'");
    }
    ReportPart part;
    part.section = *section;
    if (const core::Result<void> keys = checkOptionKeys(line, optionsOf(*section)); !keys) {
        return keys.error();
    }
    if (const std::optional<std::string> text = line.option("varga")) {
        core::Result<std::vector<int>> vargas = readVargas(line, *text);
        if (!vargas) {
            return vargas.error();
        }
        part.vargas = std::move(vargas.value());
    }
    if (const std::optional<std::string> text = line.option("style")) {
        part.style = findDiagramStyle(*text);
        if (!part.style) {
            return definitionError(line, "there is no diagram style '" + *text + "'");
        }
    }
    struct Number
    {
        const char* key;
        int* value;
        int most;
    };
    for (const Number& number :
         {Number{"levels", &part.levels, kMostLevels}, Number{"lines", &part.lines, kMostLines},
          Number{"days", &part.days, kMostDays}}) {
        const core::Result<int> value =
            integerOption(line, number.key, 1, number.most, *number.value);
        if (!value) {
            return value.error();
        }
        *number.value = value.value();
    }
    return part;
}

} // namespace

std::string_view reportSectionName(ReportSection section)
{
    return kNames.at(std::size_t(section));
}

std::optional<ReportSection> findReportSection(std::string_view name)
{
    const auto* const found = std::find(kNames.begin(), kNames.end(), name);
    return found == kNames.end()
               ? std::nullopt
               : std::optional(static_cast<ReportSection>(found - kNames.begin()));
}

core::Result<ReportDefinition> readReportDefinition(std::string_view bytes)
{
    const auto lines = readDefinition(bytes, kHead);
    if (!lines) {
        return lines.error();
    }
    ReportDefinition definition;
    for (const DefinitionLine& line : lines.value()) {
        if (line.word == "name") {
            definition.name = line.rest;
            continue;
        }
        core::Result<ReportPart> part = readPart(line);
        if (!part) {
            return part.error();
        }
        definition.parts.push_back(std::move(part.value()));
    }
    if (definition.name.empty()) {
        return core::Error{"the report has no name"};
    }
    if (definition.parts.empty()) {
        return core::Error{"the report has no sections"};
    }
    return definition;
}

std::string writeReportDefinition(const ReportDefinition& definition)
{
    std::string text = std::string(kHead) + "\nname " + definition.name + "\n";
    for (const ReportPart& part : definition.parts) {
        text += reportSectionName(part.section);
        if (hasOption(part.section, "varga")) {
            std::string vargas;
            for (const int varga : part.vargas) {
                vargas += (vargas.empty() ? "" : ",") + std::to_string(varga);
            }
            text += " varga=" + vargas;
        }
        if (part.style && hasOption(part.section, "style")) {
            text += " style=" + std::string(diagramStyleName(*part.style));
        }
        if (hasOption(part.section, "levels")) {
            text += " levels=" + std::to_string(part.levels);
            text += " lines=" + std::to_string(part.lines);
        }
        if (hasOption(part.section, "days")) {
            text += " days=" + std::to_string(part.days);
        }
        text += "\n";
    }
    return text;
}

core::Result<ReportDefinition> reportOfSections(const std::vector<std::string>& names)
{
    ReportDefinition definition;
    definition.name = "Report";
    for (const std::string& name : names) {
        const std::optional<ReportSection> section = findReportSection(name);
        if (!section) {
            return core::Error{"there is no report section '" + name + "'"};
        }
        ReportPart part;
        part.section = *section;
        definition.parts.push_back(std::move(part));
    }
    return definition;
}

} // namespace kestrav::present
