// Conversion between the wide text of the program and the bytes of files, terminals and widgets.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrav::core
{

/// UTF-8 of a wide text. Characters that do not exist become U+FFFD.
[[nodiscard]] std::string toUtf8(std::wstring_view text);

/// The wide text of valid UTF-8; nothing when the bytes are not valid (overlong forms, surrogates
/// and values above U+10FFFF are not).
[[nodiscard]] std::optional<std::wstring> fromUtf8(std::string_view bytes);

/// The wide text of a line of a file: UTF-8 when valid, else Windows-1252, whose undefined bytes
/// are read as Latin-1.
[[nodiscard]] std::wstring fromFileBytes(std::string_view bytes);

/// At most `limit` bytes of UTF-8 text, never cut inside a character.
[[nodiscard]] std::string_view cutUtf8(std::string_view text, std::size_t limit);

} // namespace kestrav::core
