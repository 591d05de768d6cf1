// Makes the files of an outside atlas from the program's own lists.
#pragma once

#include "data/Atlas.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kestrav::data
{

struct AtlasFileBytes
{
    std::string name;
    std::vector<std::uint8_t> bytes;
};

/// The files of one set, name lists included. The same lists give the same bytes.
[[nodiscard]] std::vector<AtlasFileBytes> makeAtlasFiles(const Places& places,
                                                         AtlasVersion version);

} // namespace kestrav::data
