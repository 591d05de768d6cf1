#include "app/present/Document.h"
#include "app/present/TableWriters.h"
#include "data/export/ExportText.h"

namespace kestrav::present
{

namespace
{

using data::jsonText;

struct JsonWriter
{
    std::string operator()(const Heading& heading) const
    {
        return R"({"kind":"heading","text":)" + jsonText(heading.text) + "}";
    }

    std::string operator()(const Paragraph& paragraph) const
    {
        return R"({"kind":"text","text":)" + jsonText(paragraph.text) + "}";
    }

    std::string operator()(const Table& table) const
    {
        return R"({"kind":"table","table":)" + tableJson(table) + "}";
    }

    std::string operator()(const DrawingRow& row) const
    {
        std::string list;
        for (const Drawing& drawing : row.drawings) {
            list += (list.empty() ? "{\"title\":" : ",{\"title\":") + jsonText(drawing.list.title) +
                    ",\"description\":" + jsonText(drawing.list.description) + "}";
        }
        return R"({"kind":"diagrams","diagrams":[)" + list + "]}";
    }

    std::string operator()(const PageBreak& /*pageBreak*/) const
    {
        return R"({"kind":"page-break"})";
    }
};

} // namespace

std::string documentJson(const Document& document)
{
    std::string head;
    for (const std::wstring& line : document.head) {
        head += (head.empty() ? "" : ",") + jsonText(line);
    }
    std::string blocks;
    for (const Block& block : document.blocks) {
        blocks += (blocks.empty() ? "" : ",") + std::visit(JsonWriter(), block);
    }
    return "{\"title\":" + jsonText(document.title) + ",\"head\":[" + head + "],\"blocks\":[" +
           blocks + "]}";
}

} // namespace kestrav::present
