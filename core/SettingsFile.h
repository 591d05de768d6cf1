// The settings file KESTRAV6.ENV.
#pragma once

#include "core/Settings.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace kestrav::core
{

inline constexpr char kSettingsFileName[] = "KESTRAV6.ENV";

/// The leading double of the file, which marks its layout.
inline constexpr double kSettingsMark = 6.0;

/// What a settings file held.
struct StoredSettings
{
    Settings settings;
    /// The bytes of settings that a later version added to the block. They are written back, so
    /// that nobody's choices are lost by starting an older program.
    std::vector<std::uint8_t> laterFields;
};

/// The settings in the bytes of a settings file: the mark, the block (its own byte count, then the
/// fields in the order of the settings table: whole numbers and switches as int32, other numbers as
/// double, texts as 256 bytes of UTF-8 padded with NUL), then ten ayanamsa records of 36 bytes. All
/// numbers are little-endian. Another mark gives the defaults. Values out of range are clamped,
/// fields and records that are missing take their defaults.
[[nodiscard]] StoredSettings decodeSettings(std::span<const std::uint8_t> bytes);

/// Whether the bytes begin with the mark of the layout; without it decodeSettings gives the
/// defaults.
[[nodiscard]] bool hasSettingsMark(std::span<const std::uint8_t> bytes);

/// The bytes of a settings file.
[[nodiscard]] std::vector<std::uint8_t> encodeSettings(const StoredSettings& stored);

/// Reads a settings file; a file that does not exist gives the defaults.
[[nodiscard]] Result<StoredSettings> readSettingsFile(const std::filesystem::path& path);

/// Writes the settings, keeping the previous file as its backup and the folder made when missing.
[[nodiscard]] Result<void> writeSettingsFile(const std::filesystem::path& path,
                                             const StoredSettings& stored);

} // namespace kestrav::core
