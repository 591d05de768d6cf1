// What the window remembers from one run to the next, beside the settings: layout, recent files,
// open chart, drafts.
#pragma once

#include <QSettings>
#include <QString>

#include <filesystem>

namespace kestrav::desktop
{

/// $XDG_STATE_HOME/kestrav, made when it does not exist. Empty when there is no home.
[[nodiscard]] std::filesystem::path stateFolder();

/// The window's own memory, a small text file in that folder. A damaged one counts as empty.
[[nodiscard]] QSettings& stateOfWindow();

} // namespace kestrav::desktop
