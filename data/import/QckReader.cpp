#include "data/import/QckReader.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"

#include <array>
#include <optional>

namespace kestrav::data
{

namespace
{

using namespace qck;

// The columns of one line, which has its blanks at the end again where they were cut off.
class Columns
{
public:
    explicit Columns(const std::string& line) : text_(core::fromFileBytes(line))
    {
        text_.resize(std::max(text_.size(), kLineWidth), L' ');
    }

    [[nodiscard]] std::wstring_view wide(std::size_t first, std::size_t count) const
    {
        return std::wstring_view(text_).substr(first, count);
    }
    /// The columns in UTF-8 without blanks at both ends.
    [[nodiscard]] std::string text(std::size_t first, std::size_t count) const
    {
        return std::string(trimmed(core::toUtf8(wide(first, count))));
    }

private:
    std::wstring text_;
};

struct Offset
{
    double zone = 0.0;
    double saving = 0.0;
};

// "+hh:mm" is what is added to the clock to get Universal Time, saving time included. The second
// letter of the mark says whether that contains an hour of saving time: D daylight, W war time.
std::optional<Offset> offsetOf(const std::string& mark, const std::string& added, double longitude)
{
    if (added.empty()) {
        return mark == "LMT" ? std::optional(Offset{longitude / 15.0, 0.0}) : std::nullopt;
    }
    const std::optional<double> west = readZoneText(core::fromFileBytes(added));
    if (!west) {
        return std::nullopt;
    }
    const bool saving = mark.size() > 1 && (mark[1] == 'D' || mark[1] == 'W');
    return Offset{0.0 - *west - (saving ? 1.0 : 0.0), saving ? 1.0 : 0.0};
}

core::Result<core::Chart> readLine(const std::string& line)
{
    const Columns columns(line);
    BirthEntry entry;
    entry.name = columns.text(kName, kNameWidth);
    entry.month = monthOfName(columns.text(kMonth, kDay - kMonth));
    const std::optional<int> day = core::parseInteger(columns.text(kDay, kComma - kDay));
    const std::optional<int> year = core::parseInteger(columns.text(kYear, kTime - kYear));
    if (entry.month == 0 || !day || !year) {
        return core::Error{"the date " + shown(columns.text(kMonth, kTime - kMonth)) +
                           " is not understood"};
    }
    entry.day = *day;
    entry.year = *year;
    const std::string timeOfDay = columns.text(kTime, kMark - kTime);
    const std::optional<double> hours = readTimeText(core::fromFileBytes(timeOfDay));
    if (!hours) {
        return core::Error{"the time " + shown(timeOfDay) + " is not understood"};
    }
    entry.hours = *hours;
    const std::optional<double> longitude =
        readLongitudeText(columns.wide(kLongitude, kLatitude - kLongitude));
    const std::optional<double> latitude =
        readLatitudeText(columns.wide(kLatitude, kPlace - kLatitude));
    if (!longitude || !latitude) {
        return core::Error{"the place " + shown(columns.text(kLongitude, kPlace - kLongitude)) +
                           " is not understood"};
    }
    entry.longitude = *longitude;
    entry.latitude = *latitude;
    const std::optional<Offset> offset =
        offsetOf(columns.text(kMark, kOffset - kMark), columns.text(kOffset, kLongitude - kOffset),
                 *longitude);
    if (!offset) {
        return core::Error{"the zone " + shown(columns.text(kMark, kLongitude - kMark)) +
                           " is not understood"};
    }
    entry.zone = offset->zone;
    entry.saving = offset->saving;
    splitPlace(columns.text(kPlace, kPlaceWidth), entry);
    return chartOf(entry);
}

} // namespace

bool isQckList(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines) {
        if (trimmed(line).empty()) {
            continue;
        }
        const std::wstring text = core::fromFileBytes(line);
        return text.size() >= kPlace && text[kComma] == L',' &&
               monthOfName(core::toUtf8(text.substr(kMonth, 3))) != 0;
    }
    return false;
}

void readQckList(const std::vector<std::string>& lines, ImportReport& report)
{
    long number = 0;
    for (const std::string& line : lines) {
        ++number;
        if (!trimmed(line).empty()) {
            report.take(number, readLine(line));
        }
    }
}

} // namespace kestrav::data
