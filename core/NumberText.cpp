#include "core/NumberText.h"

#include "core/DateTime.h"
#include "core/FileText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <vector>

namespace kestrav::core
{

namespace
{

constexpr double kLargestZone = 15.0;

bool digit(char character)
{
    return character >= '0' && character <= '9';
}

bool allDigits(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), digit);
}

std::string_view withoutPlus(std::string_view text)
{
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    return text;
}

std::string_view withoutBlanks(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) {
        text.remove_prefix(1);
    }
    return text;
}

std::string quoted(std::string_view text)
{
    return std::string("'").append(cutUtf8(text, 60)).append("'");
}

std::vector<std::string_view> splitAt(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

// "MM" or "MM:SS" or "MM:SS.f" after a whole unit, as a fraction of that unit.
std::optional<double> parseMinutes(const std::vector<std::string_view>& parts, std::size_t first)
{
    if (parts.size() <= first || parts.size() > first + 2 || !allDigits(parts[first]) ||
        parts[first].size() > 2) {
        return std::nullopt;
    }
    const int minutes = readLeadingInteger(parts[first]);
    std::optional<double> seconds = 0.0;
    if (parts.size() == first + 2) {
        const std::string_view text = parts[first + 1];
        const bool plain = text.find_first_not_of("0123456789.") == std::string_view::npos;
        seconds = plain && !text.empty() && digit(text.front()) ? parseNumber(text) : std::nullopt;
    }
    if (!seconds || minutes >= 60 || *seconds >= 60.0) {
        return std::nullopt;
    }
    return (minutes * 60.0 + *seconds) / 3600.0;
}

// "DDD<letter>MM[:SS]" with one of two letters, of which the second makes the angle negative.
std::optional<double> parseLettered(std::string_view text, std::string_view letters)
{
    const std::size_t place = text.find_first_of(letters);
    if (place == std::string_view::npos || !allDigits(text.substr(0, place))) {
        return std::nullopt;
    }
    const std::optional<int> whole = parseInteger(text.substr(0, place));
    const std::string_view rest = text.substr(place + 1);
    const std::optional<double> fraction =
        rest.empty() ? std::optional(0.0) : parseMinutes(splitAt(rest, ':'), 0);
    if (!whole || !fraction) {
        return std::nullopt;
    }
    const bool negative = letters.find(text[place]) >= letters.size() / 2;
    return negative ? -(*whole + *fraction) : *whole + *fraction;
}

Result<double> parseGeo(std::string_view text, std::string_view letters, double limit,
                        const std::string& what, const std::string& example)
{
    const std::optional<double> degrees = text.find_first_of(letters) == std::string_view::npos
                                              ? parseNumber(withoutPlus(text))
                                              : parseLettered(text, letters);
    if (!degrees) {
        return Error{what + " " + quoted(text) + " is not understood; write " + example +
                     " or decimal degrees"};
    }
    if (std::fabs(*degrees) > limit) {
        return Error{what + " " + quoted(text) + " is beyond " + std::to_string(int(limit)) +
                     " degrees"};
    }
    return *degrees + 0.0; // 0W0 is no negative zero
}

} // namespace

std::optional<double> parseNumber(std::string_view text)
{
    double value = 0.0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (problem != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<int> parseInteger(std::string_view text)
{
    int value = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (problem != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

int readLeadingInteger(std::string_view text)
{
    text = withoutPlus(withoutBlanks(text));
    int value = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (problem == std::errc::result_out_of_range) {
        return text.front() == '-' ? std::numeric_limits<int>::min()
                                   : std::numeric_limits<int>::max();
    }
    return problem == std::errc{} ? value : 0;
}

double readLeadingNumber(std::string_view text)
{
    text = withoutPlus(withoutBlanks(text));
    double value = 0.0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    return problem == std::errc{} && std::isfinite(value) ? value : 0.0;
}

std::string shortestNumber(double value)
{
    std::array<char, 40> buffer{};
    const auto [end, problem] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return problem == std::errc{} ? std::string(buffer.data(), end) : std::string{};
}

Result<CivilDate> parseDate(std::string_view text)
{
    std::string_view digits = withoutPlus(text);
    const bool beforeChrist = !digits.empty() && digits.front() == '-';
    if (beforeChrist) {
        digits.remove_prefix(1);
    }
    const std::vector<std::string_view> parts = splitAt(digits, '-');
    if (parts.size() != 3 || !std::all_of(parts.begin(), parts.end(), allDigits) ||
        parts[0].size() > 5 || parts[1].size() > 2 || parts[2].size() > 2) {
        return Error{"date " + quoted(text) + " is not understood; write YYYY-MM-DD"};
    }
    const int year = *parseInteger(parts[0]);
    const CivilDate date{beforeChrist ? -year : year, *parseInteger(parts[1]),
                         *parseInteger(parts[2])};
    if (date.year == 0) {
        return Error{"date " + quoted(text) + ": there is no year 0; 1 BC is written -0001"};
    }
    if (!dateExists(date.year, date.month, date.day)) {
        return Error{"date " + quoted(text) + " does not exist"};
    }
    return date;
}

Result<double> parseClock(std::string_view text)
{
    const std::vector<std::string_view> parts = splitAt(text, ':');
    const std::optional<double> fraction = parseMinutes(parts, 1);
    if (!allDigits(parts[0]) || parts[0].size() > 2 || !fraction) {
        return Error{"time " + quoted(text) + " is not understood; write HH:MM or HH:MM:SS"};
    }
    // The last fraction of a second before 24:00 can round to it.
    const double hours = readLeadingInteger(parts[0]) + *fraction;
    if (hours >= 24.0) {
        return Error{"time " + quoted(text) + " is not between 0:00 and 23:59:59"};
    }
    return hours;
}

Result<double> parseZone(std::string_view text)
{
    std::optional<double> hours;
    if (text.find(':') == std::string_view::npos) {
        hours = parseNumber(withoutPlus(text));
    } else {
        std::string_view digits = withoutPlus(text);
        const bool west = !digits.empty() && digits.front() == '-';
        if (west) {
            digits.remove_prefix(1);
        }
        const std::vector<std::string_view> parts = splitAt(digits, ':');
        const std::optional<double> fraction = parseMinutes(parts, 1);
        if (allDigits(parts[0]) && parts[0].size() <= 2 && fraction) {
            const double size = *parseInteger(parts[0]) + *fraction;
            hours = west ? -size : size;
        }
    }
    if (!hours) {
        return Error{"zone " + quoted(text) +
                     " is not understood; write +5:30, -4:56:02 or decimal hours"};
    }
    if (std::fabs(*hours) > kLargestZone) {
        return Error{"zone " + quoted(text) + " is beyond 15 hours"};
    }
    return *hours + 0.0;
}

Result<double> parseGeoLongitude(std::string_view text)
{
    return parseGeo(text, "EeWw", 180.0, "longitude", "77E13 or 77E13:30");
}

Result<double> parseGeoLatitude(std::string_view text)
{
    return parseGeo(text, "NnSs", 90.0, "latitude", "28N39 or 28N39:15");
}

} // namespace kestrav::core
