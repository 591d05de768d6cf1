#include "yoga/YogaLibrary.h"

#include "core/Locations.h"
#include "data/Chooser.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

namespace kestrav::yoga
{

namespace
{

namespace fs = std::filesystem;

std::vector<fs::path> yogaFilesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    std::error_code problem;
    for (fs::directory_iterator entry(folder, problem), end; !problem && entry != end;
         entry.increment(problem)) {
        std::error_code unreadable;
        if (entry->path().extension() == ".ksy" && entry->is_regular_file(unreadable)) {
            files.push_back(entry->path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

core::Result<void> YogaLibrary::load(const fs::path& path)
{
    core::Result<YogaFile> file = readYogaFile(path);
    if (!file) {
        return file.error();
    }
    store(path, std::move(file.value()));
    return {};
}

void YogaLibrary::store(const fs::path& path, YogaFile file)
{
    LoadedYogaFile loaded{path, std::move(file), {}};
    for (const Yoga& yoga : loaded.file.yogas) {
        core::Result<YogaRule> rule = readCheckedRule(yoga.rule);
        loaded.rules.push_back(rule ? std::optional(std::move(rule.value())) : std::nullopt);
    }
    const auto old = std::find_if(files_.begin(), files_.end(),
                                  [&](const LoadedYogaFile& one) { return one.path == path; });
    if (old == files_.end()) {
        files_.push_back(std::move(loaded));
    } else {
        *old = std::move(loaded);
    }
}

std::vector<YogaPlace> YogaLibrary::all() const
{
    std::vector<YogaPlace> places;
    for (std::size_t i = 0; i < files_.size(); ++i) {
        for (std::size_t k = 0; k < files_[i].file.yogas.size(); ++k) {
            places.push_back({i, k});
        }
    }
    return places;
}

std::optional<YogaPlace> YogaLibrary::find(std::string_view title) const
{
    const std::string key = data::nameSortKey(std::string(title));
    std::optional<YogaPlace> alike;
    bool several = false;
    for (const YogaPlace& place : all()) {
        if (yoga(place).title == title) {
            return place;
        }
        if (data::nameSortKey(yoga(place).title) == key) {
            several = several || alike;
            alike = place;
        }
    }
    return several ? std::nullopt : alike;
}

std::vector<YogaPlace> YogaLibrary::holding(Subject& subject) const
{
    std::vector<YogaPlace> places;
    for (const YogaPlace& place : all()) {
        if (rule(place) && ruleHolds(*rule(place), subject)) {
            places.push_back(place);
        }
    }
    return places;
}

std::vector<fs::path> standardYogaFiles()
{
    std::vector<fs::path> files;
    for (const fs::path& folder : core::searchFolders()) {
        files = yogaFilesIn(folder / kYogaFolder);
        if (!files.empty()) {
            break;
        }
    }
    if (const std::optional<fs::path> own = core::findFile(kOwnYogaFile)) {
        files.push_back(*own);
    }
    return files;
}

} // namespace kestrav::yoga
