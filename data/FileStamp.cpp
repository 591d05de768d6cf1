#include "data/FileStamp.h"

#include <sys/stat.h>

namespace kestrav::data
{

FileStamp stampOf(const std::filesystem::path& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino, std::uint64_t(status.st_size), status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

} // namespace kestrav::data
