#include "data/import/CommandChart.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kestrav::data
{

namespace
{

// The command's name and eight values.
constexpr std::size_t kBirthWords = 9;

// Words separated by blanks; double quotes keep blanks together, a semicolon begins a comment.
std::vector<std::string> commandWords(std::string_view line)
{
    std::vector<std::string> words;
    std::size_t i = 0;
    while (i < line.size() && line[i] != ';') {
        if (line[i] == ' ' || line[i] == '\t') {
            ++i;
            continue;
        }
        const bool quoted = line[i] == '"';
        const std::size_t start = quoted ? i + 1 : i;
        const std::size_t end = std::min(
            quoted ? line.find('"', start) : line.find_first_of(" \t;", start), line.size());
        words.emplace_back(line.substr(start, end - start));
        i = quoted ? std::min(end + 1, line.size()) : end;
    }
    return words;
}

bool isCommand(const std::string& word, std::string_view command)
{
    return word.size() > 1 && (word[0] == '/' || word[0] == '-') &&
           std::string_view(word).substr(1) == command;
}

std::wstring wide(const std::string& text)
{
    return core::fromFileBytes(text);
}

// Hours west; a letter at the end decides instead of the sign.
std::optional<double> zoneWest(const std::string& text)
{
    const std::optional<double> zone = readZoneText(wide(text));
    if (!zone) {
        return std::nullopt;
    }
    const bool lettered = text.find_first_of("eEwW") != std::string::npos;
    return lettered ? 0.0 - *zone : *zone;
}

std::optional<double> savingHours(const std::string& text)
{
    const std::string word = lowered(text);
    if (word == "st" || word == "dt") {
        return word == "dt" ? 1.0 : 0.0;
    }
    return readZoneText(wide(text));
}

core::Result<BirthEntry> readBirth(const std::vector<std::string>& words)
{
    if (words.size() < kBirthWords) {
        return core::Error{"the birth data has fewer than eight values"};
    }
    const int named = monthOfName(words[1]);
    const std::optional<int> month =
        named != 0 ? std::optional(named) : core::parseInteger(words[1]);
    const std::optional<int> day = core::parseInteger(words[2]);
    const std::optional<int> year = core::parseInteger(words[3]);
    const std::optional<double> hours = readTimeText(wide(words[4]));
    if (!month || !day || !year || !hours) {
        return core::Error{"the moment " +
                           shown(words[1] + " " + words[2] + " " + words[3] + " " + words[4]) +
                           " is not understood"};
    }
    if (lowered(words[5]) == "autodetect") {
        return core::Error{"its saving time was left to the other program to find"};
    }
    const std::optional<double> saving = savingHours(words[5]);
    const std::optional<double> west = zoneWest(words[6]);
    const std::optional<double> longitude = readLongitudeText(wide(words[7]));
    const std::optional<double> latitude = readLatitudeText(wide(words[8]));
    if (!saving || !west || !longitude || !latitude) {
        return core::Error{"zone or place " +
                           shown(words[5] + " " + words[6] + " " + words[7] + " " + words[8]) +
                           " is not understood"};
    }
    BirthEntry entry;
    entry.month = *month;
    entry.day = *day;
    entry.year = *year;
    entry.hours = *hours;
    entry.saving = *saving;
    entry.zone = 0.0 - *west;
    // Without a letter longitudes are west positive like the zone.
    const bool lettered = words[7].find_first_of("eEwW") != std::string::npos;
    entry.longitude = lettered ? *longitude : 0.0 - *longitude;
    entry.latitude = *latitude;
    return entry;
}

} // namespace

bool isCommandChart(const std::vector<std::string>& lines)
{
    const auto first = std::find_if(lines.begin(), lines.end(),
                                    [](const auto& line) { return !trimmed(line).empty(); });
    return first != lines.end() && trimmed(*first).starts_with('@');
}

void readCommandChart(const std::vector<std::string>& lines, ImportReport& report)
{
    std::optional<core::Result<BirthEntry>> birth;
    long record = 0;
    const auto finish = [&] {
        if (birth) {
            report.take(record, *birth ? chartOf(birth->value()) : birth->error());
        }
        birth.reset();
    };
    long number = 0;
    for (const std::string& line : lines) {
        ++number;
        const std::vector<std::string> words = commandWords(line);
        if (words.empty()) {
            continue;
        }
        if (isCommand(words[0], "qb")) {
            finish();
            birth = readBirth(words);
            record = number;
        } else if (isCommand(words[0], "zi") && birth && *birth) {
            BirthEntry& entry = birth->value();
            entry.name = words.size() > 1 ? words[1] : std::string();
            splitPlace(words.size() > 2 ? words[2] : std::string(), entry);
        }
    }
    finish();
    if (record == 0) {
        report.refuse(0, "has no birth data (/qb)");
    }
}

} // namespace kestrav::data
