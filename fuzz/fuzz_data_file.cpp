// Any bytes must be decoded or refused as a program data file.
#include "astro/DataFile.h"

#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using kestrav::astro::decodeDataFile;
    (void)decodeDataFile({data, size}).ok();

    // At the right length the tables, the header and the terms are reached whatever the input's
    // own.
    std::vector<std::uint8_t> bytes(data, data + size);
    bytes.resize(kestrav::astro::kDataFileSize);
    (void)decodeDataFile(bytes).ok();
    return 0;
}
