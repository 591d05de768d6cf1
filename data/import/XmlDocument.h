// A small, safe view of an XML document.
#pragma once

#include "core/Result.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The names are those of libxml2.
struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier)
struct _xmlNode; // NOLINT(bugprone-reserved-identifier)

namespace kestrav::data
{

/// One element. It must not outlive its document. Texts are UTF-8.
class XmlElement
{
public:
    explicit XmlElement(const _xmlNode* node) : node_(node)
    {}

    [[nodiscard]] std::string_view name() const;
    /// The text directly inside, without blanks at both ends.
    [[nodiscard]] std::string text() const;
    /// An attribute without a namespace; empty when there is none.
    [[nodiscard]] std::string attribute(std::string_view name) const;
    /// The first child element of that name.
    [[nodiscard]] std::optional<XmlElement> child(std::string_view name) const;
    [[nodiscard]] std::vector<XmlElement> children() const;
    /// The text of the first child of that name; empty when there is none.
    [[nodiscard]] std::string childText(std::string_view name) const;
    [[nodiscard]] long line() const;
    /// For what this view does not show.
    [[nodiscard]] const _xmlNode* handle() const
    {
        return node_;
    }

private:
    const _xmlNode* node_;
};

class XmlDocument
{
public:
    /// Parses without network, entities, external files and document type.
    [[nodiscard]] static core::Result<XmlDocument> parse(std::span<const std::uint8_t> bytes);

    [[nodiscard]] XmlElement root() const;

private:
    struct Free
    {
        void operator()(_xmlDoc* document) const;
    };

    explicit XmlDocument(_xmlDoc* document) : document_(document)
    {}

    std::unique_ptr<_xmlDoc, Free> document_;
};

} // namespace kestrav::data
