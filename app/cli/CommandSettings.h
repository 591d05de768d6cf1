// The settings that a command works with.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "core/Result.h"
#include "core/SettingsFile.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace kestrav::cli
{

/// Whether a settings file that was named with --settings must exist.
enum class FileNeed
{
    MustExist,
    MayBeNew,
};

/// The settings file of this call: the one of --settings, else the one found.
[[nodiscard]] std::filesystem::path settingsPath(const Arguments& arguments);

/// Reads the settings file of this call. A file of another layout gives the defaults and a warning.
[[nodiscard]] core::Result<core::StoredSettings> loadSettings(const Arguments& arguments,
                                                              FileNeed need, Console& console);

/// Applies --set and --language to the settings of this call, strictly.
[[nodiscard]] core::Result<void> applySettingOptions(const Arguments& arguments,
                                                     core::Settings& settings);

/// The settings of a call that computes, with the display flags set from them; nothing after a
/// failure, which has been reported with its exit code in `code`. The terminal has no glyph font,
/// so names are always in letters.
[[nodiscard]] std::optional<core::Settings> settingsOfCall(const Arguments& arguments,
                                                           Console& console, ExitCode& code);

/// Reads the settings file of this call, changes the settings and writes it back, keeping the
/// previous file as its backup. A file that does not exist is made. Failures are reported.
[[nodiscard]] ExitCode changeStoredSettings(const Arguments& arguments, Console& console,
                                            const std::function<void(core::Settings&)>& change);

} // namespace kestrav::cli
