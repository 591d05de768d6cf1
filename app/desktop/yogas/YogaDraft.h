// Changes of a yoga file that were not saved, kept in the state folder.
#pragma once

#include "core/Result.h"
#include "data/FileStamp.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace kestrav::desktop
{

/// The bytes that the file would have if it were saved, and the file from which they came.
struct YogaDraft
{
    std::filesystem::path of;
    data::FileStamp stamp; ///< of that file when it was read
    std::vector<std::uint8_t> bytes;
};

/// The drafts that were kept, the oldest first. A damaged one is left out.
[[nodiscard]] std::vector<std::filesystem::path> keptYogaDrafts();

/// A name in the state folder that no draft has.
[[nodiscard]] std::filesystem::path newYogaDraftPath();

[[nodiscard]] std::optional<YogaDraft> readYogaDraft(const std::filesystem::path& path);
[[nodiscard]] core::Result<void> writeYogaDraft(const std::filesystem::path& path,
                                                const YogaDraft& draft);
void removeYogaDraft(const std::filesystem::path& path);

} // namespace kestrav::desktop
