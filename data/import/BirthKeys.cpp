#include "data/import/BirthKeys.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace kestrav::data
{

namespace
{

using Keys = std::map<std::string, std::string>;

// The key in small letters and the value of a line; both empty when it has neither ":" nor "=".
std::pair<std::string, std::string> keyAndValue(std::string_view line)
{
    const std::size_t mark = line.find_first_of(":=");
    if (mark == std::string_view::npos) {
        return {};
    }
    return {lowered(trimmed(line.substr(0, mark))), std::string(trimmed(line.substr(mark + 1)))};
}

std::string valueOf(const Keys& keys, const std::string& key)
{
    const auto found = keys.find(key);
    return found == keys.end() ? std::string() : found->second;
}

// "d Mon y" with blanks or hyphens.
std::optional<core::CivilDate> dateWithMonthName(std::string text)
{
    std::replace(text.begin(), text.end(), '-', ' ');
    const std::vector<std::string_view> words = wordsOf(text);
    if (words.size() != 3) {
        return std::nullopt;
    }
    const std::optional<int> day = core::parseInteger(words[0]);
    const int month = monthOfName(words[1]);
    const std::optional<int> year = core::parseInteger(words[2]);
    return day && month != 0 && year ? std::optional(core::CivilDate{*year, month, *day})
                                     : std::nullopt;
}

core::Result<core::CivilDate> dateOf(const std::string& text)
{
    if (const std::optional<core::CivilDate> named = dateWithMonthName(text)) {
        return *named;
    }
    core::Result<core::CivilDate> date = core::parseDate(text);
    if (date) {
        return date;
    }
    return core::Error{"the date " + shown(text) +
                       " is not understood; write it as 1975-03-05 or "
                       "5 Mar 1975"};
}

core::Result<core::Chart> readKeys(const Keys& keys)
{
    std::string missing;
    for (const char* key : {"date", "time", "longitude", "latitude", "zone"}) {
        if (valueOf(keys, key).empty()) {
            missing += (missing.empty() ? "" : ", ") + std::string(key);
        }
    }
    if (!missing.empty()) {
        return core::Error{"has no " + missing};
    }
    const core::Result<core::CivilDate> date = dateOf(valueOf(keys, "date"));
    if (!date) {
        return date.error();
    }
    const auto wide = [&](const char* key) {
        return core::fromFileBytes(valueOf(keys, key));
    };
    const std::optional<double> hours = readTimeText(wide("time"));
    const std::optional<double> longitude = readLongitudeText(wide("longitude"));
    const std::optional<double> latitude = readLatitudeText(wide("latitude"));
    const std::optional<double> zone = readZoneText(wide("zone"));
    const std::string savingText = valueOf(keys, "dst");
    const std::optional<double> saving =
        savingText.empty() ? std::optional(0.0) : readZoneText(wide("dst"));
    for (const auto& [key, value] :
         {std::pair("time", hours), std::pair("longitude", longitude),
          std::pair("latitude", latitude), std::pair("zone", zone), std::pair("dst", saving)}) {
        if (!value) {
            return core::Error{std::string(key) + " " + shown(valueOf(keys, key)) +
                               " is not understood"};
        }
    }
    BirthEntry entry;
    entry.name = valueOf(keys, "name");
    const std::string sex = lowered(valueOf(keys, "sex"));
    entry.sex = sex.starts_with('m') ? "M" : sex.starts_with('f') ? "F" : "";
    entry.place = valueOf(keys, "place");
    entry.country = valueOf(keys, "country");
    entry.year = date.value().year;
    entry.month = date.value().month;
    entry.day = date.value().day;
    entry.hours = *hours;
    entry.zone = *zone;
    entry.saving = *saving;
    entry.longitude = *longitude;
    entry.latitude = *latitude;
    return chartOf(entry);
}

} // namespace

bool isBirthKeys(const std::vector<std::string>& lines)
{
    return std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        const std::string key = keyAndValue(line).first;
        return key == "date" || key == "name";
    });
}

void readBirthKeys(const std::vector<std::string>& lines, ImportReport& report)
{
    Keys keys;
    for (const std::string& line : lines) {
        auto [key, value] = keyAndValue(line);
        if (!key.empty()) {
            keys.emplace(std::move(key), std::move(value));
        }
    }
    report.take(1, readKeys(keys));
}

} // namespace kestrav::data
