// Files that can be made again from a database.
#pragma once

#include "core/Result.h"

#include <filesystem>
#include <string_view>

namespace kestrav::data
{

/// Replaces a file as a whole, like core::writeFileSafely but without keeping the previous one:
/// the backup name beside a database belongs to the database.
[[nodiscard]] core::Result<void> writeDerivedFile(const std::filesystem::path& path,
                                                  std::string_view text);

} // namespace kestrav::data
