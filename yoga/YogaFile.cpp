#include "yoga/YogaFile.h"

#include "yoga/YogaFileFields.h"

#include <libxml/tree.h>

#include <algorithm>
#include <string_view>

namespace kestrav::yoga
{

namespace
{

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// All text inside, that of elements the program does not know included. The depth of a document is
// bounded by its reader.
void appendText(const xmlNode* first, std::string& text)
{
    for (const xmlNode* node = first; node != nullptr; node = node->next) {
        if (node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE) {
            text += reinterpret_cast<const char*>(node->content);
        } else if (node->type == XML_ELEMENT_NODE) {
            appendText(node->children, text);
        }
    }
}

std::string textOf(const xmlNode* first)
{
    std::string text;
    appendText(first, text);
    return std::string(trimmed(text));
}

// Two-byte encodings begin with a mark that UTF-8 cannot hold.
bool beginsLikeXml(std::span<const std::uint8_t> bytes)
{
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        return true;
    }
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    return trimmed(text).starts_with('<');
}

template <typename Record, std::size_t Count>
void readFields(const xmlNode* element, const std::array<FileField<Record>, Count>& fields,
                Record& record)
{
    for (const FileField<Record>& field : fields) {
        record.*field.text = fieldText(element, field.name);
    }
}

core::Error withPath(core::Error error, const std::filesystem::path& path)
{
    error.file = path.string();
    return error;
}

} // namespace

bool isElement(const xmlNode* node, const char* name)
{
    return node->type == XML_ELEMENT_NODE &&
           std::string_view(reinterpret_cast<const char*>(node->name)) == name;
}

const xmlNode* childNamed(const xmlNode* element, const char* name)
{
    const xmlNode* child = element->children;
    while (child != nullptr && !isElement(child, name)) {
        child = child->next;
    }
    return child;
}

std::string fieldText(const xmlNode* element, const char* name)
{
    const xmlNode* const child = childNamed(element, name);
    std::string text = child == nullptr ? std::string() : textOf(child->children);
    return text.empty() ? data::XmlElement(element).attribute(name) : text;
}

core::Result<YogaFile> parseYogaFile(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() > kLargestYogaFile) {
        return core::Error{"is larger than a yoga file can be"};
    }
    if (!beginsLikeXml(bytes)) {
        return core::Error{"is no yoga file: it is not in XML, and seems to belong to another "
                           "program that uses the extension .ksy"};
    }
    core::Result<data::XmlDocument> parsed = data::XmlDocument::parse(bytes);
    if (!parsed) {
        return parsed.error();
    }
    YogaFile file;
    file.origin.document = std::make_shared<const data::XmlDocument>(std::move(parsed.value()));
    const data::XmlElement root = file.origin.document->root();
    if (root.name() != kRootName) {
        return core::Error{"is no yoga file: its root element is not ksy", {}, root.line()};
    }
    file.origin.element = root.handle();
    readFields(root.handle(), kCollectionFields, file);
    for (const xmlNode* node = root.handle()->children; node != nullptr; node = node->next) {
        if (!isElement(node, kYogaName)) {
            continue;
        }
        if (file.yogas.size() == kMostYogas) {
            return core::Error{"has more than " + std::to_string(kMostYogas) + " yogas",
                               {},
                               data::XmlElement(node).line()};
        }
        Yoga& yoga = file.yogas.emplace_back();
        readFields(node, kYogaFields, yoga);
        yoga.origin = {file.origin.document, node};
    }
    return file;
}

core::Result<YogaFile> readYogaFile(const std::filesystem::path& path)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestYogaFile);
    if (!bytes) {
        return bytes.error();
    }
    core::Result<YogaFile> file = parseYogaFile(bytes.value());
    return file ? std::move(file) : core::Result<YogaFile>(withPath(file.error(), path));
}

core::Result<void> writeYogaFile(const std::filesystem::path& path, const YogaFile& file,
                                 const std::function<void(core::WriteStep)>& afterStep)
{
    const core::Result<std::vector<std::uint8_t>> bytes = formatYogaFile(file);
    if (!bytes) {
        return withPath(bytes.error(), path);
    }
    if (const core::Result<YogaFile> again = parseYogaFile(bytes.value()); !again) {
        core::Error error = withPath(again.error(), path);
        error.message = "is not written, because what would be written " + error.message;
        error.line = 0;
        return error;
    }
    return core::writeFileSafely(path, bytes.value(), afterStep);
}

} // namespace kestrav::yoga
