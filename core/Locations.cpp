#include "core/Locations.h"

#include "core/SettingsFile.h"

#include <cstdlib>
#include <system_error>

namespace kestrav::core
{

namespace
{

namespace fs = std::filesystem;

// A base folder of the user: the variable when it holds an absolute path, else a folder below home.
fs::path baseFolder(const char* variable, const char* belowHome)
{
    const char* const set = std::getenv(variable);
    if (set != nullptr && fs::path(set).is_absolute()) {
        return fs::path(set) / "kestrav";
    }
    const char* const home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        return {};
    }
    return fs::path(home) / belowHome / "kestrav";
}

fs::path executableFolder()
{
    std::error_code problem;
    const fs::path executable = fs::read_symlink("/proc/self/exe", problem);
    return problem ? fs::path() : executable.parent_path();
}

} // namespace

fs::path configFolder()
{
    return baseFolder("XDG_CONFIG_HOME", ".config");
}

fs::path userDataFolder()
{
    return baseFolder("XDG_DATA_HOME", ".local/share");
}

std::vector<fs::path> searchFolders()
{
    std::vector<fs::path> folders = {"."};
    const fs::path executable = executableFolder();
    for (const fs::path& folder :
         {configFolder(), userDataFolder(), executable,
          executable.empty() ? fs::path() : executable.parent_path() / "share" / "kestrav",
          fs::path(KESTRAV_DATA_DIR)}) {
        if (!folder.empty()) {
            folders.push_back(folder);
        }
    }
    return folders;
}

std::optional<fs::path> findFile(const std::string& name)
{
    for (const fs::path& folder : searchFolders()) {
        const fs::path candidate = folder / name;
        std::error_code problem;
        if (fs::exists(candidate, problem)) {
            return candidate.lexically_normal();
        }
    }
    return std::nullopt;
}

fs::path settingsFilePath()
{
    std::error_code problem;
    const fs::path folder = configFolder();
    if (folder.empty() || fs::exists(kSettingsFileName, problem)) {
        return kSettingsFileName;
    }
    return folder / kSettingsFileName;
}

} // namespace kestrav::core
