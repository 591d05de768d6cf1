// Reading foreign chart files, which are recognised by what they contain.
#pragma once

#include "core/Messages.h"
#include "data/ChartDatabase.h"
#include "data/DatabaseCommands.h"
#include "data/import/ImportReport.h"
#include "data/import/ImportText.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

namespace kestrav::data
{

enum class ImportFormat
{
    Unknown,
    Xml,
    Qck,
    Commands,
    PackedList,
    ChartLines,
    BinaryList,
    BirthKeys,
    TaggedDatabase, ///< known by its tags, but not read
};

struct ImportOptions
{
    ByteEncoding encoding = ByteEncoding::Windows1252;
    DateOrder order = DateOrder::DayFirst; ///< of chart lines without an order of their own
};

/// What the bytes are; the name of the file does not matter.
[[nodiscard]] ImportFormat recogniseImport(std::span<const std::uint8_t> bytes,
                                           const ImportOptions& options = {});

/// Reads the charts of a file's bytes. `name` is the file's name without extension, which is that
/// of the chart in formats that hold none.
[[nodiscard]] ImportReport readImportBytes(std::span<const std::uint8_t> bytes,
                                           std::string_view name,
                                           const ImportOptions& options = {});

/// Reads the charts of a regular file of at most 16 MiB.
[[nodiscard]] ImportReport readImport(const std::filesystem::path& file,
                                      const ImportOptions& options = {});

/// Reads every ".jhd" and ".dat" file of a folder, in the order of their names, with one report
/// each. Links, subfolders and what is no regular file are left out.
[[nodiscard]] std::vector<ImportReport> readImportFolder(const std::filesystem::path& folder,
                                                         const ImportOptions& options = {});

/// Whether a file of this name is imported instead of opened: .QCK, .CHT, .JHD or .JDF in any case.
[[nodiscard]] bool isImportName(const std::filesystem::path& file);

/// Whether a file is imported instead of opened as a database: by its name, or for ".dat", which is
/// an extension of our own and of others, by what it contains.
[[nodiscard]] bool shouldImport(const std::filesystem::path& file);

/// Appends the charts of a report to the database. Charts that it has already, equal in every
/// field, are moved to the refused ones. Returns how many were added.
std::size_t appendImport(ChartDatabase& database, ImportReport& report);

/// Asks "Add ... to ...?". A file that cannot be opened gives "Can't find the file" instead.
Outcome agreeToImport(const std::filesystem::path& file, const std::filesystem::path& database,
                      core::Messages& messages);

/// Asks whether to add the charts of the file, and appends them. The database is not saved.
Outcome importFile(ChartDatabase& database, const std::filesystem::path& file,
                   const ImportOptions& options, core::Messages& messages, ImportReport& report);

/// The report in lines of plain text.
[[nodiscard]] std::wstring reportText(const ImportReport& report);

} // namespace kestrav::data
