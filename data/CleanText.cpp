#include "data/CleanText.h"

#include "data/ChartLineFields.h"
#include "data/ContactText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kestrav::data
{

namespace
{

bool control(wchar_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

void replaceQuotes(std::wstring& text)
{
    const auto quotes = std::count(text.begin(), text.end(), L'"');
    if (quotes > 1 || (quotes == 1 && text.back() != L'"')) {
        std::replace(text.begin(), text.end(), L'"', L'\'');
    }
}

// Ranges above ASCII that hold no letters and digits: signs, spaces, punctuation, arrows, boxes.
constexpr std::array<std::pair<wchar_t, wchar_t>, 14> kSignRanges = {{
    {0x80, 0xA9},
    {0xAB, 0xB1},
    {0xB4, 0xB4},
    {0xB6, 0xB8},
    {0xBB, 0xBB},
    {0xBF, 0xBF},
    {0xD7, 0xD7},
    {0xF7, 0xF7},
    {0x964, 0x965},
    {0x2000, 0x2070},
    {0x20A0, 0x20CF},
    {0x2190, 0x2BFF},
    {0x3000, 0x3004},
    {0xFFF0, 0xFFFF},
}};

// The two decimals of an event's time would print the last seconds of a day as 24.00, which reads
// as no time of a day.
double beforeMidnight(double hours)
{
    constexpr double kLastHours = 23.99;
    return hours > kLastHours && hours < 24.0 ? kLastHours : hours;
}

} // namespace

std::wstring cleanText(std::wstring_view text, std::size_t most)
{
    std::wstring clean(text);
    std::replace_if(clean.begin(), clean.end(), control, L' ');
    replaceQuotes(clean);
    if (clean.size() > most) {
        clean.resize(most);
    }
    return clean;
}

std::wstring cleanUnquoted(std::wstring_view text, std::size_t most)
{
    std::wstring clean(text.substr(0, most));
    std::replace_if(clean.begin(), clean.end(), control, L' ');
    if (clean.starts_with(L'"')) {
        clean.front() = L'\'';
    }
    return clean;
}

std::wstring cleanNotes(std::wstring_view text)
{
    std::wstring clean;
    std::size_t length = 0;
    for (std::size_t i = 0; i < text.size() && length < kNotesLength; ++i, ++length) {
        const wchar_t character = text[i];
        if (character == L'\r' || character == L'\n') {
            clean += L"\r\n";
            i += character == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n' ? 1 : 0;
        } else {
            clean += control(character) ? L' ' : character;
        }
    }
    replaceQuotes(clean);
    return clean;
}

std::optional<std::wstring> notesProblem(std::wstring_view text)
{
    if (text.find(L'|') == std::wstring_view::npos) {
        return std::nullopt;
    }
    return L"Notes cannot hold the character | because it stands for a line break in the file.";
}

void cleanRecord(core::Chart& chart)
{
    core::Identity& identity = chart.identity;
    const auto clean = [](std::wstring& text, std::size_t most) {
        text = cleanText(text, most);
    };
    identity.tag = control(identity.tag) ? L' ' : identity.tag;
    clean(identity.label, kLabelLength);
    clean(chart.name, kNameLength);
    clean(identity.sex, kSexLength);
    clean(identity.code, kCodeLength);
    clean(chart.timeText, kTimeLength);
    clean(chart.place, kPlaceLength);
    clean(identity.country, kCountryLength);
    clean(chart.zoneText, kZoneLength);
    identity.longitudeText = cleanUnquoted(identity.longitudeText, kLongitudeLength);
    identity.latitudeText = cleanUnquoted(identity.latitudeText, kLatitudeLength);
    clean(identity.sound, kSoundLength);
    clean(identity.occupation, kOccupationLength);
    clean(identity.status, kStatusLength);
    clean(identity.freeText, kFreeTextLength);
    std::replace(identity.notes.begin(), identity.notes.end(), L'|', L'/');
    identity.notes = cleanNotes(identity.notes);
    cleanContact(identity.contact);
    for (core::LifeEvent& event : identity.events) {
        clean(event.name, kEventNameLength);
        event.hours = beforeMidnight(event.hours);
    }
    identity.shortName = shortNameOf(chart.name);
}

bool hasLetterOrDigit(std::wstring_view text)
{
    return std::any_of(text.begin(), text.end(), [](wchar_t character) {
        if (character < 0x80) {
            return (character >= L'0' && character <= L'9') ||
                   (character >= L'A' && character <= L'Z') ||
                   (character >= L'a' && character <= L'z');
        }
        return std::none_of(kSignRanges.begin(), kSignRanges.end(), [&](const auto& range) {
            return character >= range.first && character <= range.second;
        });
    });
}

std::wstring shortNameOf(std::wstring_view name)
{
    const std::size_t start = std::min(name.find_first_not_of(L' '), name.size());
    const std::wstring_view word = name.substr(start, name.find(L' ', start) - start);
    return std::wstring(word.substr(0, kShortNameLength));
}

} // namespace kestrav::data
