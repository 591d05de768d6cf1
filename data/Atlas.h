// The outside atlas: place files and time tables in a folder that the user names.
#pragma once

#include "core/Messages.h"
#include "core/Result.h"
#include "data/Places.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace kestrav::data
{

/// Which of the two file sets the atlas has.
enum class AtlasVersion : int
{
    Plain = 0,   ///< "ACSUA.DAT", "ACSIA.DAT", "ACSTT.DAT"
    Indexed = 1, ///< "USANDX.BIN" to "TIMTAB.BIN"
};

/// What the entry form shows when there is no atlas.
inline constexpr std::wstring_view kNoAtlas = L"No Atlas";

/// The files that a set must have.
[[nodiscard]] std::span<const std::string_view> atlasFileNames(AtlasVersion version);

/// The file that the user clicks on to locate the atlas, and the caption of that dialog.
[[nodiscard]] std::string_view atlasFileToClick(AtlasVersion version);
[[nodiscard]] std::wstring atlasPathPrompt(AtlasVersion version);

/// Reads a set. `path` is the folder or a file in it; file names match in any case. The error
/// names the file that could not be read. The countries give the names of the codes.
[[nodiscard]] core::Result<Places> readAtlas(const std::filesystem::path& path,
                                             AtlasVersion version, CountryList countries);

/// The same, telling the user about a file that cannot be read. Nothing then changes: the look-up
/// has the code LookupCode::File and the values stay as they were.
[[nodiscard]] std::optional<Places> openAtlas(const std::filesystem::path& path,
                                              AtlasVersion version, CountryList countries,
                                              core::Messages& messages);

} // namespace kestrav::data
