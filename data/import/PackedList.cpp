#include "data/import/PackedList.h"

#include "core/NumberText.h"
#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kestrav::data
{

namespace
{

constexpr std::size_t kNumbers = 7;
constexpr double kLargestOffset = 15.0;

// The first seven numbers as texts; empty when there are none.
std::vector<std::string_view> headOf(const std::vector<std::string>& lines)
{
    if (lines.empty()) {
        return {};
    }
    std::vector<std::string_view> head = wordsOf(lines.front());
    if (head.size() < kNumbers) {
        if (lines.size() < kNumbers) {
            return {};
        }
        head.clear();
        for (std::size_t i = 0; i < kNumbers; ++i) {
            head.push_back(trimmed(lines[i]));
        }
    }
    head.resize(kNumbers);
    const bool numeric =
        std::all_of(head.begin(), head.end(), [](auto text) { return plainNumber(text); });
    return numeric ? head : std::vector<std::string_view>();
}

std::optional<int> wholeNumber(std::string_view text)
{
    const std::optional<double> value = plainNumber(text);
    constexpr double kLargest = 100000.0;
    return value && std::fabs(*value) < kLargest && *value == std::floor(*value)
               ? std::optional(int(*value))
               : std::nullopt;
}

std::optional<double> numberOfLine(const std::vector<std::string>& lines, std::size_t number)
{
    return number <= lines.size() ? plainNumber(lines[number - 1]) : std::nullopt;
}

// A number is no place: some old files have longitudes of planets from line 9 to line 17.
std::string textOfLine(const std::vector<std::string>& lines, std::size_t number)
{
    if (number > lines.size() || numberOfLine(lines, number)) {
        return {};
    }
    std::string text(trimmed(lines[number - 1]));
    std::replace(text.begin(), text.end(), '^', ' ');
    return text == "Unknown" ? std::string() : text;
}

// The offset in force is standard and saving time together. Lines 9 and 10 tell them apart when
// they are offsets at all: in some old files they are longitudes of planets.
void splitOffset(const std::vector<std::string>& lines, double total, BirthEntry& entry)
{
    constexpr double kOneMinute = 1.0 / 60.0;
    entry.zone = total;
    const std::optional<double> standard = numberOfLine(lines, 9);
    const std::optional<double> saving = numberOfLine(lines, 10);
    if (standard && saving && *standard != *saving && std::fabs(*standard) <= kLargestOffset &&
        std::fabs(*saving) <= kLargestOffset && std::fabs(total + *saving) <= kOneMinute) {
        const double hours = std::round(*standard - *saving);
        if (hours >= 0.0) {
            entry.zone = -*standard;
            entry.saving = hours;
        }
    }
}

} // namespace

bool isPackedList(const std::vector<std::string>& lines)
{
    return !headOf(lines).empty();
}

void readPackedList(const std::vector<std::string>& lines, std::string_view name,
                    ImportReport& report)
{
    const std::vector<std::string_view> head = headOf(lines);
    if (head.empty()) {
        report.refuse(0, "does not begin with seven numbers");
        return;
    }
    const std::optional<int> month = wholeNumber(head[0]);
    const std::optional<int> day = wholeNumber(head[1]);
    const std::optional<int> year = wholeNumber(head[2]);
    const std::optional<double> hours = unpackNumber(head[3]);
    const std::optional<double> offset = unpackNumber(head[4]);
    const std::optional<double> longitude = unpackNumber(head[5]);
    const std::optional<double> latitude = unpackNumber(head[6]);
    if (!month || !day || !year) {
        report.refuse(1, "the date " + shown(head[0]) + " " + shown(head[1]) + " " +
                             shown(head[2]) + " is not of whole numbers");
        return;
    }
    if (!hours || *hours < 0.0 || !offset || !longitude || !latitude) {
        report.refuse(4, "one of " + shown(head[3]) + " " + shown(head[4]) + " " + shown(head[5]) +
                             " " + shown(head[6]) + " has 60 minutes or more");
        return;
    }
    BirthEntry entry;
    entry.name = name;
    entry.month = *month;
    entry.day = *day;
    entry.year = *year;
    entry.hours = *hours;
    entry.longitude = 0.0 - *longitude;
    entry.latitude = *latitude;
    splitOffset(lines, 0.0 - *offset, entry);
    entry.place = textOfLine(lines, 13);
    entry.country = textOfLine(lines, 14);
    report.take(1, chartOf(entry));
}

} // namespace kestrav::data
