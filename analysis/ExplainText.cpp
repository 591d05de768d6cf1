#include "analysis/ExplainText.h"

#include "analysis/Dignities.h"
#include "analysis/VargaNames.h"
#include "core/Angles.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

bool isBlank(wchar_t letter)
{
    return letter == L' ';
}

// The fixed forms pad with blanks for tables.
std::wstring trimmed(std::wstring_view text)
{
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return std::wstring(text);
}

bool english()
{
    return (core::DisplayFlags() & core::kEnglishNames) != 0;
}

std::wstring settingLine(const core::Settings& settings, const core::SettingInfo& info)
{
    std::string line = std::string(info.name) + " = " + core::settingText(settings, info);
    const std::string_view choice = core::choiceName(info, int(core::settingValue(settings, info)));
    if (!choice.empty()) {
        line += " (" + std::string(choice) + ")";
    }
    return core::fromFileBytes(line + ": " + std::string(info.meaning));
}

} // namespace

std::wstring capitalised(std::wstring_view text)
{
    std::wstring result;
    for (const wchar_t letter : text) {
        const bool small = result.empty() && letter >= L'a' && letter <= L'z';
        result += small ? wchar_t(letter - L'a' + L'A') : letter;
    }
    return result;
}

void addSettings(Explanation& explanation, const core::Settings& settings,
                 std::initializer_list<std::string_view> names)
{
    for (const std::string_view name : names) {
        if (const core::SettingInfo* const info = core::findSetting(name)) {
            explanation.settings.push_back(settingLine(settings, *info));
        }
    }
}

Explanation about(std::wstring_view subject)
{
    Explanation explanation;
    explanation.subject = capitalised(subject);
    return explanation;
}

std::wstring decimal(double value, int places)
{
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, places);
    if (error != std::errc{} || !std::isfinite(value)) {
        return std::wstring(core::kNoName);
    }
    const std::wstring digits(buffer.data(), end);
    const bool zero = digits.find_first_not_of(L"-0.") == std::wstring::npos;
    return zero && digits.front() == L'-' ? digits.substr(1) : digits;
}

std::wstring virupas(const Strength& strength)
{
    return strength ? decimal(*strength) + L" virupas" : std::wstring(L"not computed");
}

std::wstring angle(double degrees)
{
    // Positions counted backwards end a little below 0.
    const double shown = std::fabs(degrees) < 1.0 / 7200.0 ? 0.0 : degrees;
    std::wstring out;
    core::FormatDegMinSec(shown, out);
    return trimmed(out);
}

std::wstring placeText(double longitude)
{
    return std::isfinite(longitude)
               ? trimmed(core::FormatSignPosition(core::Normalize360(longitude)))
               : std::wstring(core::kNoName);
}

std::wstring clockText(const core::Settings& settings, double hours)
{
    return trimmed(core::FormatClock(hours, settings.twelveHourClock, true));
}

std::wstring ordinal(int number)
{
    const int unit = number % 10;
    const bool teen = number % 100 >= 11 && number % 100 <= 13;
    const wchar_t* const ending = teen        ? L"th"
                                  : unit == 1 ? L"st"
                                  : unit == 2 ? L"nd"
                                  : unit == 3 ? L"rd"
                                              : L"th";
    return text(number, ending);
}

std::wstring listText(const std::vector<std::wstring>& items)
{
    std::wstring list;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool last = i + 1 == items.size();
        list += (i == 0 ? L"" : last ? L" and " : L", ") + items[i];
    }
    return list.empty() ? L"none" : list;
}

std::wstring nameOf(int point)
{
    const std::wstring name = trimmed(core::PointName(4, point));
    if (point >= core::kCusp1 && point <= core::kCusp12) {
        return text(L"house ", point - core::kCusp1 + 1);
    }
    if (point >= core::kBhavaLagna && point <= core::kArudhaLagna) {
        return text(L"the ", name, L" lagna");
    }
    if (point >= core::kArudhaPada1 && point <= core::kUpapada) {
        return text(L"the arudha of house ", point - core::kArudhaPada1 + 1);
    }
    switch (point) {
    case core::kAscendant:
        return L"the ascendant";
    case core::kSun:
    case core::kMoon:
        return english() ? L"the " + name : name;
    case core::kYogiPoint:
        return L"the Yogi point";
    case core::kPartOfFortune:
        return L"the Part of Fortune";
    case core::kSaham2:
        return L"the first chosen saham";
    case core::kSaham3:
        return L"the second chosen saham";
    default:
        return name;
    }
}

std::wstring vargaText(int varga)
{
    std::wstring name(vargaName(varga));
    if (name.back() == L'.') {
        name.pop_back();
    }
    return name;
}

std::wstring signText(int sign)
{
    return sign == 0 ? std::wstring(L"no sign") : std::wstring(core::signNameLong(sign));
}

std::wstring_view codeText(int code)
{
    return dignityWord(code == kExalted ? kDisplayExalted : code + 3, false);
}

std::wstring whyIncomplete(const core::Chart& chart)
{
    if (!chart.hasMoment) {
        return L"the chart consists of positions only, its moment and place are not known";
    }
    if (!chart.vedicDay) {
        return L"the Sun does not rise and set at this place on this day";
    }
    return L"the chart lacks a position from which it would follow";
}

std::wstring whyNoPosition(const core::Chart& chart, int point)
{
    const std::wstring start = nameOf(point) + L" has no position: ";
    if (point == core::kMuntha || point == core::kJanmalagna) {
        return start + L"it belongs to annual charts";
    }
    const bool body = point <= core::kKetu || (point >= core::kUranus && point <= core::kPluto);
    const bool house = point >= core::kCusp1 && point <= core::kCusp12;
    if (body || (house && !chart.hasMoment)) {
        return start + L"the chart was made without it";
    }
    if (house) {
        return start + L"this house system has no such cusp at this latitude";
    }
    return start + whyIncomplete(chart);
}

Explanation notComputed(Explanation explanation, std::wstring_view why)
{
    explanation.result = L"not computed";
    step(explanation, why);
    return explanation;
}

core::Error unknown(std::string_view what, std::string_view given, std::string_view possible)
{
    return core::Error{std::string(what) + " '" + std::string(core::cutUtf8(given, 60)) +
                       "' is not known; write " + std::string(possible)};
}

} // namespace kestrav::analysis::explaining
