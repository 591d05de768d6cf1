#include "data/BirthTexts.h"

#include "core/NumberText.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <utility>

namespace kestrav::data
{

namespace
{

constexpr double kLargestZone = 16.0;
constexpr int kSecondsPerDay = 86400;

bool digit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

// What stands between the numbers of an angle or a time, in any form.
bool between(wchar_t character)
{
    constexpr std::wstring_view kBetween = L" :'\"\u00B0\u00BA\u2019\u201D\u2032\u2033";
    return kBetween.find(character) != std::wstring_view::npos;
}

// Up to three numbers, one sign before them and one letter anywhere.
struct Scan
{
    std::array<double, 3> numbers{};
    std::size_t count = 0;
    wchar_t letter = 0; ///< lower case; 0 when there is none
    bool minus = false;
};

// Reads digits with at most one decimal point; nothing when there are none or too many.
std::optional<double> scanNumber(std::wstring_view& text)
{
    constexpr std::size_t kMostDigits = 12;
    std::string digits;
    while (!text.empty() && (digit(text.front()) || text.front() == L'.')) {
        digits += static_cast<char>(text.front());
        text.remove_prefix(1);
    }
    return digits.size() > kMostDigits ? std::nullopt : core::parseNumber(digits);
}

std::optional<Scan> scan(std::wstring_view text, std::wstring_view letters)
{
    Scan result;
    bool signSeen = false;
    while (!text.empty()) {
        const wchar_t character = text.front();
        const wchar_t lower =
            character >= L'A' && character <= L'Z' ? wchar_t(character - L'A' + L'a') : character;
        if (digit(character)) {
            const std::optional<double> number = scanNumber(text);
            if (!number || result.count == result.numbers.size()) {
                return std::nullopt;
            }
            result.numbers[result.count++] = *number;
            continue;
        }
        if (character == L'+' || character == L'-') {
            if (signSeen || result.count > 0) {
                return std::nullopt;
            }
            signSeen = true;
            result.minus = character == L'-';
        } else if (letters.find(lower) != std::wstring_view::npos) {
            if (result.letter != 0) {
                return std::nullopt;
            }
            result.letter = lower;
        } else if (!between(character)) {
            return std::nullopt;
        }
        text.remove_prefix(1);
    }
    return result.count > 0 ? std::optional(result) : std::nullopt;
}

// The size of the value. 60 minutes and 60 seconds are accepted, because some forms print them
// instead of carrying.
std::optional<double> valueOf(const Scan& scan)
{
    for (std::size_t i = 0; i < scan.count; ++i) {
        const bool last = i + 1 == scan.count;
        if ((i > 0 && scan.numbers[i] > 60.0) ||
            (!last && scan.numbers[i] != std::floor(scan.numbers[i]))) {
            return std::nullopt;
        }
    }
    // In this order whole seconds give the same double as seconds / 3600.
    return (scan.numbers[0] * 3600.0 + scan.numbers[1] * 60.0 + scan.numbers[2]) / 3600.0;
}

// `letters` holds the positive and the negative letter.
std::optional<double> readSigned(std::wstring_view text, std::wstring_view letters, double limit)
{
    const std::optional<Scan> parts = scan(text, letters);
    const std::optional<double> size = parts ? valueOf(*parts) : std::nullopt;
    if (!size || *size > limit) {
        return std::nullopt;
    }
    // A letter says more than a sign, which old files also write before western longitudes.
    const bool negative = parts->letter != 0 ? parts->letter == letters[1] : parts->minus;
    return negative && *size > 0.0 ? -*size : *size;
}

struct Sexagesimal
{
    int whole;
    int minutes;
    int seconds;
};

Sexagesimal splitSeconds(long seconds)
{
    return {int(seconds / 3600), int(seconds / 60 % 60), int(seconds % 60)};
}

// Seconds of the size of a value; a value that is no number or absurdly large counts as 0.
long wholeSeconds(double value)
{
    constexpr double kLargest = 100000.0;
    return std::fabs(value) < kLargest ? std::lround(std::fabs(value) * 3600.0) : 0;
}

template <typename... Values>
std::wstring print(const wchar_t* format, Values... values)
{
    std::array<wchar_t, 40> buffer{};
    const int length = std::swprintf(buffer.data(), buffer.size(), format, values...);
    return length < 0 ? std::wstring{} : std::wstring(buffer.data(), std::size_t(length));
}

std::wstring geoText(const wchar_t* format, double degrees, std::wstring_view letters)
{
    const long seconds = wholeSeconds(degrees);
    const wchar_t letter = letters[degrees < 0.0 && seconds > 0 ? 1 : 0];
    const Sexagesimal parts = splitSeconds(seconds);
    return print(format, parts.whole, std::wint_t(letter), parts.minutes, parts.seconds);
}

bool standsFor(std::optional<double> read, double number)
{
    // Half a second, and room for the rounding of the comparison.
    constexpr double kTolerance = 0.5000001 / 3600.0;
    return std::fabs(read.value_or(0.0) - number) <= kTolerance;
}

} // namespace

std::optional<double> readTimeText(std::wstring_view text)
{
    wchar_t half = 0;
    while (text.ends_with(L' ') || text.ends_with(L'.')) {
        text.remove_suffix(1);
    }
    if (text.ends_with(L'm') || text.ends_with(L'M')) {
        text.remove_suffix(1);
        while (text.ends_with(L'.')) {
            text.remove_suffix(1);
        }
        if (text.empty()) {
            return std::nullopt;
        }
        half = text.back();
        text.remove_suffix(1);
        if (half != L'a' && half != L'A' && half != L'p' && half != L'P') {
            return std::nullopt;
        }
    }
    std::optional<Scan> parts = scan(text, L"");
    if (!parts || parts->minus) {
        return std::nullopt;
    }
    if (half != 0 && parts->numbers[0] < 13.0) {
        const bool afterNoon = half == L'p' || half == L'P';
        parts->numbers[0] = std::fmod(parts->numbers[0], 12.0) + (afterNoon ? 12.0 : 0.0);
    }
    const std::optional<double> hours = valueOf(*parts);
    if (!hours || *hours > 24.0) {
        return std::nullopt;
    }
    // A time within half a minute of midnight was printed as 24:00 by some forms.
    return *hours < 24.0 ? *hours : (kSecondsPerDay - 1) / 3600.0;
}

std::optional<double> readZoneText(std::wstring_view text)
{
    return readSigned(text, L"ew", kLargestZone);
}

std::optional<double> readLongitudeText(std::wstring_view text)
{
    return readSigned(text, L"ew", 180.0);
}

std::optional<double> readLatitudeText(std::wstring_view text)
{
    return readSigned(text, L"ns", 90.0);
}

std::wstring timeText(double hours)
{
    const long seconds = std::min(wholeSeconds(hours), long{kSecondsPerDay - 1});
    const Sexagesimal parts = splitSeconds(seconds);
    return parts.seconds == 0 ? print(L"%d:%02d", parts.whole, parts.minutes)
                              : print(L"%d:%02d:%02d", parts.whole, parts.minutes, parts.seconds);
}

std::wstring zoneText(double hours)
{
    const long seconds = wholeSeconds(hours);
    const Sexagesimal parts = splitSeconds(seconds);
    return print(L"%ls%d:%02d:%02d", hours < 0.0 && seconds > 0 ? L"-" : L"", parts.whole,
                 parts.minutes, parts.seconds);
}

std::wstring longitudeText(double degrees)
{
    return geoText(L"%3d%lc%2d'%2d\"", degrees, L"EW");
}

std::wstring latitudeText(double degrees)
{
    return geoText(L"%2d%lc%2d'%2d\"", degrees, L"NS");
}

std::wstring longitudeTextOf(const core::Chart& chart)
{
    std::wstring text = cleanUnquoted(chart.identity.longitudeText, kLongitudeLength);
    const bool kept = !text.empty() && standsFor(readLongitudeText(text), chart.geoLongitude);
    return kept ? text : longitudeText(chart.geoLongitude);
}

std::wstring latitudeTextOf(const core::Chart& chart)
{
    std::wstring text = cleanUnquoted(chart.identity.latitudeText, kLatitudeLength);
    const bool kept = !text.empty() && standsFor(readLatitudeText(text), chart.geoLatitude);
    return kept ? text : latitudeText(chart.geoLatitude);
}

BirthTexts birthTexts(const core::Chart& chart)
{
    BirthTexts texts{cleanText(chart.timeText, kTimeLength), cleanText(chart.zoneText, kZoneLength),
                     longitudeTextOf(chart), latitudeTextOf(chart)};
    if (texts.time.empty() || !standsFor(readTimeText(texts.time), chart.time.localTime)) {
        texts.time = timeText(chart.time.localTime);
    }
    if (texts.zone.empty() || !standsFor(readZoneText(texts.zone), chart.zone)) {
        texts.zone = zoneText(chart.zone);
    }
    return texts;
}

void refreshBirthTexts(core::Chart& chart)
{
    BirthTexts texts = birthTexts(chart);
    chart.timeText = std::move(texts.time);
    chart.zoneText = std::move(texts.zone);
    chart.identity.longitudeText = std::move(texts.longitude);
    chart.identity.latitudeText = std::move(texts.latitude);
}

} // namespace kestrav::data
