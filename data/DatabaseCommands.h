// The commands on a database with their questions to the user.
#pragma once

#include "core/Chart.h"
#include "core/Messages.h"
#include "data/ChartDatabase.h"
#include "data/LongWork.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace kestrav::data
{

enum class Outcome
{
    Done,
    Cancelled, ///< the user said so
    Failed,    ///< the user was told why
};

/// Reads a database. A file that is missing or must not be read is told; nothing changes then.
Outcome openDatabase(ChartDatabase& database, const std::filesystem::path& path,
                     core::Messages& messages);

/// Begins an empty database and writes it. An existing file is replaced only when the user agrees.
Outcome newDatabase(ChartDatabase& database, const std::filesystem::path& path,
                    core::Messages& messages);

/// Asks what has to be asked before the database is written to a file: whether to overwrite what
/// another program changed there since it was read, or another file. Returns where to write it, the
/// name of the database where the path means the same file, or nothing when the user says no.
[[nodiscard]] std::optional<std::filesystem::path> agreeToSave(const ChartDatabase& database,
                                                               const std::filesystem::path& path,
                                                               core::Messages& messages);

/// Whether a file may be written: there is none of that name, or the user agrees to replace it.
[[nodiscard]] bool agreesToReplace(const std::filesystem::path& path, core::Messages& messages);

/// Tells why a file could not be saved.
void tellSavingError(const core::Error& problem, core::Messages& messages);

/// Writes the database to its file. When another program changed that since it was read, the user
/// is asked first.
Outcome saveDatabase(ChartDatabase& database, core::Messages& messages);

/// Writes the database under another name, which it has from then on.
Outcome saveDatabaseAs(ChartDatabase& database, const std::filesystem::path& path,
                       core::Messages& messages);

/// Puts every chart line into the other date order, which is in force from then on. Lines too short
/// to be charts stay as they are. False when it was cancelled, with a part of the lines changed.
bool turnDates(ChartDatabase& database, const LongWork& work = {});

/// The same, and saves.
Outcome saveInOtherOrder(ChartDatabase& database, core::Messages& messages);

/// Tells the user to insert a drive; to be shown before the place of a backup is chosen.
void announceBackup(core::Messages& messages);

/// Saves a copy of the database where the user chose.
Outcome backUpDatabase(const ChartDatabase& database, const std::filesystem::path& to,
                       core::Messages& messages);

/// Reads a database from the chosen device and saves it on this computer under the given name. The
/// database is left as it was when that fails.
Outcome restoreDatabase(ChartDatabase& database, const std::filesystem::path& from,
                        const std::filesystem::path& to, core::Messages& messages);

/// Which questions are asked when a chart is saved.
struct SaveQuestions
{
    bool shortYear = true;
};

/// The line that saving a chart of that name replaces: `own`, the one that the chart was read from,
/// where it has the name, as several charts may have it; else the first of that name.
[[nodiscard]] std::optional<std::size_t>
lineOfName(const ChartDatabase& database, std::wstring_view name, std::optional<std::size_t> own);

/// Puts a chart into the database: replaces the line of the same name, or appends one. The user is
/// asked about a year of fewer than four digits, about the record of the current moment (tag N) and
/// about a name that exists; there No appends the chart under the name with "~". Returns the index
/// of its line, or nothing when the user cancelled. The file is not written.
std::optional<std::size_t> saveChart(ChartDatabase& database, const core::Chart& chart,
                                     const SaveQuestions& questions, core::Messages& messages,
                                     std::optional<std::size_t> own = std::nullopt);

/// The names of all charts.
[[nodiscard]] std::unordered_set<std::wstring> namesOf(const ChartDatabase& database);

/// The name with "~", as often as it takes to be none of those taken, within the length of a name.
[[nodiscard]] std::wstring unusedName(const std::unordered_set<std::wstring>& taken,
                                      std::wstring_view name);

/// Takes the chart of that name out. The file is not written.
Outcome deleteChart(ChartDatabase& database, std::wstring_view name, core::Messages& messages);

/// Whether the user agrees to tag a group anew.
[[nodiscard]] bool agreesToChangeGroup(wchar_t group, core::Messages& messages);

/// Gives the tag of group A or B to exactly these lines.
void setGroup(ChartDatabase& database, wchar_t group, const std::vector<std::size_t>& lines);

/// The same after the question, and saves.
Outcome changeGroup(ChartDatabase& database, wchar_t group, const std::vector<std::size_t>& lines,
                    core::Messages& messages);

/// Whether the user wants to leave the program.
[[nodiscard]] bool agreesToLeave(std::wstring_view program, core::Messages& messages);

} // namespace kestrav::data
