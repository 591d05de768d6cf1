// Lines and fields of the tables that the program keeps as text.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kestrav::data
{

/// The text up to the separator, which goes with it; what follows stays in `rest`.
[[nodiscard]] inline std::string_view takeUpTo(std::string_view& rest, char separator)
{
    const std::size_t end = rest.find(separator);
    const std::string_view part = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
    return part;
}

/// The next line without its line end, "\n" or "\r\n".
[[nodiscard]] inline std::string_view takeLine(std::string_view& rest)
{
    std::string_view line = takeUpTo(rest, '\n');
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// Fills the fields from a line; false when the line has more or fewer.
template <std::size_t Count>
[[nodiscard]] bool splitFields(std::string_view line, char separator,
                               std::array<std::string_view, Count>& fields)
{
    for (std::size_t i = 0; i + 1 < Count; ++i) {
        const std::size_t end = line.find(separator);
        if (end == std::string_view::npos) {
            return false;
        }
        fields[i] = line.substr(0, end);
        line = line.substr(end + 1);
    }
    fields[Count - 1] = line;
    return line.find(separator) == std::string_view::npos;
}

} // namespace kestrav::data
