// Where the program looks for its files.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kestrav::core
{

/// The folder of the user's settings, $XDG_CONFIG_HOME/kestrav. Empty when there is no home.
[[nodiscard]] std::filesystem::path configFolder();

/// The folder of the user's data, $XDG_DATA_HOME/kestrav. Empty when there is no home.
[[nodiscard]] std::filesystem::path userDataFolder();

/// The folders searched for a file, in this order: the current folder, the user's configuration
/// and data folders, the folder of the executable, ../share/kestrav beside it, the installed data
/// folder.
[[nodiscard]] std::vector<std::filesystem::path> searchFolders();

/// The first of those folders that holds the file, with the file's name; nothing when none does.
[[nodiscard]] std::optional<std::filesystem::path> findFile(const std::string& name);

/// The settings file in use: one in the current folder, else the user's own, which need not exist.
[[nodiscard]] std::filesystem::path settingsFilePath();

} // namespace kestrav::core
