// Any bytes must be read or refused as atlas files.
#include "core/Angles.h"
#include "data/AtlasLayout.h"
#include "data/AtlasReader.h"

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

    const auto zones = ZoneTable::parse("Z Asia/Kolkata\n* 5:30\nR IST-5:30\n");
    const std::string bytes(data, data + size);
    const std::string whole = sealed(bytes);
    if (const auto table = readTimeFile(whole)) {
        for (int zone = 0; zone < table.value().size() && zone < 20; ++zone) {
            (void)table.value().atClock(zone, 1'000'000'000);
        }
    }
    PlaceList list;
    (void)readPlaceFile(whole, bytes, zones.value(), list).ok();
    (void)readPlaceFile(bytes, {}, zones.value(), list).ok();

    // Several files in one input: each half is sealed by itself.
    const std::string first = sealed(bytes.substr(0, size / 2));
    const std::string second = sealed(bytes.substr(size / 2));
    (void)readTimeFiles(first, second).ok();
    const auto regions = readCountyFiles(first, second, bytes, list);
    const std::vector<std::uint32_t> one = {list.region("IN", "07", "Delhi")};
    (void)readIndexedPlaces(first, second, "Delhi\n", zones.value(),
                            regions ? regions.value() : one, list)
        .ok();
    list.buildKeys();
    (void)list.beginningWith("d");
    return 0;
}
