#include "app/cli/ReportCommandOptions.h"

#include "app/cli/DashaCommandOptions.h"
#include "app/present/DefinitionLines.h"
#include "core/Files.h"
#include "core/Locations.h"
#include "core/NumberText.h"

#include <algorithm>

namespace kestrav::cli
{

namespace
{

constexpr std::array<std::string_view, 5> kForms = {"text", "csv", "html", "rtf", "json"};
constexpr char kUsualReport[] = "one-page";

core::Result<present::ReportDefinition> readReport(const std::filesystem::path& path)
{
    const auto bytes = core::readFile(path, present::kLongestDefinition);
    if (!bytes) {
        return bytes.error();
    }
    core::Result<present::ReportDefinition> definition =
        present::readReportDefinition(std::string_view(
            reinterpret_cast<const char*>(bytes.value().data()), bytes.value().size()));
    if (!definition) {
        return core::Error{definition.error().message, path.string(), definition.error().line};
    }
    return definition;
}

} // namespace

core::Result<WrittenForm> writtenForm(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--format");
    if (!text) {
        return arguments.has("--json") ? WrittenForm::Json : WrittenForm::Text;
    }
    const auto* const found = std::find(kForms.begin(), kForms.end(), *text);
    if (found == kForms.end()) {
        return core::Error{"--format '" + *text + "' is not text, csv, html, rtf or json"};
    }
    const auto form = static_cast<WrittenForm>(found - kForms.begin());
    if (arguments.has("--json") && form != WrittenForm::Json) {
        return core::Error{"--json and --format " + *text + " contradict each other"};
    }
    return form;
}

core::Result<int> integerOption(const Arguments& arguments, std::string_view option, int least,
                                int most, int byDefault)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return byDefault;
    }
    const std::optional<int> value = core::parseInteger(*text);
    if (!value || *value < least || *value > most) {
        return core::Error{std::string(option) + " '" + *text + "' is not a whole number from " +
                           std::to_string(least) + " to " + std::to_string(most)};
    }
    return *value;
}

core::Result<present::DiagramStyle> styleOption(const Arguments& arguments)
{
    const std::string name = arguments.value("--style").value_or("north");
    const std::optional<present::DiagramStyle> style = present::findDiagramStyle(name);
    if (!style) {
        return core::Error{"--style '" + name + "' is not north, south, east or circle"};
    }
    return *style;
}

core::Result<double> momentOption(const Arguments& arguments, double zone)
{
    DashaRequest request;
    const core::Result<void> read = readAt(arguments.value("--at").value_or("now"), request);
    if (!read) {
        return read.error();
    }
    return *momentAsked(request, zone);
}

std::vector<std::filesystem::path> deliveredReports()
{
    std::vector<std::filesystem::path> paths;
    for (const std::filesystem::path& folder : core::searchFolders()) {
        std::error_code problem;
        for (const auto& entry :
             std::filesystem::directory_iterator(folder / kReportFolder, problem)) {
            if (entry.path().extension() == ".txt" && entry.is_regular_file(problem)) {
                paths.push_back(entry.path());
            }
        }
        if (!paths.empty()) {
            break;
        }
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

core::Result<present::ReportDefinition> chosenReport(const Arguments& arguments)
{
    if (arguments.has("--section")) {
        if (arguments.has("--report")) {
            return core::Error{"--report and --section cannot be given together"};
        }
        core::Result<present::ReportDefinition> definition =
            present::reportOfSections(arguments.values("--section"));
        return definition ? definition : core::Error{"--section: " + definition.error().message};
    }
    const std::string name = arguments.value("--report").value_or(kUsualReport);
    for (const std::filesystem::path& path : deliveredReports()) {
        if (path.stem() == name) {
            return readReport(path);
        }
    }
    return readReport(name);
}

} // namespace kestrav::cli
