// The databases that were open before, and the chart that was shown last.
#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>

namespace kestrav::desktop
{

/// The last ten files, the newest first; those that are gone are left out.
[[nodiscard]] QStringList recentFiles();
/// Puts a file to the front. It is the one that is opened at the next start.
void rememberFile(const std::filesystem::path& file);
void forgetFiles();

/// The name of the chart that was shown last from the last database.
[[nodiscard]] QString lastChart();
void rememberChart(const QString& name);

/// Documents/Kestrav, where the user's charts belong; made when it does not exist.
[[nodiscard]] QString chartsFolder();

} // namespace kestrav::desktop
