#include "data/ChartDatabase.h"

#include "core/FileText.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/FieldReader.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace kestrav::data
{

namespace
{

constexpr std::uintmax_t kLargestFile = std::uintmax_t{1} << 32;

} // namespace

core::Result<void> ChartDatabase::load(const std::filesystem::path& path)
{
    const FileStamp stamp = stampOf(path);
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    core::Result<LineList> lines = LineList::fromBytes(bytes.value());
    if (!lines) {
        return core::Error{lines.error().message, path.string()};
    }
    path_ = path;
    lines_ = std::move(lines.value());
    stamp_ = stamp;
    modified_ = false;
    return {};
}

void ChartDatabase::begin(const std::filesystem::path& path)
{
    path_ = path;
    lines_ = LineList();
    stamp_ = stampOf(path);
    modified_ = true;
}

core::Result<void> ChartDatabase::save(const std::filesystem::path& path,
                                       const std::function<void(core::WriteStep)>& afterStep)
{
    const std::vector<std::uint8_t> bytes = lines_.bytes();
    core::Result<void> written = core::writeFileSafely(path, bytes, afterStep);
    if (written) {
        setSaved(path, stampOf(path), false);
    }
    return written;
}

void ChartDatabase::setSaved(const std::filesystem::path& path, const FileStamp& stamp,
                             bool modified)
{
    path_ = path;
    stamp_ = stamp;
    modified_ = modified;
}

bool ChartDatabase::changedOnDisk() const
{
    return !(stampOf(path_) == stamp_);
}

core::Chart& ChartDatabase::read(std::size_t index, core::Chart& chart, bool namesOnly)
{
    return ParseChartLine(line(index), chart, order_, namesOnly);
}

std::optional<std::size_t> ChartDatabase::find(std::wstring_view name) const
{
    for (std::size_t i = 0; i < size(); ++i) {
        if (!isShortLine(line(i)) && nameOfLine(line(i)) == name) {
            return i;
        }
    }
    return std::nullopt;
}

std::size_t ChartDatabase::add(const core::Chart& chart)
{
    return addLine(FormatChartLine(chart, order_));
}

std::size_t ChartDatabase::addLine(std::string line)
{
    lines_.append(std::move(line));
    modified_ = true;
    return size() - 1;
}

void ChartDatabase::insertLine(std::size_t index, std::string line)
{
    lines_.insert(index, std::move(line));
    modified_ = true;
}

void ChartDatabase::replace(std::size_t index, const core::Chart& chart)
{
    replaceLine(index, FormatChartLine(chart, order_));
}

void ChartDatabase::replaceLine(std::size_t index, std::string line)
{
    lines_.replace(index, std::move(line));
    modified_ = true;
}

void ChartDatabase::remove(std::size_t index)
{
    lines_.remove(index);
    modified_ = true;
}

void ChartDatabase::setTag(std::size_t index, wchar_t tag)
{
    const std::string_view text = line(index);
    const std::size_t tab = text.find('\t');
    if (tab != std::string_view::npos) {
        const std::string first = core::toUtf8(cleanText(std::wstring(1, tag), 1));
        replaceLine(index, first + std::string(text.substr(tab)));
    }
}

bool isShortLine(std::string_view line)
{
    // Fewer bytes mean fewer characters, and four times as many bytes enough characters.
    if (line.size() < kShortestLine || line.size() >= 4 * kShortestLine) {
        return line.size() < kShortestLine;
    }
    return core::fromFileBytes(line).size() < kShortestLine;
}

std::wstring nameOfLine(std::string_view line)
{
    FieldReader fields(line);
    fields.unquoted(1);
    fields.skipText(1);
    std::wstring name = fields.wideText(kNameLength);
    return hasLetterOrDigit(name) ? name : std::wstring(kNoNameText);
}

wchar_t tagOfLine(std::string_view line)
{
    FieldReader fields(line);
    const std::wstring tag = wideField(fields.unquoted(1));
    return tag.empty() ? L' ' : tag.front();
}

} // namespace kestrav::data
