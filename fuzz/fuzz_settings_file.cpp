// Any bytes as a settings file: what is read must lie in range and survive being written.
#include "core/SettingsFile.h"

#include <cstdint>
#include <cstdlib>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav::core;
    const StoredSettings stored = decodeSettings(std::span(data, size));
    for (const SettingInfo& info : settingsTable()) {
        const double value = settingValue(stored.settings, info);
        if (!(value >= info.lowest && value <= info.highest)) {
            std::abort();
        }
    }
    const StoredSettings again = decodeSettings(encodeSettings(stored));
    if (!(again.settings == stored.settings) || again.laterFields != stored.laterFields) {
        std::abort();
    }
    return 0;
}
