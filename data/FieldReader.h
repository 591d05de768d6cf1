// The cursor that takes a chart line apart, field by field.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrav::data
{

/// Longer lines are read up to here.
inline constexpr std::size_t kLongestLine = 65536;

/// Reads the fields of one line. Every read takes the greatest number of characters to keep. A
/// text field ends at the next TAB; a part of a compound value such as a date ends at the next "/"
/// or TAB, and a TAB ends the whole compound: its remaining parts are empty. A field that begins
/// with a double quote runs to the next one, or to a TAB; two quotes before the separator stand for
/// one quote in the text. When the line ends without a separator the reader is short: the text so
/// far counts, and every later read gives nothing.
class FieldReader
{
public:
    /// The line may end with CR. It must outlive the reader.
    explicit FieldReader(std::string_view line);
    FieldReader(const FieldReader&) = delete;
    FieldReader& operator=(const FieldReader&) = delete;

    [[nodiscard]] bool isShort() const
    {
        return short_;
    }
    /// What was not read yet.
    [[nodiscard]] std::string_view rest() const
    {
        return line_.substr(position_);
    }

    /// The bytes of a field, UTF-8 whatever the encoding of the line.
    std::string_view text(std::size_t most);
    std::string_view part(std::size_t most);
    /// The text field that closes a compound.
    std::string_view lastPart(std::size_t most);
    /// Closes a compound whose last field was a part.
    void endCompound()
    {
        compoundOver_ = false;
    }
    /// A text field in which a quote is a character like any other.
    std::string_view unquoted(std::size_t most);
    void skipText(int count);
    /// Goes past a compound of so many parts, the last of which is a text field.
    void skipCompound(int parts);

    /// The characters of a field, control characters as blanks.
    std::wstring wideText(std::size_t most);
    std::wstring widePart(std::size_t most);
    std::wstring wideLastPart(std::size_t most);

private:
    enum class Kind
    {
        Text,
        Part,
    };

    std::string_view read(Kind kind, std::size_t most, bool quotes = true);
    std::string_view readQuoted(Kind kind);
    std::string_view readPlain(Kind kind);
    void endField(std::size_t separator);

    std::string converted_; ///< of a line that is not UTF-8
    std::string_view line_;
    std::size_t position_ = 0;
    bool short_ = false;
    bool compoundOver_ = false;
};

/// The characters of UTF-8 bytes, control characters as blanks.
[[nodiscard]] std::wstring wideField(std::string_view bytes);

/// At most `most` characters of valid UTF-8.
[[nodiscard]] std::string_view cutCharacters(std::string_view utf8, std::size_t most);

/// The number of characters of valid UTF-8.
[[nodiscard]] std::size_t countCharacters(std::string_view utf8);

/// Whether all bytes are below 0x80.
[[nodiscard]] bool isAscii(std::string_view bytes);

} // namespace kestrav::data
