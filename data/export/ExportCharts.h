// Writing the charts of a database for other programs.
#pragma once

#include "core/Messages.h"
#include "core/Result.h"
#include "data/ChartDatabase.h"
#include "data/DatabaseCommands.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace kestrav::data
{

enum class ExportFormat
{
    Qck,
    Contacts,
    Csv,
    Json,
};

struct ExportNote
{
    std::size_t line = 0; ///< index in the database
    std::string text;
};

/// What an export wrote, and what it could not.
struct ExportReport
{
    std::size_t written = 0;
    std::vector<ExportNote> notes; ///< losses, and lines that are no charts
};

/// The bytes of an export. Lines too short to be charts are left out with a note.
[[nodiscard]] std::string exportText(ChartDatabase& database, ExportFormat format,
                                     ExportReport& report);

/// Whether an export may be written to the file: not over the database itself, not with the
/// extension ".jdf" for contacts, over another file only when the user agrees.
Outcome agreeToExport(const std::filesystem::path& database, ExportFormat format,
                      const std::filesystem::path& to, core::Messages& messages);

/// Writes an export that was agreed to.
[[nodiscard]] core::Result<void> writeExport(ChartDatabase& database, ExportFormat format,
                                             const std::filesystem::path& to, ExportReport& report);

/// Writes an export. An existing file is replaced only when the user agrees, and without keeping it
/// as a backup, whose name belongs to the database. The contact export refuses a name that ends
/// with ".jdf".
Outcome exportCharts(ChartDatabase& database, ExportFormat format, const std::filesystem::path& to,
                     core::Messages& messages, ExportReport& report);

} // namespace kestrav::data
