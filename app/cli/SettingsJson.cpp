#include "app/cli/SettingsJson.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <variant>

namespace kestrav::cli
{

namespace
{

// A number in the type of the setting.
Json typed(const core::SettingInfo& info, double value)
{
    if (std::holds_alternative<bool core::Settings::*>(info.field)) {
        return value != 0.0;
    }
    if (std::holds_alternative<int core::Settings::*>(info.field)) {
        return int(value);
    }
    return value;
}

} // namespace

Json settingsJson(const core::Settings& settings, std::span<const core::SettingInfo* const> infos)
{
    const core::Settings defaults;
    Json object = Json::object();
    for (const core::SettingInfo* const info : infos) {
        Json setting;
        if (core::settingIsText(*info)) {
            setting["value"] = core::settingText(settings, *info);
            setting["default"] = core::settingText(defaults, *info);
            setting["range"] = nullptr;
            setting["meaning"] = std::string(info->meaning);
            object[std::string(info->name)] = std::move(setting);
            continue;
        }
        setting["value"] = typed(*info, core::settingValue(settings, *info));
        setting["default"] = typed(*info, core::settingValue(defaults, *info));
        setting["range"] = Json::array({typed(*info, info->lowest), typed(*info, info->highest)});
        setting["meaning"] = std::string(info->meaning);
        object[std::string(info->name)] = std::move(setting);
    }
    return object;
}

Json ayanamsaTableJson(const core::Settings& settings)
{
    Json list = Json::array();
    for (std::size_t i = 0; i < settings.ayanamsaTable.size(); ++i) {
        const core::AyanamsaRow& row = settings.ayanamsaTable[i];
        Json object;
        object["row"] = i;
        object["name"] = std::string(row.nameText());
        object["epochYear"] = row.epochYear;
        object["value"] = row.valueAtEpoch;
        object["rate"] = row.annualRate;
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace kestrav::cli
