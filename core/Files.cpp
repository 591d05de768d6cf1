#include "core/Files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kestrav::core
{

namespace
{

namespace fs = std::filesystem;

// Owns an open file descriptor.
class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number)
    {}
    ~Descriptor()
    {
        close();
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int number() const
    {
        return number_;
    }
    bool close()
    {
        const bool closed = number_ < 0 || ::close(number_) == 0;
        number_ = -1;
        return closed;
    }

private:
    int number_;
};

Error systemError(const fs::path& path, const std::string& action, int code)
{
    return {action + ": " + std::generic_category().message(code), path.string(), 0};
}

bool writeAll(int file, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

// A file beside the one it will replace; removed again unless it was renamed.
class TemporaryFile
{
public:
    explicit TemporaryFile(fs::path target)
        : target_(std::move(target)),
          name_(target_.string() + "." + std::to_string(::getpid()) + ".tmp")
    {}
    ~TemporaryFile()
    {
        if (exists_) {
            ::unlink(name_.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // Writes the bytes and flushes them to disk. Without a mode the user's default one is taken.
    Result<void> write(std::span<const std::uint8_t> bytes, std::optional<mode_t> mode)
    {
        // What an earlier process of this number left behind is of no use to anybody.
        ::unlink(name_.c_str());
        // Nobody else sees the bytes before the permissions of the previous file are set.
        Descriptor file(::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                               mode ? mode_t{0600} : mode_t{0666}));
        if (file.number() < 0) {
            return systemError(target_, "cannot create a file beside it", errno);
        }
        exists_ = true;
        if (!writeAll(file.number(), bytes) || (mode && ::fchmod(file.number(), *mode) != 0) ||
            ::fsync(file.number()) != 0 || !file.close()) {
            return systemError(target_, "cannot write", errno);
        }
        return {};
    }

    Result<void> putInPlace()
    {
        if (::rename(name_.c_str(), target_.c_str()) != 0) {
            return systemError(target_, "cannot put the new file in place", errno);
        }
        exists_ = false;
        return {};
    }

private:
    fs::path target_;
    std::string name_;
    bool exists_ = false;
};

Result<void> keepBackup(const fs::path& target, mode_t mode)
{
    const Result<std::vector<std::uint8_t>> previous = readFile(target, UINTMAX_MAX);
    if (!previous) {
        return previous.error();
    }
    TemporaryFile copy(backupPath(target));
    Result<void> kept = copy.write(previous.value(), mode);
    return kept ? copy.putInPlace() : kept;
}

// The new name is only safe once its folder is on disk too. Some file systems cannot do that; the
// file itself is complete either way.
void flushFolder(const fs::path& path)
{
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const Descriptor file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.number() >= 0) {
        ::fsync(file.number());
    }
}

} // namespace

Result<std::vector<std::uint8_t>> readFile(const fs::path& path, std::uintmax_t largest)
{
    // Without O_NONBLOCK a named pipe would wait for a writer here.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (file.number() < 0) {
        return systemError(path, "cannot open", errno);
    }
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0) {
        return systemError(path, "cannot read", errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return Error{"not a regular file", path.string()};
    }
    std::vector<std::uint8_t> bytes;
    // Only room, and not for any size: what is read counts, not what the file system says.
    constexpr std::uintmax_t kMostRoom = std::uintmax_t{1} << 30;
    bytes.reserve(std::min({std::uintmax_t(status.st_size), largest, kMostRoom}));
    std::array<std::uint8_t, 65536> block{};
    for (;;) {
        const ssize_t count = ::read(file.number(), block.data(), block.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return systemError(path, "cannot read", errno);
        }
        if (count == 0) {
            return bytes;
        }
        bytes.insert(bytes.end(), block.begin(), block.begin() + count);
        if (bytes.size() > largest) {
            return Error{"larger than " + std::to_string(largest) + " bytes", path.string()};
        }
    }
}

fs::path backupPath(const fs::path& path)
{
    fs::path backup = path;
    return backup.replace_extension(".BAK");
}

Result<void> writeFileSafely(const fs::path& path, std::span<const std::uint8_t> bytes,
                             const std::function<void(WriteStep)>& afterStep)
{
    const auto done = [&](WriteStep step) {
        if (afterStep) {
            afterStep(step);
        }
    };
    // A link is followed, so that the file it stands for is replaced and not the link.
    std::error_code ignored;
    const fs::path resolved = fs::weakly_canonical(path, ignored);
    const fs::path target = ignored ? path : resolved;

    std::optional<mode_t> mode;
    struct stat status = {};
    if (::stat(target.c_str(), &status) == 0) {
        mode = status.st_mode & 07777;
        // A rename would replace a write-protected file all the same.
        if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
            return systemError(path, "cannot write", errno);
        }
    } else if (errno != ENOENT) {
        return systemError(path, "cannot look at", errno);
    }
    TemporaryFile temporary(target);
    Result<void> written = temporary.write(bytes, mode);
    if (!written) {
        return written;
    }
    done(WriteStep::TemporaryWritten);
    if (mode) {
        const Result<void> kept = keepBackup(target, *mode);
        if (!kept) {
            return Error{"nothing was saved, because the previous file could not be kept (" +
                             kept.error().text() + ")",
                         path.string()};
        }
        done(WriteStep::BackupKept);
    }
    Result<void> replaced = temporary.putInPlace();
    if (!replaced) {
        return replaced;
    }
    flushFolder(target);
    done(WriteStep::Renamed);
    return {};
}

} // namespace kestrav::core
