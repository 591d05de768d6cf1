#include "app/present/Document.h"
#include "app/present/TableWriters.h"
#include "core/FileText.h"

namespace kestrav::present
{

namespace
{

// Writes the blocks as text; an empty line parts one from the next.
class TextWriter
{
public:
    explicit TextWriter(std::wstring& text) : text_(&text)
    {}

    void operator()(const Heading& heading)
    {
        part();
        *text_ += heading.text + L"\n" + std::wstring(heading.text.size(), L'-') + L"\n";
        closed_ = false;
    }

    void operator()(const Paragraph& paragraph)
    {
        add(paragraph.text);
    }

    void operator()(const Table& table)
    {
        add(tableText(table));
    }

    void operator()(const DrawingRow& row)
    {
        for (const Drawing& drawing : row.drawings) {
            add(drawing.text);
        }
    }

    void operator()(const PageBreak& /*pageBreak*/)
    {
        *text_ += L'\f';
        closed_ = false;
    }

private:
    void add(const std::wstring& lines)
    {
        part();
        *text_ += lines;
        if (!lines.empty() && lines.back() != L'\n') {
            *text_ += L'\n';
        }
        closed_ = true;
    }

    void part()
    {
        if (closed_) {
            *text_ += L'\n';
        }
    }

    std::wstring* text_;
    bool closed_ = true; // whether what comes next is parted by an empty line
};

} // namespace

std::wstring documentText(const Document& document)
{
    std::wstring text = document.title + L"\n" + std::wstring(document.title.size(), L'=') + L"\n";
    for (const std::wstring& line : document.head) {
        text += line + L"\n";
    }
    TextWriter writer(text);
    for (const Block& block : document.blocks) {
        std::visit(writer, block);
    }
    return text;
}

std::string documentCsv(const Document& document)
{
    std::string text;
    for (const Block& block : document.blocks) {
        if (const auto* const table = std::get_if<Table>(&block)) {
            text += text.empty() ? "" : "\r\n";
            if (!table->title.empty()) {
                Table title;
                title.columns = {{table->title}};
                text += tableCsv(title);
            }
            text += tableCsv(*table);
        }
    }
    return text;
}

} // namespace kestrav::present
