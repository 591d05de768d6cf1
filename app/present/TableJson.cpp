#include "app/present/TableWriters.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/export/ExportText.h"

#include <array>
#include <string_view>

namespace kestrav::present
{

namespace
{

using data::jsonText;

std::string_view alignName(Align align)
{
    constexpr std::array<std::string_view, 3> kNames = {"left", "right", "wrapped"};
    return kNames.at(std::size_t(align));
}

std::string_view subjectName(Subject subject)
{
    constexpr std::array<std::string_view, 7> kNames = {"none",  "point",     "sign",  "house",
                                                        "varga", "nakshatra", "moment"};
    return kNames.at(std::size_t(subject));
}

std::string linkJson(const Link& link)
{
    if (link.subject == Subject::None) {
        return "null";
    }
    const bool moment = link.subject == Subject::Moment;
    return "{\"subject\":\"" + std::string(subjectName(link.subject)) +
           "\",\"index\":" + (moment ? "null" : std::to_string(link.index)) +
           ",\"varga\":" + (moment ? "null" : std::to_string(link.varga)) +
           ",\"moment\":" + (moment ? core::shortestNumber(link.moment) : "null") + "}";
}

std::string cellJson(const Cell& cell)
{
    return "{\"text\":" + jsonText(cell.text) +
           ",\"sortKey\":" + (cell.sortKey ? core::shortestNumber(*cell.sortKey) : "null") +
           ",\"about\":" + linkJson(cell.link) + "}";
}

// The items as a JSON array.
template <typename Items, typename Write>
std::string arrayJson(const Items& items, const Write& write)
{
    std::string text = "[";
    for (const auto& item : items) {
        text += (text.size() > 1 ? "," : "") + write(item);
    }
    return text + "]";
}

} // namespace

std::string tableJson(const Table& table)
{
    const auto column = [](const Column& item) {
        return "{\"heading\":" + jsonText(item.heading) + ",\"align\":\"" +
               std::string(alignName(item.align)) + "\"}";
    };
    const auto row = [](const Row& item) {
        return arrayJson(item, cellJson);
    };
    return "{\"id\":" + jsonText(core::fromFileBytes(table.id)) +
           ",\"title\":" + (table.title.empty() ? "null" : jsonText(table.title)) +
           ",\"columns\":" + arrayJson(table.columns, column) +
           ",\"rows\":" + arrayJson(table.rows, row) +
           ",\"notes\":" + arrayJson(table.notes, jsonText) + "}";
}

} // namespace kestrav::present
