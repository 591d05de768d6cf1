#include "data/import/BinaryChartList.h"

#include "core/FileText.h"
#include "core/LittleEndian.h"
#include "data/import/BirthEntry.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::data
{

namespace
{

constexpr std::size_t kBlanks = 80;
constexpr std::size_t kHead = 2 + kBlanks + 4;
constexpr std::uint16_t kLatestVersion = 3;

// Offsets inside a record.
constexpr std::size_t kName = 2;
constexpr std::size_t kNameSize = 50;
constexpr std::size_t kCity = 52;
constexpr std::size_t kCitySize = 20;
constexpr std::size_t kCountry = 72;
constexpr std::size_t kCountrySize = 20;
constexpr std::size_t kLongitude = 92;
constexpr std::size_t kLatitude = 96;
constexpr std::size_t kYear = 100;
constexpr std::size_t kMonth = 102;
constexpr std::size_t kOffset = 107;
constexpr std::size_t kMark = 111;
constexpr std::size_t kRecord = 116;

using Bytes = std::span<const std::uint8_t>;

std::uint32_t unsigned32(Bytes bytes, std::size_t place)
{
    return std::uint32_t(bytes[place]) | std::uint32_t(bytes[place + 1]) << 8 |
           std::uint32_t(bytes[place + 2]) << 16 | std::uint32_t(bytes[place + 3]) << 24;
}

double float32(Bytes bytes, std::size_t place)
{
    return double(std::bit_cast<float>(unsigned32(bytes, place)));
}

// A text padded with blanks or NUL; nothing when it holds other control characters.
std::optional<std::string> textAt(Bytes bytes, std::size_t place, std::size_t size)
{
    const Bytes field = bytes.subspan(place, size);
    const auto end = std::find(field.begin(), field.end(), std::uint8_t{0});
    if (std::any_of(field.begin(), end, [](std::uint8_t byte) { return byte < ' '; })) {
        return std::nullopt;
    }
    return core::toUtf8(core::fromFileBytes(std::string(trimmed(std::string(field.begin(), end)))));
}

std::optional<core::Chart> chartAt(Bytes record)
{
    const std::optional<std::string> name = textAt(record, kName, kNameSize);
    const std::optional<std::string> city = textAt(record, kCity, kCitySize);
    const std::optional<std::string> country = textAt(record, kCountry, kCountrySize);
    const double added = float32(record, kOffset);
    if (!name || name->empty() || !city || !country || !std::isfinite(added)) {
        return std::nullopt;
    }
    const auto part = [&](std::size_t index) {
        return int(record[kMonth + index]);
    };
    if (part(2) > 23 || part(3) > 59 || part(4) > 59) {
        return std::nullopt;
    }
    BirthEntry entry;
    entry.name = *name;
    entry.place = *city;
    entry.country = *country;
    entry.year = std::int16_t(record[kYear] | record[kYear + 1] << 8);
    entry.month = part(0);
    entry.day = part(1);
    entry.hours = (part(2) * 3600 + part(3) * 60 + part(4)) / 3600.0;
    // Single precision: seconds of arc and of time are all that it carries.
    entry.longitude = std::round(-3600.0 * float32(record, kLongitude)) / 3600.0 + 0.0;
    entry.latitude = std::round(3600.0 * float32(record, kLatitude)) / 3600.0 + 0.0;
    // The second letter of the mark says whether an hour of saving time is contained.
    const bool saving = record[kMark + 1] == 'D' || record[kMark + 1] == 'W';
    entry.saving = saving ? 1.0 : 0.0;
    entry.zone = std::round(-3600.0 * added) / 3600.0 - entry.saving + 0.0;
    core::Result<core::Chart> chart = chartOf(entry);
    return chart ? std::optional(std::move(chart.value())) : std::nullopt;
}

} // namespace

bool isBinaryChartList(Bytes bytes)
{
    return bytes.size() >= kHead && bytes[1] == 0 && bytes[0] >= 1 && bytes[0] <= kLatestVersion &&
           std::all_of(bytes.begin() + 2, bytes.begin() + 2 + kBlanks,
                       [](std::uint8_t byte) { return byte == ' '; });
}

void readBinaryChartList(Bytes bytes, ImportReport& report)
{
    if (!isBinaryChartList(bytes)) {
        report.refuse(0, "is not a chart list");
        return;
    }
    const std::uint32_t count = unsigned32(bytes, 2 + kBlanks);
    std::vector<core::Chart> charts;
    std::size_t place = kHead;
    while (place + kRecord <= bytes.size() && charts.size() <= kMostImportedCharts) {
        std::optional<core::Chart> chart;
        if (bytes[place] == 1 && bytes[place + 1] == 1) {
            chart = chartAt(bytes.subspan(place, kRecord));
        }
        if (chart) {
            charts.push_back(std::move(*chart));
        }
        place += chart ? kRecord : 1;
    }
    if (charts.size() != count) {
        report.refuse(0, "is not a chart list: it should hold " + std::to_string(count) +
                             " charts, and " + std::to_string(charts.size()) + " were found");
        return;
    }
    long record = 0;
    for (core::Chart& chart : charts) {
        report.take(++record, std::move(chart));
    }
}

} // namespace kestrav::data
