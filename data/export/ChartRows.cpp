#include "data/export/ChartRows.h"

#include "core/NumberText.h"
#include "data/ContactText.h"
#include "data/DecimalText.h"
#include "data/export/ExportText.h"

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace kestrav::data
{

namespace
{

constexpr std::string_view kLineEnd = "\r\n";

// clang-format off
constexpr std::array<std::string_view, kContactFieldCount> kContactNames = {
    "name", "street", "city", "state", "postcode", "country",
    "telephone1", "telephone2", "fax", "email", "sortCode"};
// clang-format on

std::string dateText(const core::PlainDate& date)
{
    if (date == core::PlainDate{}) {
        return {};
    }
    const auto two = [](int number) {
        return (number >= 0 && number < 10 ? "0" : "") + std::to_string(number);
    };
    return std::to_string(date.year) + "-" + two(date.month) + "-" + two(date.day);
}

core::PlainDate birthDate(const core::Chart& chart)
{
    return {chart.time.year, chart.time.month, chart.time.day};
}

std::wstring eventsText(const core::Identity& identity)
{
    std::wstring text;
    for (const core::LifeEvent& event : identity.events) {
        if (event.name.empty()) {
            continue;
        }
        const std::string when = dateText(event.date) + " " + fixedDecimals(event.hours, 2);
        text += (text.empty() ? L"" : L"; ") + event.name + L" " +
                std::wstring(when.begin(), when.end());
    }
    return text;
}

std::string numberText(double value)
{
    return std::isfinite(value) ? core::shortestNumber(value) : std::string("0");
}

// Writes the members of one JSON object.
class JsonObject
{
public:
    void text(std::string_view name, std::wstring_view value)
    {
        raw(name, jsonText(value));
    }
    void number(std::string_view name, double value)
    {
        raw(name, std::isfinite(value) ? core::shortestNumber(value) : std::string("null"));
    }
    void raw(std::string_view name, const std::string& json)
    {
        members_ += members_.empty() ? "" : ", ";
        members_ += "\"" + std::string(name) + "\": " + json;
    }
    void date(std::string_view name, const core::PlainDate& value)
    {
        JsonObject parts;
        parts.number("year", value.year);
        parts.number("month", value.month);
        parts.number("day", value.day);
        raw(name, parts.done());
    }
    [[nodiscard]] std::string done() const
    {
        return "{" + members_ + "}";
    }

private:
    std::string members_;
};

std::string contactJson(const core::Contact& contact)
{
    JsonObject object;
    for (std::size_t i = 0; i < kContactNames.size(); ++i) {
        object.text(kContactNames[i], contact.*contactFields()[i].text);
    }
    return object.done();
}

std::string eventsJson(const core::Identity& identity)
{
    std::string list;
    for (std::size_t slot = 0; slot < identity.events.size(); ++slot) {
        const core::LifeEvent& event = identity.events[slot];
        if (event.name.empty()) {
            continue;
        }
        JsonObject object;
        object.number("slot", double(slot));
        object.text("name", event.name);
        object.date("date", event.date);
        object.number("hours", event.hours);
        list += (list.empty() ? "" : ", ") + object.done();
    }
    return "[" + list + "]";
}

} // namespace

std::string csvHead()
{
    std::string head = "tag,label,name,sex,code,date,time,place,country,zone,daylightSaving,"
                       "longitude,latitude,sound,occupation,status,freeText,secondDate,thirdDate,"
                       "number1,number2,notes,events";
    for (const std::string_view name : kContactNames) {
        head += ",contact." + std::string(name);
    }
    return head + std::string(kLineEnd);
}

std::string csvRow(const core::Chart& chart)
{
    const core::Identity& identity = chart.identity;
    const std::wstring tag = identity.tag == L' ' ? std::wstring() : std::wstring(1, identity.tag);
    std::string row = csvCell(tag);
    const auto cell = [&](const std::string& text) {
        row += "," + text;
    };
    cell(csvCell(identity.label));
    cell(csvCell(chart.name));
    cell(csvCell(identity.sex));
    cell(csvCell(identity.code));
    cell(dateText(birthDate(chart)));
    cell(numberText(chart.time.localTime));
    cell(csvCell(chart.place));
    cell(csvCell(identity.country));
    cell(numberText(chart.zone));
    cell(std::to_string(chart.daylightSaving));
    cell(numberText(chart.geoLongitude));
    cell(numberText(chart.geoLatitude));
    cell(csvCell(identity.sound));
    cell(csvCell(identity.occupation));
    cell(csvCell(identity.status));
    cell(csvCell(identity.freeText));
    cell(dateText(identity.secondDate));
    cell(dateText(identity.thirdDate));
    cell(std::to_string(identity.numbers[0]));
    cell(std::to_string(identity.numbers[1]));
    cell(csvCell(identity.notes));
    cell(csvCell(eventsText(identity)));
    for (const ContactField& field : contactFields()) {
        cell(csvCell(identity.contact.*field.text));
    }
    return row + std::string(kLineEnd);
}

std::string jsonObject(const core::Chart& chart)
{
    const core::Identity& identity = chart.identity;
    JsonObject object;
    object.text("tag", std::wstring(1, identity.tag));
    object.text("label", identity.label);
    object.text("name", chart.name);
    object.text("sex", identity.sex);
    object.text("code", identity.code);
    object.number("year", chart.time.year);
    object.number("month", chart.time.month);
    object.number("day", chart.time.day);
    object.number("localTime", chart.time.localTime);
    object.text("timeText", chart.timeText);
    object.text("place", chart.place);
    object.text("country", identity.country);
    object.number("zone", chart.zone);
    object.text("zoneText", chart.zoneText);
    object.number("daylightSaving", chart.daylightSaving);
    object.number("longitude", chart.geoLongitude);
    object.text("longitudeText", identity.longitudeText);
    object.number("latitude", chart.geoLatitude);
    object.text("latitudeText", identity.latitudeText);
    object.text("sound", identity.sound);
    object.number("soundGroup", identity.soundGroup);
    object.text("occupation", identity.occupation);
    object.text("status", identity.status);
    object.text("freeText", identity.freeText);
    object.date("secondDate", identity.secondDate);
    object.date("thirdDate", identity.thirdDate);
    object.raw("numbers", "[" + std::to_string(identity.numbers[0]) + ", " +
                              std::to_string(identity.numbers[1]) + "]");
    object.text("notes", identity.notes);
    object.raw("contact", contactJson(identity.contact));
    object.raw("events", eventsJson(identity));
    return object.done();
}

std::string contactHead()
{
    return "Name\tStreet\tCity\tState\tZip/PC\tCountry\tTel1\tTel2\tFax\tEmail\tSortCode" +
           std::string(kLineEnd);
}

std::string contactRow(const core::Chart& chart)
{
    core::Contact contact = chart.identity.contact;
    if (contact == core::Contact{}) {
        return {};
    }
    if (contact.name.empty()) {
        contact.name = chart.name;
    }
    std::string row = plainCell(contact.name);
    for (std::size_t i = 1; i < kContactFieldCount; ++i) {
        row += "\t" + plainCell(contact.*contactFields()[i].text);
    }
    return row + std::string(kLineEnd);
}

} // namespace kestrav::data
