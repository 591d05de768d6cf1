#include "data/Chooser.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/DatabaseMessages.h"
#include "data/FieldReader.h"
#include "data/FoldTable.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <numeric>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace kestrav::data
{

namespace
{

// The fields between the birth time and the second date.
constexpr int kFieldsBeforeSecondDate = 10;

bool plainName(std::string_view name)
{
    return !name.empty() && isAscii(name) &&
           std::all_of(name.begin(), name.end(), [](char byte) { return byte >= ' '; }) &&
           std::any_of(name.begin(), name.end(), [](char byte) { return byte >= 'A'; });
}

std::string readName(FieldReader& fields)
{
    const std::string_view bytes = fields.text(kNameLength);
    if (plainName(bytes) && hasLetterOrDigit(std::wstring(bytes.begin(), bytes.end()))) {
        return std::string(bytes);
    }
    const std::wstring name = wideField(bytes);
    return core::toUtf8(hasLetterOrDigit(name) ? name : std::wstring(kNoNameText));
}

WrittenDate readDate(FieldReader& fields)
{
    WrittenDate date;
    date.first = core::readLeadingInteger(fields.part(kNumberLength));
    date.second = core::readLeadingInteger(fields.part(kNumberLength));
    date.year = core::readLeadingInteger(fields.lastPart(kNumberLength));
    return date;
}

template <typename Keep>
std::vector<std::size_t> filtered(const ChooserList& list, Keep keep)
{
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        if (keep(list.rows[i])) {
            rows.push_back(i);
        }
    }
    return rows;
}

std::vector<std::size_t> alphabetical(const ChooserList& list)
{
    std::vector<std::pair<std::string, std::size_t>> keys(list.rows.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        keys[i] = {nameSortKey(list.rows[i].name), i};
    }
    std::sort(keys.begin(), keys.end());
    std::vector<std::size_t> rows(keys.size());
    std::transform(keys.begin(), keys.end(), rows.begin(),
                   [](const auto& key) { return key.second; });
    return rows;
}

std::vector<std::size_t> linkedToPrimary(const ChooserList& list)
{
    std::unordered_map<std::string, std::vector<std::size_t>> byCode;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        const ChooserRow& row = list.rows[i];
        if (row.tag != L'P' && !row.code.empty()) {
            byCode[row.code].push_back(i);
        }
    }
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        if (list.rows[i].tag != L'P') {
            continue;
        }
        rows.push_back(i);
        const auto linked = byCode.find(list.rows[i].code);
        if (linked != byCode.end()) {
            rows.insert(rows.end(), linked->second.begin(), linked->second.end());
            // A second primary of the same code does not show them again.
            byCode.erase(linked);
        }
    }
    return rows;
}

} // namespace

ChooserRow chooserRow(std::string_view line, DateOrder& order, bool namesOnly)
{
    FieldReader fields(line);
    ChooserRow row;
    const std::wstring tag = wideField(fields.unquoted(1));
    row.tag = tag.empty() ? L' ' : tag.front();
    fields.skipText(1);
    row.name = readName(fields);
    const std::string_view sex = fields.text(kSexLength);
    row.sex = sex == "M" || sex == "F" ? sex.front() : ' ';
    if (namesOnly) {
        return row;
    }
    row.code = fields.text(kCodeLength);
    const WrittenDate date = readDate(fields);
    row.time = fields.text(kTimeLength);
    fields.skipText(kFieldsBeforeSecondDate);
    fields.skipCompound(3);
    fields.skipCompound(2);
    fields.skipCompound(2);
    row.date = date.in(orderOfLine(fields.part(kOrderCodeLength), date, order));
    return row;
}

