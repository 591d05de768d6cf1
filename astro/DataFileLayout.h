// Where everything stands in the program data file, for the program that makes it and the one that
// reads it. docs/data-file.md describes the same bytes in words.
#pragma once

#include "astro/Series.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrav::astro
{

inline constexpr std::size_t kNakshatras = 27;
inline constexpr std::size_t kYoniAnimals = 14;
inline constexpr std::size_t kGanas = 3;
inline constexpr std::size_t kSigns = 12;
inline constexpr std::size_t kVashyaGroups = 5;

/// A table of single bytes: entry i stands `stride` bytes behind entry i - 1.
struct ByteTable
{
    std::string_view name;
    std::size_t offset;
    std::size_t stride;
    std::size_t count;
    int lowest;
    int highest;

    /// The first byte behind the table.
    [[nodiscard]] constexpr std::size_t end() const
    {
        return offset + stride * count;
    }
};

/// The vedha chain comes first: one int16 per nakshatra, the nakshatra that it obstructs.
inline constexpr std::size_t kVedhaOffset = 0;
inline constexpr std::size_t kVedhaSize = sizeof(std::int16_t) * kNakshatras;

/// Nadi, yoni animal and rajju of a nakshatra share a record; the rest of it is reserved.
inline constexpr std::size_t kStarRecordOffset = 108;
inline constexpr std::size_t kStarRecordSize = 10;
inline constexpr std::size_t kPointsOffset = 387;

// clang-format off
inline constexpr ByteTable kLordBytes   {"Vimshottari lord",  54,  1, kNakshatras,                 1, 9};
inline constexpr ByteTable kGanaBytes   {"gana",              81,  1, kNakshatras,                 0, 2};
inline constexpr ByteTable kNadiBytes   {"nadi",             108, 10, kNakshatras,                 0, 2};
inline constexpr ByteTable kYoniBytes   {"yoni animal",      109, 10, kNakshatras,                 0, 13};
inline constexpr ByteTable kRajjuBytes  {"rajju",            110, 10, kNakshatras,                 0, 4};
inline constexpr ByteTable kYoniPoints  {"yoni points",      387,  1, kYoniAnimals * kYoniAnimals, 0, 4};
inline constexpr ByteTable kGanaPoints  {"gana points",      583,  1, kGanas * kGanas,             0, 6};
inline constexpr ByteTable kVarnaBytes  {"varna rank",       592,  1, kSigns,                      1, 4};
inline constexpr ByteTable kVashyaPoints{"vashya points",    604,  1, kVashyaGroups * kVashyaGroups, 0, 4};
// clang-format on

/// Then the series: a header of nine entries of 19 int16 and the table of terms.
inline constexpr std::size_t kHeaderOffset = 666;
inline constexpr std::size_t kHeaderWords = 1 + std::size_t(kSeriesBlocks);
inline constexpr std::size_t kTermsOffset = 1008;
inline constexpr std::size_t kTermSize = 3 * sizeof(double);

/// Last a block that begins with the checksum (uint32) of all bytes before it; 0 is no checksum.
inline constexpr std::size_t kTailOffset = 64296;
inline constexpr std::size_t kTailSize = 461;
inline constexpr std::size_t kDataFileSize = 64757;

/// No coefficient of a usable series is larger; the largest one of the program's own, a frequency
/// of Mercury, is 2.6e5. The bound keeps the sums finite at every date.
inline constexpr double kLargestCoefficient = 1e7;

static_assert(kVedhaOffset + kVedhaSize == kLordBytes.offset);
static_assert(kLordBytes.end() == kGanaBytes.offset && kGanaBytes.end() == kStarRecordOffset);
static_assert(kNadiBytes.offset == kStarRecordOffset && kNadiBytes.stride == kStarRecordSize);
static_assert(kNadiBytes.end() + 9 == kPointsOffset && kYoniPoints.offset == kPointsOffset);
static_assert(kYoniPoints.end() == kGanaPoints.offset && kGanaPoints.end() == kVarnaBytes.offset);
static_assert(kVarnaBytes.end() == kVashyaPoints.offset);
static_assert(kVashyaPoints.end() + 37 == kHeaderOffset);
static_assert(kHeaderOffset + kSeriesEntries * kHeaderWords * sizeof(std::int16_t) == kTermsOffset);
static_assert(kTermsOffset + kSeriesTerms * kTermSize == kTailOffset);
static_assert(kTailOffset + kTailSize == kDataFileSize);

} // namespace kestrav::astro
