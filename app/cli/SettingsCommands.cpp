#include "app/cli/SettingsCommands.h"

#include "app/cli/CommandSettings.h"
#include "app/cli/Console.h"
#include "app/cli/SettingsJson.h"
#include "app/cli/SharedOptions.h"
#include "app/present/TextTable.h"
#include "core/FileText.h"
#include "core/NumberText.h"

#include <nlohmann/json.hpp>

#include <string>
#include <variant>
#include <vector>

namespace kestrav::cli
{

namespace
{

using Infos = std::vector<const core::SettingInfo*>;

// Texts stand in quotes, so that an empty one shows too.
std::string plainText(const core::Settings& settings, const core::SettingInfo& info)
{
    const std::string text = core::settingText(settings, info);
    return core::settingIsText(info) ? '"' + text + '"' : text;
}

std::string valueText(const core::Settings& settings, const core::SettingInfo& info)
{
    std::string text = plainText(settings, info);
    if (!info.choices.empty()) {
        const int value = int(core::settingValue(settings, info));
        text += " (" + std::string(core::choiceName(info, value)) + ")";
    }
    return text;
}

std::string rangeText(const core::SettingInfo& info)
{
    if (std::holds_alternative<bool core::Settings::*>(info.field)) {
        return "false, true";
    }
    if (core::settingIsText(info)) {
        return "up to " + core::shortestNumber(info.highest) + " bytes";
    }
    return core::shortestNumber(info.lowest) + " to " + core::shortestNumber(info.highest);
}

std::wstring tableText(const core::Settings& settings)
{
    const core::Settings defaults;
    present::TextTable table({{L"Setting"}, {L"Value"}, {L"Default"}, {L"Range"}, {L"Meaning"}});
    for (const core::SettingInfo& info : core::settingsTable()) {
        table.add({core::fromFileBytes(info.name), core::fromFileBytes(valueText(settings, info)),
                   core::fromFileBytes(plainText(defaults, info)),
                   core::fromFileBytes(rangeText(info)), core::fromFileBytes(info.meaning)});
    }
    return table.text();
}

Infos allInfos()
{
    Infos infos;
    for (const core::SettingInfo& info : core::settingsTable()) {
        infos.push_back(&info);
    }
    return infos;
}

// The settings of these names, all of them when there is none; empty when a name is unknown.
Infos infosOf(const std::vector<std::string>& names, Console& console)
{
    Infos infos;
    for (const std::string& name : names) {
        const core::SettingInfo* const info = core::findSetting(name);
        if (info == nullptr) {
            console.error("there is no setting '" + name + "'");
            return {};
        }
        infos.push_back(info);
    }
    return names.empty() ? allInfos() : infos;
}

void printValues(const Command& command, const Arguments& arguments, const core::Settings& settings,
                 const Infos& infos, Console& console)
{
    if (arguments.has("--json")) {
        Json object = commandObject(command.info().name);
        object["settings"] = settingsJson(settings, infos);
        console.print(jsonText(object));
        return;
    }
    for (const core::SettingInfo* const info : infos) {
        console.print(std::string(info->name) + " = " + valueText(settings, *info) + "\n");
    }
}

} // namespace

ListSettingsCommand::ListSettingsCommand()
    : Command({"settings list",
               "List every setting with its value, default, range and meaning",
               {},
               {kCommonOptions}})
{}

ExitCode ListSettingsCommand::run(const Arguments& arguments, Console& console) const
{
    const auto stored = loadSettings(arguments, FileNeed::MustExist, console);
    if (!stored) {
        console.error(stored.error().text());
        return ExitCode::Failed;
    }
    const core::Settings& settings = stored.value().settings;
    if (!arguments.has("--json")) {
        console.print(tableText(settings));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["settings"] = settingsJson(settings, allInfos());
    object["ayanamsaTable"] = ayanamsaTableJson(settings);
    console.print(jsonText(object));
    return ExitCode::Done;
}

GetSettingCommand::GetSettingCommand()
    : Command(
          {"settings get", "Show one setting", {{"NAME", "name of the setting"}}, {kCommonOptions}})
{}

ExitCode GetSettingCommand::run(const Arguments& arguments, Console& console) const
{
    const Infos infos = infosOf(arguments.values("NAME"), console);
    if (infos.empty()) {
        return ExitCode::Usage;
    }
    const auto stored = loadSettings(arguments, FileNeed::MustExist, console);
    if (!stored) {
        console.error(stored.error().text());
        return ExitCode::Failed;
    }
    printValues(*this, arguments, stored.value().settings, infos, console);
    return ExitCode::Done;
}

SetSettingCommand::SetSettingCommand()
    : Command({"settings set",
               "Change one setting and store it",
               {{"NAME", "name of the setting"},
                {"VALUE",
                 "a number, true or false, or the name of a choice, whose words need no "
                 "quotes",
                 true, true}},
               {kCommonOptions}})
{}

ExitCode SetSettingCommand::run(const Arguments& arguments, Console& console) const
{
    const Infos infos = infosOf(arguments.values("NAME"), console);
    if (infos.empty()) {
        return ExitCode::Usage;
    }
    std::string value;
    for (const std::string& word : arguments.values("VALUE")) {
        value += (value.empty() ? "" : " ") + word;
    }
    core::Settings typed;
    const core::Result<void> read = core::setSetting(typed, infos.front()->name, value);
    if (!read) {
        console.error(read.error().text());
        return ExitCode::Usage;
    }
    core::Settings changed;
    const ExitCode code = changeStoredSettings(arguments, console, [&](core::Settings& settings) {
        core::copySetting(settings, typed, *infos.front());
        changed = settings;
    });
    if (code == ExitCode::Done) {
        printValues(*this, arguments, changed, infos, console);
    }
    return code;
}

ResetSettingsCommand::ResetSettingsCommand()
    : Command({"settings reset",
               "Give settings their defaults back; all of them when none is named. The table of "
               "ayanamsas stays",
               {{"NAME", "name of a setting", false, true}},
               {kCommonOptions}})
{}

ExitCode ResetSettingsCommand::run(const Arguments& arguments, Console& console) const
{
    const Infos infos = infosOf(arguments.values("NAME"), console);
    if (infos.empty()) {
        return ExitCode::Usage;
    }
    const core::Settings defaults;
    core::Settings changed;
    const ExitCode code = changeStoredSettings(arguments, console, [&](core::Settings& settings) {
        for (const core::SettingInfo* const info : infos) {
            core::copySetting(settings, defaults, *info);
        }
        changed = settings;
    });
    if (code == ExitCode::Done) {
        printValues(*this, arguments, changed, infos, console);
    }
    return code;
}

} // namespace kestrav::cli
