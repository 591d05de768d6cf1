// Yoga files and plain lists of yogas on disk.
#pragma once

#include "core/Result.h"
#include "yoga/YogaFile.h"

#include <filesystem>

namespace kestrav::desktop
{

/// Where the user's own yogas are kept, "myyogas.ksy".
[[nodiscard]] std::filesystem::path ownYogaPath();

/// A path by which two names of one file are equal. A file that does not exist yet has one, too.
[[nodiscard]] std::filesystem::path plainPath(const std::filesystem::path& path);

/// Whether the name is one of a plain list, a yoga a line.
[[nodiscard]] bool isPlainList(const std::filesystem::path& path);

/// Reads a yoga file, or a plain list as one.
[[nodiscard]] core::Result<yoga::YogaFile> readYogas(const std::filesystem::path& path);
/// Writes a yoga file, or a plain list where the name is one. Folders are made.
[[nodiscard]] core::Result<void> writeYogas(const std::filesystem::path& path,
                                            const yoga::YogaFile& file);

} // namespace kestrav::desktop
