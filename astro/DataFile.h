// The program data file: the planetary series and the tables of chart comparison.
#pragma once

#include "astro/DataFileLayout.h"
#include "astro/Series.h"
#include "core/Result.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace kestrav::astro
{

inline constexpr char kDataFileName[] = "JRaam.nam";

/// What the user is told when the file is missing. Both texts are fixed.
inline constexpr std::wstring_view kMissingDataCaption = L"Notice";
inline constexpr std::wstring_view kMissingDataText = L"Can't find the Ram file";

template <typename Value>
using PerNakshatra = std::array<Value, kNakshatras>;

/// The tables of chart comparison. Nakshatras run 0 (Ashwini) to 26 (Revati).
struct MatchingTables
{
    PerNakshatra<int> vedha{}; ///< the nakshatra that each one obstructs; see obstruct()
    PerNakshatra<int> lord{};  ///< Vimshottari lord, point index 1 (Sun) to 9 (Ketu)
    PerNakshatra<int> gana{};  ///< 0 Deva, 1 Manushya, 2 Rakshasa
    PerNakshatra<int> nadi{};  ///< 0 to 2
    PerNakshatra<int> yoni{};  ///< animal 0 (Horse) to 13 (Lion)
    PerNakshatra<int> rajju{}; ///< 0 foot, 1 hip, 2 navel, 3 neck, 4 head

    /// Points of two animals, 0 to 4, symmetric.
    std::array<std::array<int, kYoniAnimals>, kYoniAnimals> yoniPoints{};
    /// Points 0 to 6: [gana of the groom][gana of the bride].
    std::array<std::array<int, kGanas>, kGanas> ganaPoints{};
    /// Rank 1 (Shudra) to 4 (Brahmin) of the signs 1 to 12; slot 0 is unused.
    std::array<int, kSigns + 1> varna{};
    /// Half points 0 to 4: [group of the bride][group of the groom]. The groups are 0 Chatushpada,
    /// 1 Nara, 2 Jalachara, 3 Vanachara, 4 Keeta.
    std::array<std::array<int, kVashyaGroups>, kVashyaGroups> vashyaHalfPoints{};
};

/// Whether two different nakshatras (0..26) obstruct each other: whether the vedha chain leads from
/// one to the other.
[[nodiscard]] bool obstruct(const MatchingTables& tables, int a, int b);

/// All that the program reads from its data file.
struct ProgramData
{
    Series series;
    MatchingTables matching;
};

/// The contents of a data file. Nothing in it is trusted: the length, every table value, the term
/// counts and their running sums, every coefficient and, unless it is 0, the checksum are tested.
/// The error's message is one sentence that begins "is damaged: ", its file the name of the file.
[[nodiscard]] core::Result<ProgramData> decodeDataFile(std::span<const std::uint8_t> bytes);

enum class DataFileProblem
{
    Missing, ///< nowhere, or it cannot be opened or read
    Damaged, ///< read, but not usable
};

struct LoadResult
{
    std::optional<ProgramData> data;
    DataFileProblem problem = DataFileProblem::Missing; ///< without data: what is the matter
    core::Error error;                                  ///< without data: the same in words

    [[nodiscard]] bool ok() const
    {
        return data.has_value();
    }
};

/// Reads the data file from the first of the program's folders that holds it
/// (core::searchFolders). For a missing file the error's message is kMissingDataText; when there is
/// a file that cannot be read, the reason follows in parentheses.
[[nodiscard]] LoadResult LoadSeries();

/// The same from a given path.
[[nodiscard]] LoadResult LoadSeries(const std::filesystem::path& path);

} // namespace kestrav::astro
