#include "data/DerivedFile.h"

#include "core/Files.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <string>
#include <system_error>
#include <unistd.h>

namespace kestrav::data
{

namespace
{

namespace fs = std::filesystem;

} // namespace

core::Result<void> writeDerivedFile(const fs::path& path, std::string_view text)
{
    // A link is followed, so that the file it stands for is replaced and not the link.
    std::error_code problem;
    const fs::path resolved = fs::weakly_canonical(path, problem);
    const fs::path target = problem ? path : resolved;
    // A rename would replace a write-protected file all the same.
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) {
        return core::Error{"cannot write: " + std::generic_category().message(errno),
                           path.string()};
    }
    fs::path fresh = target;
    fresh += "." + std::to_string(::getpid()) + ".new";
    fs::remove(fresh, problem);
    core::Result<void> written = core::writeFileSafely(
        fresh, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (!written) {
        // The name that the user gave says more than that of the file beside it.
        return core::Error{written.error().message, path.string()};
    }
    fs::rename(fresh, target, problem);
    if (problem) {
        std::error_code ignored;
        fs::remove(fresh, ignored);
        return core::Error{"cannot put the new file in place: " + problem.message(), path.string()};
    }
    return {};
}

} // namespace kestrav::data
