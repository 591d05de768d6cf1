// Where each setting stands in the options, and what it is called there.
#pragma once

#include "core/Settings.h"

#include <QString>
#include <QStringList>

#include <span>
#include <string_view>

namespace kestrav::desktop
{

enum class OptionsPage
{
    Calculation,
    Dashas,
    Transits,
    Display,
    Names,
    Files,
    Colours,
    Questions,
};

inline constexpr int kOptionsPages = 8;

[[nodiscard]] QString optionsPageTitle(OptionsPage page);

struct SettingRow
{
    std::string_view name; ///< of the setting
    OptionsPage page;
    const char* group; ///< heading over the row
    const char* label;
    /// Names of the values from the lowest on, separated by '|', where the settings table has none.
    const char* choices = "";
    const char* unit = ""; ///< after a number
    /// What it means, where the settings table speaks of the numbers that stand for the choices.
    const char* meaning = "";
};

/// Every setting, page by page in the order in which they are shown.
[[nodiscard]] std::span<const SettingRow> settingRows();

/// The row of a setting; every setting has one.
[[nodiscard]] const SettingRow& settingRow(std::string_view name);

[[nodiscard]] QString settingLabel(const SettingRow& row);

/// What a setting means, as the window says it; begins with a capital letter and has no full stop.
[[nodiscard]] QString settingMeaning(const core::SettingInfo& info);

/// The names of the values of a setting from its lowest on; empty for switches, texts and plain
/// numbers. Those of the ayanamsa are the rows of the table in the settings.
[[nodiscard]] QStringList settingChoices(const core::SettingInfo& info,
                                         const core::Settings& settings);

/// The value in words, such as "Lahiri", "on" or "365.25 days".
[[nodiscard]] QString settingWords(const core::SettingInfo& info, const core::Settings& settings);

} // namespace kestrav::desktop
