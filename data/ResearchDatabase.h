// The file of research lines beside a database, and whether it still belongs to it.
#pragma once

#include "core/Messages.h"
#include "core/Result.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/ResearchRebuild.h"

#include <filesystem>
#include <string>

namespace kestrav::data
{

/// The research file of a database: the same name with the extension ".txt".
[[nodiscard]] std::filesystem::path researchPath(const std::filesystem::path& database);

/// The file beside it that says from which lines and settings it was built.
[[nodiscard]] std::filesystem::path researchPrintPath(const std::filesystem::path& database);

/// Reads the research lines of a database.
[[nodiscard]] core::Result<LineList> loadResearch(const std::filesystem::path& database);

/// Writes the research lines of a database, and from what they were built. No backup is kept,
/// because they can be built again and the backup name belongs to the database. A ".txt" that is no
/// research file is left alone with an error.
[[nodiscard]] core::Result<void> saveResearch(const ChartDatabase& database,
                                              const core::Settings& settings,
                                              const ResearchLines& lines);

enum class ResearchState
{
    Fresh,
    Missing,         ///< there is no research file
    Foreign,         ///< the file of that name is no research file
    UnknownOrigin,   ///< nothing says from what it was built, or it was changed afterwards
    ChartsChanged,   ///< the database has other lines now
    SettingsChanged, ///< settings that move planets between signs or nakshatras are others now
};

/// Whether the research file belongs to the lines and settings as they are.
[[nodiscard]] ResearchState researchState(const ChartDatabase& database,
                                          const core::Settings& settings);

/// The state in words for the user; empty when it is fresh.
[[nodiscard]] std::wstring researchStateText(ResearchState state);

/// The settings that matter for research lines, as text that is equal when they are.
[[nodiscard]] std::string researchSettingsText(const core::Settings& settings);

/// Asks "Your Research Database needs refreshing. Go ahead?".
[[nodiscard]] bool agreesToRefresh(core::Messages& messages);

/// What is suggested when a search found nothing.
void suggestRefreshing(core::Messages& messages);

/// After a change of settings that moves planets: asks whether to refresh. Not asked, and false,
/// when nothing that matters has changed.
[[nodiscard]] bool agreesToRefreshAfter(const core::Settings& before, const core::Settings& now,
                                        core::Messages& messages);

} // namespace kestrav::data
