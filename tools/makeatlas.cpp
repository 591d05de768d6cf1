// Writes the files of an atlas from the program's city list and zone table.
#include "core/Files.h"
#include "data/AtlasWriter.h"

#include <cstdio>
#include <string_view>

int main(int argc, char** argv)
{
    using namespace kestrav;

    const std::string_view set = argc == 3 ? argv[1] : "";
    if (set != "plain" && set != "indexed") {
        std::fputs("usage: makeatlas plain|indexed FOLDER\n", stderr);
        return 2;
    }
    const data::AtlasVersion version =
        set == "indexed" ? data::AtlasVersion::Indexed : data::AtlasVersion::Plain;
    const core::Result<data::LoadedPlaces> loaded = data::loadPlaces();
    if (!loaded) {
        std::fprintf(stderr, "makeatlas: %s\n", loaded.error().text().c_str());
        return 1;
    }
    for (const data::AtlasFileBytes& file : data::makeAtlasFiles(loaded.value().places, version)) {
        const core::Result<void> written =
            core::writeFileSafely(std::filesystem::path(argv[2]) / file.name, file.bytes);
        if (!written) {
            std::fprintf(stderr, "makeatlas: %s\n", written.error().text().c_str());
            return 1;
        }
        std::printf("%s: %zu bytes\n", file.name.c_str(), file.bytes.size());
    }
    return 0;
}
