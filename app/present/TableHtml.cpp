#include "app/present/Markup.h"
#include "app/present/TableWriters.h"

namespace kestrav::present
{

namespace
{

std::string element(const char* name, const Column& column, const std::wstring& text,
                    const char* scope)
{
    std::string tag = std::string("<") + name + scope;
    if (column.align == Align::Right) {
        tag += " class=\"number\"";
    }
    return tag + ">" + xmlText(text) + "</" + name + ">";
}

std::string gridHtml(const Table& table)
{
    std::string html = "<table>\n";
    if (!table.title.empty()) {
        html += "<caption>" + xmlText(table.title) + "</caption>\n";
    }
    const bool labels = table.withoutHeadings();
    if (!labels) {
        html += "<thead>\n<tr>";
        for (const Column& column : table.columns) {
            html += element("th", column, column.heading, " scope=\"col\"");
        }
        html += "</tr>\n</thead>\n";
    }
    html += "<tbody>\n";
    for (const Row& row : table.rows) {
        html += "<tr>";
        for (std::size_t i = 0; i < row.size(); ++i) {
            const bool label = labels && i == 0;
            html += element(label ? "th" : "td", table.columns[i], row[i].text,
                            label ? " scope=\"row\"" : "");
        }
        html += "</tr>\n";
    }
    html += "</tbody>\n</table>\n";
    return html;
}

} // namespace

std::string tableHtml(const Table& table)
{
    std::string html;
    if (table.explainsItsEmptiness()) {
        html = table.title.empty() ? "" : "<p><b>" + xmlText(table.title) + "</b></p>\n";
    } else {
        html = gridHtml(table);
    }
    for (const std::wstring& note : table.notes) {
        html += "<p class=\"note\">" + xmlText(note) + "</p>\n";
    }
    return html;
}

} // namespace kestrav::present
