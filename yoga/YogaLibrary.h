// The yoga files that are loaded, and the yogas of them that a chart has.
#pragma once

#include "core/Result.h"
#include "yoga/ExplainRule.h"
#include "yoga/RuleCheck.h"
#include "yoga/YogaFile.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

/// The folder of the delivered files inside a data folder.
inline constexpr char kYogaFolder[] = "yogas";

/// A yoga file with its rules read.
struct LoadedYogaFile
{
    std::filesystem::path path;
    YogaFile file;
    /// One for each yoga; none for a rule that cannot be evaluated.
    std::vector<std::optional<YogaRule>> rules;
};

/// A yoga of a library.
struct YogaPlace
{
    std::size_t file = 0;
    std::size_t yoga = 0;
};

class YogaLibrary
{
public:
    /// Loads a file behind the others, or again in its place. When it cannot be read nothing
    /// changes. Yogas whose rules cannot be evaluated are loaded, and never hold.
    [[nodiscard]] core::Result<void> load(const std::filesystem::path& path);

    /// Puts a collection into the library that was changed or made here.
    void store(const std::filesystem::path& path, YogaFile file);

    [[nodiscard]] const std::vector<LoadedYogaFile>& files() const
    {
        return files_;
    }
    [[nodiscard]] const Yoga& yoga(const YogaPlace& place) const
    {
        return files_[place.file].file.yogas[place.yoga];
    }
    [[nodiscard]] const std::optional<YogaRule>& rule(const YogaPlace& place) const
    {
        return files_[place.file].rules[place.yoga];
    }
    /// All yogas in the order of the files.
    [[nodiscard]] std::vector<YogaPlace> all() const;

    /// The first yoga of exactly this title, else the only one whose title differs in case and
    /// accents.
    [[nodiscard]] std::optional<YogaPlace> find(std::string_view title) const;

    /// All yogas that hold in the chart of the subject.
    [[nodiscard]] std::vector<YogaPlace> holding(Subject& subject) const;

private:
    std::vector<LoadedYogaFile> files_;
};

/// The delivered yoga files, sorted by name, and behind them the user's own file where there is
/// one.
[[nodiscard]] std::vector<std::filesystem::path> standardYogaFiles();

} // namespace kestrav::yoga
