#include "data/DerivedFile.h"

#include "core/Files.h"

#include <cstdint>
#include <system_error>

namespace kestrav::data
{

core::Result<void> writeDerivedFile(const std::filesystem::path& path, std::string_view text)
{
    std::filesystem::path fresh = path;
    fresh += ".new";
    std::error_code problem;
    std::filesystem::remove(fresh, problem);
    core::Result<void> written = core::writeFileSafely(
        fresh, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (!written) {
        return written;
    }
    std::filesystem::rename(fresh, path, problem);
    if (problem) {
        std::error_code ignored;
        std::filesystem::remove(fresh, ignored);
        return core::Error{"cannot put the new file in place: " + problem.message(), path.string()};
    }
    return {};
}

} // namespace kestrav::data
