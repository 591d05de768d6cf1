#include "app/desktop/yogas/YogaDraft.h"

#include "app/desktop/shell/StateFile.h"
#include "core/Files.h"
#include "yoga/YogaFile.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <system_error>

namespace kestrav::desktop
{

namespace
{

namespace fs = std::filesystem;

constexpr char kPrefix[] = "yogas-";
constexpr char kExtension[] = ".draft";
constexpr std::uintmax_t kLargestHead = 1 << 14;

fs::path numbered(int number)
{
    return stateFolder() / (kPrefix + std::to_string(number) + kExtension);
}

// 0 for files that are no drafts of yogas.
int numberOf(const fs::path& path)
{
    const std::string name = path.stem().string();
    int number = 0;
    std::istringstream digits(name.rfind(kPrefix, 0) == 0 ? name.substr(sizeof(kPrefix) - 1) : "");
    return path.extension() == kExtension && digits >> number ? number : 0;
}

} // namespace

std::vector<fs::path> keptYogaDrafts()
{
    std::vector<fs::path> found;
    std::error_code problem;
    for (const fs::directory_entry& entry : fs::directory_iterator(stateFolder(), problem)) {
        if (numberOf(entry.path()) > 0 && readYogaDraft(entry.path())) {
            found.push_back(entry.path());
        }
    }
    std::sort(found.begin(), found.end(), [](const fs::path& one, const fs::path& other) {
        return numberOf(one) < numberOf(other);
    });
    return found;
}

fs::path newYogaDraftPath()
{
    int number = 1;
    std::error_code problem;
    while (fs::exists(numbered(number), problem)) {
        ++number;
    }
    return numbered(number);
}

// The path, the stamp and the bytes of the yoga file, one below the other.
std::optional<YogaDraft> readYogaDraft(const fs::path& path)
{
    const auto read = core::readFile(path, yoga::kLargestYogaFile + kLargestHead);
    if (!read) {
        return std::nullopt;
    }
    const std::vector<std::uint8_t>& bytes = read.value();
    const auto endOfName = std::find(bytes.begin(), bytes.end(), '\n');
    const auto endOfHead =
        endOfName == bytes.end() ? endOfName : std::find(endOfName + 1, bytes.end(), '\n');
    if (endOfHead == bytes.end()) {
        return std::nullopt;
    }
    YogaDraft draft;
    draft.of = std::string(bytes.begin(), endOfName);
    std::istringstream stamp(std::string(endOfName + 1, endOfHead));
    stamp >> draft.stamp.device >> draft.stamp.number >> draft.stamp.size >> draft.stamp.seconds >>
        draft.stamp.nanoseconds;
    draft.bytes.assign(endOfHead + 1, bytes.end());
    return stamp && draft.of.is_absolute() && yoga::parseYogaFile(draft.bytes)
               ? std::optional(std::move(draft))
               : std::nullopt;
}

core::Result<void> writeYogaDraft(const fs::path& path, const YogaDraft& draft)
{
    std::ostringstream head;
    head << draft.of.string() << '\n'
         << draft.stamp.device << ' ' << draft.stamp.number << ' ' << draft.stamp.size << ' '
         << draft.stamp.seconds << ' ' << draft.stamp.nanoseconds << '\n';
    const std::string text = head.str();
    std::vector<std::uint8_t> bytes(text.begin(), text.end());
    bytes.insert(bytes.end(), draft.bytes.begin(), draft.bytes.end());
    return core::writeFileSafely(path, bytes);
}

void removeYogaDraft(const fs::path& path)
{
    std::error_code problem;
    fs::remove(path, problem);
    fs::remove(core::backupPath(path), problem);
}

} // namespace kestrav::desktop
