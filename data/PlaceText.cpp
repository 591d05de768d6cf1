#include "data/PlaceText.h"

#include "core/FileText.h"
#include "data/BirthTexts.h"
#include "data/FoldTable.h"

#include <bit>
#include <cstdint>

namespace kestrav::data
{

namespace
{

constexpr std::uint32_t kLatinFirst = 0xC0;
constexpr std::uint32_t kLatinEnd = kLatinFirst + kFoldFrom00C0.size() / 2;
constexpr std::uint32_t kLatinMoreFirst = 0x1E00;
constexpr std::uint32_t kLatinMoreEnd = kLatinMoreFirst + kFoldFrom1E00.size() / 2;

// Apostrophes, full stops, modifier letters and combining marks, which belong to no key.
bool dropped(std::uint32_t code)
{
    return code == '\'' || code == '`' || code == '.' || code == 0xB4 ||
           (code >= 0x2018 && code <= 0x201B) || (code >= 0x2B0 && code <= 0x36F);
}

bool partsWords(std::uint32_t code)
{
    return code == 0xA0 || (code >= 0x2010 && code <= 0x2015);
}

class Key
{
public:
    void add(std::uint32_t code)
    {
        if (dropped(code)) {
            return;
        }
        if (code < 0x80) {
            addAscii(static_cast<char>(code));
        } else if (code >= kLatinFirst && code < kLatinEnd) {
            addLetters(kFoldFrom00C0, code - kLatinFirst, code);
        } else if (code >= kLatinMoreFirst && code < kLatinMoreEnd) {
            addLetters(kFoldFrom1E00, code - kLatinMoreFirst, code);
        } else if (partsWords(code)) {
            gap_ = true;
        } else if ((code >= 0x391 && code <= 0x3A9) || (code >= 0x410 && code <= 0x42F)) {
            addCode(code + 0x20);
        } else {
            addCode(code >= 0x400 && code <= 0x40F ? code + 0x50 : code);
        }
    }

    std::string take()
    {
        return std::move(text_);
    }

private:
    void closeGap()
    {
        if (gap_ && !text_.empty()) {
            text_ += ' ';
        }
        gap_ = false;
    }

    void addAscii(char character)
    {
        const bool capital = character >= 'A' && character <= 'Z';
        const bool letter = capital || (character >= 'a' && character <= 'z');
        if (!letter && !(character >= '0' && character <= '9')) {
            gap_ = true;
            return;
        }
        closeGap();
        text_ += static_cast<char>(capital ? character + ('a' - 'A') : character);
    }

    void addLetters(std::string_view table, std::size_t entry, std::uint32_t code)
    {
        const std::string_view letters = table.substr(2 * entry, 2);
        if (letters[0] == ' ') {
            addCode(code);
            return;
        }
        closeGap();
        text_ += letters.substr(0, letters[1] == ' ' ? 1 : 2);
    }

    void addCode(std::uint32_t code)
    {
        closeGap();
        const auto character = static_cast<wchar_t>(code);
        text_ += core::toUtf8(std::wstring_view(&character, 1));
    }

    std::string text_;
    bool gap_ = false;
};

} // namespace

std::string foldName(std::wstring_view name)
{
    Key key;
    for (const wchar_t character : name) {
        key.add(std::bit_cast<std::uint32_t>(character));
    }
    return key.take();
}

std::string foldName(std::string_view utf8)
{
    Key key;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte >= 0x80) {
            return foldName(core::fromUtf8(utf8).value_or(std::wstring{}));
        }
        key.add(byte);
    }
    return key.take();
}

std::vector<std::wstring_view> commaParts(std::wstring_view text)
{
    std::vector<std::wstring_view> parts;
    while (!text.empty()) {
        const std::size_t comma = text.find(L',');
        std::wstring_view part = text.substr(0, comma);
        text = comma == std::wstring_view::npos ? std::wstring_view{} : text.substr(comma + 1);
        while (!part.empty() && part.front() == L' ') {
            part.remove_prefix(1);
        }
        while (!part.empty() && part.back() == L' ') {
            part.remove_suffix(1);
        }
        if (!part.empty()) {
            parts.push_back(part);
        }
    }
    return parts;
}

std::wstring cityListText(double latitude, std::wstring_view name)
{
    return latitudeText(latitude).append(L"    ").append(name);
}

} // namespace kestrav::data
