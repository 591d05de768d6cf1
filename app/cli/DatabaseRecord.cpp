#include "app/cli/DatabaseRecord.h"

#include "app/cli/BirthData.h"
#include "app/cli/ChartSource.h"
#include "app/present/BirthRecord.h"
#include "app/present/TextTable.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/ContactText.h"
#include "data/PhoneticSound.h"
#include "data/export/ChartRows.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

struct TextField
{
    std::string_view option;
    std::wstring core::Identity::*text;
    std::size_t most;
};

constexpr std::array<TextField, 8> kTextFields = {{
    {"--label", &core::Identity::label, data::kLabelLength},
    {"--sex", &core::Identity::sex, data::kSexLength},
    {"--code", &core::Identity::code, data::kCodeLength},
    {"--country", &core::Identity::country, data::kCountryLength},
    {"--sound", &core::Identity::sound, data::kSoundLength},
    {"--occupation", &core::Identity::occupation, data::kOccupationLength},
    {"--status", &core::Identity::status, data::kStatusLength},
    {"--free-text", &core::Identity::freeText, data::kFreeTextLength},
}};

// In the order of data::contactFields.
constexpr std::array<std::string_view, data::kContactFieldCount> kContactNames = {
    "name",       "street",     "city", "state", "postcode", "country",
    "telephone1", "telephone2", "fax",  "email", "sortCode"};

Result<void> tooLong(std::string_view what, std::size_t most)
{
    return Error{std::string(what) + " is longer than " + std::to_string(most) +
                 (most == 1 ? " character" : " characters")};
}

Result<void> applyTexts(const Arguments& arguments, core::Identity& identity)
{
    for (const TextField& field : kTextFields) {
        if (!arguments.has(field.option)) {
            continue;
        }
        const Result<std::wstring> text = readLabel(arguments, std::string(field.option));
        if (!text) {
            return text.error();
        }
        if (text.value().size() > field.most) {
            return tooLong(field.option, field.most);
        }
        identity.*field.text = text.value();
    }
    if (!identity.sex.empty() && arguments.has("--sex") && identity.sex != L"M" &&
        identity.sex != L"F") {
        return Error{"--sex '" + core::toUtf8(identity.sex) + "' is neither M nor F"};
    }
    identity.soundGroup = data::soundGroup(identity.sound);
    return {};
}

Result<void> applyTag(const Arguments& arguments, core::Identity& identity)
{
    if (!arguments.has("--tag")) {
        return {};
    }
    const Result<std::wstring> text = readLabel(arguments, "--tag");
    if (!text) {
        return text.error();
    }
    if (text.value().size() > 1) {
        return tooLong("--tag", 1);
    }
    identity.tag = text.value().empty() ? L' ' : text.value().front();
    return {};
}

Result<void> applyDate(const Arguments& arguments, std::string_view option, core::PlainDate& date)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return {};
    }
    date = {};
    if (text->empty()) {
        return {};
    }
    const Result<core::CivilDate> read = core::parseDate(*text);
    if (!read) {
        return read.error();
    }
    date = {read.value().year, read.value().month, read.value().day};
    return {};
}

Result<void> applyNumbers(const Arguments& arguments, core::Identity& identity)
{
    const std::optional<std::string> text = arguments.value("--numbers");
    if (!text) {
        return {};
    }
    const std::size_t comma = std::min(text->find(','), text->size());
    const std::optional<int> first = core::parseInteger(text->substr(0, comma));
    const std::optional<int> second =
        core::parseInteger(text->substr(std::min(comma + 1, text->size())));
    if (!first || !second) {
        return Error{"--numbers '" + *text + "' are not two whole numbers with a comma between"};
    }
    identity.numbers = {*first, *second};
    return {};
}

Result<void> applyNotes(const Arguments& arguments, core::Identity& identity)
{
    const std::optional<std::string> text = arguments.value("--notes");
    if (!text) {
        return {};
    }
    const std::wstring notes = core::fromFileBytes(*text);
    if (const std::optional<std::wstring> problem = data::notesProblem(notes)) {
        return Error{core::toUtf8(*problem)};
    }
    identity.notes = data::cleanNotes(notes);
    return notes.size() > data::kNotesLength ? tooLong("--notes", data::kNotesLength)
                                             : Result<void>();
}

Result<void> applyContact(const std::string& typed, core::Contact& contact)
{
    const std::size_t sign = std::min(typed.find('='), typed.size());
    const auto* const name =
        std::find(kContactNames.begin(), kContactNames.end(), typed.substr(0, sign));
    if (sign == typed.size() || name == kContactNames.end()) {
        return Error{"--contact '" + typed + "' is not understood; write FIELD=TEXT"};
    }
    const data::ContactField& field =
        data::contactFields()[std::size_t(name - kContactNames.begin())];
    std::wstring text = core::fromFileBytes(typed.substr(sign + 1));
    if (text.size() > field.most) {
        return tooLong("--contact " + std::string(*name), field.most);
    }
    contact.*field.text = std::move(text);
    return {};
}

