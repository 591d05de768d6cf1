#include "data/LineList.h"

#include <algorithm>
#include <utility>

namespace kestrav::data
{

namespace
{

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

void appendBytes(std::vector<std::uint8_t>& bytes, std::string_view text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

} // namespace

core::Result<LineList> LineList::fromBytes(std::span<const std::uint8_t> bytes)
{
    std::string_view rest(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    LineList list;
    if (rest.starts_with(kByteOrderMark)) {
        list.byteOrderMark_ = true;
        rest.remove_prefix(kByteOrderMark.size());
    }
    const auto breaks = std::size_t(std::count(rest.begin(), rest.end(), '\n'));
    list.lastLineEnds_ = rest.empty() || rest.back() == '\n';
    const std::size_t count = breaks + (list.lastLineEnds_ ? 0 : 1);
    if (count > kMostLines) {
        return core::Error{"has more than " + std::to_string(kMostLines) + " lines"};
    }
    list.lines_.reserve(count);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        list.lines_.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    list.crlf_ = !list.lines_.empty() && list.lines_.front().ends_with('\r');
    return list;
}

std::string_view LineList::line(std::size_t index) const
{
    std::string_view text = lines_[index];
    if (text.ends_with('\r')) {
        text.remove_suffix(1);
    }
    return text;
}

void LineList::append(std::string line)
{
    if (!lastLineEnds_ && crlf_ && !lines_.back().ends_with('\r')) {
        lines_.back() += '\r';
    }
    lastLineEnds_ = true;
    if (crlf_) {
        line += '\r';
    }
    lines_.push_back(std::move(line));
}

void LineList::insert(std::size_t index, std::string line)
{
    if (index == lines_.size()) {
        append(std::move(line));
        return;
    }
    if (crlf_) {
        line += '\r';
    }
    lines_.insert(lines_.begin() + std::ptrdiff_t(index), std::move(line));
}

void LineList::replace(std::size_t index, std::string line)
{
    if (lines_[index].ends_with('\r')) {
        line += '\r';
    }
    lines_[index] = std::move(line);
}

void LineList::remove(std::size_t index)
{
    lines_.erase(lines_.begin() + std::ptrdiff_t(index));
    lastLineEnds_ = lastLineEnds_ || lines_.empty() || index == lines_.size();
}

std::vector<std::uint8_t> LineList::bytes() const
{
    std::size_t size = kByteOrderMark.size();
    for (const std::string& line : lines_) {
        size += line.size() + 1;
    }
    std::vector<std::uint8_t> bytes;
    bytes.reserve(size);
    if (byteOrderMark_) {
        appendBytes(bytes, kByteOrderMark);
    }
    for (const std::string& line : lines_) {
        appendBytes(bytes, line);
        bytes.push_back('\n');
    }
    if (!lastLineEnds_) {
        bytes.pop_back();
    }
    return bytes;
}

} // namespace kestrav::data
