#include "data/import/XmlDocument.h"

#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <limits>

namespace kestrav::data
{

namespace
{

struct FreeContext
{
    void operator()(xmlParserCtxt* context) const
    {
        xmlFreeParserCtxt(context);
    }
};

std::string_view textOf(const xmlChar* text)
{
    return text == nullptr ? std::string_view()
                           : std::string_view(reinterpret_cast<const char*>(text));
}

// Called at the beginning of a document type, before anything in it is read.
void refuseDocumentType(void* data, const xmlChar* /*name*/, const xmlChar* /*external*/,
                        const xmlChar* /*system*/)
{
    auto* const context = static_cast<xmlParserCtxt*>(data);
    *static_cast<bool*>(context->_private) = true;
    xmlStopParser(context);
}

// A document in single bytes that calls itself UTF-16 was converted by somebody who left its first
// line alone.
const char* encodingOf(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t kDeclaration = 200;
    const std::string_view head(reinterpret_cast<const char*>(bytes.data()),
                                std::min(bytes.size(), kDeclaration));
    const bool wrong = lowered(head).find("encoding=\"utf-16") != std::string::npos;
    return wrong ? "UTF-8" : nullptr;
}

} // namespace

std::string_view XmlElement::name() const
{
    return textOf(node_->name);
}

std::string XmlElement::text() const
{
    std::string text;
    for (const xmlNode* child = node_->children; child != nullptr; child = child->next) {
        if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
            text += textOf(child->content);
        }
    }
    return std::string(trimmed(text));
}

std::string XmlElement::attribute(std::string_view name) const
{
    for (const xmlAttr* item = node_->properties; item != nullptr; item = item->next) {
        if (textOf(item->name) == name && item->ns == nullptr && item->children != nullptr) {
            return std::string(trimmed(textOf(item->children->content)));
        }
    }
    return {};
}

std::optional<XmlElement> XmlElement::child(std::string_view name) const
{
    for (const xmlNode* child = node_->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE && textOf(child->name) == name) {
            return XmlElement(child);
        }
    }
    return std::nullopt;
}

std::vector<XmlElement> XmlElement::children() const
{
    std::vector<XmlElement> elements;
    for (const xmlNode* child = node_->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            elements.emplace_back(child);
        }
    }
    return elements;
}

std::string XmlElement::childText(std::string_view name) const
{
    const std::optional<XmlElement> element = child(name);
    return element ? element->text() : std::string();
}

long XmlElement::line() const
{
    return xmlGetLineNo(node_);
}

void XmlDocument::Free::operator()(_xmlDoc* document) const
{
    xmlFreeDoc(document);
}

core::Result<XmlDocument> XmlDocument::parse(std::span<const std::uint8_t> bytes)
{
    xmlInitParser();
    const std::unique_ptr<xmlParserCtxt, FreeContext> context(xmlNewParserCtxt());
    if (!context || bytes.size() > std::size_t(std::numeric_limits<int>::max())) {
        return core::Error{"is too large"};
    }
    bool documentType = false;
    context->_private = &documentType;
    context->sax->internalSubset = refuseDocumentType;
    xmlDoc* const document = xmlCtxtReadMemory(
        context.get(), reinterpret_cast<const char*>(bytes.data()), int(bytes.size()), nullptr,
        encodingOf(bytes), XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    XmlDocument result(document);
    if (documentType) {
        return core::Error{"has a document type, which is not accepted"};
    }
    if (document == nullptr || xmlDocGetRootElement(document) == nullptr) {
        const xmlError* const problem = xmlCtxtGetLastError(context.get());
        const std::string why = problem == nullptr || problem->message == nullptr
                                    ? std::string("unknown reason")
                                    : std::string(trimmed(problem->message));
        return core::Error{
            "is not well-formed XML: " + shown(why), {}, problem == nullptr ? 0 : problem->line};
    }
    return result;
}

XmlElement XmlDocument::root() const
{
    return XmlElement(xmlDocGetRootElement(document_.get()));
}

} // namespace kestrav::data
