#include "data/Atlas.h"

#include "core/FileText.h"
#include "core/Files.h"
#include "data/AtlasReader.h"

#include <algorithm>
#include <array>
#include <map>

namespace kestrav::data
{

namespace
{

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = std::uintmax_t{64} << 20;
constexpr std::array<std::string_view, 3> kPlainFiles = {"ACSUA.DAT", "ACSIA.DAT", "ACSTT.DAT"};
constexpr std::array<std::string_view, 11> kIndexedFiles = {
    "USANDX.BIN", "USANDX.TXT",  "INTNDX.BIN",  "INTNDX.TXT", "USAATL.BIN", "INTATL.BIN",
    "COUNTY.BIN", "CNTYUSA.TXT", "CNTYINT.TXT", "TIMNDX.BIN", "TIMTAB.BIN"};

bool sameName(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

// The file of this name, or of this name in other letters: copies from old media have small ones.
fs::path pathOf(const fs::path& folder, std::string_view name)
{
    std::error_code problem;
    if (fs::exists(folder / name, problem)) {
        return folder / name;
    }
    for (fs::directory_iterator entry(folder, problem), end; !problem && entry != end;
         entry.increment(problem)) {
        if (sameName(entry->path().filename().string(), name)) {
            return entry->path();
        }
    }
    return folder / name;
}

// The texts of the files of a set by their names.
class FileSet
{
public:
    core::Result<void> read(const fs::path& folder, std::string_view name)
    {
        const core::Result<std::vector<std::uint8_t>> bytes =
            core::readFile(pathOf(folder, name), kLargestFile);
        if (!bytes) {
            return core::Error{bytes.error().message, std::string(name)};
        }
        texts_[name].assign(bytes.value().begin(), bytes.value().end());
        return {};
    }
    std::string take(std::string_view name)
    {
        return std::move(texts_[name]);
    }

private:
    std::map<std::string_view, std::string> texts_;
};

// The error of a reader with the name of its file.
core::Error inFile(const core::Error& error, std::string_view name)
{
    return core::Error{error.message, std::string(name)};
}

core::Result<ZoneTable> readPlain(FileSet& files, PlaceList& list)
{
    core::Result<ZoneTable> zones = readTimeFile(files.take("ACSTT.DAT"));
    if (!zones) {
        return inFile(zones.error(), "ACSTT.DAT");
    }
    for (const auto& [name, nameList] :
         {std::pair{"ACSUA.DAT", "ksvua.nam"}, std::pair{"ACSIA.DAT", "ksvia.nam"}}) {
        const core::Result<void> read =
            readPlaceFile(files.take(name), files.take(nameList), zones.value(), list);
        if (!read) {
            return inFile(read.error(), name);
        }
    }
    return zones;
}

core::Result<ZoneTable> readIndexed(FileSet& files, PlaceList& list)
{
    core::Result<ZoneTable> zones =
        readTimeFiles(files.take("TIMNDX.BIN"), files.take("TIMTAB.BIN"));
    if (!zones) {
        return inFile(zones.error(), "TIMTAB.BIN");
    }
    const core::Result<std::vector<std::uint32_t>> regions = readCountyFiles(
        files.take("COUNTY.BIN"), files.take("CNTYUSA.TXT"), files.take("CNTYINT.TXT"), list);
    if (!regions) {
        return inFile(regions.error(), "COUNTY.BIN");
    }
    struct Side
    {
        std::string_view records;
        std::string_view index;
        std::string_view names;
    };
    for (const Side& side : {Side{"USAATL.BIN", "USANDX.BIN", "USANDX.TXT"},
                             Side{"INTATL.BIN", "INTNDX.BIN", "INTNDX.TXT"}}) {
        const core::Result<void> read =
            readIndexedPlaces(files.take(side.records), files.take(side.index),
                              files.take(side.names), zones.value(), regions.value(), list);
        if (!read) {
            return inFile(read.error(), side.records);
        }
    }
    return zones;
}

} // namespace

std::span<const std::string_view> atlasFileNames(AtlasVersion version)
{
    return version == AtlasVersion::Indexed ? std::span<const std::string_view>(kIndexedFiles)
                                            : std::span<const std::string_view>(kPlainFiles);
}

std::string_view atlasFileToClick(AtlasVersion version)
{
    return atlasFileNames(version).back();
}

std::wstring atlasPathPrompt(AtlasVersion version)
{
    return L"PC Atlas path - look for and click on " +
           core::fromFileBytes(atlasFileToClick(version));
}

core::Result<Places> readAtlas(const std::filesystem::path& path, AtlasVersion version,
                               CountryList countries)
{
    std::error_code problem;
    const fs::path folder = fs::is_directory(path, problem) ? path : path.parent_path();
    FileSet files;
    for (const std::string_view name : atlasFileNames(version)) {
        const core::Result<void> read = files.read(folder, name);
        if (!read) {
            return read.error();
        }
    }
    PlaceList list;
    if (version == AtlasVersion::Plain) {
        // The name lists are the program's own; a set is whole without them.
        for (const std::string_view name : {"ksvua.nam", "ksvia.nam"}) {
            (void)files.read(folder, name).ok();
        }
    }
    core::Result<ZoneTable> zones =
        version == AtlasVersion::Indexed ? readIndexed(files, list) : readPlain(files, list);
    if (!zones) {
        return zones.error();
    }
    list.buildKeys();
    return Places(std::move(countries), std::move(zones.value()), std::move(list));
}

std::optional<Places> openAtlas(const std::filesystem::path& path, AtlasVersion version,
                                CountryList countries, core::Messages& messages)
{
    core::Result<Places> atlas = readAtlas(path, version, std::move(countries));
    if (!atlas) {
        messages.notice(L"Error", L"Unable to open " + core::fromFileBytes(atlas.error().file) +
                                      L" for reading\n");
        return std::nullopt;
    }
    return std::move(atlas.value());
}

} // namespace kestrav::data
