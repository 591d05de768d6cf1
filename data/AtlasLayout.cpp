#include "data/AtlasLayout.h"

#include "core/Angles.h"

#include <algorithm>

namespace kestrav::data
{

namespace
{

// Where the numbers of the head stand.
enum HeadOffset : std::size_t
{
    kVersionAt = 4,
    kHeadSizeAt = 6,
    kRecordSizeAt = 8,
    kRegionsAt = 10,
    kZonesAt = 12,
    kFlagsAt = 14,
    kRecordsAt = 16,
    kRegionTableAt = 20,
    kZoneTableAt = 24,
    kRecordTableAt = 28,
    kNameTableAt = 32,
    kFileSizeAt = 36,
    kChecksumAt = 40,
};

std::uint32_t checksum(core::ByteSpan body)
{
    return core::ByteChecksum(body.data(), static_cast<std::ptrdiff_t>(body.size()));
}

} // namespace

std::vector<std::uint8_t> withHead(std::string_view magic, const AtlasHead& head,
                                   const std::vector<std::uint8_t>& body)
{
    std::vector<std::uint8_t> file(magic.begin(), magic.end());
    for (const std::uint16_t number : {kAtlasLayoutVersion, std::uint16_t{kAtlasHeadSize},
                                       head.recordSize, head.regions, head.zones, head.flags}) {
        core::appendInteger(file, number);
    }
    const auto size = static_cast<std::uint32_t>(kAtlasHeadSize + body.size());
    for (const std::uint32_t number :
         {head.records, head.regionTable, head.zoneTable, head.recordTable, head.nameTable, size,
          checksum(body), std::uint32_t{0}}) {
        core::appendInteger(file, number);
    }
    file.insert(file.end(), body.begin(), body.end());
    return file;
}

core::Result<AtlasFile> AtlasFile::open(std::string_view bytes, std::string_view magic,
                                        std::size_t recordSize)
{
    AtlasFile file;
    file.text_ = bytes;
    file.bytes_ = {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
    if (bytes.size() < kAtlasHeadSize || !bytes.starts_with(magic) ||
        file.read<std::uint16_t>(kVersionAt) != kAtlasLayoutVersion ||
        file.read<std::uint16_t>(kHeadSizeAt) != kAtlasHeadSize ||
        file.read<std::uint16_t>(kRecordSizeAt) != recordSize) {
        return core::Error{"this is no atlas file of this layout"};
    }
    AtlasHead& head = file.head_;
    head.recordSize = file.read<std::uint16_t>(kRecordSizeAt);
    head.regions = file.read<std::uint16_t>(kRegionsAt);
    head.zones = file.read<std::uint16_t>(kZonesAt);
    head.flags = file.read<std::uint16_t>(kFlagsAt);
    head.records = file.read<std::uint32_t>(kRecordsAt);
    head.regionTable = file.read<std::uint32_t>(kRegionTableAt);
    head.zoneTable = file.read<std::uint32_t>(kZoneTableAt);
    head.recordTable = file.read<std::uint32_t>(kRecordTableAt);
    head.nameTable = file.read<std::uint32_t>(kNameTableAt);
    const bool ordered = head.regionTable >= kAtlasHeadSize && head.regionTable <= head.zoneTable &&
                         head.zoneTable <= head.recordTable && head.recordTable <= head.nameTable &&
                         head.nameTable <= bytes.size();
    if (!ordered || file.read<std::uint32_t>(kFileSizeAt) != bytes.size()) {
        return core::Error{"the tables of this atlas file are not whole"};
    }
    if (file.read<std::uint32_t>(kChecksumAt) != checksum(file.bytes_.subspan(kAtlasHeadSize))) {
        return core::Error{"the checksum of this atlas file is wrong"};
    }
    return file;
}

std::optional<std::string_view> AtlasFile::name(std::uint32_t offset) const
{
    if (offset < head_.nameTable || offset >= text_.size()) {
        return std::nullopt;
    }
    const std::size_t end = text_.find('\0', offset);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    return text_.substr(offset, end - offset);
}

} // namespace kestrav::data
