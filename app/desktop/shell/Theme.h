// The look of the whole window: light or dark, and the size of letters.
#pragma once

#include "core/Settings.h"

#include <QColor>

#include <optional>

namespace kestrav::desktop
{

/// What a colour of the window means; each has a value for light and one for dark.
enum class ThemeRole
{
    Good,
    Bad,
    Accent,
    Quiet, ///< words of less weight
    News,  ///< background of the news bar
    Problem,
};

/// Puts style, palette and letters in force. The scheme "system" follows the palette that the
/// system gave the program when it started.
void applyTheme(const core::Settings& settings);

/// Colours and letters for this run of the program, whatever the settings say; those are not
/// changed.
struct ThemeOfRun
{
    std::optional<bool> dark;
    std::optional<int> fontPercent;
};

void setThemeOfRun(const ThemeOfRun& theme);

/// Whether the window is dark now.
[[nodiscard]] bool isDark();

[[nodiscard]] QColor themeColour(ThemeRole role);
[[nodiscard]] QColor themeColour(ThemeRole role, bool dark);

} // namespace kestrav::desktop
