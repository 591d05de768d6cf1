// Texts made fit for a chart line.
#pragma once

#include "core/Chart.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kestrav::data
{

/// Replaces what would destroy a quoted field: TAB, line breaks and other control characters become
/// blanks, double quotes become single ones, except a lone one at the end, which a line can carry.
/// Longer texts are cut to `most` characters.
[[nodiscard]] std::wstring cleanText(std::wstring_view text, std::size_t most);

/// The same for a field without quotes, in which only a leading quote does harm.
[[nodiscard]] std::wstring cleanUnquoted(std::wstring_view text, std::size_t most);

/// The same for notes, whose line breaks, CR LF afterwards, count as one character each.
[[nodiscard]] std::wstring cleanNotes(std::wstring_view text);

/// Why typed notes cannot be kept as they are: a vertical bar stands for a line break in the file.
[[nodiscard]] std::optional<std::wstring> notesProblem(std::wstring_view text);

/// Cleans and cuts every text of a record, as it is done when texts enter it from a form or an
/// import. Bars in the notes become slashes; the last seconds of the day of an event become 23.99
/// hours.
void cleanRecord(core::Chart& chart);

/// Whether the text holds a letter or a digit of any script.
[[nodiscard]] bool hasLetterOrDigit(std::wstring_view text);

/// The first word of a name, at most 9 characters.
[[nodiscard]] std::wstring shortNameOf(std::wstring_view name);

} // namespace kestrav::data
