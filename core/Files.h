// Reading whole files and writing them so that nothing is lost.
#pragma once

#include "core/Result.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <vector>

namespace kestrav::core
{

/// The bytes of a regular file of at most `largest` bytes.
[[nodiscard]] Result<std::vector<std::uint8_t>> readFile(const std::filesystem::path& path,
                                                         std::uintmax_t largest);

/// The name under which the previous file is kept: the extension replaced by ".BAK".
[[nodiscard]] std::filesystem::path backupPath(const std::filesystem::path& path);

/// The steps of a safe write in their order.
enum class WriteStep
{
    TemporaryWritten, ///< the new bytes are on disk under a temporary name
    BackupKept,       ///< the previous file stands under its backup name
    Renamed,          ///< the new file stands under its name
};

/// Replaces a file as a whole: temporary file in the same folder, flushed to disk, previous file
/// kept under its backup name, then renamed. The permissions of the previous file are kept, and a
/// write-protected file is not replaced. A failure leaves the old file as it was, removes the
/// temporary file and says why. `afterStep` is called after each step that was done.
[[nodiscard]] Result<void> writeFileSafely(const std::filesystem::path& path,
                                           std::span<const std::uint8_t> bytes,
                                           const std::function<void(WriteStep)>& afterStep = {});

} // namespace kestrav::core
