#include "app/present/TextValues.h"

#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace kestrav::present
{

namespace
{

constexpr int kSecondsPerDay = 86400;
constexpr std::size_t kTextWidth = 100;

std::wstring padded(int value, std::size_t width)
{
    const std::wstring digits = std::to_wstring(value);
    return std::wstring(width > digits.size() ? width - digits.size() : 0, L'0') + digits;
}

} // namespace

std::wstring fixedNumber(double value, int decimals)
{
    std::array<char, 400> buffer{};
    const auto [end, problem] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                              std::chars_format::fixed, decimals);
    if (problem != std::errc{} || !std::isfinite(value)) {
        return std::wstring(core::kNoName);
    }
    return {buffer.data(), end};
}

std::wstring numberOrNone(const std::optional<double>& value, int decimals)
{
    return value ? fixedNumber(*value, decimals) : std::wstring(core::kNoName);
}

std::wstring wrapped(std::wstring_view text, std::wstring_view lead)
{
    std::wstring lines(lead);
    std::size_t column = lead.size();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(L' '), text.size());
        if (column > lead.size() && column + 1 + end > kTextWidth) {
            lines.append(L"\n").append(lead.size(), L' ');
            column = lead.size();
        } else if (column > lead.size()) {
            lines += L' ';
            ++column;
        }
        lines.append(text.substr(0, end));
        column += end;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines + L"\n";
}

std::wstring clockSeconds(double hours, bool twelveHour)
{
    if (!std::isfinite(hours)) {
        return std::wstring(core::kNoName);
    }
    const int total = int(std::floor(core::Normalize24(hours) * 3600.0 + 0.5)) % kSecondsPerDay;
    const int hour = total / 3600;
    const int shownHour = twelveHour && hour >= 12 ? hour - 12 : hour;
    std::wstring text = std::to_wstring(shownHour) + L":" + padded(total / 60 % 60, 2) + L":" +
                        padded(total % 60, 2);
    if (twelveHour) {
        text += hour < 12 ? L"am" : L"pm";
    }
    // The day is told from the rounded time, so that 23:59:59.8 is the day after.
    const double rounded = std::floor(hours * 3600.0 + 0.5);
    if (rounded < 0.0) {
        text += L'-';
    } else if (rounded >= kSecondsPerDay) {
        text += L'+';
    }
    return text;
}

std::wstring dateText(const core::DateTimeRecord& record)
{
    const std::wstring text = padded(std::abs(record.year), 4) + L"-" + padded(record.month, 2) +
                              L"-" + padded(record.day, 2);
    return record.year < 0 ? L"-" + text + L" (" + std::to_wstring(-record.year) + L" BC)" : text;
}

std::wstring geoText(double degrees, wchar_t positive, wchar_t negative)
{
    return core::FormatDMS(std::fabs(degrees), 1) + L" " + (degrees < 0.0 ? negative : positive);
}

std::wstring pointLabel(int point)
{
    return withoutEndBlanks(core::PointName(-1, point));
}

std::wstring withoutEndBlanks(std::wstring_view text)
{
    return std::wstring(text.substr(0, text.find_last_not_of(L' ') + 1));
}

int nakshatraOf(double position)
{
    return int(std::floor(position));
}

int padaOf(double position)
{
    return int(std::floor((position - std::floor(position)) * 4.0)) + 1;
}

} // namespace kestrav::present
