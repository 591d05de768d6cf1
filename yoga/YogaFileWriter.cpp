#include "core/FileText.h"
#include "yoga/YogaFile.h"
#include "yoga/YogaFileFields.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace kestrav::yoga
{

namespace
{

struct FreeDocument
{
    void operator()(xmlDoc* document) const
    {
        xmlFreeDoc(document);
    }
};

struct FreeText
{
    void operator()(xmlChar* text) const
    {
        xmlFree(text);
    }
};

const xmlChar* xmlText(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

bool isBlankText(const xmlNode* node)
{
    return node->type == XML_TEXT_NODE && xmlIsBlankNode(node) != 0;
}

// The text without what XML 1.0 cannot hold.
std::string writable(const std::string& text)
{
    std::wstring wide = core::fromFileBytes(text);
    std::replace_if(
        wide.begin(), wide.end(),
        [](wchar_t letter) {
            const bool control =
                letter < L' ' && letter != L'\t' && letter != L'\n' && letter != L'\r';
            return control || letter == wchar_t(0xFFFE) || letter == wchar_t(0xFFFF);
        },
        L' ');
    return core::toUtf8(wide);
}

template <typename Record, std::size_t Count>
bool isField(const xmlNode* node, const std::array<FileField<Record>, Count>& fields)
{
    return std::any_of(fields.begin(), fields.end(),
                       [&](const auto& field) { return isElement(node, field.name); });
}

class Writer
{
public:
    explicit Writer(const YogaFile& file) : file_(file), document_(xmlNewDoc(xmlText("1.0")))
    {}

    core::Result<std::vector<std::uint8_t>> write()
    {
        build();
        xmlChar* memory = nullptr;
        int size = 0;
        if (document_ && !failed_) {
            xmlDocDumpFormatMemoryEnc(document_.get(), &memory, &size, "UTF-8", 1);
        }
        const std::unique_ptr<xmlChar, FreeText> text(memory);
        if (!text || size <= 0) {
            return core::Error{"cannot be turned into XML"};
        }
        return std::vector<std::uint8_t>(text.get(), text.get() + size);
    }

private:
    void build()
    {
        const xmlNode* const old = file_.origin.element;
        if (old == nullptr) {
            root_ = xmlNewDocNode(document_.get(), nullptr, xmlText(kRootName), nullptr);
            xmlDocSetRootElement(document_.get(), root_);
            setFields(root_, kCollectionFields, file_);
            addYogas();
            return;
        }
        auto* const top = reinterpret_cast<xmlNode*>(document_.get());
        copyAll(top, old->doc->children, old);
        // Attributes and name spaces only; the children follow one by one.
        root_ = add(top, xmlDocCopyNode(const_cast<xmlNode*>(old), document_.get(), 2));
        if (root_ == nullptr) {
            return;
        }
        const xmlNode* const head = endOfHead(old);
        copyAll(root_, old->children, head);
        const xmlNode* const firstYoga = childNamed(old, kYogaName);
        if (firstYoga == nullptr) {
            setFields(root_, kCollectionFields, file_);
            addYogas();
        } else {
            xmlNode* const lastOfHead = root_->last;
            addYogas();
            addCommentsOfRemoved(old);
            copyAll(root_, lastYogaOf(old)->next, nullptr);
            // After everything was copied, since a field may stand behind the yogas.
            setFields(root_, kCollectionFields, file_, lastOfHead);
        }
        copyAll(top, old->next, nullptr);
    }

    xmlNode* add(xmlNode* parent, xmlNode* node)
    {
        xmlNode* const added = node == nullptr ? nullptr : xmlAddChild(parent, node);
        failed_ = failed_ || added == nullptr;
        return added;
    }

    xmlNode* copy(xmlNode* parent, const xmlNode* node)
    {
        auto* const source = const_cast<xmlNode*>(node);
        if (node->type != XML_ELEMENT_NODE) {
            return add(parent, xmlDocCopyNode(source, document_.get(), 1));
        }
        // Name spaces are those of the new parent where it has them.
        xmlNode* element = nullptr;
        if (xmlDOMWrapCloneNode(nullptr, source->doc, source, &element, document_.get(), parent, 1,
                                0) != 0) {
            xmlFreeNode(element);
            element = nullptr;
        }
        return add(parent, element);
    }

    // Copies siblings up to `end` without the blank text between them, which is laid out anew.
    void copyAll(xmlNode* parent, const xmlNode* first, const xmlNode* end)
    {
        for (const xmlNode* node = first; node != end; node = node->next) {
            if (!isBlankText(node)) {
                copy(parent, node);
            }
        }
    }

    // The first node that belongs to the first yoga: comments behind the last element before it.
    static const xmlNode* endOfHead(const xmlNode* root)
    {
        const xmlNode* const yoga = childNamed(root, kYogaName);
        const xmlNode* end = yoga;
        while (end != nullptr && end->prev != nullptr && end->prev->type != XML_ELEMENT_NODE) {
            end = end->prev;
        }
        return end;
    }

    static const xmlNode* lastYogaOf(const xmlNode* root)
    {
        const xmlNode* node = root->last;
        while (!isElement(node, kYogaName)) {
            node = node->prev;
        }
        return node;
    }

    // Copies what stands between a yoga and the one before it, which goes with the yoga.
    void copyBefore(const xmlNode* yoga)
    {
        const bool ownFile = file_.origin.element == yoga->parent;
        const xmlNode* node = yoga;
        while (node->prev != nullptr && !isElement(node->prev, kYogaName)) {
            node = node->prev;
        }
        if (node->prev == nullptr) {
            node = endOfHead(yoga->parent);
        }
        for (; node != yoga; node = node->next) {
            // Fields of another collection stay there.
            if (ownFile || !isField(node, kCollectionFields)) {
                copyAll(root_, node, node->next);
            }
        }
    }

    void addYogas()
    {
        for (const Yoga& yoga : file_.yogas) {
            const xmlNode* const old = yoga.origin.element;
            // A copy of a yoga does not bring the comments once more.
            if (old != nullptr && written_.insert(old).second) {
                copyBefore(old);
            }
            xmlNode* const element = old != nullptr
                                         ? copy(root_, old)
                                         : add(root_, xmlNewDocNode(document_.get(), nullptr,
                                                                    xmlText(kYogaName), nullptr));
            if (element == nullptr) {
                return;
            }
            removeBlanks(element);
            setFields(element, kYogaFields, yoga);
        }
    }

    void addCommentsOfRemoved(const xmlNode* root)
    {
        for (const xmlNode* node = root->children; node != nullptr; node = node->next) {
            if (isElement(node, kYogaName) && written_.count(node) == 0) {
                copyBefore(node);
            }
        }
    }

    static void removeNodes(xmlNode* parent, bool (*wanted)(const xmlNode*))
    {
        for (xmlNode* node = parent->children; node != nullptr;) {
            xmlNode* const next = node->next;
            if (wanted(node)) {
                xmlUnlinkNode(node);
                xmlFreeNode(node);
            }
            node = next;
        }
    }

    static void removeBlanks(xmlNode* element)
    {
        removeNodes(element, isBlankText);
    }

    // Changes only the fields that have another value than the element, and those that are
    // attributes. New ones go behind the node `after`, or to the end.
    template <typename Record, std::size_t Count>
    void setFields(xmlNode* element, const std::array<FileField<Record>, Count>& fields,
                   const Record& record, xmlNode* after = nullptr)
    {
        for (const FileField<Record>& field : fields) {
            const std::string& value = record.*field.text;
            xmlNode* child = const_cast<xmlNode*>(childNamed(element, field.name));
            xmlAttr* const attribute = xmlHasNsProp(element, xmlText(field.name), nullptr);
            const bool inElement = child != nullptr && child->children != nullptr;
            if (fieldText(element, field.name) == value && (attribute == nullptr || inElement)) {
                continue;
            }
            if (attribute != nullptr) {
                xmlRemoveProp(attribute);
            }
            if (child == nullptr && value.empty()) {
                continue;
            }
            if (child == nullptr) {
                child = xmlNewDocNode(document_.get(), nullptr, xmlText(field.name), nullptr);
                if (after == nullptr) {
                    child = add(element, child);
                } else {
                    after = xmlAddNextSibling(after, child);
                }
            }
            setText(child, value);
        }
    }

    // Comments inside stay.
    void setText(xmlNode* element, const std::string& value)
    {
        removeNodes(element, [](const xmlNode* node) {
            return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE ||
                   node->type == XML_ELEMENT_NODE;
        });
        const std::string text = writable(value);
        if (!text.empty()) {
            add(element, xmlNewDocTextLen(document_.get(), xmlText(text.data()), int(text.size())));
        }
    }

    const YogaFile& file_;
    std::unique_ptr<xmlDoc, FreeDocument> document_;
    xmlNode* root_ = nullptr;
    std::unordered_set<const xmlNode*> written_;
    bool failed_ = false;
};

} // namespace

core::Result<std::vector<std::uint8_t>> formatYogaFile(const YogaFile& file)
{
    xmlInitParser();
    return Writer(file).write();
}

} // namespace kestrav::yoga
