// Any bytes must be read or refused as atlas files.
#include "core/Angles.h"
#include "data/AtlasLayout.h"
#include "data/AtlasReader.h"

#include <algorithm>
#include <string>

namespace
{

// With the right size and checksum in the head, the tables are reached whatever the input's own.
std::string sealed(std::string bytes)
{
    using namespace kestrav;
    constexpr std::size_t kSizeAt = 36;
    if (bytes.size() < data::kAtlasHeadSize) {
        return bytes;
    }
    const std::string body = bytes.substr(data::kAtlasHeadSize);
    const auto sum = core::ByteChecksum(reinterpret_cast<const std::uint8_t*>(body.data()),
                                        static_cast<std::ptrdiff_t>(body.size()));
    std::vector<std::uint8_t> numbers;
    core::appendInteger(numbers, static_cast<std::uint32_t>(bytes.size()));
    core::appendInteger(numbers, sum);
    return bytes.replace(kSizeAt, numbers.size(), std::string(numbers.begin(), numbers.end()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav::data;

    // The first two bytes say how long the first of two files is; some readers take both.
    if (size < 2) {
        return 0;
    }
    const std::string bytes(data + 2, data + size);
    const std::size_t cut =
        std::min(bytes.size(), std::size_t{data[0]} + 256 * std::size_t{data[1]});
    const std::string first = sealed(bytes.substr(0, cut));
    const std::string second = sealed(bytes.substr(cut));

    const auto zones = ZoneTable::parse("Z Asia/Kolkata\n* 5:30\nR IST-5:30\n"
                                        "Z Europe/Berlin\n* 1:00\nR CET-1\n");
    for (const auto& table : {readTimeFile(first), readTimeFiles(first, second)}) {
        for (int zone = 0; table && zone < std::min(table.value().size(), 20); ++zone) {
            (void)table.value().atClock(zone, 1'000'000'000);
        }
    }
    PlaceList list;
    (void)readPlaceFile(first, bytes.substr(cut), zones.value(), list).ok();
    (void)readPlaceFile(bytes, {}, zones.value(), list).ok();
    (void)readCountyFiles(first, bytes.substr(cut), bytes, list).ok();
    const std::vector<std::uint32_t> regions(3, list.region("IN", "07", "Delhi"));
    (void)readIndexedPlaces(first, second, "Delhi\nDilli\nOld Delhi\nUlm\n", zones.value(), regions,
                            list)
        .ok();
    list.buildKeys();
    (void)list.beginningWith("d");
    return 0;
}
