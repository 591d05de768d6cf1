#include "data/FieldReader.h"

#include "core/FileText.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace kestrav::data
{

namespace
{

bool continuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

bool control(wchar_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

} // namespace

bool isAscii(std::string_view bytes)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::uint64_t any = 0;
    std::size_t i = 0;
    for (; i + sizeof any <= bytes.size(); i += sizeof any) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, bytes.data() + i, sizeof eight);
        any |= eight;
    }
    for (; i < bytes.size(); ++i) {
        any |= static_cast<unsigned char>(bytes[i]);
    }
    return (any & kHighBits) == 0;
}

std::size_t countCharacters(std::string_view utf8)
{
    return utf8.size() - std::size_t(std::count_if(utf8.begin(), utf8.end(), continuation));
}

std::string_view cutCharacters(std::string_view utf8, std::size_t most)
{
    if (utf8.size() <= most) {
        return utf8;
    }
    std::size_t characters = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (!continuation(utf8[i]) && characters++ == most) {
            return utf8.substr(0, i);
        }
    }
    return utf8;
}

std::wstring wideField(std::string_view bytes)
{
    std::wstring text =
        isAscii(bytes) ? std::wstring(bytes.begin(), bytes.end()) : core::fromFileBytes(bytes);
    std::replace_if(text.begin(), text.end(), control, L' ');
    return text;
}

FieldReader::FieldReader(std::string_view line) : line_(line)
{
    if (line_.ends_with('\r')) {
        line_.remove_suffix(1);
    }
    line_ = core::cutUtf8(line_, kLongestLine);
    if (!isAscii(line_) && !core::fromUtf8(line_)) {
        converted_ = core::toUtf8(core::fromFileBytes(line_));
        line_ = converted_;
    }
}

std::string_view FieldReader::text(std::size_t most)
{
    return read(Kind::Text, most);
}

std::string_view FieldReader::part(std::size_t most)
{
    return compoundOver_ ? std::string_view() : read(Kind::Part, most);
}

std::string_view FieldReader::lastPart(std::size_t most)
{
    if (compoundOver_) {
        compoundOver_ = false;
        return {};
    }
    return read(Kind::Text, most);
}

std::string_view FieldReader::unquoted(std::size_t most)
{
    return read(Kind::Text, most, false);
}

void FieldReader::skipText(int count)
{
    for (int i = 0; i < count; ++i) {
        read(Kind::Text, line_.size());
    }
}

void FieldReader::skipCompound(int parts)
{
    for (int i = 1; i < parts; ++i) {
        part(0);
    }
    lastPart(0);
}

std::wstring FieldReader::wideText(std::size_t most)
{
    return wideField(text(most));
}

std::wstring FieldReader::widePart(std::size_t most)
{
    return wideField(part(most));
}

std::wstring FieldReader::wideLastPart(std::size_t most)
{
    return wideField(lastPart(most));
}

std::string_view FieldReader::read(Kind kind, std::size_t most, bool quotes)
{
    if (short_ || position_ >= line_.size()) {
        short_ = true;
        return {};
    }
    const std::string_view field =
        quotes && line_[position_] == '"' ? readQuoted(kind) : readPlain(kind);
    // A text field that ends at a TAB is no compound.
    compoundOver_ = compoundOver_ && kind == Kind::Part;
    return cutCharacters(field, most);
}

std::string_view FieldReader::readQuoted(Kind kind)
{
    const std::size_t start = position_ + 1;
    const std::size_t end = std::min(line_.find('"', start), line_.size());
    const std::size_t tab = line_.substr(0, end).find('\t', start);
    if (tab != std::string_view::npos) {
        endField(tab);
        return line_.substr(start, tab - start);
    }
    const auto separatorAt = [&](std::size_t place) {
        return place >= line_.size() || line_[place] == '\t' ||
               (kind == Kind::Part && line_[place] == '/');
    };
    const bool doubled = end + 1 < line_.size() && line_[end + 1] == '"' && separatorAt(end + 2);
    const std::size_t textEnd = doubled ? end + 1 : end;
    endField(std::min(textEnd + 1, line_.size()));
    return line_.substr(start, textEnd - start);
}

std::string_view FieldReader::readPlain(Kind kind)
{
    const std::size_t start = position_;
    std::size_t end = start;
    while (end < line_.size() && line_[end] != '\t' && line_[end] != '\n' &&
           (kind == Kind::Text || line_[end] != '/')) {
        ++end;
    }
    endField(end);
    return line_.substr(start, end - start);
}

// Goes past the separator, whatever character stands in its place.
void FieldReader::endField(std::size_t separator)
{
    if (separator >= line_.size()) {
        short_ = true;
        position_ = line_.size();
        return;
    }
    compoundOver_ = line_[separator] == '\t' || line_[separator] == '\n';
    position_ = separator + 1;
}

} // namespace kestrav::data
