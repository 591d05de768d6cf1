// A text file as an ordered list of lines that goes back byte for byte where nothing was edited.
#pragma once

#include "core/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// A database has at most this many lines.
inline constexpr std::size_t kMostLines = 5'000'000;

/// Lines keep their bytes, whatever the encoding; line ends are CR LF or LF as in the file, a mark
/// of byte order before the first line and a missing line end after the last one stay as they are.
class LineList
{
public:
    /// Splits the bytes of a file. More than kMostLines lines are refused.
    [[nodiscard]] static core::Result<LineList> fromBytes(std::span<const std::uint8_t> bytes);

    [[nodiscard]] std::size_t size() const
    {
        return lines_.size();
    }
    /// Line 0 to size() - 1 without its line end.
    [[nodiscard]] std::string_view line(std::size_t index) const;

    /// The line must not contain a line feed.
    void append(std::string line);
    /// Puts the line before that of the index, which may be size().
    void insert(std::size_t index, std::string line);
    void replace(std::size_t index, std::string line);
    void remove(std::size_t index);

    /// The whole file.
    [[nodiscard]] std::vector<std::uint8_t> bytes() const;

private:
    std::vector<std::string> lines_; ///< with the CR, without the LF
    bool byteOrderMark_ = false;
    bool crlf_ = false;
    bool lastLineEnds_ = true;
};

} // namespace kestrav::data