ChooserList listCharts(ChartDatabase& database, bool namesOnly)
{
    ChooserList list;
    list.rows.reserve(database.size());
    DateOrder order = database.order();
    for (std::size_t i = 0; i < database.size(); ++i) {
        const std::string_view line = database.line(i);
        if (isShortLine(line)) {
            list.tooShort.push_back(i);
            continue;
        }
        ChooserRow& row = list.rows.emplace_back(chooserRow(line, order, namesOnly));
        row.line = i;
        list.nameWidth = std::max(list.nameWidth, countCharacters(row.name));
    }
    database.setOrder(order);
    return list;
}

void tellShortLine(const ChooserList& list, const ChartDatabase& database, core::Messages& messages)
{
    if (!list.tooShort.empty()) {
        const std::size_t line = list.tooShort.front();
        messages.notice(kNoticeCaption, shortLineMessage(line, database.line(line), false));
    }
}

std::wstring chooserText(const ChooserRow& row, std::size_t nameWidth, DateOrder order)
{
    const bool dayFirst = order == DateOrder::DayFirst;
    std::array<wchar_t, 64> date{};
    const int length = std::swprintf(date.data(), date.size(), L"    %2d/%2d/%4d    ",
                                     dayFirst ? row.date.day : row.date.month,
                                     dayFirst ? row.date.month : row.date.day, row.date.year);
    std::wstring text = wideField(row.name);
    text.resize(std::max(text.size(), nameWidth), L' ');
    text.append(date.data(), std::size_t(std::max(length, 0)));
    const std::wstring time = wideField(row.time);
    constexpr std::size_t kTimeWidth = 5;
    text.append(kTimeWidth - std::min(kTimeWidth, time.size()), L' ');
    return text + time;
}

std::wstring_view sortOrderText(int order)
{
    constexpr std::array<std::wstring_view, kSortOrders> kTexts = {L"Alphabetical",
                                                                   L"Unsorted (chronological)",
                                                                   L"Now/Location tags",
                                                                   L"A group",
                                                                   L"B group",
                                                                   L"Male",
                                                                   L"Female",
                                                                   L"Linked to Primary"};
    return order < 0 || order >= kSortOrders ? std::wstring_view() : kTexts[std::size_t(order)];
}

std::vector<std::size_t> sortedRows(const ChooserList& list, SortOrder order)
{
    switch (order) {
    case SortOrder::Alphabetical:
        return alphabetical(list);
    case SortOrder::NowAndLocation:
        return filtered(list, [](const auto& row) { return row.tag == L'N' || row.tag == L'L'; });
    case SortOrder::GroupA:
        return filtered(list, [](const auto& row) { return row.tag == L'A'; });
    case SortOrder::GroupB:
        return filtered(list, [](const auto& row) { return row.tag == L'B'; });
    case SortOrder::Male:
        return filtered(list, [](const auto& row) { return row.sex == 'M'; });
    case SortOrder::Female:
        return filtered(list, [](const auto& row) { return row.sex == 'F'; });
    case SortOrder::LinkedToPrimary:
        return linkedToPrimary(list);
    case SortOrder::FileOrder:
        break;
    }
    return filtered(list, [](const auto&) { return true; });
}

std::string nameSortKey(std::string_view utf8)
{
    std::string key;
    key.reserve(utf8.size());
    if (isAscii(utf8)) {
        for (const char byte : utf8) {
            key += byte >= 'A' && byte <= 'Z' ? char(byte - 'A' + 'a') : byte;
        }
        return key;
    }
    constexpr wchar_t kFirst = 0xC0;
    for (const wchar_t character : core::fromFileBytes(utf8)) {
        const std::size_t entry = 2 * std::size_t(character - kFirst);
        if (character < 0x80) {
            key += nameSortKey(std::string(1, char(character)));
        } else if (character >= kFirst && entry < kFoldFrom00C0.size() &&
                   kFoldFrom00C0[entry] != ' ') {
            key += kFoldFrom00C0[entry];
            if (kFoldFrom00C0[entry + 1] != ' ') {
                key += kFoldFrom00C0[entry + 1];
            }
        } else {
            key += core::toUtf8(std::wstring(1, character));
        }
    }
    return key;
}

} // namespace kestrav::data
