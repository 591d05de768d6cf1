#include "app/present/Document.h"
#include "app/present/Markup.h"
#include "app/present/SvgWriter.h"
#include "app/present/TableWriters.h"

#include <string>
#include <string_view>

namespace kestrav::present
{

namespace
{

constexpr std::string_view kStyle = R"(
body { font-family: "DejaVu Sans", sans-serif; font-size: 10pt; margin: 2em; color: #111; background: #fff; }
h1 { font-size: 16pt; margin-bottom: 0.2em; }
h2 { font-size: 13pt; margin: 1.6em 0 0.4em; break-after: avoid; }
p { margin: 0.3em 0; }
p.note { font-size: 9pt; }
pre { font-family: "DejaVu Sans Mono", monospace; font-size: 8pt; }
table { border-collapse: collapse; margin: 0.8em 0; font-size: 9pt; }
caption { text-align: left; font-weight: bold; padding-bottom: 0.3em; white-space: nowrap; }
th, td { text-align: left; padding: 0.15em 0.8em 0.15em 0; border-bottom: 1px solid #bbb; vertical-align: top; }
.number { text-align: right; }
.diagrams { display: flex; flex-wrap: wrap; gap: 1.5em; break-inside: avoid; }
.diagrams svg { width: 21em; height: auto; }
.page { break-before: page; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
)";

class HtmlWriter
{
public:
    explicit HtmlWriter(std::string& html) : html_(&html)
    {}

    void operator()(const Heading& heading)
    {
        *html_ += "<h2>" + xmlText(heading.text) + "</h2>\n";
    }

    void operator()(const Paragraph& paragraph)
    {
        if (paragraph.fixedPitch) {
            addFixedPitch(paragraph.text);
        } else {
            addParagraphs(paragraph.text);
        }
    }

    void operator()(const Table& table)
    {
        *html_ += tableHtml(table);
    }

    void operator()(const DrawingRow& row)
    {
        *html_ += "<div class=\"diagrams\">\n";
        for (const Drawing& drawing : row.drawings) {
            const std::string prefix = "d" + std::to_string(++drawings_) + "-";
            SvgOptions options;
            options.idPrefix = prefix;
            const std::string svg = writeSvg(drawing.list, options);
            const bool titled = row.drawings.size() > 1;
            if (titled) {
                *html_ += "<div><p>" + xmlText(drawing.list.title) + "</p>\n";
            }
            // What stands before the element is for files of their own.
            *html_ += svg.substr(svg.find("<svg"));
            *html_ += titled ? "</div>\n" : "";
        }
        *html_ += "</div>\n";
    }

    void operator()(const PageBreak& /*pageBreak*/)
    {
        *html_ += "<div class=\"page\"></div>\n";
    }

private:
    void addParagraphs(std::wstring_view text)
    {
        while (!text.empty()) {
            const std::size_t end = std::min(text.find(L'\n'), text.size());
            if (end > 0) {
                *html_ += "<p>" + xmlText(text.substr(0, end)) + "</p>\n";
            }
            text.remove_prefix(std::min(end + 1, text.size()));
        }
    }

    void addFixedPitch(std::wstring_view text)
    {
        *html_ += "<pre>";
        while (!text.empty()) {
            const std::size_t end = std::min(text.find(L'\n'), text.size());
            *html_ += xmlText(text.substr(0, end)) + "\n";
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        *html_ += "</pre>\n";
    }

    std::string* html_;
    int drawings_ = 0;
};

} // namespace

std::string documentHtml(const Document& document)
{
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<title>" +
                       xmlText(document.title) + "</title>\n<style>" + std::string(kStyle) +
                       "</style>\n</head>\n<body>\n<h1>" + xmlText(document.title) + "</h1>\n";
    for (const std::wstring& line : document.head) {
        html += "<p>" + xmlText(line) + "</p>\n";
    }
    HtmlWriter writer(html);
    for (const Block& block : document.blocks) {
        std::visit(writer, block);
    }
    return html + "</body>\n</html>\n";
}

} // namespace kestrav::present
