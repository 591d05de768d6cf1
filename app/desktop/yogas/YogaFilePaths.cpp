#include "app/desktop/yogas/YogaFilePaths.h"

#include "core/Locations.h"
#include "yoga/CustomYogaList.h"
#include "yoga/YogaListEdit.h"

#include <optional>
#include <system_error>

namespace kestrav::desktop
{

namespace fs = std::filesystem;

fs::path ownYogaPath()
{
    const std::optional<fs::path> found = core::findFile(yoga::kOwnYogaFile);
    return found ? *found : core::userDataFolder() / yoga::kOwnYogaFile;
}

fs::path plainPath(const fs::path& path)
{
    std::error_code problem;
    fs::path plain = fs::weakly_canonical(path, problem);
    return problem ? path : plain;
}

bool isPlainList(const fs::path& path)
{
    return path.extension() == ".txt";
}

core::Result<yoga::YogaFile> readYogas(const fs::path& path)
{
    if (!isPlainList(path)) {
        return yoga::readYogaFile(path);
    }
    const auto list = yoga::readCustomYogas(path);
    if (!list) {
        return list.error();
    }
    yoga::YogaFile file;
    yoga::importYogas(file, list.value());
    return file;
}

core::Result<void> writeYogas(const fs::path& path, const yoga::YogaFile& file)
{
    std::error_code problem;
    fs::create_directories(path.parent_path(), problem);
    return isPlainList(path) ? yoga::writeCustomYogas(path, yoga::asCustomYogas(file))
                             : yoga::writeYogaFile(path, file);
}

} // namespace kestrav::desktop
