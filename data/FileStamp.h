// What tells whether a file was changed by somebody else.
#pragma once

#include <cstdint>
#include <filesystem>

namespace kestrav::data
{

/// The identity, size and time of a file; all 0 when there is none.
struct FileStamp
{
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    [[nodiscard]] bool exists() const
    {
        return number != 0;
    }
    bool operator==(const FileStamp&) const = default;
};

/// The stamp of what stands under the path now, links followed.
[[nodiscard]] FileStamp stampOf(const std::filesystem::path& path);

} // namespace kestrav::data