Result<void> applyEvent(const std::string& typed, core::Identity& identity)
{
    const std::size_t sign = std::min(typed.find('='), typed.size());
    const std::size_t clock = std::min(typed.find('T'), sign);
    const std::wstring name = core::fromFileBytes(typed.substr(std::min(sign + 1, typed.size())));
    if (name.empty()) {
        return Error{"--event '" + typed + "' is not understood; write DATE[THH:MM]=NAME"};
    }
    if (name.size() > data::kEventNameLength) {
        return tooLong("--event '" + typed + "'", data::kEventNameLength);
    }
    const Result<core::CivilDate> date = core::parseDate(typed.substr(0, clock));
    if (!date) {
        return date.error();
    }
    core::LifeEvent event{name, {date.value().year, date.value().month, date.value().day}, 0.0};
    if (clock < sign) {
        const Result<double> hours = core::parseClock(typed.substr(clock + 1, sign - clock - 1));
        if (!hours) {
            return hours.error();
        }
        event.hours = hours.value();
    }
    auto* const slot = std::find_if(identity.events.begin(), identity.events.end(),
                                    [](const auto& each) { return each.name.empty(); });
    if (slot == identity.events.end()) {
        return Error{"--event '" + typed + "': there are " + std::to_string(core::kLifeEvents) +
                     " events already"};
    }
    *slot = std::move(event);
    return {};
}

std::wstring plainDateText(const core::PlainDate& date)
{
    core::DateTimeRecord record;
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
    return date == core::PlainDate{} ? std::wstring() : present::dateText(record);
}

} // namespace

bool hasRecordOptions(const Arguments& arguments)
{
    return std::any_of(kRecordOptions.begin(), kRecordOptions.end(),
                       [&](const OptionInfo& option) { return arguments.has(option.name); });
}

Result<void> applyRecordOptions(const Arguments& arguments, core::Chart& chart)
{
    core::Identity& identity = chart.identity;
    Result<void> applied = applyTag(arguments, identity);
    const auto then = [&](auto&& step) {
        if (applied) {
            applied = step();
        }
    };
    then([&] { return applyTexts(arguments, identity); });
    then([&] { return applyDate(arguments, "--second-date", identity.secondDate); });
    then([&] { return applyDate(arguments, "--third-date", identity.thirdDate); });
    then([&] { return applyNumbers(arguments, identity); });
    then([&] { return applyNotes(arguments, identity); });
    for (const std::string& typed : arguments.values("--contact")) {
        then([&] { return applyContact(typed, identity.contact); });
    }
    if (arguments.has("--clear-events")) {
        identity.events = {};
    }
    for (const std::string& typed : arguments.values("--event")) {
        then([&] { return applyEvent(typed, identity); });
    }
    return applied;
}

Json recordJson(const core::Chart& chart)
{
    // One writer serves the export and the command line.
    return Json::parse(data::jsonObject(chart));
}

std::wstring recordText(const core::Chart& chart)
{
    const core::Identity& identity = chart.identity;
    present::LabelledLines lines;
    const auto add = [&](std::wstring_view label, const std::wstring& text) {
        if (!text.empty()) {
            lines.add(std::wstring(label), text);
        }
    };
    add(L"Name", chart.name);
    add(L"Tag", identity.tag == L' ' ? std::wstring() : std::wstring(1, identity.tag));
    add(L"Label", identity.label);
    add(L"Sex", identity.sex);
    add(L"Code", identity.code);
    add(L"Date", present::dateText(chart.time));
    add(L"Time", chart.timeText);
    add(L"Place", present::placeLabel(chart));
    add(L"Zone", chart.zoneText);
    add(L"Saving time", std::to_wstring(chart.daylightSaving));
    add(L"Longitude", identity.longitudeText);
    add(L"Latitude", identity.latitudeText);
    if (!identity.sound.empty()) {
        add(L"First sound", identity.sound + L", group " + std::to_wstring(identity.soundGroup));
    }
    add(L"Occupation", identity.occupation);
    add(L"Status", identity.status);
    add(L"Free text", identity.freeText);
    add(L"Second date", plainDateText(identity.secondDate));
    add(L"Third date", plainDateText(identity.thirdDate));
    if (identity.numbers != std::array<int, 2>{}) {
        add(L"Numbers",
            std::to_wstring(identity.numbers[0]) + L", " + std::to_wstring(identity.numbers[1]));
    }
    for (std::size_t i = 0; i < kContactNames.size(); ++i) {
        add(L"Contact " + std::wstring(kContactNames[i].begin(), kContactNames[i].end()),
            identity.contact.*data::contactFields()[i].text);
    }
    for (const core::LifeEvent& event : identity.events) {
        add(event.name.empty() ? L"" : L"Event",
            event.name.empty() ? std::wstring()
                               : plainDateText(event.date) + L" " + data::timeText(event.hours) +
                                     L" " + event.name);
    }
    std::wstring text = lines.text();
    if (!identity.notes.empty()) {
        std::wstring notes = identity.notes;
        notes.erase(std::remove(notes.begin(), notes.end(), L'\r'), notes.end());
        text += L"\n" + notes + L"\n";
    }
    return text;
}

} // namespace kestrav::cli
