// The layout of the binary atlas files: one head for all, tables behind it. Numbers are
// little-endian, offsets count from the beginning of the file. docs/places.md describes every file.
#pragma once

#include "core/LittleEndian.h"
#include "core/Result.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

inline constexpr std::uint16_t kAtlasLayoutVersion = 1;
inline constexpr std::size_t kAtlasHeadSize = 48;
inline constexpr std::size_t kRegionSize = 12;
inline constexpr std::size_t kZoneNameSize = 4;
inline constexpr std::size_t kPlaceRecordSize = 20;
inline constexpr std::size_t kRuleSize = 4;
inline constexpr std::size_t kZoneSize = 12;
inline constexpr std::size_t kChangeSize = 12;
inline constexpr std::size_t kSavingSize = 2;
inline constexpr std::size_t kCountySize = 8;
inline constexpr std::size_t kIndexKeySize = 12;
inline constexpr std::size_t kIndexRecordSize = kIndexKeySize + 4;

/// What a file holds: the first four bytes.
inline constexpr std::string_view kPlaceMagic = "KSPL";
inline constexpr std::string_view kTimeMagic = "KSTT";
inline constexpr std::string_view kTimeIndexMagic = "KSTI";
inline constexpr std::string_view kNameIndexMagic = "KSNX";
inline constexpr std::string_view kCountyMagic = "KSCO";

/// Flag: names, regions and zones stand in other files of the set.
inline constexpr std::uint16_t kSharedTables = 1;
/// A saving of this value marks local mean time.
inline constexpr std::int16_t kLocalMeanSaving = -1;
/// Units of the coordinates in a degree: milliseconds of arc.
inline constexpr double kUnitsPerDegree = 3600000.0;

struct AtlasHead
{
    std::uint16_t recordSize = 0;
    std::uint16_t regions = 0; ///< regions of places, or rules of zones
    std::uint16_t zones = 0;
    std::uint16_t flags = 0;
    std::uint32_t records = 0;
    std::uint32_t regionTable = 0;
    std::uint32_t zoneTable = 0;
    std::uint32_t recordTable = 0;
    std::uint32_t nameTable = 0;
};

/// The head in front of the body, with the size and the checksum of both. `head` already has the
/// offsets of the tables.
[[nodiscard]] std::vector<std::uint8_t> withHead(std::string_view magic, const AtlasHead& head,
                                                 const std::vector<std::uint8_t>& body);

/// A file whose head has been checked: magic, version, sizes, order of the tables, checksum. The
/// bytes must outlive it.
class AtlasFile
{
public:
    [[nodiscard]] static core::Result<AtlasFile>
    open(std::string_view bytes, std::string_view magic, std::size_t recordSize);

    [[nodiscard]] const AtlasHead& head() const
    {
        return head_;
    }
    /// Whether `count` entries of `size` bytes from `offset` on end before the names begin.
    [[nodiscard]] bool holds(std::uint64_t offset, std::uint64_t count, std::uint64_t size) const
    {
        return offset + count * size <= head_.nameTable;
    }
    template <std::integral Integer>
    [[nodiscard]] Integer read(std::size_t offset) const
    {
        return core::readInteger<Integer>(bytes_, offset);
    }
    /// Text of a fixed length; the caller has checked that it lies inside.
    [[nodiscard]] std::string_view text(std::size_t offset, std::size_t length) const
    {
        return text_.substr(offset, length);
    }
    /// The text among the names that begins there and ends before a zero byte; nothing when there
    /// is none.
    [[nodiscard]] std::optional<std::string_view> name(std::uint32_t offset) const;

private:
    AtlasHead head_;
    core::ByteSpan bytes_;
    std::string_view text_;
};

} // namespace kestrav::data
