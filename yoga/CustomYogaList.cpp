#include "yoga/CustomYogaList.h"

#include "core/FileText.h"
#include "core/Files.h"
#include "data/LineList.h"
#include "yoga/YogaFile.h"

#include <algorithm>
#include <string_view>

namespace kestrav::yoga
{

namespace
{

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The mark at the beginning of a text is none of it, and would be lost in the first line.
std::string_view withoutMark(std::string_view text)
{
    while (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    return text;
}

void appendClean(std::string& text, std::string_view part)
{
    for (const char byte : part) {
        text += static_cast<unsigned char>(byte) < 0x20 ? ' ' : byte;
    }
}

} // namespace

core::Result<std::vector<CustomYoga>> parseCustomYogas(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() > kLargestYogaFile) {
        return core::Error{"is larger than a list of yogas can be"};
    }
    const core::Result<data::LineList> lines = data::LineList::fromBytes(bytes);
    if (!lines) {
        return lines.error();
    }
    std::vector<CustomYoga> yogas;
    for (std::size_t i = 0; i < lines.value().size(); ++i) {
        const std::string text = core::toUtf8(core::fromFileBytes(lines.value().line(i)));
        const std::string line(withoutMark(text));
        if (line.empty()) {
            continue;
        }
        if (yogas.size() == kMostYogas) {
            return core::Error{
                "has more than " + std::to_string(kMostYogas) + " yogas", {}, long(i) + 1};
        }
        const std::size_t tab = line.find('\t');
        yogas.push_back(
            {line.substr(0, tab), tab == std::string::npos ? std::string() : line.substr(tab + 1)});
    }
    return yogas;
}

core::Result<std::vector<CustomYoga>> readCustomYogas(const std::filesystem::path& path)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestYogaFile);
    if (!bytes) {
        return bytes.error();
    }
    core::Result<std::vector<CustomYoga>> yogas = parseCustomYogas(bytes.value());
    if (!yogas) {
        core::Error error = yogas.error();
        error.file = path.string();
        return error;
    }
    return yogas;
}

std::string formatCustomYogas(std::span<const CustomYoga> yogas)
{
    std::string text;
    for (const CustomYoga& yoga : yogas) {
        appendClean(text, withoutMark(yoga.title));
        text += '\t';
        appendClean(text, yoga.rule);
        text += '\n';
    }
    return text;
}

core::Result<void> writeCustomYogas(const std::filesystem::path& path,
                                    std::span<const CustomYoga> yogas)
{
    const std::string text = formatCustomYogas(yogas);
    return core::writeFileSafely(path,
                                 {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

} // namespace kestrav::yoga
