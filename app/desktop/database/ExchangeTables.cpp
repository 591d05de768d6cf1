#include "app/desktop/database/ExchangeTables.h"

#include "app/present/PersonTables.h"
#include "core/FileText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace kestrav::desktop
{

namespace
{

using present::Align;
using present::Cell;
using present::Table;

// New, changed, equal or damaged.
constexpr std::size_t kKindColumn = 1;

// Rows are sorted by this when their column is: what changes something comes first.
Cell kindCell(data::MergeKind kind)
{
    switch (kind) {
    case data::MergeKind::New:
        return {L"New", double(kind)};
    case data::MergeKind::Changed:
        return {L"Changed", double(kind)};
    case data::MergeKind::Equal:
        return {L"Equal", double(kind)};
    case data::MergeKind::Damaged:
        break;
    }
    return {L"Damaged", double(kind)};
}

Cell dateCell(const core::Chart& chart)
{
    return present::plainDateCell({chart.time.year, chart.time.month, chart.time.day});
}

Cell recordCell(long record)
{
    return record > 0 ? present::integerCell(int(record)) : Cell(L"");
}

// Texts of foreign files may hold anything; a cell is one line.
std::wstring cellText(const std::string& utf8)
{
    std::wstring text = core::fromFileBytes(utf8);
    for (wchar_t& character : text) {
        const bool control = character < 0x20 || (character >= 0x7F && character < 0xA0);
        character = control ? L' ' : character;
    }
    return text;
}

} // namespace

std::wstring differences(const core::Chart& ours, const core::Chart& theirs)
{
    std::wstring words;
    const auto note = [&words](bool differs, std::wstring_view word) {
        if (differs) {
            words += (words.empty() ? L"" : L", ") + std::wstring(word);
        }
    };
    constexpr double kSecond = 1.0 / 3600.0;
    const auto apart = [](double one, double other) {
        return std::abs(one - other) > kSecond / 2.0;
    };
    const core::Identity& a = ours.identity;
    const core::Identity& b = theirs.identity;
    note(ours.time.year != theirs.time.year || ours.time.month != theirs.time.month ||
             ours.time.day != theirs.time.day,
         L"date");
    note(apart(ours.time.localTime, theirs.time.localTime), L"time");
    note(apart(ours.zone, theirs.zone) || ours.daylightSaving != theirs.daylightSaving,
         L"time zone");
    note(ours.place != theirs.place || a.country != b.country, L"place");
    note(apart(ours.geoLongitude, theirs.geoLongitude) ||
             apart(ours.geoLatitude, theirs.geoLatitude),
         L"longitude or latitude");
    note(a.tag != b.tag || a.code != b.code || a.label != b.label, L"tag");
    note(a.sex != b.sex, L"sex");
    note(a.occupation != b.occupation, L"occupation");
    note(a.notes != b.notes, L"notes");
    note(a.events != b.events, L"events");
    note(!(a.contact == b.contact), L"contact");
    // What is left is of fields that have no place of their own in the window.
    note(words.empty(), L"other fields");
    return words;
}

Table mergeTable(const data::MergePreview& preview, data::ChartDatabase& ours,
                 data::ChartDatabase& theirs)
{
    Table table = {
        "merge",
        L"",
        {{L"Line", Align::Right}, {L"Here"}, {L"Name"}, {L"Date"}, {L"Different", Align::Wrapped}}};
    core::Chart mine;
    core::Chart other;
    for (const data::MergeEntry& entry : preview.entries) {
        const bool damaged = entry.kind == data::MergeKind::Damaged;
        Cell date(L"");
        std::wstring words;
        if (damaged) {
            words = L"too short to be a chart";
        } else {
            theirs.read(entry.theirLine, other);
            date = dateCell(other);
        }
        if (entry.kind == data::MergeKind::Changed) {
            words = differences(ours.read(*entry.ourLine, mine), other);
        }
        table.add({present::integerCell(int(entry.theirLine) + 1), kindCell(entry.kind), entry.name,
                   std::move(date), words});
    }
    // What is equal stands last, as there may be thousands of it.
    std::stable_sort(table.rows.begin(), table.rows.end(),
                     [](const present::Row& one, const present::Row& two) {
                         return present::compareCells(one[kKindColumn], two[kKindColumn]) < 0;
                     });
    return table;
}

Table importTable(const std::vector<data::ImportReport>& reports)
{
    Table table = {"import",
                   L"",
                   {{L"Record", Align::Right}, {L"Result"}, {L"Chart or reason", Align::Wrapped}}};
    const bool several = reports.size() > 1;
    if (several) {
        table.columns.insert(table.columns.begin(), {L"File"});
    }
    for (const data::ImportReport& report : reports) {
        const auto add = [&](long record, const wchar_t* result, std::wstring text) {
            present::Row row = {recordCell(record), result, std::move(text)};
            if (several) {
                row.insert(row.begin(), cellText(report.file.filename().string()));
            }
            table.add(std::move(row));
        };
        for (const data::ImportNote& note : report.refused) {
            add(note.record, L"Refused", cellText(note.text));
        }
        for (const data::ImportNote& note : report.remarks) {
            add(note.record, L"Remark", cellText(note.text));
        }
        for (const core::Chart& chart : report.charts) {
            add(0, L"Added", chart.name);
        }
    }
    return table;
}

Table exportTable(const data::ExportReport& report)
{
    Table table = {"export", L"", {{L"Line", Align::Right}, {L"Lost", Align::Wrapped}}};
    for (const data::ExportNote& note : report.notes) {
        table.add({present::integerCell(int(note.line) + 1), cellText(note.text)});
    }
    return table;
}

} // namespace kestrav::desktop
