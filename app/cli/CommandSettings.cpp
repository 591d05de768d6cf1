#include "app/cli/CommandSettings.h"

#include "app/cli/Console.h"
#include "core/DisplayFlags.h"
#include "core/Files.h"
#include "core/Locations.h"

#include <cassert>
#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

namespace kestrav::cli
{

namespace
{

namespace fs = std::filesystem;

using core::Error;
using core::Result;

constexpr std::uintmax_t kLargestFile = 1U << 20U;

bool mayExist(const fs::path& path)
{
    std::error_code problem;
    return fs::exists(path, problem) || problem;
}

Result<void> applySet(const std::string& text, core::Settings& settings)
{
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos) {
        return Error{"--set '" + text + "' is not understood; write NAME=VALUE"};
    }
    return core::setSetting(settings, text.substr(0, sign), text.substr(sign + 1));
}

Result<void> applyLanguage(const std::string& language, core::Settings& settings)
{
    std::uint32_t flags = static_cast<std::uint32_t>(settings.displayFlags);
    if (language == "english") {
        flags |= core::kEnglishNames;
    } else if (language == "sanskrit") {
        flags &= ~core::kEnglishNames;
    } else {
        return Error{"language '" + language + "' is not english or sanskrit"};
    }
    settings.displayFlags = int(flags);
    return {};
}

} // namespace

fs::path settingsPath(const Arguments& arguments)
{
    const std::optional<std::string> named = arguments.value("--settings");
    return named ? fs::path(*named) : core::settingsFilePath();
}

Result<core::StoredSettings> loadSettings(const Arguments& arguments, FileNeed need,
                                          Console& console)
{
    const fs::path path = settingsPath(arguments);
    if (!mayExist(path)) {
        if (arguments.has("--settings") && need == FileNeed::MustExist) {
            return Error{"there is no such settings file", path.string()};
        }
        return core::StoredSettings{};
    }
    const Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    if (!core::hasSettingsMark(bytes.value())) {
        console.warning(path.string() + ": is damaged or no settings file; the defaults are used");
    }
    return core::decodeSettings(bytes.value());
}

Result<void> applySettingOptions(const Arguments& arguments, core::Settings& settings)
{
    for (const std::string& text : arguments.values("--set")) {
        Result<void> applied = applySet(text, settings);
        if (!applied) {
            return applied;
        }
    }
    if (const std::optional<std::string> language = arguments.value("--language")) {
        return applyLanguage(*language, settings);
    }
    return {};
}

std::optional<core::Settings> settingsOfCall(const Arguments& arguments, Console& console,
                                             ExitCode& code)
{
    // What was typed wrongly is reported before any file is opened.
    core::Settings defaults;
    const Result<void> typed = applySettingOptions(arguments, defaults);
    if (!typed) {
        console.error(typed.error().text());
        code = ExitCode::Usage;
        return std::nullopt;
    }
    const Result<core::StoredSettings> stored =
        loadSettings(arguments, FileNeed::MustExist, console);
    if (!stored) {
        console.error(stored.error().text());
        code = ExitCode::Failed;
        return std::nullopt;
    }
    core::Settings settings = stored.value().settings;
    [[maybe_unused]] const Result<void> applied = applySettingOptions(arguments, settings);
    assert(applied.ok());
    core::SetDisplayFlags(static_cast<std::uint32_t>(settings.displayFlags) & ~core::kGlyphNames);
    return settings;
}

ExitCode changeStoredSettings(const Arguments& arguments, Console& console,
                              const std::function<void(core::Settings&)>& change)
{
    core::Result<core::StoredSettings> stored =
        loadSettings(arguments, FileNeed::MayBeNew, console);
    if (!stored) {
        console.error(stored.error().text());
        return ExitCode::Failed;
    }
    change(stored.value().settings);
    const Result<void> written = core::writeSettingsFile(settingsPath(arguments), stored.value());
    if (!written) {
        console.error(written.error().text());
        return ExitCode::Failed;
    }
    return ExitCode::Done;
}

} // namespace kestrav::cli
