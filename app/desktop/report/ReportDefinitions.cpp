#include "app/desktop/report/ReportDefinitions.h"

#include "app/desktop/pages/SavedPages.h"
#include "core/Files.h"
#include "core/Locations.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <span>
#include <system_error>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::uintmax_t kLargestFile = 1U << 16U;

std::filesystem::path ownFolder()
{
    return core::configFolder() / "reports";
}

void addFrom(const std::filesystem::path& folder, std::vector<present::ReportDefinition>& found,
             std::vector<std::string>& problems)
{
    std::set<std::filesystem::path> files;
    std::error_code problem;
    for (std::filesystem::directory_iterator entry(folder, problem), end; !problem && entry != end;
         entry.increment(problem)) {
        if (entry->path().extension() == ".txt") {
            files.insert(entry->path());
        }
    }
    for (const std::filesystem::path& file : files) {
        const auto bytes = core::readFile(file, kLargestFile);
        auto definition = bytes ? present::readReportDefinition(
                                      std::string(bytes.value().begin(), bytes.value().end()))
                                : core::Result<present::ReportDefinition>(bytes.error());
        if (!definition) {
            problems.push_back(file.filename().string() + ": " + definition.error().text());
            continue;
        }
        std::erase_if(found, [&](const present::ReportDefinition& other) {
            return other.name == definition.value().name;
        });
        found.push_back(std::move(definition.value()));
    }
}

} // namespace

std::vector<present::ReportDefinition> reportDefinitions(std::vector<std::string>& problems)
{
    std::vector<present::ReportDefinition> found;
    if (const auto delivered = core::findFile("reports/full.txt")) {
        addFrom(delivered->parent_path(), found, problems);
    }
    addFrom(ownFolder(), found, problems);
    return found;
}

core::Result<void> keepReportDefinition(const present::ReportDefinition& definition)
{
    std::error_code problem;
    std::filesystem::create_directories(ownFolder(), problem);
    const std::string text = present::writeReportDefinition(definition);
    return core::writeFileSafely(
        ownFolder() / pageFileName(definition.name),
        std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

} // namespace kestrav::desktop
